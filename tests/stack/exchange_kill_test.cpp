// A process that exports is killed at a hundred moments of its writing. The file of that name must be the old one, and after
// an export that ended the new one, but never a part of either.

#include "stack/exchange_fixture.h"
#include "stack/recipe_exchange.h"

#include <QDir>

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using orba::Node;

constexpr int kMoments = 34; ///< of one export

/// Kills its process at a step.
class DeadlyProgress : public palx::Progress
{
public:
    explicit DeadlyProgress(int killAt) : left_(killAt) {}
    void step(int, int, const QString &) override
    {
        if (--left_ <= 0)
            ::raise(SIGKILL);
    }
    bool isCancelled() override { return false; }
    bool enterLastPart() override { return true; }

private:
    int left_;
};

class ExchangeKillTest : public RecipeExchangeTest
{
protected:
    /// Each recipe is a piece of writing.
    static Node recipes(int count)
    {
        Node list;
        list.reset(Node::Kind::List);
        for (int i = 0; i < count; ++i) {
            Node *recipe = list.add();
            recipe->ensure(u"name")->setString(QStringLiteral("%1 of %2").arg(i).arg(count));
            recipe->ensure(u"note")->setString(QString(64 * 1024, QLatin1Char('x')));
        }
        return list;
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /// In a process of its own; the signal that ended it, or 0.
    int exportKilledAt(int step, const Node &list)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            DeadlyProgress deadly(step);
            _exit(palx::writeExchangeFile(list, path(), deadly).isDone() ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) != 0) << "the export failed by itself";
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
};

TEST_F(ExchangeKillTest, NoHalfFileStandsUnderTheNameAndTheOldOneStays)
{
    ASSERT_EQ(QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1)
        << "only a process of one thread may be forked and go on";
    const Node newer = recipes(kMoments + 1);
    for (const int older : {0, 1, kMoments + 5}) { // no file, a shorter and a longer one
        if (older > 0)
            write(recipes(older));
        const QByteArray before = content();
        for (int moment = 1; moment <= kMoments; ++moment) {
            EXPECT_EQ(exportKilledAt(moment, newer), SIGKILL);
            ASSERT_EQ(content(), before) << moment;
        }
    }
    EXPECT_EQ(exportKilledAt(1000000, newer), 0);
    Node back;
    ASSERT_TRUE(orba::ModuleManager::readFromXmlFile(path(), &back));
    EXPECT_EQ(back, newer);
}

TEST_F(ExchangeKillTest, CancellingAtAnyMomentLeavesNothingBehind)
{
    const Node list = recipes(kMoments);
    for (const int moment : {1, kMoments / 2, kMoments}) {
        ScriptedProgress stopped(moment);
        const palx::WrittenFile written = palx::writeExchangeFile(list, path(), stopped);
        EXPECT_TRUE(written.isCancelled);
        EXPECT_EQ(written.error, QString());
        EXPECT_TRUE(stopped.grows);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList());
    }
}

} // namespace
