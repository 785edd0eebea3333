#include "plan_pictures.h"

#include "ui/pattern_view.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace cli {
namespace {

using Take = std::function<void(const QString &name)>;

/// The page with its plan and buttons.
class PlanPage
{
public:
    explicit PlanPage(QWidget *window) : window_(window)
    {
        for (PatternView *found : window->findChildren<PatternView *>()) {
            if (found->isVisible())
                view_ = found;
        }
    }

    PatternView *view() const { return view_; }
    palx::PatternEditing *editing() const { return view_->editing(); }

    void click(const char *name) const
    {
        for (QAbstractButton *button : window_->findChildren<QAbstractButton *>(QLatin1String(name))) {
            if (button->isVisible())
                return button->click();
        }
    }

    void mouse(QEvent::Type type, const QPointF &plan) const
    {
        const QPointF at = view_->mapFromScene(plan);
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, moves ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_->viewport(), &event);
    }

    void escape() const
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(view_, &event);
    }

    QPointF middle(int item) const
    {
        const auto &items = editing()->items();
        return QPointF(items[item].x, items[item].y);
    }

private:
    QWidget *window_;
    PatternView *view_ = nullptr;
};

/// One product is on its way and has snapped beside another; later a frame is being drawn.
void showPointer(const PlanPage &page, const Take &take)
{
    page.click("tabEdit");
    const int last = page.editing()->items().size() - 1;
    const QPointF from = page.middle(last);
    page.mouse(QEvent::MouseButtonPress, from);
    page.mouse(QEvent::MouseMove, from + QPointF(-4, 28));
    take(QStringLiteral("drag"));
    page.escape();
    const QSizeF pallet = page.editing()->scene()->rules().pallet;
    page.mouse(QEvent::MouseButtonPress, QPointF(-80, pallet.height() + 20));
    page.mouse(QEvent::MouseMove, QPointF(pallet.width() * 0.7, pallet.height() * 0.3));
    take(QStringLiteral("frame"));
    page.escape();
    page.editing()->select({});
}

/// Overlapping, over the pallet, too near to another, of an unknown direction.
void showProblems(const PlanPage &page, const Take &take)
{
    page.click("tabCheck");
    auto items = page.editing()->items();
    const int count = items.size();
    items[0].x -= 12;
    items[1 % count].x += 30;
    items[3 % count].y += 3.6;
    items[count - 1].y += 25;
    items[count / 2].faults |= palx::ItemFault::UnknownDirection;
    items[count / 2].directionText = QStringLiteral("sideways");
    page.editing()->preview(items);
    take(QStringLiteral("problems"));
    page.editing()->cancelPreview();
}

/// Placed from the wrong end; then a walk through the right order, then numbering by tapping.
void showOrder(const PlanPage &page, const Take &take)
{
    page.click("tabOrder");
    const auto items = page.editing()->items();
    const auto backwards = palx::orderByRows(items, palx::PlanCorner::BottomRight, palx::PlanAxis::Across);
    page.editing()->preview(palx::reordered(items, backwards));
    take(QStringLiteral("blocked"));
    page.editing()->cancelPreview();
    for (int i = 0; i <= items.size() / 2; ++i)
        page.click("btnStepOn");
    take(QStringLiteral("walk"));
    page.view()->setStep(-1);
    page.click("btnTap");
    for (const int item : backwards.mid(0, items.size() / 3)) {
        const QPointF at(items[item].x, items[item].y);
        page.mouse(QEvent::MouseButtonPress, at);
        page.mouse(QEvent::MouseButtonRelease, at);
    }
    take(QStringLiteral("tapping"));
    page.escape();
}

} // namespace

bool showPlanEdits(QWidget *window, const Take &take)
{
    const PlanPage page(window);
    if (!page.view() || page.editing()->items().isEmpty())
        return false;
    showPointer(page, take);
    showProblems(page, take);
    showOrder(page, take);
    page.editing()->select({0});
    return true;
}

} // namespace cli
