#include "controller/cell/bodies.h"

namespace controller::cell {

namespace {

const char *sideName(int side)
{
    return side == 0 ? "left" : "right";
}

} // namespace

std::string nameOf(const Body &body)
{
    const std::string pallet = std::string(sideName(body.side)) + " pallet";
    switch (body.kind) {
    case Body::Kind::Box:
        return "box " + std::to_string(body.piece) + " of layer " + std::to_string(body.layer) + " on the " +
               pallet;
    case Body::Kind::WaitingBox:
        return "box on the conveyor";
    case Body::Kind::Pallet:
        return pallet;
    case Body::Kind::Sheet:
        return "sheet of layer " + std::to_string(body.layer) + " on the " + pallet;
    case Body::Kind::Column:
        return "column";
    case Body::Kind::Floor:
        break;
    }
    return "floor";
}

} // namespace controller::cell
