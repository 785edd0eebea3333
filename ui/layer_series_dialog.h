#pragma once

#include "stack/layer_series.h"

#include <QDialog>
#include <QPointer>

#include <memory>

namespace Ui {
class LayerSeriesDialog;
}

/// Asks for layers that take turns: how many, which patterns or mirrored copies, separator sheets, and where.
/// Says at once what the stack will be, or why it cannot be.
class PALX_API LayerSeriesDialog : public QDialog
{
    Q_OBJECT

public:
    /// `layer` is the one from which on layers may be replaced; -1 when there is none.
    LayerSeriesDialog(orba::ModuleObject *stack, int layer, QWidget *parent);
    ~LayerSeriesDialog() override;

    /// Carries out what was chosen; false when the recipe does not allow it any more.
    bool lay(orba::ModuleObject *stack) const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();
    palx::LayerSeries series() const;
    /// Which image of the first pattern takes turns with it; -1: none.
    int image() const;
    void showResult();

    std::unique_ptr<Ui::LayerSeriesDialog> ui_;
    QPointer<orba::ModuleObject> stack_;
    int layer_;
};
