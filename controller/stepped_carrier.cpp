#include "controller/stepped_carrier.h"

namespace controller {

SteppedCarrier::~SteppedCarrier()
{
    close();
}

void SteppedCarrier::open(host::CarrierSink *sink)
{
    close();
    sink_ = sink;
    if (!isCut_)
        come();
}

void SteppedCarrier::close()
{
    go();
    sink_ = nullptr;
}

void SteppedCarrier::come()
{
    isOpen_ = true;
    core_.peerCame(kPanel);
    sink_->wayChanged(true, std::string());
}

void SteppedCarrier::go()
{
    if (std::exchange(isOpen_, false))
        core_.peerGone(kPanel);
}

bool SteppedCarrier::send(const std::string &frame)
{
    if (!isOpen_)
        return false;
    if (!loses_)
        core_.receive(kPanel, frame);
    deliver();
    return true;
}

void SteppedCarrier::deliver()
{
    for (Outgoing &out : core_.takeOutgoing()) {
        if (!isOpen_)
            return;
        if (!out.close) {
            sink_->frameArrived(std::move(out.frame));
            continue;
        }
        isOpen_ = false; // the controller took it for silent, and has forgotten it
        sink_->wayChanged(false, "the controller ended the connection");
        come();
    }
}

void SteppedCarrier::pass(double seconds)
{
    constexpr double kStep = 0.005;
    for (double left = seconds; left > kStep / 2; left -= kStep) {
        core_.advance(kStep);
        deliver();
    }
}

void SteppedCarrier::cut(const std::string &reason)
{
    isCut_ = true;
    go();
    if (sink_)
        sink_->wayChanged(false, reason);
}

void SteppedCarrier::restore()
{
    isCut_ = false;
    if (sink_ && !isOpen_)
        come();
}

} // namespace controller
