#pragma once

#include "orba/export.h"

#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

/// The two parts of the home page, production and recipes, and the row of buttons that chooses between them.
class HomeParts : public QWidget
{
    Q_OBJECT

public:
    explicit HomeParts(QWidget *parent = nullptr);

    /// Where the recipes go.
    QWidget *recipes() const { return recipes_; }
    /// Owns the page of the production from now on.
    void setRun(QWidget *run);
    /// A button at the end of the row, for both parts.
    void addButton(QPushButton *button);
    /// Shows the production, unless the operator has chosen a part. It stays also when the line is gone for a while.
    void proposeRun();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addPart(const QString &name, int part);
    void nameParts();

    QHBoxLayout *row_;
    QPushButton *btnRun_;
    QPushButton *btnRecipes_;
    QStackedWidget *parts_;
    QWidget *recipes_;
    bool isChosen_ = false;
};
