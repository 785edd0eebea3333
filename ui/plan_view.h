#pragma once

#include "orba/export.h"

#include <QGraphicsView>

class PatternScene;

/// Shows the whole plan of a scene, as large as it fits, whatever the view's size. One product may be marked by a heavy
/// outline; touching a product tells which.
class PALX_API PlanView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit PlanView(QWidget *parent = nullptr);

    /// The scene is not owned.
    void showPlan(PatternScene *scene);
    /// The place of a product in the placing order, from 0; -1 marks none.
    void markItem(int item);
    /// A plan takes what room there is and asks for none.
    QSize sizeHint() const override { return minimumSize(); }

Q_SIGNALS:
    void itemTouched(int item);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void fit();

    PatternScene *plan_ = nullptr;
    int marked_ = -1;
};
