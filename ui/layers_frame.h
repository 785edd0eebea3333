#pragma once

#include "ui/recipe_frame.h"
#include "ui/recipe_tables.h"

#include <memory>

class StackPatternScene;

namespace Ui {
class LayersFrame;
}

/// The layer sequence from the pallet up: which pattern each layer has, heights, and the plan of the chosen
/// layer.
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

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void connectButtons();
    void fillPatterns();
    void showLayer();
    void updateButtons();
    QString usualPattern() const;

    void insert(int index, const QString &pattern);
    void removeLayer();
    void moveLayer(int by);
    void repeatAll();

    std::unique_ptr<Ui::LayersFrame> ui_;
    StackPatternScene *scene_;
    LayerTableModel *layers_;
    NodeBinder *layerBinder_; ///< to the selected layer
};
