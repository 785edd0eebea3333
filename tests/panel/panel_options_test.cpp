#include "panel/panel_options.h"
#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

panel::PanelOptions parse(const QStringList &arguments,
                          const QString &programFolder = QStringLiteral("/none"))
{
    return panel::parseOptions(QStringList(QStringLiteral("palx_panel")) + arguments, programFolder);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

void touch(const QString &name)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(name).path()));
    ASSERT_TRUE(QFile(name).open(QIODevice::WriteOnly));
}

} // namespace

TEST(PanelOptions, AreHandedToTheSession)
{
    const panel::PanelOptions options = parse(
        words("--data /d --workspace /w --language ru --touch --plugin a.so --plugin b.so --examples r.xml"));
    EXPECT_EQ(options.refusal, QString());
    EXPECT_EQ(options.session.dataFolder + options.session.workspaceFolder + options.session.language,
              QStringLiteral("/d/wru"));
    EXPECT_EQ(options.session.touch, std::optional<bool>(true));
    EXPECT_EQ(options.session.pluginFiles, words("a.so b.so"));
    EXPECT_EQ(options.session.examples, words("r.xml"));
}

TEST(PanelOptions, FindLibrariesAndExamplesInFoldersByName)
{
    const QTemporaryDir folder;
    for (const char *name :
         {"plugins/libb.so", "plugins/liba.so", "plugins/readme.txt", "ex/2.json", "ex/1.xml", "ex/x.png"})
        touch(folder.filePath(QLatin1String(name)));
    const panel::PanelOptions options =
        parse({QStringLiteral("--examples"), folder.filePath(QStringLiteral("ex"))},
              folder.filePath(QStringLiteral("bin")));
    QStringList names;
    for (const QString &file : options.session.pluginFiles + options.session.examples)
        names.append(QFileInfo(file).fileName());
    EXPECT_EQ(names, words("liba.so libb.so 1.xml 2.json"));
}

TEST(PanelOptions, RefuseWhatTheyDoNotKnow)
{
    const struct
    {
        const char *arguments;
        const char *told;
    } cases[] = {
        {"--language xx", "\"xx\""}, {"--speed 3", "speed"}, {"file.xml", "file.xml"}, {"--data", "data"}};
    for (const auto &each : cases) {
        const QString refusal = parse(words(each.arguments)).refusal;
        EXPECT_TRUE(refusal.contains(QLatin1String(each.told))) << each.arguments << ": " << refusal;
    }
}
