#pragma once

#include "orba/export.h"

#include <QWidget>

#include <memory>

class QFrame;
namespace Ui {
class ProjectParamSetupPage;
}

/// The parameters of a project: five frames with radio buttons, whose value is the place of the checked one, and the
/// recipes of both sides.
class PALX_API ProjectParamSetupPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectParamSetupPage(QWidget *parent = nullptr);
    ~ProjectParamSetupPage() override;

    /// The place of the checked button in a frame, from 0; -1 when none is checked.
    int getCheckedId(const QFrame *frame) const;
    /// Checks the button at that place; a place that the frame has not checks the first.
    void setCheckedId(QFrame *frame, int index);
    /// Checks the first button of every frame and selects the last recipe of both sides.
    void setDefault();
    /// Fills the lists of recipes anew from the stacks; what was selected stays selected by its place.
    void refreshCmb();
    /// Shows the parameters of a project; the defaults for an unknown or empty name.
    void rBtnAndCmbUpdated(const QString &projectName);
    /// Writes the seven parameters into the project's record.
    void dataToOrbaSaved(const QString &projectName) const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showPrograms();

    std::unique_ptr<Ui::ProjectParamSetupPage> ui_;
};
