#include "ui/movetodialog.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui/node_binder.h"
#include "ui/point_table_model.h"
#include "ui_movetodialog.h"
#include "workstation/jog_labels.h"
#include "workstation/point_editor.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

using ix::xtheme::State;
using orba::ModuleObject;
using palx::HeldMove;

namespace {

constexpr double kMmPerM = 1000.0;
constexpr double kDegPerRad = 57.29577951308232;
constexpr int kAxes = 3; // of a place, and of a turn
constexpr int kProgressSteps = 1000;
constexpr const char *kLists[] = {"pose.trans", "pose.rot", "joints"};

/// Without the sign of a zero that it was rounded to.
QString shown(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    const bool isZero = text.toDouble() == 0;
    return isZero && text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
}

QString shownAngle(double radians)
{
    return shown(radians * kDegPerRad, 2);
}

/// Half a turn looks alike whichever way it goes.
QString shownTurn(double radians)
{
    const QString text = shownAngle(radians);
    return text.toDouble() == -180 ? text.mid(1) : text;
}

/// Stands for a number that is not known.
QString unknown()
{
    return QStringLiteral("\u2013");
}

/// X, Y, Z in millimetres, A, B, C in degrees.
QStringList shownPose(const orba::Node *pose)
{
    const orba::Node *trans = pose ? pose->child(u"trans") : nullptr;
    const orba::Node *rot = pose ? pose->child(u"rot") : nullptr;
    QStringList texts;
    for (int i = 0; i < kAxes; ++i)
        texts << (trans ? shown(trans->number(i) * kMmPerM, 1) : unknown());
    for (int i = 0; i < kAxes; ++i)
        texts << (rot ? shownTurn(rot->number(i)) : unknown());
    return texts;
}

State lookOf(const HeldMove &move)
{
    switch (move.state()) {
    case HeldMove::State::NoLink:
    case HeldMove::State::Refused:
        return State::Fault;
    case HeldMove::State::Untaught:
        return State::Attention;
    case HeldMove::State::Ready:
        return State::None;
    case HeldMove::State::Starting:
    case HeldMove::State::Moving:
        return State::Manual;
    case HeldMove::State::Stopping:
        return State::Stopped;
    case HeldMove::State::Stopped:
        return move.reason().isEmpty() ? State::Stopped : State::Fault;
    case HeldMove::State::Arrived:
        return State::Running;
    }
    return State::None;
}

} // namespace

MoveToDialog::MoveToDialog(const ModuleObject *motion, ModuleObject *point, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::MoveToDialog>()), point_(point), binder_(new NodeBinder(this))
{
    motion_.copyFrom(motion);
    ui_->setupUi(this);
    ui_->prgMove->setRange(0, kProgressSteps);
    ui_->btnLinear->setChecked(motion_.getString("type") != QLatin1String("j"));
    ui_->btnJoint->setChecked(motion_.getString("type") == QLatin1String("j"));
    pose_ = makeRows(ui_->grdPose, QStringLiteral("Pose"), palx::cartesianLabels().size());
    joints_ = makeRows(ui_->grdJoints, QStringLiteral("Joint"), palx::jointLabels().size());
    ui_->spnSpeed->setLocale(QLocale::c());
    binder_->bind(ui_->spnSpeed, QStringLiteral("motion.speed"));
    binder_->setRoot(&motion_);
    new KeypadOpener(this);
    setFieldMargins(this);
    palx::bindDialogToNode(this, point_);
    move_ = std::make_unique<HeldMove>(&motion_, point_);
    connectMove();
    followRobot();
    setTexts();
    showAll();
    ui_->btnClose->setFocus(); // nothing moves by a key that was meant for something else
}

/// The button is let go while there is a move to stop; being hidden later would come too late for that.
MoveToDialog::~MoveToDialog()
{
    ui_->btnHold->letGo();
}

QVector<MoveToDialog::Row> MoveToDialog::makeRows(QGridLayout *grid, const QString &name, int count)
{
    QVector<Row> rows;
    for (int i = 0; i < count; ++i) {
        Row row{new QLabel, new QLabel, new QLabel};
        row.target->setObjectName(QStringLiteral("lbl%1Target%2").arg(name).arg(i));
        row.present->setObjectName(QStringLiteral("lbl%1Present%2").arg(name).arg(i));
        row.target->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        row.present->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(row.axis, i + 1, 0);
        grid->addWidget(row.target, i + 1, 1);
        grid->addWidget(row.present, i + 1, 2);
        rows.append(row);
    }
    return rows;
}

void MoveToDialog::connectMove()
{
    connect(ui_->btnHold, &HoldButton::holdBegan, this, [this] {
        move_->press();
        if (!move_->isHeld()) // there was nothing to hold
            ui_->btnHold->letGo();
    });
    connect(ui_->btnHold, &HoldButton::holdEnded, this, [this] { move_->release(); });
    connect(ui_->btnLinear, &QPushButton::clicked, this,
            [this] { motion_.set(this, "type", QStringLiteral("l")); });
    connect(ui_->btnJoint, &QPushButton::clicked, this,
            [this] { motion_.set(this, "type", QStringLiteral("j")); });
    connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(move_.get(), &HeldMove::changed, this, &MoveToDialog::showAll);
}

void MoveToDialog::followRobot()
{
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &MoveToDialog::showAll);
    const auto follow = [this](const ModuleObject *node) {
        connect(node, &ModuleObject::changed, &refresh_, [this] { refresh_.start(); });
    };
    ModuleObject *robot = m("nexo.robot");
    follow(robot->c("progress"));
    for (const char *list : kLists)
        for (const ModuleObject *number : robot->r(list)->cmobjs())
            follow(number);
    follow(m("nexo.r.link"));
}

// ---------------------------------------------------------------- what is shown

void MoveToDialog::setTexts()
{
    const QString title = point_ ? PointTableModel::pointTitle(point_->name()) : QString();
    const bool isKnown = point_ && title != point_->name(); // others have no name for the operator
    setWindowTitle(isKnown ? tr("Move to the point: %1").arg(title) : tr("Move to the point"));
    ui_->lblTitle->setText(windowTitle());
    const auto setAxes = [](const QVector<Row> &rows, const QStringList &axes) {
        for (int i = 0; i < rows.size(); ++i) {
            rows[i].axis->setText(axes[i]);
            rows[i].target->setAccessibleName(tr("Target %1").arg(axes[i]));
            rows[i].present->setAccessibleName(tr("Present %1").arg(axes[i]));
        }
    };
    setAxes(pose_, palx::cartesianLabels());
    setAxes(joints_, palx::jointLabels());
}

void MoveToDialog::showAll()
{
    showPoses();
    showJoints();
    showMove();
}

/// Both in the frame of the point, so that they can be compared with what the recipe shows. Without a link nobody knows where
/// the robot is now.
void MoveToDialog::showPoses()
{
    const palx::PointFrame frame = move_->frame();
    const bool isKnown = move_->state() != HeldMove::State::NoLink && frame.problem.isEmpty();
    orba::Node robot = m("nexo.robot.pose")->node();
    if (!frame.isPlain())
        ix::calc::writePose(frame.point(ix::calc::toPose(robot)), robot);
    const QStringList target = shownPose(point_ ? &point_->node() : nullptr);
    const QStringList present = shownPose(isKnown ? &robot : nullptr);
    ui_->lblPose->setText(frameText(frame));
    for (int i = 0; i < pose_.size(); ++i) {
        pose_[i].target->setText(target[i]);
        pose_[i].present->setText(present[i]);
    }
}

void MoveToDialog::showJoints()
{
    const bool isKnown = move_->state() != HeldMove::State::NoLink;
    const orba::Node &present = m("nexo.robot.joints")->node();
    const orba::Node &target = move_->targetJoints();
    for (int i = 0; i < joints_.size(); ++i) {
        const Row &row = joints_[i];
        row.present->setText(isKnown ? shownAngle(present.number(i)) : unknown());
        row.target->setText(i < target.size() ? shownAngle(target.number(i)) : unknown());
        for (QLabel *label : {row.axis, row.target, row.present})
            label->setVisible(i < present.size()); // this robot may have six
    }
}

void MoveToDialog::showMove()
{
    const HeldMove::State state = move_->state();
    const bool isFree = !move_->isUnderWay();
    ui_->lblStatus->setText(statusText());
    ix::xtheme::setState(ui_->lblStatus, lookOf(*move_));
    ui_->prgMove->setValue(qRound(move_->progress() * kProgressSteps));
    ui_->btnLinear->setEnabled(isFree);
    ui_->btnJoint->setEnabled(isFree);
    ui_->spnSpeed->setEnabled(isFree);
    ui_->btnHold->setEnabled(state != HeldMove::State::NoLink && state != HeldMove::State::Untaught);
    if (!move_->isHeld())
        ui_->btnHold->letGo();
}

QString MoveToDialog::frameText(const palx::PointFrame &frame)
{
    if (frame.isOnPallet)
        return frame.isOfTool ? tr("Tool in the pallet's frame") : tr("Flange in the pallet's frame");
    return frame.isOfTool ? tr("Tool in the robot's base") : tr("Flange in the robot's base");
}

QString MoveToDialog::statusText() const
{
    switch (move_->state()) {
    case HeldMove::State::NoLink:
        return tr("No controller. %1").arg(m("nexo.r.link")->getString());
    case HeldMove::State::Untaught:
        return move_->reason().isEmpty() ? tr("Nobody has taught this point.") : move_->reason();
    case HeldMove::State::Ready:
        return move_->seconds() > 0
                   ? tr("Hold the button to move. The way takes %1 s.").arg(move_->seconds(), 0, 'f', 1)
                   : tr("Hold the button to move.");
    case HeldMove::State::Refused:
        return tr("The controller refuses the move: %1.").arg(move_->reason());
    case HeldMove::State::Starting:
        return tr("Waiting for the controller.");
    case HeldMove::State::Moving:
        return tr("The robot moves. Let go to stop it.");
    case HeldMove::State::Stopping:
        return tr("The robot is stopping.");
    case HeldMove::State::Stopped:
        return move_->reason().isEmpty() ? tr("Stopped before the point.") : move_->reason();
    case HeldMove::State::Arrived:
        return tr("Arrived.");
    }
    return QString();
}

// ---------------------------------------------------------------- events

void MoveToDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTexts();
        showAll();
    }
    QDialog::changeEvent(event);
}

void MoveToDialog::hideEvent(QHideEvent *event)
{
    ui_->btnHold->letGo();
    move_->release();
    QDialog::hideEvent(event);
}
