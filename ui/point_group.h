#pragma once

#include "orba/module_object.h"

#include <QFrame>
#include <QPointer>

#include <memory>

namespace Ui {
class PointGroup;
}

/// A point record in millimetres and degrees, with the state it is in: not taught, all zero, taught, or
/// computed by generation and therefore only shown. Values are written when editing of a field is finished; a
/// point can be taught where the robot stands, made by hand, cleared, and be the target of a move.
class PALX_API PointGroup : public QFrame
{
    Q_OBJECT

public:
    explicit PointGroup(QWidget *parent = nullptr);
    ~PointGroup() override;

    /// The point is the child `key` of `holder`; null shows nothing.
    void setPoint(orba::ModuleObject *holder, const QString &key);
    void setTitle(const QString &title);
    /// Whether generation computes the point, so that edits would be lost.
    void setComputed(bool computed);
    /// Shows the record as it is now.
    void reload();

Q_SIGNALS:
    void edited();
    /// Why the robot's place could not be taken over.
    void refused(const QString &reason);

protected:
    void changeEvent(QEvent *event) override;

private:
    orba::ModuleObject *point() const;
    void showState();
    void teachPoint();
    void makePoint();
    void clearPoint();
    void write();
    QList<double> shownNumbers() const;

    std::unique_ptr<Ui::PointGroup> ui_;
    QPointer<orba::ModuleObject> holder_;
    QString key_;
    QString title_;
    QList<double> shown_; ///< only other numbers are an edit; showing rounds
    bool computed_ = false;
};
