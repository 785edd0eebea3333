// A process that saves without end is killed many times at a random moment. Every store it leaves must hold one
// whole save: the last one that it reported as done, or the one after it.

#include "formats/store_fixture.h"
#include "support/test_support.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <random>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using orba::Node;

namespace {

class StoreKillTest : public StoreFixture
{
protected:
    /// Everything in the tree follows from the number of the save.
    void change(int save) const
    {
        while (stacks()->size() > 3 + save % 4)
            stacks()->removeAt(save % stacks()->size());
        while (stacks()->size() < 3 + save % 4)
            addStack(save)->ensure(u"note")->setString(QString(20000, QLatin1Char('x')));
        stacks()->move(0, stacks()->size() - 1);
        for (int i = 0; i < stacks()->size(); ++i)
            stacks()->at(i)->find(u"height")->setInt(save);
        tree().find(u"default.height")->setInt(save);
    }

    /// The number of the save in the tree; fails the test when it is not one whole save.
    int wholeSave() const
    {
        const auto save = static_cast<int>(tree().getInt(u"default.height"));
        EXPECT_EQ(stacks()->size(), save == 0 ? 0 : 3 + save % 4);
        for (int i = 0; i < stacks()->size(); ++i)
            EXPECT_EQ(stacks()->at(i)->getInt(u"height"), save);
        return save;
    }

    /// In the child: saves until it is killed, and reports each save.
    [[noreturn]] void saveForever(int first, int report)
    {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (!start())
            _exit(1);
        for (int save = first;; ++save) {
            change(save);
            if (!store_->save() || ::write(report, &save, sizeof save) != sizeof save)
                _exit(1);
        }
    }
};

/// Waits for a report of the child, at most that long; 0 when none came.
int nextReport(int pipe, long microseconds)
{
    pollfd ready{pipe, POLLIN, 0};
    const timespec bound{microseconds / 1000000, microseconds % 1000000 * 1000};
    int save = 0;
    if (::ppoll(&ready, 1, &bound, nullptr) != 1 || ::read(pipe, &save, sizeof save) != sizeof save)
        return 0;
    return save;
}

TEST_F(StoreKillTest, KillsLoseNoSave)
{
    writeTemplate("{\"default\": {\"height\": 0}, \"stacks\": []}");
    std::mt19937 random(7);
    int reported = 0;
    int cutShort = 0;
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            saveForever(reported + 1, pipe[1]);
        ::close(pipe[1]);
        for (int reports = static_cast<int>(random() % 3); reports > 0; --reports)
            reported = std::max(reported, nextReport(pipe[0], 20000000));
        reported =
            std::max(reported, nextReport(pipe[0], static_cast<long>(random() % 20000))); // in some save
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child gave up by itself";
        while (const int save = nextReport(pipe[0], 0))
            reported = save;
        ::close(pipe[0]);

        ASSERT_TRUE(start());
        const int stored = wholeSave();
        ASSERT_FALSE(HasFailure());
        ASSERT_TRUE(stored == reported || stored == reported + 1) << stored << " after " << reported;
        ASSERT_EQ(problems(), QString());
        stop();
        cutShort += stored == reported ? 1 : 0;
        reported = stored;
    }
    EXPECT_GT(reported, 20);
    EXPECT_GT(cutShort, 8); // many kills hit an unfinished save
    EXPECT_EQ(filesSetAside(), QStringList());
}

} // namespace
