#pragma once

#include "pattern/rules/stack_courses.h"
#include "stack/layer_series.h"
#include "ui/recipe_frame.h"
#include "ui/recipe_tables.h"

#include <memory>

class QAction;
class StackPatternScene;

namespace Ui {
class LayersFrame;
}

/// The layer sequence from the pallet up: which pattern each layer has, heights, and the stack or the plan of
/// the chosen layer. One layer is chosen at a time, or several to be edited alike.
class PALX_API LayersFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit LayersFrame(QWidget *parent = nullptr);
    ~LayersFrame() override;

    void refresh() override;
    QString blockingProblem() const override;
    int layer() const;
    void chooseLayer(int index);
    /// What the buttons act on; the last one becomes `layer`.
    palx::LayerSet layers() const;
    void chooseLayers(const palx::LayerSet &layers);

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void bindLayerFields();
    void connectButtons();
    void makeMenu();
    void fillPatterns();
    void showLayer();
    void updateButtons();
    void showPiece(const palx::Piece &piece);
    QString usualPattern() const;

    void setPattern(const QString &pattern);
    void spreadOffset();
    void insert(int index, const QString &pattern);
    void removeLayers();
    void moveLayers(bool up);
    void layOn(int (*rule)(orba::ModuleObject *, const palx::LayerSet &), const palx::LayerSet &layers);
    void mirror(int image);
    void askSeries();
    /// Shows the sequence as it is now with these layers chosen.
    void changed(const palx::LayerSet &layers);

    std::unique_ptr<Ui::LayersFrame> ui_;
    StackPatternScene *scene_;
    LayerTableModel *layers_;
    NodeBinder *layerBinder_;  ///< to the last chosen layer
    QList<QAction *> actions_; ///< the series, then the images in the order of their kinds
};
