#include "workstation/progress.h"

namespace palx {

Progress::~Progress() = default;

} // namespace palx
