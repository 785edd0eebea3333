#include "core/controller_link.h"

#include "core/global_nodes.h"
#include "core/link_desk.h"
#include "core/link_edits.h"
#include "nexo/controller_manager.h"
#include "nexo/setting_manager.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QUuid>

namespace host {

using orba::Node;
using Kind = LinkMessage::Kind;

namespace {

const QString kNoticeTopic = QStringLiteral("controller.notice"); // {"level", "text"} for the operator

constexpr int kTurnMs = 8; // what one turn of the event loop spends on arrivals, so that pages stay smooth

const QString kTimeoutKey = QStringLiteral("rc_timeout");
constexpr int kDefaultTimeoutMs = 1600;
constexpr int kMinTimeoutMs = 100;
constexpr int kMaxTimeoutMs = 60000;

ControllerLink *currentLink = nullptr;

qint64 steadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

int settledTimeout()
{
    bool isNumber = false;
    const int value = nexo::SettingManager::instance()->getStr(kTimeoutKey).toInt(&isNumber);
    return isNumber && value >= kMinTimeoutMs && value <= kMaxTimeoutMs ? value : kDefaultTimeoutMs;
}

} // namespace

// ---------------------------------------------------------------- life

ControllerLink::ControllerLink(std::unique_ptr<Carrier> carrier, Clock clock, QObject *parent)
    : QObject(parent), desk_(std::make_shared<LinkDesk>(std::move(carrier))),
      clock_(clock ? std::move(clock) : Clock(steadyMs)),
      session_(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    Q_ASSERT(!currentLink);
    qRegisterMetaType<host::LinkState>("host::LinkState");
    currentLink = this;
    desk_->timeoutMs = settledTimeout();
    connect(nexo::SettingManager::instance(), &nexo::SettingManager::changed, this,
            [this](const QString &key) {
                if (key == kTimeoutKey)
                    desk_->timeoutMs = settledTimeout();
            });
    desk_->box.setWaker([this] { wake(); });
    watchTree();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &ControllerLink::flushEdits);
    connect(&timer_, &QTimer::timeout, this, &ControllerLink::tick);
    LinkDesk::share(desk_);
}

ControllerLink::~ControllerLink()
{
    LinkDesk::share(nullptr);
    close();
    desk_->box.close(); // threads that still hold the desk must not wake an object that is gone
    nexo::ControllerManager::instance()->forgetRequests();
    currentLink = nullptr;
}

ControllerLink *ControllerLink::current()
{
    return currentLink;
}

void ControllerLink::open()
{
    if (state_ != LinkState::Closed)
        return;
    enter(LinkState::Connecting, tr("Looking for the controller."));
    desk_->box.reopen();
    desk_->way.open(desk_.get());
    timer_.start(kTickMs);
}

void ControllerLink::close()
{
    if (state_ == LinkState::Closed)
        return;
    timer_.stop();
    desk_->way.close();
    desk_->box.close();
    desk_->isConnected = false;
    desk_->replies.breakAll();
    enter(LinkState::Closed, tr("The link to the controller is closed."));
}

bool ControllerLink::waitForState(int boundMs)
{
    bool isSettled = isConnected() || state_ == LinkState::Refused;
    const auto watching = connect(this, &ControllerLink::stateChanged, this, [&isSettled](LinkState state) {
        isSettled |= state != LinkState::Greeting;
    });
    pump([&isSettled] { return isSettled; }, boundMs);
    disconnect(watching);
    return isConnected();
}

int ControllerLink::unsettledEdits() const
{
    return edits_->waiting();
}

bool ControllerLink::isIdle() const
{
    return desk_->box.size() == 0;
}

// ---------------------------------------------------------------- states

void ControllerLink::enter(LinkState state, const QString &text)
{
    const bool wasConnected = isConnected();
    state_ = state;
    stateText_ = text;
    desk_->isConnected = isConnected();
    showState();
    if (wasConnected != isConnected())
        Q_EMIT nexo::ControllerManager::instance()->rcConnectedChanged(isConnected());
    Q_EMIT stateChanged(state, text);
    if (!isConnected())
        breakCommands();
}

void ControllerLink::tell(const QString &level, const QString &text)
{
    if (text == toldText_) // the same trouble again, after an attempt that changed nothing
        return;
    toldText_ = text;
    publishRecord(level, text);
}

void ControllerLink::takeWay(bool open, const QString &reason)
{
    resendAt_ = 0;
    if (edits_->areUnderWay()) // too many may have been what the way could not bear
        underWay_ = 1;
    idlePings_ = 0;
    greetAt_ = 0;
    if (open) {
        told_ = Faults();
        greetingSince_ = clock_();
        enter(LinkState::Greeting, tr("The controller is being asked for its state."));
        greet();
        return;
    }
    if (state_ == LinkState::Refused) { // it ended what it refused; the reason stays
        enter(LinkState::Connecting, stateText_);
        return;
    }
    const QString text =
        isConnected()
            ? tr("The link to the controller broke: %1. Edits stay in the panel and are sent when it is "
                 "back. "
                 "Check the cable and the controller.")
                  .arg(reason)
            : tr("The controller cannot be reached: %1. Check the cable and whether it is switched on.")
                  .arg(reason);
    enter(LinkState::Connecting, text);
    tell(QStringLiteral("warning"), text);
}

/// Gives up a way that brings nothing any more and looks for a new one.
void ControllerLink::bounce(const QString &reason)
{
    desk_->way.close();
    desk_->isConnected = false;
    desk_->replies.breakAll();
    desk_->box.reopen(); // what the old way brought is not to be taken for the new one's
    takeWay(false, reason);
    desk_->way.open(desk_.get());
}

void ControllerLink::tick()
{
    drain();
    const qint64 now = clock_();
    checkCommands(now);
    if (lastFaultAt_ != 0 && now - lastFaultAt_ >= kFaultShownMs)
        forgetFaults();
    if (greetAt_ != 0 && now >= greetAt_)
        greet();
    if (state_ == LinkState::Greeting && now - greetingSince_ >= kDeadMs)
        bounce(tr("it did not answer the greeting"));
    if (!isConnected())
        return;
    if (now - heardAt_ >= kDeadMs) {
        bounce(tr("it was silent for %1 s").arg(kDeadMs / 1000));
        return;
    }
    flushEdits(); // a loop that never rests, as under a progress dialog, must not hold them back
    if (resendAt_ != 0 && now >= resendAt_)
        resendEdits();
    if (now - spokeAt_ >= kPingMs)
        send(LinkMessage());
    const QStringList problems = edits_->takeProblems();
    for (const QString &problem : problems)
        publishRecord(QStringLiteral("error"),
                      tr("An edit cannot be sent to the controller: %1").arg(problem));
}

bool ControllerLink::send(const LinkMessage &message)
{
    spokeAt_ = clock_();
    return desk_->way.send(encodeFrame(message));
}

void ControllerLink::greet()
{
    greetAt_ = clock_() + (state_ == LinkState::Refused ? kBusyMs : kGreetMs);
    LinkMessage hello;
    hello.kind = Kind::Hello;
    hello.knows = edits_->taken();
    hello.payload.ensure(u"session")->setString(session_);
    hello.payload.ensure(u"panel")->setString(QStringLiteral("palx"));
    send(hello);
}

// ---------------------------------------------------------------- arrivals

/// On any thread.
void ControllerLink::wake()
{
    QMetaObject::invokeMethod(this, &ControllerLink::drain, Qt::QueuedConnection);
}

void ControllerLink::drain()
{
    QElapsedTimer turn;
    turn.start();
    LinkArrival arrival;
    while (desk_->box.tryPop(&arrival)) {
        take(arrival);
        arrival = LinkArrival();
        if (turn.elapsed() >= kTurnMs) {
            wake();
            return;
        }
    }
}

/// Takes arrivals until the condition holds; no events are handled. False after the bound.
bool ControllerLink::pump(const std::function<bool()> &isDone, int boundMs)
{
    const auto deadline = Mailbox<LinkArrival>::Clock::now() + std::chrono::milliseconds(boundMs);
    LinkArrival arrival;
    while (!isDone() && desk_->box.popUntil(&arrival, deadline)) {
        take(arrival);
        arrival = LinkArrival();
    }
    return isDone();
}

void ControllerLink::take(LinkArrival &arrival)
{
    using What = LinkArrival::What;
    if (state_ == LinkState::Closed)
        return;
    if (arrival.what == What::Message)
        takeMessage(arrival.message);
    else if (arrival.what == What::Unreadable)
        takeUnreadable(arrival.text);
    else if (arrival.what == What::RequestEnded)
        noteOutcome(arrival.message.name,
                    {static_cast<XReply::Status>(arrival.message.status), Node(), arrival.text}, true);
    else
        takeWay(arrival.what == What::WayOpen, arrival.text);
}

void ControllerLink::takeMessage(LinkMessage &message)
{
    heardAt_ = clock_();
    if (message.kind == Kind::Hello)
        takeHello(message);
    else if (message.kind == Kind::Error)
        takeError(message);
    else if (!isConnected())
        return; // from a way that was given up, or before the greeting
    else if (message.kind == Kind::Update)
        takeUpdate(message);
    else if (message.kind == Kind::Reply)
        takeReply(message);
    else if (message.kind == Kind::Event)
        takeEvent(message);
    else if (message.kind == Kind::Ping)
        takePing(message);
    else
        takeUnreadable(tr("the controller must not send such a message"));
}

void ControllerLink::takeHello(LinkMessage &message)
{
    if (state_ == LinkState::Connecting)
        return;
    if (message.version != kLinkVersion) {
        refuse(
            tr("The controller speaks version %1 of the link, this panel version %2. Update the older one.")
                .arg(message.version)
                .arg(kLinkVersion));
        greetAt_ = 0; // only a controller that was exchanged can answer otherwise
        return;
    }
    const Node *state = message.payload.child(u"state");
    if (!state) {
        takeUnreadable(tr("a greeting without a state"));
        return;
    }
    greetAt_ = 0;
    const bool isNew = !isConnected();
    lastUpdate_ = message.id;
    edits_->forget(message.knows);
    edits_->noteTaken(message.knows);
    takeState(*state);
    settled_ = message.knows;
    if (!isNew)
        return;
    edits_->unsend();
    enter(LinkState::Connected, tr("Controller %1 connected, software %2, robot %3.")
                                    .arg(m("nexo.r")->getString("name"), m("nexo.r")->getString("version"),
                                         m("nexo.r")->getString("id")));
    tell(QStringLiteral("info"), stateText_);
    flushEdits();
}

void ControllerLink::refuse(const QString &text)
{
    if (state_ != LinkState::Refused || text != stateText_)
        enter(LinkState::Refused, text);
    tell(QStringLiteral("error"), text);
}

void ControllerLink::takeError(const LinkMessage &error)
{
    if (error.name == QLatin1String(fault::kBusy)) {
        refuse(tr(
            "The controller serves another panel. Close the link there; this panel asks again by itself."));
        greetAt_ = clock_() + kBusyMs;
    } else if (error.name == QLatin1String(fault::kVersion)) {
        refuse(tr("The controller refuses this panel's version of the link: %1. Update the older one.")
                   .arg(error.text));
        greetAt_ = 0;
    } else {
        noteFault(&Faults::unreadable,
                  tr("The controller did not take a message of the panel: %1.").arg(error.text));
        if (isConnected() && greetAt_ == 0)
            greet();
    }
}

void ControllerLink::takeUnreadable(const QString &why)
{
    ++figures_.unreadable;
    LinkMessage error;
    error.kind = Kind::Error;
    error.name = QLatin1String(fault::kFrame);
    error.text = why;
    send(error);
    noteFault(&Faults::unreadable,
              tr("The controller sent something that cannot be read and was left out: %1.").arg(why));
}

void ControllerLink::takePing(const LinkMessage &ping)
{
    const bool isNew = ping.knows > edits_->taken();
    acknowledge(ping.knows);
    if (!isNew)
        nudgeEdits();
    settled_ = std::max(settled_, ping.knows);
    if (ping.id > lastUpdate_)
        missUpdates();
    lastUpdate_ = std::max(lastUpdate_, ping.id);
}

void ControllerLink::takeEvent(const LinkMessage &event)
{
    if (event.name == kNoticeTopic)
        publishRecord(event.payload.getString(u"level"), event.payload.getString(u"text"));
    xservice()->publish(event.name, event.payload);
}

} // namespace host
