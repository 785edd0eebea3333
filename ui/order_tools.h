#pragma once

#include "orba/export.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class PatternView;
namespace Ui {
class OrderTools;
}

/// Buttons for the order in which the products of a `PatternView` are placed and the sides they come from, and a
/// walk through the placing, product by product.
class PALX_API OrderTools : public QWidget
{
    Q_OBJECT

public:
    explicit OrderTools(QWidget *parent = nullptr);
    ~OrderTools() override;

    /// Once; the view must outlive the buttons' use.
    void attach(PatternView *view);

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void fillCorners();
    void connectOrders();
    void tapping(bool on);
    void movePlace(int by);
    void step(int by);
    void updateButtons();
    void showStep();
    int only() const;

    std::unique_ptr<Ui::OrderTools> ui_;
    QPointer<PatternView> view_;
};
