#pragma once

#include "controller/core.h"
#include "link/carrier.h"

namespace controller {

/// A way to a controller that has neither thread nor clock: it works off every frame at once, and time passes when it is
/// told to. For pictures and tests, which must come out alike every time. Owner's thread only.
class SteppedCarrier : public host::Carrier
{
public:
    explicit SteppedCarrier(const StationOptions &options = StationOptions()) : core_(options) {}
    ~SteppedCarrier() override;

    void open(host::CarrierSink *sink) override;
    void close() override;
    bool send(const std::string &frame) override;

    /// So much time passes in the controller, in steps of 5 ms.
    void pass(double seconds);
    /// Pulls the plug; the panel is told.
    void cut(const std::string &reason);
    /// Plugs it in again.
    void restore();
    /// From now on frames to the controller are lost without a word.
    void lose(bool loses) { loses_ = loses; }

    Core &core() { return core_; }

private:
    void come();
    void go();
    void deliver();

    static constexpr Peer kPanel = 1;
    Core core_;
    host::CarrierSink *sink_ = nullptr;
    bool isOpen_ = false;
    bool isCut_ = false;
    bool loses_ = false;
};

} // namespace controller
