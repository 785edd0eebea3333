#pragma once

#include "orba/module_object.h"
#include "pattern/rules/edit_findings.h"
#include "pattern/rules/stack_plan.h"

#include <QGraphicsScene>
#include <QPointer>

#include <memory>

namespace palx {
class ItemView;
class NodeFollower;
struct ItemFlaws;
} // namespace palx

/// The plan of one layer, seen from above, in millimetres: pallet, products with their order numbers, label
/// sides and approach arrows, dimensions. What overlaps or reaches over the pallet is coloured and hatched.
///
/// The pallet's width runs across (right), its length down; the origin is the pallet's upper left corner. X
/// is the axis along the length and Y the one along the width.
///
/// Given handles, the scene follows them: changes show with the next turn of the event loop, at once for
/// whoever asks the scene. Given plain nodes, it keeps what it needs and follows nothing. Text and lines keep
/// their size in pixels. GUI thread only; needs a QApplication.
class PALX_API PatternScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit PatternScene(QObject *parent = nullptr);
    ~PatternScene() override;

    /// The recipe whose product and pallet are shown. Null or the empty node shows a default pallet.
    void setStack(orba::ModuleObject *stack);
    void setStack(const orba::Node &stack);
    /// The items that are shown and that `addWobjItem` adds to. Null or the empty node: items of the scene's
    /// own.
    void setPattern(orba::ModuleObject *pattern);
    void setPattern(const orba::Node &pattern);

    /// Number of items in the pattern.
    int getWobjCount();
    /// Appends an item to the pattern, or to the scene's own items. `centre` is across and
    /// along, `size` before the turn; `rotation` is rounded to whole degrees, `offsets` are dx, dy, dz
    /// (missing ones 0).
    void addWobjItem(int index, int orient, const QPointF &centre, const QSize &size, double rotation,
                     QList<double> offsets, QString direction);
    void clearItems();

    // --- editing by hand, see PatternEditing
    /// Shows what an editor needs: offsets on the products, gaps, margins and the order of placing judged too.
    void setHandEditing(bool on);
    /// The followed pattern that edits are written to, or null.
    orba::ModuleObject *editedPattern() const { return targetPattern(); }
    /// Shows other items in place of the pattern's own until `endPreview`, or until the pattern changes.
    void showPreview(const QVector<palx::PatternItem> &items);
    void endPreview();
    bool hasPreview() const { return preview_; }

    // --- what is shown now
    const palx::StackPlan &plan();
    const QVector<palx::PatternItem> &shownItems();
    const palx::LayoutFindings &findings() { return checks().layout; }
    /// Beyond `findings` filled only while editing by hand.
    const palx::EditFindings &checks();
    /// What the items are judged by.
    const palx::EditRules &rules();
    /// Says why no products are shown; empty when there are some or the pattern simply holds none.
    QString message();

    /// The part of the plan that a view or picture of that many pixels should show, so that dimensions and
    /// axes fit in; below fourteen text heights they are left out.
    QRectF viewRect(const QSizeF &pixels);
    /// Height of numbers in pixels; 16 at first.
    void setTextPixels(double pixels);
    double textPixels() const { return textPixels_; }
    /// Draws the plan into a rectangle of a painter that is set to pixels.
    void paintPlan(QPainter *painter, const QRectF &target);
    /// Pixels per millimetre that `paintPlan` will use.
    double planScale(const QSizeF &pixels);

Q_SIGNALS:
    /// What the scene shows has changed.
    void planChanged();

protected:
    /// What one layer shows besides the recipe's pallet.
    struct Content
    {
        QVector<palx::PatternItem> items;
        QVector<palx::PatternItem> ghost; ///< products of the layer below
        bool sheet = false;               ///< a separator sheet lies in this layer
        bool ghostSheet = false;          ///< ... in the one below
        QString message;
    };
    virtual Content readContent(const palx::StackPlan &plan) const;
    /// The followed pattern that items are written to, or null.
    virtual orba::ModuleObject *targetPattern() const;
    /// The patterns whose items are shown, to be followed.
    virtual QList<orba::ModuleObject *> shownPatterns() const;
    /// Follows what decides which patterns these are.
    virtual void followChoice(palx::NodeFollower *follower) const;

    const orba::Node &stackNode() const;
    orba::ModuleObject *stackMobj() const { return stack_; }
    /// The shown content must be read anew; `structure`: other nodes must be followed.
    void markStale(bool structure);
    void sync();

    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void followNodes(const QList<orba::ModuleObject *> &patterns);
    void readRules();
    void showContent();
    void showItems();
    palx::ItemFlaws flawsOf(int item) const;
    QRectF contentRect() const;

    QPointer<orba::ModuleObject> stack_;
    QPointer<orba::ModuleObject> pattern_;
    std::unique_ptr<orba::Node> stackCopy_;
    orba::Node ownItems_;
    std::unique_ptr<palx::NodeFollower> follower_;
    QList<orba::ModuleObject *> followedPatterns_; // only compared: their nodes may have ended

    palx::StackPlan plan_;
    palx::ApproachFrame copiedFrame_; ///< of a recipe given as a plain node
    palx::EditRules rules_;
    Content content_;
    palx::EditFindings findings_;
    QVector<palx::ItemView *> views_; // in the order of the items; the scene owns them
    double textPixels_ = 16;
    bool framed_ = true; ///< the present size has room for axes and dimensions
    bool stale_ = true;
    bool structureStale_ = true;
    bool syncQueued_ = false;
    bool handEditing_ = false;
    bool preview_ = false;
};
