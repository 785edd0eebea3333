#pragma once

#include "pattern/edit_tool.h"
#include "pattern/pattern_editing.h"

namespace palx {

/// Numbers products in the order in which they are tapped; those that are not tapped follow in their present
/// order. The new numbers show at once and are written as one edit by `finish`, which the last but one product
/// brings about by itself.
class PALX_API OrderTool : public QObject, public EditTool
{
    Q_OBJECT

public:
    explicit OrderTool(PatternEditing *editing);

    void start();
    void finish();
    void drop();
    bool isActive() const { return active_; }
    /// How many products have their number.
    int tapped() const { return taps_.size(); }

    void press(const QPointF &at, double pixelMm, bool adding) override;
    void move(const QPointF &) override {}
    void release(const QPointF &) override {}
    void cancel() override {}

Q_SIGNALS:
    /// Another number was given, or the tool began or ended.
    void changed();

private:
    void end();

    PatternEditing *editing_;
    QVector<PatternItem> before_;
    QVector<int> order_; ///< of the places before, as shown now
    QVector<int> taps_;  ///< places before
    bool active_ = false;
};

} // namespace palx
