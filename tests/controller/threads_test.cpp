// What the panel's threads and the controller's thread share, without Qt's event loops, so that the thread sanitizer can
// be trusted with it.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "link/recipe_summary.h"
#include "raw_way.h"
#include "recipes.h"

#include <QFile>
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
    RawWay way(newCarrier());
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("one");
    constexpr int kThreads = 4;
    constexpr int kEach = 200;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&way, t] {
            for (int i = 0; i < kEach; ++i) {
                host::LinkMessage request;
                request.kind = Kind::Request;
                request.id = static_cast<std::uint64_t>(t * kEach + i + 1);
                request.name = "pallet.set.one";
                request.payload = makeRecipe(QString::number(t), 1, 1, i);
                EXPECT_TRUE(way.send(request));
            }
        });
    std::vector<int> answered(kThreads * kEach + 1);
    std::vector<std::uint64_t> last(kThreads);
    for (int i = 0; i < kThreads * kEach; ++i) {
        const host::LinkMessage reply = way.nextOf(Kind::Reply);
        EXPECT_EQ(host::status::kDone, reply.status);
        ++answered.at(reply.id);
        std::uint64_t &before = last.at((reply.id - 1) / kEach);
        EXPECT_LT(before, reply.id) << "frames of one thread keep their order";
        before = reply.id;
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(std::vector<int>(kThreads * kEach, 1), std::vector<int>(answered.begin() + 1, answered.end()));
    EXPECT_EQ(kThreads, way.ask("pallet.get.list").payload.size());
}

TEST(Threads, WaysComeAndGoWhileTheControllerWorks)
{
    const auto machine = std::make_shared<Controller>(StationOptions());
    std::vector<std::thread> threads;
    std::atomic<int> greeted{0};
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&machine, &greeted, t] {
            for (int i = 0; i < 50; ++i) {
                RawWay way(std::make_unique<InProcessCarrier>(machine));
                if (!way.waitForWay(true))
                    return;
                host::LinkMessage hello;
                hello.kind = Kind::Hello;
                hello.payload.ensure(u"session")->setString(QString::number(t));
                EXPECT_TRUE(way.send(hello));
                RawWay::Arrival arrival;
                ++greeted;
                if (i % 2 == 0) { // else it goes before it is answered
                    EXPECT_TRUE(way.next(&arrival));
                }
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(200, greeted);
}

TEST(Threads, WhatWasSentBeforeTheEndIsWorkedOff)
{
    QTemporaryDir folder;
    StationOptions options;
    options.dataFolder = folder.path();
    {
        RawWay way(newCarrier(options));
        ASSERT_TRUE(way.waitForWay(true));
        way.greet("one");
        for (int i = 0; i < 20; ++i) {
            host::LinkMessage request;
            request.kind = Kind::Request;
            request.name = "pallet.set.one";
            request.payload = makeRecipe(QString::number(i), 1, 1);
            EXPECT_TRUE(way.send(request));
        }
    } // closed without waiting for an answer
    RawWay way(newCarrier(options));
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("two");
    EXPECT_EQ(20, way.ask("pallet.get.list").payload.size());
}

TEST(Threads, TheStateIsKeptWhileTheControllerWorks)
{
    QTemporaryDir folder;
    StationOptions options;
    options.dataFolder = folder.path();
    int last = 0;
    {
        RawWay way(newCarrier(options));
        ASSERT_TRUE(way.waitForWay(true));
        way.greet("one");
        const auto start = std::chrono::steady_clock::now();
        // Longer than two savings: recipes, names and variables change while they are written.
        while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(900)) {
            ++last;
            way.ask("pallet.set.one", makeRecipe("A", 1, 20, last));
            way.ask("pallet.set.name", nodeFromJson(R"({"index":0,"name":"A","desc":"described"})"));
        }
        EXPECT_TRUE(QFile::exists(folder.filePath("recipes/order.state"))) << "kept before the end";
    }
    RawWay way(newCarrier(options));
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("two");
    Node expected = makeRecipe("A", 1, 20, last);
    expected.set(u"desc", QStringLiteral("described"));
    EXPECT_EQ(host::summaryOf(expected).toNode(), *way.ask("pallet.get.list").payload.at(0));
}

TEST(Threads, TheRobotStopsInRealTimeWhenTheButtonIsReleasedByALostWay)
{
    const auto machine = std::make_shared<Controller>(StationOptions());
    {
        RawWay way(std::make_unique<InProcessCarrier>(machine));
        ASSERT_TRUE(way.waitForWay(true));
        way.greet("one");
        const host::LinkMessage reply =
            way.ask("motion.start", nodeFromJson(R"({"type":"l","motion":{"toolset":"no use","speed":100},
                "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0]}})"));
        EXPECT_EQ(host::status::kDone, reply.status) << reply.text;
        const host::LinkMessage update = way.nextOf(Kind::Update);
        EXPECT_EQ("nexo.robot", update.name);
        EXPECT_TRUE(update.payload.getBool(u"moving"));
    }
    RawWay way(std::make_unique<InProcessCarrier>(machine));
    ASSERT_TRUE(way.waitForWay(true));
    host::LinkMessage told = way.greet("two");
    const Node *robot = told.payload.find(u"state.#1.value");
    for (Node last = *robot; last.getBool(u"moving"); last = told.payload)
        told = way.nextOf(Kind::Update);
    const QString fault = way.greet("two").payload.find(u"state.#1.value")->getString(u"fault");
    EXPECT_TRUE(fault.startsWith("stopped: "))
        << fault; // the lost way, or on a busy machine the button before it
}

// ---------------------------------------------------------------- the faulty way

TEST(FaultyWay, LosesEveryNthFrameBothWays)
{
    Faults faults;
    faults.dropEvery = 3;
    auto faulty = std::make_unique<FaultyCarrier>(newCarrier(), faults);
    FaultyCarrier *carrier = faulty.get();
    RawWay way(std::move(faulty));
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("one"); // 1st out, 1st in
    host::LinkMessage request;
    request.kind = Kind::Request;
    request.name = "link.info";
    std::vector<std::uint64_t> answered;
    for (request.id = 1; request.id <= 8; ++request.id)
        way.send(
            request); // 2nd to 9th out: requests 2, 5 and 8 are lost; of the answers that of 3, then that of 7
    for (int i = 0; i < 3; ++i)
        answered.push_back(way.nextOf(Kind::Reply).id);
    EXPECT_EQ((std::vector<std::uint64_t>{1, 4, 6}), answered);
    EXPECT_GE(carrier->lostCount(), 4);
}

TEST(FaultyWay, IsCutAndPluggedInAgain)
{
    auto faulty = std::make_unique<FaultyCarrier>(newCarrier());
    FaultyCarrier *carrier = faulty.get();
    RawWay way(std::move(faulty));
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("one");
    carrier->cut();
    EXPECT_TRUE(way.waitForWay(false));
    EXPECT_FALSE(way.send(host::LinkMessage()));
    carrier->restore();
    EXPECT_TRUE(way.waitForWay(true));
    EXPECT_EQ(host::status::kRefused, (way.greet("one"), way.ask("nothing")).status);
}

TEST(FaultyWay, BreaksInTheMiddleOfAFrame)
{
    Faults faults;
    faults.cutEvery = 2;
    auto faulty = std::make_unique<FaultyCarrier>(newCarrier(), faults);
    FaultyCarrier *carrier = faulty.get();
    RawWay way(std::move(faulty));
    ASSERT_TRUE(way.waitForWay(true));
    way.greet("one");
    host::LinkMessage request;
    request.kind = Kind::Request;
    request.name = "pallet.set.one";
    request.payload = makeRecipe("A", 1, 1);
    way.send(request);
    EXPECT_TRUE(way.waitForWay(false));
    EXPECT_TRUE(carrier->isCut());
    carrier->setFaults(Faults());
    carrier->restore();
    EXPECT_TRUE(way.waitForWay(true));
    way.greet("one");
    EXPECT_EQ(0, way.ask("pallet.get.list").payload.size()) << "half a message is none";
}

TEST(FaultyWay, DelaysAndKeepsTheOrder)
{
    Faults faults;
    faults.delay = std::chrono::milliseconds(20);
    faults.jitter = std::chrono::milliseconds(10);
    RawWay way(std::make_unique<FaultyCarrier>(newCarrier(), faults));
    ASSERT_TRUE(way.waitForWay(true));
    const auto start = std::chrono::steady_clock::now();
    way.greet("one");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(40));
    host::LinkMessage request;
    request.kind = Kind::Request;
    request.name = "link.info";
    for (request.id = 1; request.id <= 30; ++request.id)
        way.send(request);
    for (std::uint64_t id = 1; id <= 30; ++id)
        EXPECT_EQ(id, way.nextOf(Kind::Reply).id);
}
