#pragma once

#include "link/carrier.h"
#include "xservice.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <memory>

namespace host {

class LinkDesk;
class LinkEdits;
struct LinkArrival;
struct LinkMessage;

/// The panel's side of the link to the controller: greeting, requests, mirrored nodes, edits;
/// docs/controller-link.md says the rules. At most one at a time; made after the global nodes and ended
/// before them. GUI thread, except where a function says otherwise.
class PALX_API ControllerLink : public QObject
{
    Q_OBJECT

public:
    static constexpr int kGreetMs = 500;  ///< a greeting without an answer is repeated
    static constexpr int kBusyMs = 2000;  ///< the same when the controller serves another panel
    static constexpr int kPingMs = 1000;  ///< silence of this side that a Ping ends
    static constexpr int kDeadMs = 4000;  ///< silence of the other side that ends the way
    static constexpr int kResendMs = 400; ///< first repetition of edits; each next one waits twice as long
    static constexpr int kMaxResendMs = 3200; ///< at most
    static constexpr int kEditsUnderWay = 32; ///< edits sent at most before the first is known to be taken
    static constexpr int kTickMs = 100;
    static constexpr int kFaultShownMs = 60000; ///< without a new one, faults are no longer shown

    /// Monotonic milliseconds.
    using Clock = std::function<qint64()>;

    explicit ControllerLink(std::unique_ptr<Carrier> carrier, Clock clock = Clock(),
                            QObject *parent = nullptr);
    /// Closes. Requests of other threads that are under way end as not connected.
    ~ControllerLink() override;

    /// The link of this process, or null.
    static ControllerLink *current();

    void open();
    void close();
    /// Waits, without handling events, until the controller has told its state or cannot be had now. True
    /// when connected.
    bool waitForState(int boundMs);

    LinkState state() const { return state_; }
    bool isConnected() const { return state_ == LinkState::Connected; }
    /// The state for the operator: what, and when it is bad, why and the way out.
    const QString &stateText() const { return stateText_; }
    /// "closed", "connecting", "greeting", "connected" or "refused", as "nexo.r.state" has it.
    static QString stateName(LinkState state);

    /// For XService. `ask` on any thread, also without a link.
    static XReply ask(const QString &name, const orba::Node &payload, int timeoutMs, bool isTold);
    /// Sends and returns. With `answered` the outcome goes there and is not recorded.
    using Answered = std::function<void(const XReply &)>;
    bool command(const QString &name, const orba::Node &payload, Answered answered = Answered());

    /// What went wrong on the way so far; each was mended.
    struct Figures
    {
        int droppedReplies = 0; ///< late, or a second one
        int droppedUpdates = 0; ///< came twice, or older than what was there
        int unreadable = 0;     ///< frames
        int resentEdits = 0;
        int missedUpdates = 0; ///< gaps in their numbers
    };
    const Figures &figures() const { return figures_; }
    /// Edits that the controller is not known to have taken.
    int unsettledEdits() const;
    /// Whether everything that arrived was dealt with.
    bool isIdle() const;

    /// What is due by the clock: greetings, pings, repetitions, the end of a silent way. Called by a timer.
    void tick();

Q_SIGNALS:
    void stateChanged(host::LinkState state, const QString &text);

private:
    struct Command
    {
        QString name;
        qint64 deadline;
        std::string frame;
        Answered answered;
    };

    /// What went wrong lately, for the operator.
    struct Faults
    {
        int unreadable = 0;   ///< messages of either side that the other could not read
        int strayReplies = 0; ///< late, or a second one
        int unanswered = 0;   ///< requests
    };

    // controller_link.cpp: state, what arrives
    void enter(LinkState state, const QString &text);
    void refuse(const QString &text);
    void tell(const QString &level, const QString &text);
    void wake();
    void drain();
    void take(LinkArrival &arrival);
    void takeMessage(LinkMessage &message);
    void takeWay(bool open, const QString &reason);
    void takeHello(LinkMessage &message);
    void takeError(const LinkMessage &error);
    void takeUnreadable(const QString &why);
    void takeEvent(const LinkMessage &event);
    void takePing(const LinkMessage &ping);
    void greet();
    bool send(const LinkMessage &message);
    void bounce(const QString &reason);
    bool pump(const std::function<bool()> &isDone, int boundMs);

    // link_faults.cpp
    void noteFault(int Faults::*kind, const QString &record = QString());
    void forgetFaults();
    QString faultsText() const;

    // link_request.cpp
    void sendMissing(std::uint64_t taken);
    void checkCommands(qint64 now);
    void endCommand(const Command &command, const XReply &reply);
    void breakCommands();
    void noteOutcome(const QString &name, const XReply &reply, bool changes);
    void takeReply(LinkMessage &reply);

    // link_mirror.cpp: nodes and edits
    void watchTree();
    void takeState(const orba::Node &state);
    void takeUpdate(LinkMessage &update);
    void missUpdates();
    void applyState(const QString &path, orba::Node &value);
    void acknowledge(std::uint64_t taken);
    bool noteTaken(std::uint64_t taken);
    void sendEdits();
    void resendEdits();
    void nudgeEdits();
    void flushEdits();
    void switchProject();
    void emptyLists();
    void showState();

    std::shared_ptr<LinkDesk> desk_;
    std::unique_ptr<LinkEdits> edits_;
    Clock clock_;
    QTimer timer_;
    LinkState state_ = LinkState::Closed;
    QString stateText_;
    QString toldText_; ///< last record about the link
    QString session_;
    orba::Node pattern_; ///< the mirrored nodes as the host's template made them
    QPointer<orba::ModuleObject> project_;
    QHash<std::uint64_t, Command> commands_;
    QSet<QString> failing_; ///< requests whose failure was told
    Figures figures_;
    std::uint64_t lastUpdate_ = 0;
    std::uint64_t settled_ = 0; ///< last edit whose updates have all arrived
    qint64 greetAt_ = 0;        ///< when a greeting is due; 0: none
    qint64 greetingSince_ = 0;  ///< when the way opened
    qint64 heardAt_ = 0;
    qint64 spokeAt_ = 0;
    qint64 resendAt_ = 0; ///< when edits are sent again; 0: nothing waits
    qint64 resendMs_ = kResendMs;
    int underWay_ = kEditsUnderWay; ///< edits that may be under way now
    Faults faults_;
    Faults told_; ///< which kinds have a record since the way opened
    qint64 lastFaultAt_ = 0;
    int idlePings_ = 0;             ///< since an edit was taken the last time
};

} // namespace host

Q_DECLARE_METATYPE(host::LinkState)
