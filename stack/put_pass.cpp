#include "stack/put_pass.h"

#include "stack/keys.h"

#include <QStringList>

namespace palx {

namespace {

using orba::Name;
using orba::Node;

/// Which way "ready_p" stands off "put_p" per direction, with both "towards" 0; 0 leaves an axis alone.
struct Shift {
    const char16_t *direction;
    int x, y;
};
constexpr Shift kShifts[] = {
    {u"Top", 1, 0},      {u"Bottom", -1, 0},  {u"Left", 0, 1},        {u"Right", 0, -1},
    {u"TopLeft", 1, 1},  {u"TopRight", 1, -1}, {u"BottomLeft", -1, 1}, {u"BottomRight", -1, -1},
};

double shifted(int factor, double offsetMm)
{
    return factor == 0 ? 0 : factor * offsetMm / 1000;
}

void removeEmptyLayers(Node &layers)
{
    for (int i = layers.size() - 1; i >= 0; --i) {
        const Node *layer = layers.at(i);
        if (layer && layer->getString(u"pattern") == QLatin1String("empty"))
            layers.removeAt(i);
    }
}

double childNumber(const Node &node, Name name)
{
    const Node *child = node.child(name);
    return child ? child->toDouble() : 0;
}

QString childText(const Node &node, Name name)
{
    const Node *child = node.child(name);
    return child ? child->toString() : QString();
}

/// One pass over the layers of a stack; heights in millimetres.
class PutPass
{
public:
    PutPass(Node &stack, const Node &plugin, Node &points)
        : frame_(stack, plugin), points_(points), patterns_(stack.child(u"patterns")),
          sheetHeight_(stack.getDouble(u"product_cfg.clapboard.height"))
    {
    }

    void run(const Node &layers)
    {
        const int count = layers.size();
        for (int i = 0; i < count; ++i) {
            const Node *layer = layers.at(i);
            const QString pattern = layer ? childText(*layer, key::pattern) : QString();
            if (pattern.isEmpty())
                return;
            Node &products = *points_.add();
            products.reset(Node::Kind::List);
            below_ += childNumber(*layer, key::hOffset);
            if (pattern == QLatin1String("clapboard"))
                addSheet(products);
            else
                addProducts(products, pattern, i == count - 1, i == count - 2);
        }
    }

    const PlaceFrame &frame() const { return frame_; }

private:
    void addSheet(Node &products)
    {
        PutRequest request;
        request.pose = {frame_.palletLength / 2000, frame_.palletWidth / 2000, 0};
        request.z = below_ / 1000;
        fillPutPoints(frame_, *products.add(), request);
        below_ += sheetHeight_;
    }

    void addProducts(Node &products, const QString &patternName, bool last, bool secondToLast)
    {
        const Node *pattern = patterns_ ? patterns_->child(patternName) : nullptr;
        const int count = pattern ? pattern->size() : 0;
        for (int j = 0; j < count; ++j) {
            if (const Node *item = pattern->at(j))
                fillPutPoints(frame_, *products.add(), requestFor(*item, last, secondToLast));
        }
        below_ += frame_.productHeight;
    }

    PutRequest requestFor(const Node &item, bool last, bool secondToLast) const
    {
        PutRequest request;
        request.pose = frame_.itemPose(item, PlanarPose());
        request.z = below_ / 1000;
        readyShift(childText(item, key::direction), childNumber(item, key::dx), childNumber(item, key::dy),
                   frame_.side, &request.ox, &request.oy);
        request.dz = childNumber(item, key::dz) / 1000;
        request.lastLayer = last;
        request.secondToLastLayer = secondToLast;
        return request;
    }

    PlaceFrame frame_;
    Node &points_;
    const Node *patterns_;
    double sheetHeight_;
    double below_ = 0; ///< height of what lies below the present layer
};

} // namespace

void readyShift(const QString &direction, double dx, double dy, const PalletSide &side, double *ox, double *oy)
{
    for (const Shift &shift : kShifts) {
        if (direction != QStringView(shift.direction))
            continue;
        const int sign = side.bothTowards(0) ? 1 : -1;
        *ox = shifted(sign * shift.x, dx);
        *oy = shifted(sign * shift.y, dy);
        return;
    }
    // "Middle" and names that are not directions are not mirrored.
    *ox = dx / 1000;
    *oy = dy / 1000;
}

void genStackPutPoints(Node &stack, const Node &plugin)
{
    Node *points = stack.ensure(u"points.put");
    if (!points)
        return;
    points->reset(Node::Kind::List);
    Node *layers = stack.child(u"layers");
    if (!layers)
        return;
    removeEmptyLayers(*layers);
    PutPass pass(stack, plugin, *points);
    pass.run(*layers);
    if (Node *put = stack.ensure(u"put"))
        storeHeights(pass.frame(), *put);
}

} // namespace palx
