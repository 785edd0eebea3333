#include "stack/keys.h"

namespace palx::key {

using orba::Name;

const Name trans(u"trans"), rot(u"rot");
const Name enterP(u"enter_p"), readyP(u"ready_p"), approachP(u"approach_p"), putP(u"put_p"), getP(u"get_p"),
    retractP(u"retract_p"), exitP(u"exit_p");
const Name x(u"x"), y(u"y"), r(u"r"), direction(u"direction"), dx(u"dx"), dy(u"dy"), dz(u"dz");
const Name pattern(u"pattern"), hOffset(u"h_offset");

} // namespace palx::key
