#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class CalibrationFrame;
}

/// What ties a recipe to its cell, in three parts: the tool, where the pallet lies, and the incoming side. Follows the trigger
/// "refresh_data".
class PALX_API CalibrationFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit CalibrationFrame(QWidget *parent = nullptr);
    ~CalibrationFrame() override;

    void refresh() override;

protected:
    void stackChanged() override;
    void retranslate() override;

private:
    void addPart(RecipeFrame *part);

    std::unique_ptr<Ui::CalibrationFrame> ui_;
    QList<RecipeFrame *> parts_; ///< in the order of their buttons
};
