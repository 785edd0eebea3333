#include "ui/point_group.h"

#include "ix/xtheme.h"
#include "stack/recipe_points.h"
#include "ui/move_to_point.h"
#include "ui_point_group.h"
#include "workstation/plugin_node.h"
#include "workstation/point_editor.h"

#include <QEvent>

PointGroup::PointGroup(QWidget *parent) : QFrame(parent), ui_(std::make_unique<Ui::PointGroup>())
{
    ui_->setupUi(this);
    for (const QString &name : palx::trans_list + palx::rot_list) {
        QDoubleSpinBox *field = palx::findDouleSpin(name, this);
        field->setLocale(QLocale::c());
        connect(field, &QDoubleSpinBox::editingFinished, this, &PointGroup::write);
    }
    connect(ui_->btnTeach, &QPushButton::clicked, this, &PointGroup::teachPoint);
    connect(ui_->btnMove, &QPushButton::clicked, this, [this] { palx::moveToPoint(point(), this); });
    connect(ui_->btnMake, &QPushButton::clicked, this, &PointGroup::makePoint);
    connect(ui_->btnClear, &QPushButton::clicked, this, &PointGroup::clearPoint);
    reload();
}

PointGroup::~PointGroup() = default;

void PointGroup::setPoint(orba::ModuleObject *holder, const QString &key)
{
    holder_ = holder && !holder->isEmptyMobj() ? holder : nullptr;
    key_ = key;
    reload();
}

void PointGroup::setTitle(const QString &title)
{
    title_ = title;
    ui_->lblTitle->setText(title_);
    for (const QString &name : palx::trans_list + palx::rot_list) {
        QDoubleSpinBox *field = palx::findDouleSpin(name, this);
        field->setAccessibleName(title_ + QLatin1Char(' ') + name.right(1)); // the keypad's title, too
    }
}

void PointGroup::setComputed(bool computed)
{
    computed_ = computed;
    showState();
}

orba::ModuleObject *PointGroup::point() const
{
    orba::ModuleObject *point = holder_ ? holder_->c(key_) : nullptr;
    return point && !point->isNull() ? point : nullptr;
}

QList<double> PointGroup::shownNumbers() const
{
    QList<double> numbers;
    for (const QString &name : palx::trans_list + palx::rot_list)
        numbers << palx::findDouleSpin(name, const_cast<PointGroup *>(this))->value();
    return numbers;
}

void PointGroup::reload()
{
    for (const QString &name : palx::trans_list + palx::rot_list)
        palx::findDouleSpin(name, this)->setValue(0);
    palx::pointToGroupSpin(point(), this, true);
    shown_ = shownNumbers();
    showState();
}

void PointGroup::showState()
{
    const bool there = point() != nullptr;
    const bool taught = there && palx::isTaught(&point()->node());
    for (const QString &name : palx::trans_list + palx::rot_list)
        palx::findDouleSpin(name, this)->setEnabled(there && !computed_);
    ui_->btnTeach->setEnabled(holder_ && !computed_);
    ui_->btnMove->setEnabled(taught);
    ui_->btnMake->setVisible(!there && !computed_);
    ui_->btnMake->setEnabled(holder_ != nullptr);
    ui_->btnClear->setVisible(there && !computed_);
    const QString lack = there ? tr("All zero") : tr("Not taught");
    ui_->lblState->setText(computed_ ? tr("Computed") : taught ? tr("Taught") : lack);
    ix::xtheme::setState(ui_->lblState,
                         computed_ || taught ? ix::xtheme::State::None : ix::xtheme::State::Attention);
}

void PointGroup::teachPoint()
{
    orba::Node record;
    if (!holder_)
        return;
    if (!m("nexo.r")->getBool("connected"))
        return Q_EMIT refused(tr("The controller is not connected: where the robot stands is not known."));
    if (m("nexo.robot")->getBool("moving"))
        return Q_EMIT refused(tr("The robot is moving. Teach the point when it stands."));
    const palx::PointFrame frame = palx::pointFrame(holder_->node(), key_);
    if (!frame.problem.isEmpty())
        return Q_EMIT refused(frame.problem);
    if (!palx::teachPoint(record, m("nexo.robot")->node(), frame))
        return Q_EMIT refused(tr("The controller does not tell where the robot stands."));
    holder_->ensure(key_)->copyFrom(record);
    reload();
    Q_EMIT edited();
}

void PointGroup::makePoint()
{
    if (!holder_ || point())
        return;
    orba::Node record;
    palx::makePointRecord(record);
    holder_->ensure(key_)->copyFrom(record);
    reload();
    Q_EMIT edited();
}

void PointGroup::clearPoint()
{
    if (!point())
        return;
    point()->copyFrom(orba::Node());
    reload();
    Q_EMIT edited();
}

void PointGroup::write()
{
    if (!point() || shownNumbers() == shown_)
        return;
    palx::groupSpinToPoint(point(), this);
    reload();
    Q_EMIT edited();
}

void PointGroup::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTitle(title_);
        showState();
    }
    QFrame::changeEvent(event);
}
