#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "controller/tcp_carrier.h"
#include "controller_process.h"
#include "link/conformance.h"
#include "link/motion_conformance.h"

#include <QTemporaryDir>

namespace {

class InProcessSide : public conformance::Side
{
public:
    InProcessSide() { start(); }
    std::unique_ptr<host::Carrier> carrier() override
    {
        return std::make_unique<controller::InProcessCarrier>(controller_);
    }
    void restart() override
    {
        EXPECT_EQ(1, controller_.use_count()) << "a way is open still";
        controller_.reset();
        start();
    }

private:
    void start()
    {
        controller::StationOptions options;
        options.dataFolder = folder_.path();
        controller_ = std::make_shared<controller::Controller>(options);
    }

    QTemporaryDir folder_;
    std::shared_ptr<controller::Controller> controller_;
};

class TcpSide : public conformance::Side
{
public:
    std::unique_ptr<host::Carrier> carrier() override
    {
        return std::make_unique<controller::TcpCarrier>(QStringLiteral("127.0.0.1"), process_.port());
    }
    void restart() override
    {
        process_.stop();
        process_.start();
    }

private:
    ControllerProcess process_;
};

/// A side whose way spoils frames. Pulled plugs are plugged in again by `mend`.
template <class Sound> class FaultySide : public Sound
{
public:
    explicit FaultySide(const controller::Faults &faults) : faults_(faults) {}
    std::unique_ptr<host::Carrier> carrier() override
    {
        auto faulty = std::make_unique<controller::FaultyCarrier>(Sound::carrier(), faults_);
        faulty_ = faulty.get();
        return faulty;
    }
    std::unique_ptr<host::Carrier> soundCarrier() override { return Sound::carrier(); }
    void mend() override
    {
        if (faulty_->isCut())
            faulty_->restore();
    }

private:
    controller::Faults faults_;
    controller::FaultyCarrier *faulty_ = nullptr; ///< the panel's
};

template <class Sound> conformance::Way faultyWay(const char *name, const controller::Faults &faults)
{
    return {name, [faults] { return std::make_unique<FaultySide<Sound>>(faults); }, false};
}

controller::Faults slow()
{
    controller::Faults faults;
    faults.delay = std::chrono::milliseconds(30);
    faults.jitter = std::chrono::milliseconds(40);
    return faults;
}

controller::Faults losing(int dropEvery, int cutEvery)
{
    controller::Faults faults;
    faults.dropEvery = dropEvery;
    faults.cutEvery = cutEvery;
    return faults;
}

template <class Side> conformance::Way way(const char *name, bool isStream)
{
    return {name, [] { return std::make_unique<Side>(); }, isStream};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Ways, LinkConformance,
                         ::testing::Values(way<InProcessSide>("InProcess", false), way<TcpSide>("Tcp", true)),
                         conformance::conformanceName);
INSTANTIATE_TEST_SUITE_P(Ways, MotionConformance,
                         ::testing::Values(way<InProcessSide>("InProcess", false), way<TcpSide>("Tcp", true)),
                         conformance::conformanceName);
INSTANTIATE_TEST_SUITE_P(Ways, RemoteLinkConformance, ::testing::Values(way<TcpSide>("Tcp", true)),
                         conformance::conformanceName);
INSTANTIATE_TEST_SUITE_P(Ways, FaultyLinkConformance,
                         ::testing::Values(faultyWay<InProcessSide>("SlowInProcess", slow()),
                                           faultyWay<InProcessSide>("LosingInProcess", losing(3, 0)),
                                           faultyWay<InProcessSide>("CutInProcess", losing(0, 7)),
                                           faultyWay<TcpSide>("SlowTcp", slow()),
                                           faultyWay<TcpSide>("LosingTcp", losing(3, 0)),
                                           faultyWay<TcpSide>("CutTcp", losing(0, 7))),
                         conformance::conformanceName);
