// The log over restarts: the file of records, its bound, and trouble with it.

#include "core/log_keeper.h"

#include "core/global_nodes.h"
#include "orba/module_object.h"
#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using host::LogKeeper;
using host::RecordFile;

namespace {

class LogKeeperTest : public ::testing::Test
{
protected:
    void SetUp() override { start(); }
    void TearDown() override { end(); }
    void start()
    {
        ASSERT_TRUE(host::buildGlobalNodes());
        keeper = std::make_unique<LogKeeper>();
    }
    void end()
    {
        keeper.reset();
        host::removeGlobalNodes();
    }
    void restart()
    {
        end();
        start();
        keeper->keepIn(file);
    }
    /// What stands in the list, oldest first.
    static QStringList titles()
    {
        QStringList texts;
        for (orba::ModuleObject *record : m("quill.log.list")->cmobjs())
            texts.append(record->getString("level") + QStringLiteral(": ") + record->getString("title"));
        return texts;
    }
    void write(const QByteArray &bytes) const
    {
        QFile target(file);
        ASSERT_TRUE(QDir().mkpath(folder.filePath(QStringLiteral("log"))));
        ASSERT_TRUE(target.open(QIODevice::WriteOnly)) << target.errorString();
        target.write(bytes);
    }
    QByteArray content() const
    {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("missing");
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("log/records.jsonl"));
    ScriptedPresenter presenter;
    std::unique_ptr<LogKeeper> keeper;
};

} // namespace

TEST_F(LogKeeperTest, RecordsSurviveARestartEqualOnesToo)
{
    host::publishRecord(QStringLiteral("info"), QStringLiteral("before the file"));
    keeper->keepIn(file);
    for (int i = 0; i < 2; ++i)
        host::publishRecord(QStringLiteral("error"), QString::fromUtf8("Коробка\n\"A\""));
    const orba::Node before = m("quill.log.list")->node();
    EXPECT_EQ(before.size(), 3);
    restart();
    EXPECT_EQ(m("quill.log.list")->node(), before);
    host::publishRecord(QStringLiteral("warning"), QStringLiteral("later"));
    restart();
    EXPECT_EQ(
        titles(),
        QStringList({QStringLiteral("info: before the file"), QString::fromUtf8("error: Коробка\n\"A\""),
                     QString::fromUtf8("error: Коробка\n\"A\""), QStringLiteral("warning: later")}));
}

TEST_F(LogKeeperTest, ListAndFileStayBounded)
{
    keeper->keepIn(file);
    const int count = 2 * LogKeeper::kMaxRecords + 50;
    for (int i = 0; i < count; ++i)
        host::publishRecord(QStringLiteral("info"), QString::number(i));
    EXPECT_EQ(m("quill.log.list")->cmobjCount(), LogKeeper::kMaxRecords);
    EXPECT_LE(content().count('\n'), 2 * LogKeeper::kMaxRecords);
    restart();
    EXPECT_EQ(titles().size(), LogKeeper::kMaxRecords);
    EXPECT_EQ(titles().last(), QStringLiteral("info: %1").arg(count - 1));
    EXPECT_EQ(titles().first(), QStringLiteral("info: %1").arg(count - LogKeeper::kMaxRecords));

    host::publishRecord(QStringLiteral("info"), QString(100000, QLatin1Char('x')));
    EXPECT_EQ(m("quill.log.list")->node().at(LogKeeper::kMaxRecords - 1)->getString(u"title").size(),
              LogKeeper::kMaxText + 1);
    m("quill.log.current")->set(nullptr, "", QStringLiteral(R"({"title": "short", "load": [1, 2, 3]})"));
    EXPECT_EQ(m("quill.log.list")->node().at(LogKeeper::kMaxRecords - 1)->size(), 4);
}

TEST_F(LogKeeperTest, WhatAPowerCutLeftHarmsNoOtherRecord)
{
    const struct
    {
        const char *left;
        QStringList read;
    } cases[] = {
        {R"({"level":"info","title":"A"}
{"level":"info","ti)",
         {"info: A"}},
        {R"({"level":"info","title":"A"})", {"info: A"}},
        {"nonsense\n{\"level\":\"info\",\"title\":\"A\"}\n[1]\n{\"level\":\"info\"}\n", {"info: A"}}};
    for (const auto &each : cases) {
        write(each.left);
        restart();
        EXPECT_EQ(titles(), each.read) << each.left;
        host::publishRecord(QStringLiteral("info"), QStringLiteral("B"));
        restart();
        EXPECT_EQ(titles(), each.read + QStringList(QStringLiteral("info: B"))) << each.left;
    }
    EXPECT_EQ(presenter.notices.filter(QStringLiteral("cannot")), QStringList());
}

TEST_F(LogKeeperTest, TroubleWithTheFileIsToldOnceAndTheListGoesOn)
{
    ASSERT_TRUE(QDir().mkpath(file)); // a folder stands in its place
    presenter.notices.clear();
    keeper->keepIn(file);
    ASSERT_EQ(presenter.notices.size(), 1);
    EXPECT_TRUE(
        presenter.notices[0].startsWith(QStringLiteral("warning: The log cannot be kept over a restart")))
        << presenter.notices[0];
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("log")))
                  .entryList({QStringLiteral("records.jsonl.damaged-*")})
                  .size(),
              1);
    EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("log"))).removeRecursively());
    QFile blocker(folder.filePath(QStringLiteral("log"))); // a file where the folder should be
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    presenter.notices.clear();
    for (int i = 0; i < 3; ++i)
        host::publishRecord(QStringLiteral("info"), QStringLiteral("A"));
    EXPECT_EQ(titles().size(), 3);
    EXPECT_EQ(presenter.notices.size(), 3)
        << presenter.notices.join(QLatin1Char('|')); // told before, not over yet
    ASSERT_TRUE(blocker.remove());
    host::publishRecord(QStringLiteral("info"), QStringLiteral("B"));
    restart();
    EXPECT_EQ(titles(), QStringList(QStringLiteral("info: B")));
}
