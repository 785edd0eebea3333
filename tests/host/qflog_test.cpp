#include "nexo/setting_manager.h"
#include "orba/qflog.h"
#include "support/stderr_capture.h"
#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

const QString kFile = QStringLiteral("./log/part");

class QFLogTest : public ::testing::Test
{
protected:
    void SetUp() override { setData(folder.path()); }
    void TearDown() override { setData(QString()); }
    static void setData(const QString &path)
    {
        nexo::SettingManager::instance()->setOverride(QStringLiteral("data"), path);
    }
    QString path(const QString &suffix = QString()) const
    {
        return folder.filePath(QStringLiteral("log/part.log")) + suffix;
    }
    static orba::QFLog logger(const QString &file = kFile)
    {
        return {QStringLiteral("\033[35m"), QStringLiteral("[S|12/31 23:59:59.999]"), QString(), file,
                QStringLiteral("log")};
    }
    static QByteArray content(const QString &file)
    {
        QFile input(file);
        return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
    }
    static void fill(const QString &file, qint64 size, char letter)
    {
        QFile output(file);
        ASSERT_TRUE(output.open(QIODevice::WriteOnly));
        output.write(QByteArray(static_cast<int>(size), letter));
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(QFLogTest, KeepsARecordOnOneLineAndNeutralisesControlCharacters)
{
    StderrCapture console;
    logger().write(QStringLiteral("a\r\nb\tc\033[2Jd"));
    EXPECT_EQ(content(path()), "[S|12/31 23:59:59.999] a\\r\\nb?c?[2Jd\n");
}

TEST_F(QFLogTest, RotatesBeforeTheLimitAndKeepsTwoOldFiles)
{
    StderrCapture console;
    logger().write(QStringLiteral("first"));
    for (const char letter : {'a', 'b', 'c'}) {
        fill(path(), orba::QFLog::kRotateBytes, letter);
        logger().write(QStringLiteral("after"));
    }
    EXPECT_EQ(content(path()), "[S|12/31 23:59:59.999] after\n");
    EXPECT_EQ(content(path(QStringLiteral(".1"))).at(0), 'c');
    EXPECT_EQ(content(path(QStringLiteral(".2"))).at(0), 'b');
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("log"))).entryList(QDir::Files).size(), 3);
}

TEST_F(QFLogTest, ReportsAnUnwritableFileOnceAndGoesOn)
{
    const QString blocked = folder.filePath(QStringLiteral("blocked"));
    fill(blocked, 1, 'x'); // a file where the folder should be
    StderrCapture console;
    const orba::QFLog log = logger(blocked + QStringLiteral("/part"));
    log.write(QStringLiteral("one"));
    log.write(QStringLiteral("two"));
    const QByteArray said = console.take();
    EXPECT_EQ(said.count("Cannot write the log file"), 1) << said.constData();
    EXPECT_TRUE(said.contains(log.filePath().toUtf8()));
    EXPECT_TRUE(said.contains("] one\n") && said.contains("] two\n"));
}

TEST_F(QFLogTest, KeepsLinesOfSeveralThreadsWhole)
{
    constexpr int kLines = 100;
    StderrCapture console;
    const orba::QFLog log = logger();
    const auto writeAll = [&log](char letter) {
        for (int i = 0; i < kLines; ++i)
            log.write(QString(200, QLatin1Char(letter)));
    };
    std::thread other(writeAll, 'a');
    writeAll('b');
    other.join();
    const QList<QByteArray> lines = content(path()).split('\n');
    ASSERT_EQ(lines.size(), 2 * kLines + 1);
    for (int i = 0; i < 2 * kLines; ++i) {
        const QByteArray text = lines.at(i).mid(lines.at(i).indexOf(' ', 12) + 1);
        EXPECT_EQ(text, QByteArray(200, text.at(0))) << i;
    }
}
