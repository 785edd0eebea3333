#include "fake_controller.h"

#include "nexo/setting_manager.h"
#include "orba/module_manager.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

using host::LinkMessage;
using orba::Node;

// ---------------------------------------------------------------- carrier

class FakeController::End : public host::Carrier
{
public:
    explicit End(FakeController *controller) : controller_(controller) {}
    ~End() override { close(); }
    void open(host::CarrierSink *sink) override
    {
        controller_->sink_ = sink;
        if (controller_->opensAtOnce)
            controller_->openWay();
    }
    void close() override
    {
        controller_->sink_ = nullptr;
        controller_->isWayOpen = false;
    }
    bool send(const std::string &frame) override
    {
        return controller_->isWayOpen && controller_->receive(frame);
    }

private:
    FakeController *controller_;
};

FakeController::FakeController()
{
    state =
        nodeFromJson(R"([{"path": "nexo.r", "value": {"id": "R7", "version": "2.3.1", "name": "Cell 4"}}])");
}

std::unique_ptr<host::Carrier> FakeController::carrier()
{
    return std::make_unique<End>(this);
}

void FakeController::openWay()
{
    isWayOpen = true;
    sink_->wayChanged(true, std::string());
}

void FakeController::breakWay(const char *reason)
{
    isWayOpen = false;
    sink_->wayChanged(false, reason);
}

// ---------------------------------------------------------------- to the panel

void FakeController::sendBytes(const std::string &frame)
{
    if (sink_)
        sink_->frameArrived(frame);
}

void FakeController::send(const LinkMessage &message)
{
    QString error;
    const std::string frame = host::encodeFrame(message, &error);
    ASSERT_TRUE(error.isEmpty()) << error;
    sendBytes(frame);
}

void FakeController::update(const char *path, const char *json, qint64 knows)
{
    LinkMessage message;
    message.kind = Kind::Update;
    message.id = ++lastUpdate;
    message.knows = knows < 0 ? taken : static_cast<std::uint64_t>(knows);
    message.name = QString::fromLatin1(path);
    message.payload = nodeFromJson(json);
    send(message);
}

void FakeController::hello(std::uint64_t knows)
{
    LinkMessage message;
    message.kind = Kind::Hello;
    message.id = lastUpdate;
    message.knows = knows;
    message.payload.ensure(u"session")->setString(session);
    message.payload.ensure(u"state")->assign(state);
    send(message);
}

void FakeController::ping()
{
    LinkMessage message;
    message.id = lastUpdate;
    message.knows = taken;
    send(message);
}

void FakeController::event(const char *topic, const char *json)
{
    LinkMessage message;
    message.kind = Kind::Event;
    message.name = QString::fromLatin1(topic);
    message.payload = nodeFromJson(json);
    send(message);
}

// ---------------------------------------------------------------- from the panel

bool FakeController::receive(const std::string &frame)
{
    if (losesFrames > 0) {
        --losesFrames;
        return true;
    }
    LinkMessage message;
    QString error;
    EXPECT_TRUE(host::decodeFrame(frame, &message, &error)) << error;
    seen.push_back(message);
    if ((!takesLate || message.kind == Kind::Hello) && (!onMessage || !onMessage(message)))
        take(message);
    return true;
}

void FakeController::take(const LinkMessage &message)
{
    LinkMessage reply;
    switch (message.kind) {
    case Kind::Hello:
        session = message.payload.getString(u"session");
        if (greets)
            hello(taken = std::max(taken, message.knows));
        break;
    case Kind::Request:
        reply.kind = Kind::Reply;
        reply.id = message.id;
        reply.knows = taken;
        reply.status = message.knows > taken ? host::status::kBehind : host::status::kDone;
        if (answers)
            send(reply);
        break;
    case Kind::Write:
    case Kind::Trigger:
        if (takesEdits && message.id == taken + 1) {
            ++taken;
            edits.append(message.kind == Kind::Trigger
                             ? message.name + QStringLiteral(" !")
                             : message.name + QStringLiteral(" = ") +
                                   QString::fromUtf8(orba::ModuleManager::toJson(message.payload, true)));
        }
        if (takesEdits)
            ping();
        break;
    default:
        break;
    }
}

int FakeController::count(Kind kind) const
{
    return static_cast<int>(
        std::count_if(seen.begin(), seen.end(), [kind](const LinkMessage &one) { return one.kind == kind; }));
}

// ---------------------------------------------------------------- the panel

LinkTest::LinkTest() = default;

LinkTest::~LinkTest()
{
    link.reset();
    keeper.reset();
    host::removeGlobalNodes();
    nexo::SettingManager::instance()->setOverride(QStringLiteral("rc_timeout"), QString());
}

void LinkTest::openLink()
{
    keeper = std::make_unique<host::LogKeeper>();
    link = std::make_unique<host::ControllerLink>(controller.carrier(), [this] { return now; });
    link->open();
    settle();
}

void LinkTest::connectLink()
{
    openLink();
    ASSERT_TRUE(link->isConnected()) << link->stateText();
    takeRecords();
}

void LinkTest::onRequest(std::function<void(const LinkMessage &)> answer)
{
    controller.onMessage = [answer = std::move(answer)](const LinkMessage &message) {
        const bool isRequest = message.kind == LinkMessage::Kind::Request;
        if (isRequest)
            answer(message);
        return isRequest;
    };
}

void LinkTest::pass(int ms)
{
    now += ms;
    link->tick();
    settle();
}

void LinkTest::settle()
{
    do
        QCoreApplication::processEvents();
    while (link && !link->isIdle());   // one turn of the loop takes only so much
    QCoreApplication::processEvents(); // what the last of it put off
}

void LinkTest::rest()
{
    QTimer wake;
    wake.setSingleShot(true);
    bool isOver = false;
    QObject::connect(&wake, &QTimer::timeout, [&isOver] { isOver = true; });
    wake.start(1); // the loop blocks until then, and that is what edits wait for
    while (!isOver)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
}

QStringList LinkTest::takeRecords()
{
    return std::exchange(presenter.notices, {});
}
