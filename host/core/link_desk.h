#pragma once

#include "link/frame.h"
#include "link/mailbox.h"
#include "link/reply_board.h"
#include "link/way.h"
#include "xservice.h"

#include <atomic>

namespace host {

/// What the carrier's thread hands to the panel's GUI thread.
struct LinkArrival
{
    enum class What {
        Message,
        Unreadable, ///< a frame that cannot be read; `text` says why
        WayOpen,
        WayBroken,    ///< `text` is the reason
        RequestEnded, ///< a request of another thread; `message.name`, `message.status` (XReply::Status),
                      ///< `text`
    };
    What what = What::Message;
    LinkMessage message;
    QString text;
};

/// The part of the link that threads share: the way, the replies somebody waits for, and the box of
/// everything else. Frames are decoded on the carrier's thread, so that a large one does not hold up the GUI
/// thread.
class LinkDesk : public CarrierSink
{
public:
    explicit LinkDesk(std::unique_ptr<Carrier> carrier) : way(std::move(carrier)) {}

    /// The desk of the present link, or null; any thread. Who has it may use it after the link has ended.
    static std::shared_ptr<LinkDesk> shared();
    static void share(std::shared_ptr<LinkDesk> desk);

    void frameArrived(std::string frame) override;
    void wayChanged(bool open, const std::string &reason) override;

    struct Question
    {
        QString name;
        const orba::Node *payload = nullptr;
        int timeoutMs = -1;      ///< negative: the default
        std::uint64_t knows = 0; ///< the edits that must be there first
        /// Sends the edits again that the controller lacks: those behind the number that it names.
        std::function<void(std::uint64_t taken)> sendEdits;
    };
    /// Sends and waits; any thread.
    XReply ask(const Question &question);

    /// Tells the GUI thread how a request of another thread ended.
    void noteOutcome(const QString &name, const XReply &reply);

    /// Request frame with a new number; empty with a reason when the payload cannot be sent.
    std::string requestFrame(const Question &question, std::uint64_t *id, QString *error);

    Way way;
    ReplyBoard<LinkMessage> replies;
    Mailbox<LinkArrival> box;
    std::atomic<bool> isConnected{false};
    std::atomic<int> timeoutMs{1600};

    /// What a Reply says, and what is said in its place. The reply's payload is taken.
    static XReply answer(LinkMessage &reply);
    static XReply broken();
    static XReply late(int boundMs);

private:
    std::atomic<std::uint64_t> lastRequest_{0};
};

} // namespace host
