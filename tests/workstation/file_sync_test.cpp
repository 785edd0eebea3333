#include "workstation/file_sync.h"

#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(FileSync, TakesWhatIsThereAndSaysWhyItRefusesTheRest)
{
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    QFile file(dir.filePath(QStringLiteral("паллета 1.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    file.close();
    ASSERT_EQ(::mkfifo(QFile::encodeName(dir.filePath(QStringLiteral("pipe"))).constData(), 0600), 0);
    const struct
    {
        QString path;
        int number; // of the refusal, 0 for success
    } cases[] = {{dir.path(), 0},
                 {file.fileName(), 0},
                 {dir.filePath(QStringLiteral("pipe")), 0}, // and does not wait for a writer
                 {dir.filePath(QStringLiteral("gone")), ENOENT},
                 {file.fileName() + QStringLiteral("/below"), ENOTDIR},
                 {QString(), ENOENT}};
    for (const auto &c : cases) {
        QString error;
        EXPECT_EQ(palx::syncFileSystem(c.path, &error), c.number == 0) << c.path;
        EXPECT_EQ(error,
                  c.number == 0 ? QString() : c.path + QStringLiteral(": ") + qt_error_string(c.number));
        EXPECT_EQ(palx::syncFileSystem(c.path), c.number == 0) << "without asking for the reason";
    }
}
