#pragma once

#include "link/carrier.h"

#include <memory>
#include <mutex>

namespace host {

/// A carrier that threads share: none sends while another closes. No Qt.
class Way
{
public:
    explicit Way(std::unique_ptr<Carrier> carrier) : carrier_(std::move(carrier)) {}

    void open(CarrierSink *sink)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        isOpen_ = true;
        carrier_->open(sink);
    }

    void close()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (isOpen_)
            carrier_->close();
        isOpen_ = false;
    }

    /// False when there is no way now.
    bool send(const std::string &frame)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return isOpen_ && carrier_->send(frame);
    }

private:
    std::mutex mutex_;
    std::unique_ptr<Carrier> carrier_;
    bool isOpen_ = false;
};

} // namespace host
