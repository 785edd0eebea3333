// The link's hold on the trees: nodes that the controller mirrors, and edits that go to it.

#include "core/controller_link.h"
#include "core/link_desk.h"
#include "core/link_edits.h"
#include "core/tree_compare.h"
#include "link/path_write.h"
#include "orba/node_storage.h"
#include "orba/notice.h"

#include <utility>

namespace host {

using orba::Node;

namespace {

const QString kController = QStringLiteral("nexo.r");

/// Subtrees that the controller keeps current.
const QStringList &mirroredTops()
{
    static const QStringList tops{kController, QStringLiteral("nexo.robot"), QStringLiteral("nexo.cell"),
                                  LinkEdits::kProject,
                                  QStringLiteral("quill.body.toolset")};
    return tops;
}

/// Keys of "nexo.r" that the panel itself writes.
const QStringList &ownKeys()
{
    static const QStringList keys{QStringLiteral("connected"), QStringLiteral("link"), QStringLiteral("state"),
                                  QStringLiteral("faults")};
    return keys;
}

bool isAtOrBelow(const QString &path, const QString &top)
{
    return path == top || path.startsWith(top + QLatin1Char('.'));
}

/// The mirrored subtree that a path lies in, or an empty text.
QString topOf(const QString &path)
{
    for (const QString &top : mirroredTops())
        if (isAtOrBelow(path, top))
            return top;
    return QString();
}

bool isOwn(const QString &path)
{
    return std::any_of(ownKeys().begin(), ownKeys().end(),
                       [&path](const QString &key) { return isAtOrBelow(path, mName(kController, key)); });
}

/// Paths of the null-valued nodes below: what pages raise.
void findEvents(const Node &node, const QString &path, QStringList *events)
{
    if (node.isNull())
        events->append(path);
    for (int i = 0; node.kind() == Node::Kind::Map && i < node.size(); ++i)
        findEvents(*node.at(i), mName(path, node.at(i)->name().toString()), events);
}

} // namespace

void ControllerLink::watchTree()
{
    for (const QString &top : mirroredTops())
        if (const Node *node = orba::findGlobal(top))
            pattern_.ensure(top)->assign(*node);
    project_ = m(LinkEdits::kProject);
    edits_ = std::make_unique<LinkEdits>(&project_->node());
    connect(project_->c("cur_project"), &orba::ModuleObject::changed, this, &ControllerLink::switchProject);
    QStringList events;
    findEvents(project_->node(), LinkEdits::kProject, &events);
    for (const QString &path : qAsConst(events)) {
        orba::ModuleObject *event = m(path);
        event->node().setEvent(true); // raised by setting it, too, and no content that is compared
        connect(event, &orba::ModuleObject::changed, this, [this, path](const QVariant &value) {
            edits_->trigger(path, value);
            sendEdits();
        });
    }
}

// ---------------------------------------------------------------- from the controller

void ControllerLink::takeState(const Node &state)
{
    edits_->collect();
    for (int i = 0; i < state.size(); ++i) {
        const Node *entry = state.at(i);
        const Node *value = entry ? entry->child(u"value") : nullptr;
        if (!value)
            continue;
        Node copy(*value);
        applyState(entry->getString(u"path"), copy);
    }
}

void ControllerLink::takeUpdate(LinkMessage &update)
{
    if (update.id <= lastUpdate_) {
        ++figures_.droppedUpdates;
        return;
    }
    if (update.id > lastUpdate_ + 1)
        missUpdates();
    lastUpdate_ = update.id;
    edits_->collect();
    acknowledge(update.knows);
    applyState(update.name, update.payload);
}

/// Asks for the whole state, because some of it got lost.
void ControllerLink::missUpdates()
{
    ++figures_.missedUpdates;
    if (greetAt_ == 0)
        greet();
}

void ControllerLink::applyState(const QString &path, Node &value)
{
    const QString top = topOf(path);
    Node *root = top.isEmpty() ? nullptr : orba::findGlobal(top);
    if (!root || isOwn(path)) {
        takeUnreadable(tr("\"%1\" is no node that a controller may change").arg(path));
        return;
    }
    if (!edits_->putOnTop(path, &value)) {
        ++figures_.droppedUpdates;
        return;
    }
    if (path == kController && value.kind() == Node::Kind::Map)
        for (const QString &key : ownKeys())
            value.ensure(key)->assign(*root->ensure(key));
    const orba::Notification guard; // nodes that listeners hold end after the last of them was told
    const orba::NoticeOfChanges notice(*root, this);
    const QStringView below = QStringView(path).mid(std::min(path.size(), top.size() + 1));
    if (Node *target = root->find(below))
        mirrorTree(*target, value, std::as_const(pattern_).find(path));
    else if (!applyWrite(*root, below, value))
        takeUnreadable(tr("there is no place for \"%1\"").arg(path));
    if (top == LinkEdits::kProject)
        edits_->tookOver();
}

void ControllerLink::showState()
{
    orba::ModuleObject *controller = m(kController);
    controller->set(this, "link", stateText_);
    controller->set(this, "state", stateName(state_));
    controller->set(this, "faults", faultsText());
    controller->set(this, "connected", isConnected());
}

// ---------------------------------------------------------------- to the controller

/// What arrives from now on has the edits up to that number in it.
void ControllerLink::acknowledge(std::uint64_t taken)
{
    edits_->forget(taken);
    noteTaken(taken);
}

bool ControllerLink::noteTaken(std::uint64_t taken)
{
    if (!edits_->noteTaken(taken))
        return false;
    idlePings_ = 0;
    underWay_ = std::min(2 * underWay_, kEditsUnderWay);
    resendMs_ = kResendMs;
    resendAt_ = edits_->waiting() == 0 ? 0 : clock_() + resendMs_;
    sendEdits();
    return true;
}

void ControllerLink::sendEdits()
{
    if (!isConnected())
        return;
    for (const LinkEdits::Edit *edit : edits_->unsent()) {
        if (edit->number > edits_->taken() + static_cast<unsigned>(underWay_) ||
            !desk_->way.send(edit->frame))
            break;
        edits_->markSent(edit->number);
        spokeAt_ = clock_();
    }
    if (edits_->waiting() > 0 && resendAt_ == 0) {
        resendMs_ = kResendMs;
        resendAt_ = clock_() + resendMs_;
    }
}

/// One by one at first: a way that breaks after a few frames would else never bring any of many. The first
/// one goes out twice: frames that get lost in a rhythm must not always be the one that everything waits for.
void ControllerLink::resendEdits()
{
    if (edits_->waiting() == 0 || !isConnected())
        return;
    edits_->unsend();
    underWay_ = 1;
    desk_->way.send(edits_->unsent().front()->frame);
    sendEdits();
    figures_.resentEdits += static_cast<int>(edits_->sent() - edits_->taken());
    resendMs_ = std::min<qint64>(2 * resendMs_, kMaxResendMs);
    resendAt_ = clock_() + resendMs_;
}

/// The controller answers edits and takes none: one before them got lost. A single such answer is that to a
/// repetition.
void ControllerLink::nudgeEdits()
{
    constexpr int kSigns = 2;
    if (edits_->areUnderWay() && ++idlePings_ == kSigns)
        resendEdits();
}

/// While there is no way, edits stay in the tree: only their last state is worth sending.
void ControllerLink::flushEdits()
{
    if (!isConnected())
        return;
    edits_->collect();
    sendEdits();
}

/// Whoever sets another project works on its lists right away, so they must be there when `set` returns.
void ControllerLink::switchProject()
{
    const std::uint64_t before = edits_->last();
    edits_->switchProject();
    if (edits_->last() == before) // the controller switched it
        return;
    const std::uint64_t number = edits_->last();
    sendEdits();
    const auto isDone = [this, number] { return !isConnected() || settled_ >= number; };
    int left = desk_->timeoutMs;
    while (!pump(isDone, std::min(left, kResendMs)) && (left -= kResendMs) > 0)
        resendEdits();
    if (edits_->taken() < number)
        emptyLists();
}

void ControllerLink::emptyLists()
{
    const orba::Notification guard;
    const orba::NoticeOfChanges notice(project_->node(), this);
    for (const QString &path : LinkEdits::projectLists())
        if (Node *list = orba::findGlobal(path))
            list->clear();
    edits_->tookOver();
}

} // namespace host
