#pragma once

#include "orba/export.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class PatternView;
class QAbstractButton;
namespace Ui {
class EditTools;
}

/// Buttons that edit the chosen products and the whole pattern of a `PatternView`.
class PALX_API EditTools : public QWidget
{
    Q_OBJECT

public:
    explicit EditTools(QWidget *parent = nullptr);
    ~EditTools() override;

    /// Once; the view must outlive the buttons' use.
    void attach(PatternView *view);

Q_SIGNALS:
    /// A new product of the recipe's size is wanted.
    void addWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showIcons();
    void showCaptions();
    void connectSwitches();
    void connectMoves();
    void connectTurns();
    void connectAlignments();
    void connectClipboard();
    void showStep();
    void updateButtons();
    double stepMm() const;

    std::unique_ptr<Ui::EditTools> ui_;
    QPointer<PatternView> view_;
};
