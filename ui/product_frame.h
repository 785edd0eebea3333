#pragma once

#include "ui/recipe_frame.h"

#include <memory>

namespace Ui {
class ProductFrame;
}

/// The recipe's description and product: size, weight, where it comes from, and what that makes of the whole
/// recipe.
class PALX_API ProductFrame : public RecipeFrame
{
    Q_OBJECT

public:
    explicit ProductFrame(QWidget *parent = nullptr);
    ~ProductFrame() override;

    void refresh() override;

protected:
    void retranslate() override;

private:
    void bindFields();

    std::unique_ptr<Ui::ProductFrame> ui_;
};
