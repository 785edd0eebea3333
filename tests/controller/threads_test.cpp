// What the panel's threads and the controller's thread share, without Qt's event loops, so that the thread sanitizer can
// be trusted with it.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "raw_panel.h"
#include "recipes.h"

#include <QTemporaryDir>

#include <atomic>
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

TEST(Threads, WaysComeAndGoWhileTheControllerWorks)
{
    const auto machine = std::make_shared<Controller>(StationOptions());
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&machine, t] {
            for (int i = 0; i < 50; ++i) {
                RawPanel panel(std::make_unique<InProcessCarrier>(machine));
                if (!panel.waitForWay(true))
                    return;
                host::LinkMessage hello;
                hello.kind = Kind::Hello;
                hello.payload.ensure(u"session")->setString(QString::number(t));
                EXPECT_TRUE(panel.send(hello));
                RawPanel::Arrival arrival;
                if (i % 2 == 0) { // else it goes before it is answered
                    EXPECT_TRUE(panel.next(&arrival));
                }
            }
        });
    for (std::thread &thread : threads)
        thread.join();
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

TEST(Threads, TheRobotStopsInRealTimeWhenTheButtonIsReleasedByALostWay)
{
    const auto machine = std::make_shared<Controller>(StationOptions());
    {
        RawPanel panel(std::make_unique<InProcessCarrier>(machine));
        panel.greet("one");
        const host::LinkMessage reply =
            panel.ask("motion.start", nodeFromJson(R"({"type":"l","motion":{"toolset":"no use","speed":100},
                "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0]}})"));
        EXPECT_EQ(host::status::kDone, reply.status) << reply.text;
        EXPECT_TRUE(panel.nextOf(Kind::Update).payload.getBool(u"moving"));
    }
    RawPanel panel(std::make_unique<InProcessCarrier>(machine));
    host::LinkMessage told = panel.greet("two");
    for (Node last = *told.payload.find(u"state.#1.value"); last.getBool(u"moving"); last = told.payload)
        told = panel.nextOf(Kind::Update);
    const QString fault = panel.greet("two").payload.find(u"state.#1.value")->getString(u"fault");
    EXPECT_TRUE(fault.startsWith("stopped: "))
        << fault; // the lost way, or on a busy machine the button before it
}

TEST(FaultyWay, BreaksInTheMiddleOfAFrameAndIsPluggedInAgain)
{
    Faults faults;
    faults.cutEvery = 2;
    auto faulty = std::make_unique<FaultyCarrier>(newCarrier(), faults);
    FaultyCarrier *carrier = faulty.get();
    RawPanel panel(std::move(faulty));
    panel.greet("one");
    panel.request(1, "pallet.set.one", makeRecipe("A", 1, 1));
    EXPECT_TRUE(panel.waitForWay(false));
    EXPECT_TRUE(carrier->isCut());
    EXPECT_FALSE(panel.send(host::LinkMessage()));
    carrier->setFaults(Faults());
    carrier->restore();
    panel.greet("one");
    EXPECT_EQ(0, panel.ask("pallet.get.list").payload.size()) << "half a message is none";
}
