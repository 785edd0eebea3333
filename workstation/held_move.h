#pragma once

#include "orba/module_object.h"
#include "stack/point_frame.h"

#include <QPointer>
#include <QTimer>

struct XReply;

namespace palx {

/// Drives the robot to a point for as long as the operator holds a button. Asks the controller beforehand whether the
/// move can be made ("motion.check"), starts it, gives the controller a sign while the button is held, stops it at once
/// when it is released or the link is lost, and follows "nexo.robot". Nothing here waits for the controller. GUI thread.
class PALX_API HeldMove : public QObject
{
    Q_OBJECT

public:
    /// Between two signs; the controller brakes without one for 300 ms.
    static constexpr int kSignMs = 100;

    enum class State {
        NoLink,   ///< there is no controller now
        Untaught, ///< there is no point to go to, or its frame is not known: `reason`
        Ready,    ///< waits for the button
        Refused,  ///< the controller would not make this move: `reason`
        Starting, ///< asked for and not answered yet
        Moving,   ///< the button is held
        Stopping, ///< released; the robot brakes
        Stopped,  ///< before the point; `reason` is empty when the operator wanted it
        Arrived,
    };

    /// `motion` holds "type" ("l" straight, "j" by joints), "motion.toolset" and "motion.speed" [mm/s]; `point` is a point
    /// record, in the frame of its place in the tree. Both may change or end at any time, and so may the recipe's calibration and
    /// tool: a move under way then stops.
    HeldMove(orba::ModuleObject *motion, orba::ModuleObject *point, QObject *parent = nullptr);
    /// Stops.
    ~HeldMove() override;

    void press();
    void release();
    bool isHeld() const { return held_; }
    /// From the start until the robot stands.
    bool isUnderWay() const;

    /// In which the point's numbers hold.
    PointFrame frame() const;

    State state() const { return state_; }
    QString reason() const { return reason_; }
    /// At the target [rad], as the controller reckons them; null while they are not known.
    const orba::Node &targetJoints() const { return joints_; }
    /// That the move takes; 0 while it is not known.
    double seconds() const { return seconds_; }
    /// Share of the way of this move, 0 to 1.
    double progress() const;

    /// Compares motion and point with what was checked; called whenever the event loop rests, because pages write nodes as
    /// they like.
    void look();
    /// The sign that is due; called by a timer.
    void giveSign();

Q_SIGNALS:
    /// State, reason, joints or seconds.
    void changed();

private:
    void enter(State state, const QString &reason = QString());
    void letGo();
    void breakOff();
    void takeLink(bool connected);
    void takeStart(int press, const XReply &reply);
    void takeCheck(int check, const XReply &reply);
    void check();
    void follow();
    void end(const orba::Node &robot);
    orba::Node wish() const;
    bool canMove() const;

    QPointer<orba::ModuleObject> motion_;
    QPointer<orba::ModuleObject> point_;
    orba::Node wish_; ///< as looked at last
    QTimer signs_;
    State state_ = State::NoLink;
    QString reason_;
    orba::Node joints_;
    double seconds_ = 0;
    bool held_ = false;
    bool wasMoving_ = false; ///< the robot, whoever moves it
    int presses_ = 0;        ///< tells the answers to one press from those to another
    int checks_ = 0;
    qint64 move_ = 0; ///< the controller's number of this move; 0: not known yet
};

} // namespace palx
