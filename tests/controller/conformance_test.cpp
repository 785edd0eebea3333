// What the panel's link must do alike over every way to a real controller, and over ways that lose, delay and cut.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "controller/tcp_carrier.h"
#include "controller_process.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "raw_panel.h"
#include "recipes.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>
#include <thread>

using namespace controller;
using orba::Node;

namespace {

constexpr int kBoundMs = 10000; // only reached when something is wrong

struct Way
{
    const char *name;
    bool isTcp;
    Faults faults;
};

class Ways : public ::testing::TestWithParam<Way>
{
protected:
    Ways()
    {
        if (GetParam().isTcp)
            process.emplace();
        else
            startInProcess();
    }
    ~Ways() override
    {
        link.reset();
        keeper.reset();
        host::removeGlobalNodes();
    }
    void SetUp() override { ASSERT_TRUE(host::buildGlobalNodes()); }

    std::unique_ptr<host::Carrier> carrier() const
    {
        if (process)
            return std::make_unique<TcpCarrier>(QStringLiteral("127.0.0.1"), process->port());
        return std::make_unique<InProcessCarrier>(inProcess);
    }
    void restart()
    {
        if (process) {
            process->stop();
            process->start();
        } else {
            inProcess.reset();
            startInProcess();
        }
    }
    void connectLink(std::unique_ptr<host::Carrier> by)
    {
        keeper = std::make_unique<host::LogKeeper>();
        link = std::make_unique<host::ControllerLink>(std::move(by));
        link->open();
        ASSERT_TRUE(isTold([this] { return link->isConnected(); })) << link->stateText();
    }
    static bool isTold(const std::function<bool()> &condition) { return waitUntil(condition, kBoundMs); }
    /// What the controller has of the project, as another panel is told.
    Node project() const
    {
        RawPanel panel(carrier());
        const RawPanel::Message hello = panel.greet("raw");
        for (int i = 0; i < hello.payload.find(u"state")->size(); ++i)
            if (hello.payload.find(u"state")->at(i)->getString(u"path") == QLatin1String("quill.project"))
                return *hello.payload.find(u"state")->at(i)->find(u"value");
        return Node();
    }

    ScriptedPresenter presenter;
    QTemporaryDir folder;
    std::optional<ControllerProcess> process;
    std::shared_ptr<Controller> inProcess;
    std::unique_ptr<host::LogKeeper> keeper;
    std::unique_ptr<host::ControllerLink> link;

private:
    void startInProcess()
    {
        StationOptions options;
        options.dataFolder = folder.path();
        inProcess = std::make_shared<Controller>(options);
    }
};

Faults faultsOf(int delayMs, int jitterMs, int dropEvery, int cutEvery)
{
    Faults faults;
    faults.delay = std::chrono::milliseconds(delayMs);
    faults.jitter = std::chrono::milliseconds(jitterMs);
    faults.dropEvery = dropEvery;
    faults.cutEvery = cutEvery;
    return faults;
}

using FaultyWays = Ways;
using RemoteWays = Ways;

const auto kNameOf = [](const auto &test) { return std::string(test.param.name); };

} // namespace

TEST_P(Ways, ASecondPanelIsRefusedUntilTheFirstHasGone)
{
    auto first = std::make_unique<RawPanel>(carrier());
    first->greet("first");
    keeper = std::make_unique<host::LogKeeper>();
    link = std::make_unique<host::ControllerLink>(carrier());
    link->open();
    ASSERT_TRUE(isTold([this] { return link->state() == host::LinkState::Refused; })) << link->stateText();
    first.reset();
    EXPECT_TRUE(isTold([this] { return link->isConnected(); })) << link->stateText();
}

TEST_P(Ways, LargeMessagesOfAnyThreadArriveWhole)
{
    connectLink(carrier());
    Node all;
    for (const char *name : {"A", "B.b", "#1"})
        all.add()->assign(makeRecipe(QLatin1String(name), 1, 200)); // 1 MB together
    std::vector<std::thread> workers;
    for (int t = 0; t < 3; ++t)
        workers.emplace_back([&all, t] { // each gets the answer to its own
            const QString unknown = QStringLiteral("unknown.%1").arg(t);
            for (int i = 0; i < 20; ++i)
                EXPECT_TRUE(xservice()->get(nullptr, unknown, kBoundMs).error.contains(unknown));
            EXPECT_TRUE(xservice()->set(nullptr, QStringLiteral("pallet.data"), all, kBoundMs).isOk());
        });
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info"), kBoundMs).isOk());
    for (std::thread &worker : workers)
        worker.join();
    const XReply list = xservice()->get(nullptr, QStringLiteral("pallet.get.list"), kBoundMs);
    ASSERT_EQ(list.value.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(*list.value.at(i), host::summaryOf(*all.at(i)).toNode());
    EXPECT_EQ(link->figures().droppedReplies, 0);
    EXPECT_EQ(link->figures().unreadable, 0);
}

TEST_P(Ways, APersistentVariableIsChangedMirroredAndKeptWithItsProject)
{
    const QPointer<orba::ModuleObject> variables = m("quill.project.var._list");
    connectLink(carrier());
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/one"));
    variables->addUnnamed()->copyFrom(makeVariable("SetZ", "int", "700"));
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/two"));
    EXPECT_EQ(variables->cmobjCount(), 0) << "when set returns";
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/one"));
    ASSERT_TRUE(variables && variables->cmobjCount() == 1);
    orba::ModuleObject modify(QStringLiteral("modify"));
    modify.add(QStringLiteral("SetZ"))->set(nullptr, "", 650);
    ASSERT_TRUE(xservice()->command(nullptr, QStringLiteral("monitor.pers.modify"), &modify));
    const auto value = [&variables] { return variables->c(0)->c("value")->c(0)->getInt(); };
    EXPECT_TRUE(isTold([&value] { return value() == 650; })) << value();
    variables->c(0)->c("value")->c(0)->node().setInt(0); // shows that what comes is the controller's
    link.reset();
    restart();
    connectLink(carrier());
    EXPECT_EQ(m("quill.project.cur_project")->getString(), QStringLiteral("R/one"));
    EXPECT_EQ(value(), 650);
}

INSTANTIATE_TEST_SUITE_P(Every, Ways, ::testing::Values(Way{"InProcess", false, {}}, Way{"Tcp", true, {}}),
                         kNameOf);

TEST_P(FaultyWays, EveryEditArrivesOnceAndNothingBlocks)
{
    constexpr int kEdits = 12;
    constexpr int kTimeoutMs = 200;
    constexpr int kMarginMs = 400; // of a machine that is busy with other things
    auto carrierWithFaults = std::make_unique<FaultyCarrier>(carrier(), GetParam().faults);
    FaultyCarrier *faulty = carrierWithFaults.get();
    connectLink(std::move(carrierWithFaults));
    const auto mend = [faulty] { // as an operator who puts a plug back
        if (faulty->isCut())
            faulty->restore();
    };
    QElapsedTimer sinceEvent;
    qint64 longestGap = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout,
                     [&] { longestGap = std::max(longestGap, sinceEvent.restart()); });
    sinceEvent.start();
    pulse.start(5);
    orba::ModuleObject *list = m("quill.project.var._list");
    list->clear();
    for (int i = 0; i < kEdits; ++i) {
        list->addUnnamed()->copyFrom(makeVariable(QByteArray::number(i), "int", "0"));
        if (i % 4 == 0)
            xservice()->get(nullptr, QStringLiteral("link.info"), kTimeoutMs);
        if (i % 4 == 2)
            m("quill.project.refresh_project")->trigger();
        QCoreApplication::processEvents();
        const auto isBack = [&] {
            mend();
            return link->isConnected();
        };
        ASSERT_TRUE(isTold(isBack)) << link->stateText();
    }
    const Node edited = list->node();
    const auto taken = [&] {
        mend();
        const XReply info = xservice()->get(nullptr, QStringLiteral("link.info"), kTimeoutMs);
        return info.isOk() && link->unsettledEdits() == 0;
    };
    EXPECT_TRUE(waitUntil(taken, 6 * kBoundMs));
    EXPECT_LE(longestGap, kTimeoutMs + kMarginMs);
    EXPECT_EQ(list->node(), edited); // no update put anything back
    EXPECT_EQ(faulty->lostCount() > 0, GetParam().faults.delay.count() == 0);
    link.reset();
    EXPECT_EQ(*project().find(u"var._list"), edited);
}

INSTANTIATE_TEST_SUITE_P(Every, FaultyWays,
                         ::testing::Values(Way{"SlowInProcess", false, faultsOf(30, 40, 0, 0)},
                                           Way{"LosingInProcess", false, faultsOf(0, 0, 3, 0)},
                                           Way{"CutTcp", true, faultsOf(0, 0, 0, 7)}),
                         kNameOf);

/// The controller's process ends and comes again while the panel goes on.
TEST_P(RemoteWays, ARestartIsShownAndLosesNoEdit)
{
    connectLink(carrier());
    int changes = 0;
    QObject::connect(link.get(), &host::ControllerLink::stateChanged, [&changes] { ++changes; });
    m("quill.project")->set(nullptr, "autoload_prj_path", QStringLiteral("before"));
    xservice()->get(nullptr, QStringLiteral("link.info"));
    restart();
    m("quill.project")->set(nullptr, "autoload_prj_path", QStringLiteral("after"));
    ASSERT_TRUE(isTold([&] { return changes > 1 && link->isConnected(); }));
    EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QStringLiteral("after"));
    link.reset();
    EXPECT_EQ(project().getString(u"autoload_prj_path"), QStringLiteral("after"));
}

INSTANTIATE_TEST_SUITE_P(Every, RemoteWays, ::testing::Values(Way{"Tcp", true, {}}), kNameOf);
