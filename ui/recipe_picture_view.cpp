#include "ui/recipe_picture_view.h"

#include "pattern/recipe_picture.h"

#include <QPainter>

void RecipePictureView::showRecipe(orba::ModuleObject *stack)
{
    stack_ = stack;
    picture_ = QImage();
    update();
}

void RecipePictureView::paintEvent(QPaintEvent *)
{
    if (!stack_)
        return;
    if (picture_.size() != size())
        picture_ = palx::recipePicture(stack_->node(), size());
    QPainter painter(this);
    painter.drawImage(0, 0, picture_);
}
