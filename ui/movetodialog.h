#pragma once

#include "orba/module_object.h"
#include "workstation/held_move.h"

#include <QDialog>
#include <QTimer>
#include <QVector>

#include <memory>

class NodeBinder;
class QGridLayout;
class QLabel;
namespace Ui {
class MoveToDialog;
}

/// Drives the robot to a point while the operator holds a button: target and present position side by side (mm, degrees),
/// straight or joint by joint, the speed, how far it is and how it ended. Closes with its point.
class PALX_API MoveToDialog : public QDialog
{
    Q_OBJECT

public:
    /// Takes over what `motion` holds: "type", "motion.toolset", "motion.speed" [mm/s]. `point` is a point record and is
    /// followed.
    MoveToDialog(const orba::ModuleObject *motion, orba::ModuleObject *point, QWidget *parent = nullptr);
    ~MoveToDialog() override;

    palx::HeldMove *move() { return move_.get(); }

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// One axis: what it is called, where it shall be and where it is.
    struct Row
    {
        QLabel *axis;
        QLabel *target;
        QLabel *present;
    };
    static QVector<Row> makeRows(QGridLayout *grid, const QString &name, int count);
    void connectMove();
    void followRobot();
    void setTexts();
    void showAll();
    void showPoses();
    void showJoints();
    void showMove();
    static QString frameText(const palx::PointFrame &frame);
    QString statusText() const;

    std::unique_ptr<Ui::MoveToDialog> ui_;
    orba::ModuleObject motion_;
    QPointer<orba::ModuleObject> point_;
    std::unique_ptr<palx::HeldMove> move_;
    NodeBinder *binder_;
    QVector<Row> pose_;
    QVector<Row> joints_;
    QTimer refresh_; ///< many numbers change at once and are shown once
};
