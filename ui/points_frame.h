#pragma once

#include "ui/point_table_model.h"
#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class PointsFrame;
}

/// Generates the points of the recipe and lists them, each of them the target of a move, with what they lack: taught points, layers, or a new
/// generation after an edit.
class PALX_API PointsFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit PointsFrame(QWidget *parent = nullptr);
    ~PointsFrame() override;

    void refresh() override;
    void generate();

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void fillLayers();
    void fillPoints();
    void filter();
    void showCount();
    void showState();
    void copyTable();
    orba::ModuleObject *chosenPoint() const;
    void showChoice();

    std::unique_ptr<Ui::PointsFrame> ui_;
    PointTableModel *points_;
};
