#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class IncomingFrame;
}

/// The incoming side, shared by the recipes with the shared tool: how products lie on the conveyor, the corner that they lie
/// in, and the way to them. A recipe with a tool of its own picks at a point of its own.
class PALX_API IncomingFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit IncomingFrame(QWidget *parent = nullptr);
    ~IncomingFrame() override;

    void refresh() override;

protected:
    void retranslate() override;

private:
    void fillCombos();
    void bindFields();
    void showCorner(orba::ModuleObject *incoming);
    void showOwnPoints();

    std::unique_ptr<Ui::IncomingFrame> ui_;
    NodeBinder *sharedBinder_; ///< to the plugin node's "global_tool" while the recipe uses it
};
