// What the panel's threads and the controller's thread share, without Qt's event loops, so that the thread sanitizer can
// be trusted with it.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "raw_panel.h"
#include "recipes.h"

#include <QTemporaryDir>

#include <thread>

using namespace controller;
using orba::Node;
using Kind = host::LinkMessage::Kind;

namespace {

std::unique_ptr<host::Carrier> newCarrier(const StationOptions &options = StationOptions())
{
    return std::make_unique<InProcessCarrier>(std::make_shared<Controller>(options));
}

} // namespace

TEST(Threads, SeveralThreadsSendAndEveryRequestIsAnsweredOnce)
{
    RawPanel panel(newCarrier());
    panel.greet("one");
    constexpr int kThreads = 4;
    constexpr int kEach = 100;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&panel, t] {
            for (int i = 0; i < kEach; ++i)
                EXPECT_TRUE(panel.request(static_cast<std::uint64_t>(t * kEach + i + 1), "pallet.set.one",
                                          makeRecipe(QString::number(t), 1, 1, i)));
        });
    std::vector<int> answered(kThreads * kEach + 1);
    std::vector<std::uint64_t> last(kThreads);
    for (int i = 0; i < kThreads * kEach; ++i) {
        const host::LinkMessage reply = panel.nextOf(Kind::Reply);
        EXPECT_EQ(host::status::kDone, reply.status);
        ++answered.at(reply.id);
        std::uint64_t &before = last.at((reply.id - 1) / kEach);
        EXPECT_LT(before, reply.id) << "frames of one thread keep their order";
        before = reply.id;
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(std::vector<int>(kThreads * kEach, 1), std::vector<int>(answered.begin() + 1, answered.end()));
    EXPECT_EQ(kThreads, panel.ask("pallet.get.list").payload.size());
}

TEST(Threads, WhatWasSentBeforeTheEndIsWorkedOffAndKept)
{
    QTemporaryDir folder;
    StationOptions options;
    options.dataFolder = folder.path();
    {
        RawPanel panel(newCarrier(options));
        panel.greet("one");
        for (int i = 0; i < 20; ++i)
            EXPECT_TRUE(panel.request(1, "pallet.set.one", makeRecipe(QString::number(i), 1, 1)));
    } // closed without waiting for an answer
    RawPanel panel(newCarrier(options));
    panel.greet("two");
    EXPECT_EQ(20, panel.ask("pallet.get.list").payload.size());
}
