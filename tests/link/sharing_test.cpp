// What threads share: run under the thread sanitizer too, so no Qt in here.

#include "link/mailbox.h"
#include "link/way.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using host::Mailbox;

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
