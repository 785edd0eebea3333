// A disk that is pulled or an operator who cancels at every step, a disk that gets full, a process that is killed at a
// hundred moments. No half archive under its final name, no project half replaced, "var.xml" as before.

#include "exchange_fixture.h"

#include "formats/obstacles.h"
#include "orba/module_manager.h"
#include "project/rules/archive_check.h"
#include "project/rules/project_record.h"
#include "project/rules/project_recovery.h"
#include "workstation/hidden_project.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>

#include <csignal>
#include <limits>
#include <random>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using palx::OnClash;

namespace {

constexpr int kKills = 50; // of exports, and as many of imports
constexpr int kFullDisks = 25;
constexpr int kNoise = 150000; // packed in several pieces, between which it can be cancelled
const QByteArray kVariables("<node type=\"list\"/>\n");

/// What does not pack well, so that an archive takes its time.
QByteArray noise(int size)
{
    std::mt19937 random(5);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

class ExchangeTroubleTest : public ExchangeTest
{
protected:
    void SetUp() override
    {
        startWithoutController();
        m("nexo.r.id")->set(nullptr, "", QStringLiteral("SIM-0001"), true);
        putProject(QStringLiteral("P"), kVariables);
        putFile(QStringLiteral("P/data/noise.bin"), noise(kNoise));
        for (int i = 0; i < 8; ++i) // each is a step
            putFile(QStringLiteral("P/data/%1.mod").arg(i), "small");
        setRecord(QStringLiteral("P"), R"({"scheme_layout": 2})");
        ASSERT_TRUE(exportNames({"P"}));
        makeOld();
        archive_ = fileContent(onDisk(QStringLiteral("P.zip")));
        takeMessages();
    }

    static QByteArray fileContent(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool isWhole(const QString &archive)
    {
        palx::ArchiveContent content;
        palx::NoProgress nobody;
        QString why;
        return palx::checkArchive(archive, &content, &why, &nobody);
    }
    /// The project as it was, or as the archive makes it; with the record that belongs to it.
    void expectOldOrNew()
    {
        const bool isOld = record(QStringLiteral("P")) == QLatin1String("P 1 0 0 0 0 0 0");
        EXPECT_TRUE(isOld || record(QStringLiteral("P")) == QLatin1String("P 2 0 0 0 0 0 0"));
        EXPECT_EQ(content("P/old.mod"), QByteArray(isOld ? "old" : "(no file)"));
        EXPECT_EQ(content("P/.palx-record.xml"), QByteArray("(no file)"));
        EXPECT_EQ(content("P/data/noise.bin").size(), kNoise);
        EXPECT_EQ(files() == before_, isOld);
        ++(isOld ? old_ : new_);
    }
    void expectOld()
    {
        EXPECT_EQ(files(), before_);
        EXPECT_EQ(record(QStringLiteral("P")), QStringLiteral("P 1 0 0 0 0 0 0"));
    }
    void makeOld()
    {
        palx::forgetLastImport();
        putFile(QStringLiteral("P/var.xml"), kVariables);
        putFile(QStringLiteral("P/old.mod"), "old");
        setRecord(QStringLiteral("P"), R"({"scheme_layout": 1})");
        palx::saveDataToHiddenProject();
        before_ = files();
    }

    static constexpr long kNever = -1;
    /// Runs `work` in a process of its own, which is killed after that many microseconds. False when it had ended.
    static bool killed(const std::function<void()> &work, long microseconds)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            work();
            ::_exit(0);
        }
        if (microseconds != kNever) {
            const timespec moment{microseconds / 1000000, microseconds % 1000000 * 1000};
            ::nanosleep(&moment, nullptr);
            ::kill(child, SIGKILL);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFSIGNALED(status);
    }
    /// How long it takes at least [us]; others may use the machine too.
    static long duration(const std::function<void()> &work)
    {
        qint64 shortest = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer timer;
            timer.start();
            killed(work, kNever);
            shortest = std::min(shortest, timer.nsecsElapsed());
        }
        return long(shortest / 1000);
    }

    std::map<std::string, std::string> before_;
    QByteArray archive_;
    int old_ = 0;
    int new_ = 0;
};

} // namespace

TEST_F(ExchangeTroubleTest, ACancelledExportOrAPulledDiskLeavesNoHalfArchive)
{
    CountingProgress counting;
    ASSERT_TRUE(exportNames({"P"}, &counting));
    ASSERT_GE(counting.steps, names(place(QStringLiteral("P"))).size());
    for (int at = 0; at < counting.steps; ++at) {
        SCOPED_TRACE(at);
        CountingProgress cancelling;
        cancelling.at = at;
        cancelling.act = [&cancelling] { cancelling.cancel(); };
        const bool isExported = exportNames({"P"}, &cancelling);
        EXPECT_TRUE(!isExported || at >= counting.steps - 3) << "the last steps come too late";
        EXPECT_EQ(names(disk()), QStringList("P.zip"));
        EXPECT_TRUE(isWhole(onDisk(QStringLiteral("P.zip"))));
        expectOld();
        CountingProgress pulling;
        pulling.at = at;
        pulling.act = [this] { QDir().rename(disk(), disk() + "-gone"); };
        exportNames({"P"}, &pulling);
        if (QDir(disk() + "-gone").exists()) {
            QDir(disk()).removeRecursively();
            ASSERT_TRUE(QDir().rename(disk() + "-gone", disk()));
        }
        EXPECT_TRUE(isWhole(onDisk(QStringLiteral("P.zip"))));
        expectOld();
    }
    EXPECT_TRUE(exportNames({"P"}));
    EXPECT_EQ(names(disk()), QStringList("P.zip"));
}

TEST_F(ExchangeTroubleTest, ACancelledImportLeavesEverythingAsItWas)
{
    CountingProgress counting;
    ASSERT_TRUE(import({"P.zip", "P.zip"}, OnClash::Replace, &counting));
    ASSERT_TRUE(palx::undoLastImport());
    expectOld();
    for (int at = 0; at < counting.steps; at += 5) {
        CountingProgress cancelling;
        cancelling.at = at;
        cancelling.act = [&cancelling] { cancelling.cancel(); };
        if (import({"P.zip", "P.zip"}, OnClash::Replace, &cancelling))
            palx::undoLastImport(); // the last steps come too late
        expectOld();
    }
}

TEST_F(ExchangeTroubleTest, AFullDiskGetsNoHalfArchiveAndNoHalfProject)
{
    for (int i = 0; i < kFullDisks; ++i) {
        SCOPED_TRACE(i);
        bool isExported = true;
        bool isImported = true;
        {
            const FullDisk full(rlim_t(archive_.size()) * rlim_t(i) / kFullDisks);
            isExported = exportNames({"P"});
        }
        EXPECT_FALSE(isExported);
        EXPECT_EQ(takeMessages().last(), QStringLiteral("warning: Export P failed!"));
        EXPECT_EQ(names(disk()), QStringList("P.zip"));
        EXPECT_EQ(fileContent(onDisk(QStringLiteral("P.zip"))), archive_);
        {
            const FullDisk full(rlim_t(kNoise) * rlim_t(i) / kFullDisks);
            isImported = import({"P.zip"}, OnClash::Replace);
        }
        EXPECT_FALSE(isImported);
        expectOld();
    }
}

TEST_F(ExchangeTroubleTest, AKilledExportLeavesNoHalfArchiveAndTheProjectAsItWas)
{
    const auto work = [this] { exportNames({"P"}); };
    const long whole = duration(work);
    int inTheMiddle = 0;
    for (int i = 0; i < kKills; ++i) {
        SCOPED_TRACE(i);
        inTheMiddle += killed(work, whole * i / kKills) ? 1 : 0;
        EXPECT_TRUE(isWhole(onDisk(QStringLiteral("P.zip"))));
        EXPECT_EQ(content("P/var.xml"), kVariables); // at once, not at the next start only
        palx::recoverExchange(programs());
        expectOld();
    }
    EXPECT_GT(inTheMiddle, kKills / 4);
    ASSERT_TRUE(exportNames({"P"}));
    EXPECT_EQ(names(disk()), QStringList("P.zip"));
}

TEST_F(ExchangeTroubleTest, AKilledImportLeavesTheOldOrTheNewProject)
{
    const auto work = [this] {
        import({"P.zip"}, OnClash::Replace);
        ::raise(SIGKILL); // without what the end of the program does
    };
    const long whole = duration(work);
    palx::recoverExchange(programs());
    ASSERT_TRUE(import({"P.zip"}, OnClash::Replace)); // here too
    makeOld();
    for (int i = 0; i < kKills; ++i) {
        SCOPED_TRACE(i);
        killed(work, i < kKills - 3 ? whole * i / (kKills - 6) : kNever);
        palx::HiddenProject::current()->load(); // as the next start reads what the killed one wrote
        palx::recoverExchange(programs());
        expectOldOrNew();
        EXPECT_EQ(names(workspace()).filter("staging"), QStringList());
        if (content("P/old.mod") != "old")
            makeOld();
    }
    EXPECT_GT(old_, 5);
    EXPECT_GT(new_, 0);
}
