// What threads share: run under the thread sanitizer too, so no Qt in here.

#include "link/way.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

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
