// What threads share: run under the thread sanitizer too, so no Qt in here.

#include "link/mailbox.h"
#include "link/reply_board.h"
#include "link/way.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using host::Mailbox;
using Board = host::ReplyBoard<int>;
using namespace std::chrono_literals;

namespace {

Board::Clock::time_point soon()
{
    return Board::Clock::now() + 10s; // only reached when something is wrong
}

} // namespace

TEST(Mailbox, WakesOncePerFilling)
{
    Mailbox<int> box;
    int woken = 0;
    box.setWaker([&woken] { ++woken; });
    int got = 0;
    for (int i = 0; i < 3; ++i)
        box.push(i);
    EXPECT_EQ(woken, 1);
    box.tryPop(&got);
    box.push(3);
    EXPECT_EQ(woken, 1);
    while (box.tryPop(&got)) {
    }
    box.push(4);
    EXPECT_EQ(woken, 2);
}

TEST(Mailbox, ClosingLetsTheRestOutAndNothingIn)
{
    Mailbox<int> box;
    int got = 0;
    EXPECT_FALSE(box.popUntil(&got, Mailbox<int>::Clock::now()));
    box.push(1);
    std::thread reader([&box] {
        int item = 0;
        EXPECT_TRUE(box.pop(&item));
        EXPECT_FALSE(box.pop(&item)) << "closing wakes who waits";
    });
    while (box.size() > 0)
        std::this_thread::yield();
    box.close();
    EXPECT_FALSE(box.push(2));
    reader.join();
    box.reopen();
    EXPECT_TRUE(box.push(3));
    box.close();
    EXPECT_TRUE(box.pop(&got));
    EXPECT_EQ(got, 3);
    EXPECT_FALSE(box.tryPop(&got));
}

TEST(Mailbox, ManyWritersLoseNothingAndKeepTheirOrder)
{
    constexpr int kWriters = 4;
    constexpr int kItems = 2000;
    Mailbox<std::pair<int, int>> box;
    std::vector<std::thread> writers;
    for (int w = 0; w < kWriters; ++w)
        writers.emplace_back([&box, w] {
            for (int i = 0; i < kItems; ++i)
                box.push({w, i});
        });
    std::vector<int> next(kWriters, 0);
    for (int n = 0; n < kWriters * kItems; ++n) {
        std::pair<int, int> got;
        ASSERT_TRUE(box.popUntil(&got, soon()));
        ASSERT_EQ(got.second, next[static_cast<std::size_t>(got.first)]++);
    }
    for (std::thread &writer : writers)
        writer.join();
    EXPECT_EQ(box.size(), 0u);
}

TEST(ReplyBoard, EveryThreadGetsItsOwnReply)
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 200;
    Board board;
    Mailbox<std::uint64_t> asked;
    std::atomic<std::uint64_t> lastId{0};
    std::thread answering([&] {
        std::uint64_t id = 0;
        while (asked.pop(&id)) {
            int reply = static_cast<int>(id) * 3;
            EXPECT_TRUE(board.deliver(id, reply));
            EXPECT_FALSE(board.deliver(id, reply));
        }
    });
    std::vector<std::thread> askers;
    for (int t = 0; t < kThreads; ++t)
        askers.emplace_back([&] {
            for (int round = 0; round < kRounds; ++round) {
                const std::uint64_t id = ++lastId;
                board.expect(id);
                asked.push(id);
                int got = 0;
                ASSERT_EQ(board.wait(id, soon(), &got), Board::Outcome::Came);
                ASSERT_EQ(got, static_cast<int>(id) * 3);
            }
        });
    for (std::thread &asker : askers)
        asker.join();
    asked.close();
    answering.join();
}

namespace {

/// Fails when it is used while it is closed, or by two threads at once.
class TouchyCarrier : public host::Carrier
{
public:
    void open(host::CarrierSink *) override { isOpen_ = true; }
    void close() override { isOpen_ = false; }
    bool send(const std::string &frame) override
    {
        EXPECT_TRUE(isOpen_);
        bytes_ += frame.size();
        return true;
    }

private:
    bool isOpen_ = false; // unguarded on purpose
    std::size_t bytes_ = 0;
};

} // namespace

TEST(Way, NoThreadSendsWhileAnotherCloses)
{
    host::Way way(std::make_unique<TouchyCarrier>());
    std::atomic<bool> isOver{false};
    std::vector<std::thread> senders;
    for (int t = 0; t < 3; ++t)
        senders.emplace_back([&] {
            while (!isOver)
                way.send("frame");
        });
    for (int round = 0; round < 500; ++round) {
        way.open(nullptr);
        way.send("own");
        way.close();
        EXPECT_FALSE(way.send("closed"));
    }
    isOver = true;
    for (std::thread &sender : senders)
        sender.join();
}
