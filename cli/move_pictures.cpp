#include "move_pictures.h"

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "orba/module_manager.h"
#include "ui/move_to_point.h"
#include "ui/movetodialog.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

#include <cmath>

namespace cli {

namespace {

using Take = std::function<void(QWidget *dialog, const QString &name)>;

constexpr double kDown = 3.141592653589793; // the flange looks at the floor

/// The panel's link to a controller that moves when it is told.
class Cell
{
public:
    Cell() : Cell(std::make_unique<controller::SteppedCarrier>()) {}

    bool connect()
    {
        link_.open();
        settle();
        return link_.isConnected();
    }
    void settle()
    {
        do
            QCoreApplication::processEvents();
        while (!link_.isIdle());
    }
    /// Holds the button for so long, or until the robot has arrived.
    void hold(palx::HeldMove *move, double seconds)
    {
        constexpr double kStep = palx::HeldMove::kSignMs / 1000.0;
        for (double t = 0; t < seconds && move->isHeld(); t += kStep) {
            move->giveSign();
            controller_->pass(kStep);
            settle();
        }
    }
    void unplug()
    {
        controller_->cut("the cable is pulled");
        settle();
    }

private:
    explicit Cell(std::unique_ptr<controller::SteppedCarrier> carrier)
        : controller_(carrier.get()), link_(std::move(carrier))
    {
    }

    controller::SteppedCarrier *controller_;
    host::ControllerLink link_;
};

/// The dialog for a point that lives as long as this.
class Trip
{
public:
    Trip(QWidget *window, Cell *cell, double x, double y, double z)
        : cell_(cell), point_(QStringLiteral("put_p"))
    {
        orba::Node record;
        palx::makePointRecord(record);
        const double numbers[] = {x, y, z};
        record.find(u"trans")->setDoubles(numbers, 3);
        record.find(u"rot")->setNumber(0, kDown);
        point_.copyFrom(record);
        palx::moveToPoint(&point_, window);
        dialog_ = window->findChild<MoveToDialog *>();
        cell_->settle();
    }
    ~Trip() { delete dialog_; }
    Trip(const Trip &) = delete;
    Trip &operator=(const Trip &) = delete;

    void hold(double seconds)
    {
        key(QEvent::KeyPress);
        cell_->settle();
        cell_->hold(dialog_->move(), seconds);
    }
    void release() { key(QEvent::KeyRelease); }
    QWidget *dialog() { return dialog_; }

private:
    void key(QEvent::Type type)
    {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(dialog_->findChild<QPushButton *>(QStringLiteral("btnHold")), &space);
    }

    Cell *cell_;
    orba::ModuleObject point_;
    QPointer<MoveToDialog> dialog_;
};

} // namespace

bool showMoves(QWidget *window, const Take &take)
{
    Cell cell;
    if (!cell.connect())
        return false;
    constexpr double kPart = 0.8; // seconds, in the middle of the way
    constexpr double kWhole = 60; // more than any way takes
    Trip trip(window, &cell, 1.2, 0.6, 0.5);
    take(trip.dialog(), QStringLiteral("move-ready"));
    trip.hold(kPart);
    take(trip.dialog(), QStringLiteral("move-moving"));
    trip.hold(kWhole);
    take(trip.dialog(), QStringLiteral("move-arrived"));
    trip.release();
    Trip tooFar(window, &cell, 2.6, 0.6, 0.5);
    take(tooFar.dialog(), QStringLiteral("move-refused"));
    cell.unplug();
    take(tooFar.dialog(), QStringLiteral("move-no-link"));
    return true;
}

} // namespace cli
