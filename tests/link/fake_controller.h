#pragma once

#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "link/frame.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

/// A controller whose every answer a test decides. It lives on the test's own thread and keeps the rules of
/// the link unless told otherwise.
class FakeController
{
public:
    using Kind = host::LinkMessage::Kind;

    FakeController();

    /// The panel's end; one at a time.
    std::unique_ptr<host::Carrier> carrier();

    // --- what the controller does
    void openWay();
    void breakWay(const char *reason);
    void send(const host::LinkMessage &message);
    void sendBytes(const std::string &frame);
    /// An Update with the next number.
    void update(const char *path, const char *json, qint64 knows = -1);
    void hello(std::uint64_t knows);
    void ping();
    void event(const char *topic, const char *json = "null");

    // --- how it behaves
    bool opensAtOnce = true; ///< the way is there when the panel looks for it
    bool greets = true;      ///< answers a Hello
    bool takesEdits = true;  ///< takes Writes and Triggers and says so
    bool answers = true;     ///< answers Requests with status 0
    int losesFrames = 0;     ///< so many of the next frames from the panel
    bool takesLate = false;  ///< frames after the greeting are not dealt with
    std::function<bool(const host::LinkMessage &)> onMessage; ///< true: the test dealt with it

    // --- what it saw
    std::vector<host::LinkMessage> seen; ///< in the order of arrival
    int count(Kind kind) const;
    QString session;
    std::uint64_t taken = 0; ///< last edit
    QStringList edits;       ///< "path = json" and "path !", taken once each
    std::uint64_t lastUpdate = 0;
    orba::Node state; ///< told with a Hello: list of {"path", "value"}
    bool isWayOpen = false;

private:
    class End;
    bool receive(const std::string &frame);
    void take(const host::LinkMessage &message);

    host::CarrierSink *sink_ = nullptr;
};

/// A panel's link to the fake controller, on the host's own nodes, with a clock that the test turns.
class LinkTest : public ::testing::Test
{
protected:
    LinkTest();
    ~LinkTest() override;
    void SetUp() override { ASSERT_TRUE(host::buildGlobalNodes()); }

    void openLink();
    void connectLink();
    /// Requests are answered so; everything else as always.
    void onRequest(std::function<void(const host::LinkMessage &)> answer);
    /// Turns the clock and lets everything that is due happen.
    void pass(int ms);
    void settle();
    /// Lets the event loop come to rest once, so that edits are found.
    void rest();
    /// The log records since the last call, "level: title".
    QStringList takeRecords();

    FakeController controller;
    ScriptedPresenter presenter;
    qint64 now = 1000;
    std::unique_ptr<host::LogKeeper> keeper;
    std::unique_ptr<host::ControllerLink> link;
};
