#include "pattern/patternscene.h"

#include "orba/managers.h"
#include "pattern/item_view.h"
#include "pattern/node_follower.h"
#include "pattern/plan_backdrop.h"
#include "pattern/plan_style.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

using orba::ModuleObject;
using orba::Node;
using palx::ItemView;
using palx::NodeFollower;
using palx::PatternItem;

/// Pages ask for this number to know which hand editing the scenes offer.
const bool kVersionRegistered = orba::versionManager().regist(
    mName(QStringLiteral("palx_workstation"), QStringLiteral("wizard.patternscene")), [] { return 1; });

constexpr double kSmallestScale = 1e-4; // pixels per mm, for targets without any room
constexpr double kFarShare =
    0.5; // products further out than half a pallet are not worth shrinking the plan for

// Room around the plan, in heights of its numbers: for the axes' names and for the dimensions.
constexpr double kRoomBefore = 1.6;
constexpr double kRoomBehind = 2.8;
constexpr double kRoomUnframed = 0.5;  // without axes and dimensions
constexpr double kSmallestFramed = 14; // smaller pictures have neither, they would be all numbers

/// Everything that a plan can show; generated points are the bulk of a recipe and no part of it.
Node planPart(const Node &stack)
{
    Node part;
    for (int i = 0; i < stack.size(); ++i) {
        const Node *child = stack.at(i);
        if (child && child->name().view() != u"points")
            part.add(child->name())->assign(*child);
    }
    return part;
}

void updateView(ItemView *view, const PatternItem &item, const palx::ApproachFrame &frame)
{
    view->setCentre(QPointF(item.x, item.y));
    view->setSize(QSizeF(item.w, item.h));
    view->setTurn(item.r);
    view->setNumber(item.index);
    view->setOrient(item.orient);
    view->setOffsets(item.dx, item.dy, item.dz);
    view->setApproach(palx::approachOf(item, frame));
}

} // namespace

PatternScene::PatternScene(QObject *parent) : QGraphicsScene(parent)
{
    setItemIndexMethod(NoIndex); // at most a few hundred items, all of them in sight
}

PatternScene::~PatternScene() = default;

void PatternScene::setStack(ModuleObject *stack)
{
    stack_ = stack && !stack->isEmptyMobj() ? stack : nullptr;
    stackCopy_.reset();
    markStale(true);
}

void PatternScene::setStack(const Node &stack)
{
    stack_ = nullptr;
    stackCopy_ = std::make_unique<Node>(planPart(stack));
    copiedFrame_ = palx::readApproachFrame(stack); // reaches beyond the recipe, to the node that holds it
    markStale(true);
}

void PatternScene::setPattern(ModuleObject *pattern)
{
    pattern_ = pattern && !pattern->isEmptyMobj() ? pattern : nullptr;
    ownItems_ = Node();
    markStale(true);
}

void PatternScene::setPattern(const Node &pattern)
{
    pattern_ = nullptr;
    ownItems_.assign(pattern);
    markStale(true);
}

const Node &PatternScene::stackNode() const
{
    static const Node none{};
    if (stack_)
        return stack_->node();
    return stackCopy_ ? *stackCopy_ : none;
}

ModuleObject *PatternScene::targetPattern() const
{
    return pattern_;
}

int PatternScene::getWobjCount()
{
    const ModuleObject *target = targetPattern();
    return target ? target->cmobjCount() : shownItems().size();
}

// NOLINTBEGIN(performance-unnecessary-value-param): the signature is what pattern producers call
void PatternScene::addWobjItem(int index, int orient, const QPointF &centre, const QSize &size,
                               double rotation, QList<double> offsets, QString direction)
// NOLINTEND(performance-unnecessary-value-param)
{
    PatternItem item;
    item.x = centre.x();
    item.y = centre.y();
    item.w = size.width();
    item.h = size.height();
    item.r = qRound(rotation);
    item.index = index;
    item.orient = orient;
    item.directionText = std::move(direction);
    item.dx = offsets.value(0);
    item.dy = offsets.value(1);
    item.dz = offsets.value(2);
    ModuleObject *target = targetPattern();
    palx::appendPatternItem(target ? target->node() : ownItems_, item);
    if (target)
        target->announceStructure(this); // which also reaches this scene
    else
        markStale(true);
}

void PatternScene::clearItems()
{
    if (ModuleObject *target = targetPattern())
        target->clear(this);
    ownItems_ = Node();
    markStale(true);
}

const palx::StackPlan &PatternScene::plan()
{
    sync();
    return plan_;
}

const QVector<PatternItem> &PatternScene::shownItems()
{
    sync();
    return content_.items;
}

const palx::EditFindings &PatternScene::checks()
{
    sync();
    return findings_;
}

const palx::EditRules &PatternScene::rules()
{
    sync();
    return rules_;
}

void PatternScene::setHandEditing(bool on)
{
    handEditing_ = on;
    markStale(false);
}

void PatternScene::showPreview(const QVector<PatternItem> &items)
{
    sync();
    preview_ = true;
    content_.items = items;
    showContent();
}

void PatternScene::endPreview()
{
    if (preview_)
        markStale(false);
}

QString PatternScene::message()
{
    sync();
    return content_.message;
}

// ---------------------------------------------------------------- following

PatternScene::Content PatternScene::readContent(const palx::StackPlan &plan) const
{
    const Node &pattern = pattern_ ? pattern_->node() : ownItems_;
    Content content;
    content.items = palx::readPatternItems(pattern, plan.product.width, plan.product.length);
    return content;
}

QList<ModuleObject *> PatternScene::shownPatterns() const
{
    return pattern_ ? QList<ModuleObject *>{pattern_} : QList<ModuleObject *>();
}

void PatternScene::followChoice(NodeFollower *) const {}

void PatternScene::followNodes(const QList<ModuleObject *> &patterns)
{
    follower_ = std::make_unique<NodeFollower>();
    connect(follower_.get(), &NodeFollower::valueTouched, this, [this] { markStale(false); });
    connect(follower_.get(), &NodeFollower::structureTouched, this, [this] { markStale(true); });
    if (stack_) {
        follower_->follow(stack_);
        follower_->followTree(stack_->r("product_cfg"));
        follower_->followTree(stack_->r("wobj_margin"));
        follower_->followTree(stack_->r("automatic_stacker"));
        for (const int side : {0, 1})
            follower_->follow(stack_->p(1)->r("global_wobj")->c(side)->r("towards"));
    }
    followChoice(follower_.get());
    for (const ModuleObject *pattern : patterns)
        follower_->followTree(pattern);
    followedPatterns_ = patterns;
}

void PatternScene::markStale(bool structure)
{
    stale_ = true;
    structureStale_ = structureStale_ || structure;
    if (syncQueued_)
        return;
    syncQueued_ = true; // a page that writes two hundred values makes one new picture
    QMetaObject::invokeMethod(this, &PatternScene::sync, Qt::QueuedConnection);
}

void PatternScene::sync()
{
    syncQueued_ = false;
    if (!stale_)
        return;
    stale_ = false;
    const QList<ModuleObject *> patterns = shownPatterns();
    if (std::exchange(structureStale_, false) || patterns != followedPatterns_)
        followNodes(patterns);
    plan_ = palx::readStackPlan(stackNode());
    readRules();
    content_ = readContent(plan_);
    preview_ = false;
    showContent();
}

void PatternScene::readRules()
{
    rules_ = palx::readEditRules(stackNode());
    if (!stack_)
        rules_.frame = copiedFrame_;
}

void PatternScene::showContent()
{
    if (handEditing_)
        findings_ = palx::judgeEdit(content_.items, rules_);
    else
        findings_.layout = palx::judgeLayout(content_.items, rules_.pallet);
    showItems();
    setSceneRect(contentRect());
    update();
    Q_EMIT planChanged();
}

palx::ItemFlaws PatternScene::flawsOf(int item) const
{
    palx::ItemFlaws flaws;
    flaws.overlaps = findings_.layout.overlapping[item];
    flaws.overhangs = findings_.layout.overhangs[item].any();
    if (!handEditing_)
        return flaws;
    flaws.cramped = findings_.tight[item] || findings_.margins[item].any();
    flaws.blocked = findings_.order.blocked[item];
    return flaws;
}

void PatternScene::showItems()
{
    while (views_.size() > content_.items.size())
        delete views_.takeLast();
    for (int i = 0; i < content_.items.size(); ++i) {
        if (i == views_.size()) {
            views_.append(new ItemView(content_.items[i]));
            addItem(views_.last());
        }
        updateView(views_[i], content_.items[i], rules_.frame);
        views_[i]->setFlaws(flawsOf(i), content_.items[i].faults);
        views_[i]->setOffsetsShown(handEditing_);
    }
}

// ---------------------------------------------------------------- drawing

/// The pallet with whatever reaches over it, within reason.
QRectF PatternScene::contentRect() const
{
    const QRectF pallet(QPointF(), plan_.pallet.plan());
    const double far = kFarShare * std::min(pallet.width(), pallet.height());
    QRectF content = pallet | palx::itemsBounds(content_.items);
    if (content_.sheet || content_.ghostSheet)
        content |= palx::sheetRect(plan_.sheet.plan(), plan_.pallet.plan());
    return content & pallet.adjusted(-far, -far, far, far);
}

QRectF PatternScene::viewRect(const QSizeF &pixels)
{
    const double scale = planScale(pixels);
    const QRectF content = contentRect();
    // The axes' names stand left and above, the dimensions right and below.
    const double before = textPixels_ * (framed_ ? kRoomBefore : kRoomUnframed);
    const double behind = textPixels_ * (framed_ ? kRoomBehind : kRoomUnframed);
    const QSizeF shown = pixels / scale;
    const QPointF spare((shown.width() - content.width() - (before + behind) / scale) / 2,
                        (shown.height() - content.height() - (before + behind) / scale) / 2);
    return QRectF(content.topLeft() - QPointF(before, before) / scale - spare, shown);
}

double PatternScene::planScale(const QSizeF &pixels)
{
    sync();
    const QRectF content = contentRect();
    framed_ = std::min(pixels.width(), pixels.height()) >= textPixels_ * kSmallestFramed;
    const double around = textPixels_ * (framed_ ? kRoomBefore + kRoomBehind : 2 * kRoomUnframed);
    const double fit =
        std::min((pixels.width() - around) / content.width(), (pixels.height() - around) / content.height());
    return std::max(fit, kSmallestScale);
}

void PatternScene::setTextPixels(double pixels)
{
    textPixels_ = pixels;
    update();
}

void PatternScene::paintPlan(QPainter *painter, const QRectF &target)
{
    sync();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    render(painter, target, viewRect(target.size()), Qt::KeepAspectRatio);
    painter->restore();
}

void PatternScene::drawBackground(QPainter *painter, const QRectF &rect)
{
    const QSizeF pallet = plan_.pallet.plan();
    painter->fillRect(rect, QColor::fromRgba(palx::plan_style::kPaper));
    palx::paintPallet(painter, pallet);
    if (content_.sheet)
        palx::paintSheet(painter, plan_.sheet.plan(), pallet, false);
}

void PatternScene::drawForeground(QPainter *painter, const QRectF &)
{
    const QSizeF pallet = plan_.pallet.plan();
    if (content_.ghostSheet)
        palx::paintSheet(painter, plan_.sheet.plan(), pallet, true);
    palx::paintGhost(painter, content_.ghost);
    palx::paintPalletEdge(painter, pallet);
    palx::paintMargins(painter, plan_);
    for (const ItemView *view : qAsConst(views_))
        view->paintMarks(painter);
    palx::paintOverhang(painter, pallet, content_.items, findings_.layout, textPixels_);
    if (framed_) {
        palx::paintDimensions(painter, pallet, contentRect(), textPixels_);
        palx::paintOrigin(painter, pallet, textPixels_);
    }
    if (!content_.message.isEmpty())
        palx::paintMessage(painter, pallet, content_.message, textPixels_);
}
