#pragma once

#include "controller/controller.h"
#include "link/carrier.h"

#include <atomic>
#include <memory>

namespace controller {

/// A way to a controller in a thread of this process: frames go through its mailbox. The controller ends with the last
/// carrier that holds it.
class InProcessCarrier : public host::Carrier, private PeerSink
{
public:
    explicit InProcessCarrier(std::shared_ptr<Controller> controller);
    ~InProcessCarrier() override;

    void open(host::CarrierSink *sink) override;
    void close() override;
    bool send(const std::string &frame) override;

private:
    void opened() override;
    void frameOut(std::string frame) override;
    bool closed() override;

    std::shared_ptr<Controller> controller_;
    host::CarrierSink *sink_ = nullptr;
    Peer peer_ = -1;
    std::atomic<bool> isOpen_{false};
};

} // namespace controller
