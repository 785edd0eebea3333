#include "pattern/plan_recipe.h"

#include "support/test_support.h"

using orba::Node;
using palx::PatternItem;

Node planRecipe()
{
    return nodeFromJson(R"({"name":"Test","product_cfg":{
        "clapboard":{"enabled":1,"height":3,"length":1180,"width":780,"weight":0},
        "pallet":{"height":144,"length":1200,"width":800},
        "product":{"height":200,"length":400,"width":300,"orient":0}},
      "wobj_margin":{"left":0,"top":0,"right":0,"bottom":0},
      "patterns":{
        "A":[{"x":150,"y":200,"w":300,"h":400,"r":0,"index":1,"orient":0,"direction":"Middle","dx":0,"dy":0,"dz":0},
             {"x":450,"y":200,"w":300,"h":400,"r":0,"index":2,"orient":0,"direction":"Middle","dx":0,"dy":0,"dz":0}],
        "B":[{"x":200,"y":150,"w":300,"h":400,"r":90,"index":1,"orient":0,"direction":"Top","dx":50,"dy":0,"dz":0}]},
      "layers":[{"pattern":"A","h_offset":0},{"pattern":"clapboard","h_offset":2},{"pattern":"B","h_offset":0},
                {"pattern":"empty","h_offset":70},{"pattern":"A","h_offset":5},{"pattern":"Z","h_offset":0},
                {"pattern":"","h_offset":0},{"pattern":"A","h_offset":0}]})");
}

PatternItem planItem(double x, double y, double w, double h, int r)
{
    PatternItem item;
    item.x = x;
    item.y = y;
    item.w = w;
    item.h = h;
    item.r = r;
    item.index = 1;
    item.directionText = QStringLiteral("Middle");
    return item;
}

QVector<PatternItem> planGrid(int across, int along, double w, double h)
{
    QVector<PatternItem> items;
    for (int row = 0; row < along; ++row) {
        for (int i = 0; i < across; ++i) {
            items.append(planItem((i + 0.5) * w, (row + 0.5) * h, w, h));
            items.last().index = items.size();
        }
    }
    return items;
}

Node patternOf(const QVector<PatternItem> &items)
{
    Node pattern;
    for (const PatternItem &item : items)
        palx::appendPatternItem(pattern, item);
    return pattern;
}

Node oneLayerRecipe(const QVector<PatternItem> &items)
{
    Node stack =
        nodeFromJson(R"({"name":"One","product_cfg":{"pallet":{"height":144,"length":1200,"width":800},
        "product":{"height":100,"length":100,"width":80}},"patterns":{"A":[]},"layers":[{"pattern":"A","h_offset":0}]})");
    stack.find(u"patterns.A")->assign(patternOf(items));
    return stack;
}

std::string placesOf(const QVector<PatternItem> &items)
{
    QStringList texts;
    for (const PatternItem &item : items)
        texts << QStringLiteral("%1,%2/%3").arg(item.x, 0, 'g', 12).arg(item.y, 0, 'g', 12).arg(item.r);
    return texts.join(QLatin1Char(' ')).toStdString();
}

std::string approachesOf(const QVector<PatternItem> &items)
{
    QStringList texts;
    for (const PatternItem &item : items)
        texts << QStringLiteral("%1 %2,%3").arg(item.directionText).arg(item.dx).arg(item.dy);
    return texts.join(QLatin1String("; ")).toStdString();
}

PatternItem coming(PatternItem item, const char *direction, double dx, double dy)
{
    item.directionText = QLatin1String(direction);
    item.direction = palx::directionFromName(item.directionText);
    item.dx = dx;
    item.dy = dy;
    return item;
}

palx::ApproachFrame namedSides()
{
    palx::ApproachFrame frame;
    frame.side.towards[0] = frame.side.towards[1] = 1;
    return frame;
}
