#include "controller/in_process_carrier.h"

#include "controller/texts.h"

namespace controller {

InProcessCarrier::InProcessCarrier(std::shared_ptr<Controller> controller)
    : controller_(std::move(controller))
{
}

InProcessCarrier::~InProcessCarrier()
{
    close();
}

void InProcessCarrier::open(host::CarrierSink *sink)
{
    close();
    sink_ = sink;
    peer_ = controller_->connect(this);
}

void InProcessCarrier::close()
{
    if (!sink_)
        return;
    controller_->disconnect(peer_);
    isOpen_ = false;
    sink_ = nullptr;
}

bool InProcessCarrier::send(const std::string &frame)
{
    if (!isOpen_)
        return false;
    controller_->send(peer_, frame);
    return true;
}

void InProcessCarrier::opened()
{
    isOpen_ = true;
    sink_->wayChanged(true, std::string());
}

void InProcessCarrier::frameOut(std::string frame)
{
    sink_->frameArrived(std::move(frame));
}

bool InProcessCarrier::closed()
{
    isOpen_ = false;
    sink_->wayChanged(false, Texts::tr("the controller ended the connection").toStdString());
    return true;
}

} // namespace controller
