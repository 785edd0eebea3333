#include "link/carrier.h"

namespace host {

// Here, so that each class has its table of functions once per process.
CarrierSink::~CarrierSink() = default;
Carrier::~Carrier() = default;

} // namespace host
