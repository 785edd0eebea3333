#pragma once

#include "orba/export.h"

#include <cstdint>
#include <string>

/// How frames travel between the panel and the controller. No Qt here: frames cross threads.
namespace host {

/// What the link knows of the other side. Shown to the operator as it stands.
enum class LinkState : std::uint8_t {
    Closed,     ///< nobody asked for a connection
    Connecting, ///< looking for the controller, again and again
    Greeting,   ///< connected, protocol versions not compared yet
    Connected,  ///< requests are answered
    Refused,    ///< the other side speaks another version, or serves another panel
};

/// Receives what a carrier brings. Called on the carrier's thread; must return quickly and not call back.
class PALX_API CarrierSink
{
public:
    virtual ~CarrierSink();
    /// One whole frame, header included, as the carrier found it.
    virtual void frameArrived(std::string frame) = 0;
    /// The way to the controller opened or broke; `reason` is for the operator. The first attempt that fails
    /// after `open` is told as broken too, so that nobody waits for a controller that is not there; later
    /// ones only when the reason became another.
    virtual void wayChanged(bool open, const std::string &reason) = 0;
};

/// A way for frames. Implementations: in process, and TCP on loopback.
class PALX_API Carrier
{
public:
    virtual ~Carrier();
    /// Starts looking for the other side and keeps at it until `close`. `sink` must outlive the carrier's
    /// open time. A closed carrier may be opened again. Owner's thread.
    virtual void open(CarrierSink *sink) = 0;
    /// No call to the sink comes after it returned. Owner's thread.
    virtual void close() = 0;
    /// Hands a frame over without waiting; false when there is no way now. Any thread, but never beside
    /// `close`. Frames of one thread keep their order.
    virtual bool send(const std::string &frame) = 0;
};

} // namespace host
