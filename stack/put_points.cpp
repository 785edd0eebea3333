#include "stack/put_points.h"

#include "stack/keys.h"
#include "stack/put_pass.h"
#include "workstation/plugin_node.h"

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Name;
using orba::Node;

constexpr double kLastLayerClearance = 0.02; // [m] replaces the operator's heights on the last layer
constexpr double kEnterClearance = 0.08;     // [m] beside the product, on top of the operator's "enter_x"

void setTrans(Node &point, double x, double y, double z)
{
    Node *trans = point.child(key::trans);
    trans->setNumber(0, x);
    trans->setNumber(1, y);
    trans->setNumber(2, z);
}

/// Height of the put point and turn about z.
struct Placed {
    double z;
    double rz;
};

Placed placedOf(const PlaceFrame &frame, const PutRequest &request)
{
    const double baseZ = transOf(frame.putBase, 2);
    const double rz = rotOf(frame.putBase, 2) + request.pose.rz;
    if (!frame.onePoint)
        return {baseZ + request.z, rz};
    return {baseZ + frame.palletHeight / 1000 + frame.productHeight / 1000 + request.z, rz};
}

double enterX(const PlaceFrame &frame, double originX)
{
    const double enter = frame.offsets.enterX;
    if (frame.side.bothTowards(0))
        return originX + frame.enterSpan / 2 / 1000 + enter / 1000 + kEnterClearance;
    return originX - frame.enterSpan / 2 / 1000 - kEnterClearance - enter / 1000;
}

/// The enter point stands beside the pallet only for products that reach out over its edge; else y stays as copied.
double enterY(const PlaceFrame &frame, double originY, double productY)
{
    const double halfWidth = frame.palletWidth / 2 / 1000;
    const double sign = frame.side.bothTowards(0) ? 1 : -1;
    const double outset = sign * (frame.offsets.enterY / 1000);
    const bool lowEdge = frame.side.bothTowards(0) == (frame.side.position == 1);
    if (lowEdge)
        return productY < originY - halfWidth ? originY - halfWidth + outset : originY;
    return productY > originY + halfWidth ? originY + halfWidth + outset : originY;
}

double enterZ(const PlaceFrame &frame, double putZ)
{
    const double needed = frame.offsets.enterH / 1000 + frame.productHeight / 1000 + putZ;
    return needed <= frame.getApproachZ ? frame.getApproachZ : needed;
}

void correctEnterPoint(const PlaceFrame &frame, Node &enter, const PutRequest &request, const Placed &placed)
{
    if (!frame.side.isSide() || frame.side.isMixed())
        return;
    setTrans(enter, enterX(frame, transOf(frame.enterBase, 0)),
             enterY(frame, transOf(frame.enterBase, 1), request.pose.y), enterZ(frame, placed.z));
    enter.child(key::rot)->setNumber(2, placed.rz);
}

/// The side's heights come into force for this product and those after it.
void takeSideHeights(PlaceFrame &frame, bool secondToLastLayer)
{
    if (!frame.side.isSide())
        return;
    frame.heights = frame.offsets.heights;
    if (!secondToLastLayer)
        frame.heights.ready = frame.productHeight + frame.offsets.heights.ready;
    frame.heightsWritten = true;
}

/// A product node with its six records, empty of meaning; copying it is quicker than building one.
const Node &productPrototype()
{
    static const Node kProduct = [] {
        Node product;
        for (const Name name :
             {key::enterP, key::readyP, key::approachP, key::putP, key::retractP, key::exitP})
            ensurePointRecord(product, name);
        return product;
    }();
    return kProduct;
}

void ensureRecords(Node &product)
{
    if (product.isNull()) {
        product.assign(productPrototype());
        return;
    }
    for (int i = 0; i < productPrototype().size(); ++i)
        ensurePointRecord(product, productPrototype().at(i)->name());
}

} // namespace

void fillPutPoints(PlaceFrame &frame, Node &product, const PutRequest &request)
{
    ensureRecords(product);
    const Placed placed = placedOf(frame, request);
    Node &enter = *product.child(key::enterP);
    copyPointData(enter, frame.enterBase);
    if (frame.onePoint) {
        correctEnterPoint(frame, enter, request, placed);
        takeSideHeights(frame, request.secondToLastLayer);
    } else {
        enter.child(key::trans)->setNumber(2, transOf(frame.enterBase, 2) + request.z);
    }

    Node &put = *product.child(key::putP);
    copyPointData(put, frame.putBase);
    setTrans(put, request.pose.x, request.pose.y, placed.z);
    put.child(key::rot)->setNumber(2, placed.rz);

    const auto above = [&](double heightMm) {
        return placed.z + (request.lastLayer ? kLastLayerClearance : heightMm / 1000);
    };
    const double readyZ = request.lastLayer ? placed.z + kLastLayerClearance
                                            : placed.z + frame.heights.ready / 1000 + request.dz;
    const struct {
        Name name;
        double x, y, z;
    } around[] = {
        {key::readyP, request.pose.x + request.ox, request.pose.y + request.oy, readyZ},
        {key::approachP, request.pose.x, request.pose.y, above(frame.heights.approach)},
        {key::retractP, request.pose.x, request.pose.y, above(frame.heights.retract)},
        {key::exitP, request.pose.x, request.pose.y, above(frame.heights.exit)},
    };
    for (const auto &way : around) {
        Node &point = *product.child(way.name);
        copyPointData(point, put);
        setTrans(point, way.x, way.y, way.z);
    }
}

void storeHeights(const PlaceFrame &frame, Node &put)
{
    if (!frame.heightsWritten)
        return;
    const struct {
        const char16_t *key;
        double value;
    } heights[] = {{u"ready_h", frame.heights.ready},
                   {u"approach_h", frame.heights.approach},
                   {u"retract_h", frame.heights.retract},
                   {u"exit_h", frame.heights.exit}};
    for (const auto &height : heights)
        if (Node *node = put.ensure(height.key))
            node->setDouble(height.value);
}

// ---------------------------------------------------------------- on handles

bool isGlobalWObjCalibrationMethodOne(ModuleObject *stack)
{
    return isOnePointCalibrated(stack->node(), pluginNodeOf(stack->node()));
}

void calCoordiate(ModuleObject *stack, ModuleObject *item, double &x, double &y, double &rz)
{
    const PlaceFrame frame(stack->node(), pluginNodeOf(stack->node()));
    const PlanarPose pose = frame.itemPose(item->node(), {x, y, rz});
    x = pose.x;
    y = pose.y;
    rz = pose.rz;
}

ModuleObject *getOriginPoint(ModuleObject *stack, int mode)
{
    const Node &plugin = pluginNodeOf(stack->node());
    if (mode == 0) {
        const Node *taught = taughtOriginPoint(stack->node(), plugin);
        return taught ? ModuleObject::of(const_cast<Node *>(taught)) : emptyMobj();
    }
    const Node record = makeOriginPoint(stack->node(), plugin, mode);
    auto *owned = new ModuleObject(record.name().toString());
    owned->node().assign(record);
    return owned;
}

void genPutPoints(ModuleObject *put, ModuleObject *product, double x, double y, double z, double rz, double ox,
                  double oy, double dz, bool lastLayer, bool secondToLastLayer)
{
    if (put->isEmptyMobj() || product->isEmptyMobj())
        return;
    static const Node kNoStack;
    const Node &stack = put->node().parent() ? *put->node().parent() : kNoStack;
    PlaceFrame frame(stack, pluginNodeOf(stack));
    fillPutPoints(frame, product->node(), {{x, y, rz}, z, ox, oy, dz, lastLayer, secondToLastLayer});
    storeHeights(frame, put->node());
}

} // namespace palx
