#include "fixtures.h"
#include "shell/plugin_loader.h"
#include "support/test_support.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString writeFile(const QTemporaryDir &folder, const char *name, const QByteArray &content)
{
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

/// The same library, said to be for a machine that does not exist.
QByteArray otherMachine(QByteArray library)
{
    library[18] = '\x7f';
    return library;
}

QByteArray content(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(PluginLoader, RefusesWhatIsNoPluginWithFileAndReason)
{
    const QTemporaryDir folder;
    const QByteArray good = content(fixtureFile("good_plugin"));
    ASSERT_FALSE(good.isEmpty());
    const struct
    {
        QString file;
        const char *why;
    } cases[] = {
        {folder.filePath(QStringLiteral("none.so")), "there is no such file"},
        {writeFile(folder, "text.so", "this is a text"), "it is no library"},
        {writeFile(folder, "empty.so", ""), "it is no library"},
        {writeFile(folder, "start.so", good.left(8192)), "the file is incomplete: it has 8192 bytes"},
        {writeFile(folder, "other_machine.so", otherMachine(good)),
         "other_machine.so"}, // the loader's own words
        {fixtureFile("unresolved"), "function_that_no_library_has"},
        {fixtureFile("no_entry"), "it has no entry \"orba_plugin_api\""},
        {fixtureFile("wrong_abi"), "built for interface 2 of the framework, this panel has interface 1"},
        {fixtureFile("not_registered"), "registered no module under the name \"not_registered\""},
    };
    for (const auto &each : cases) {
        host::Problem problem;
        EXPECT_EQ(host::loadPlugin(each.file, &problem), nullptr) << each.file;
        EXPECT_EQ(problem.where, each.file);
        EXPECT_EQ(problem.what, QStringLiteral("The plug-in cannot be loaded"));
        EXPECT_TRUE(problem.why.contains(QLatin1String(each.why))) << problem.text();
    }
}
