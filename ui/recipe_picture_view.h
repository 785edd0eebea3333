#pragma once

#include "orba/module_object.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

/// The picture of a recipe in the size of the widget; drawn when it is painted and the recipe or the size is
/// another one.
class PALX_API RecipePictureView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Null shows nothing. Also draws anew after an edit of the same recipe.
    void showRecipe(orba::ModuleObject *stack);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<orba::ModuleObject> stack_;
    QImage picture_;
};
