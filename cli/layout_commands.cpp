#include "layout_commands.h"

#include "orba/module_manager.h"
#include "pattern/rules/item_geometry.h"
#include "pattern/rules/pattern_template.h"

#include <QTextStream>

#include <algorithm>

namespace cli {
namespace {

using orba::Node;
using palx::AutoLayout;
using palx::PatternItem;

void put(Node &node, const char16_t *key, const QVariant &value)
{
    node.ensureChild(orba::Name(key))->setValue(value);
}

void putItems(Node &root, const QVector<PatternItem> &items)
{
    Node &list = *root.ensureChild(orba::Name(u"items"));
    list.reset(Node::Kind::List);
    for (const PatternItem &item : items) {
        Node &entry = *list.add();
        put(entry, u"index", item.index);
        put(entry, u"h", item.x);
        put(entry, u"v", item.y);
        put(entry, u"w", int(item.w));
        put(entry, u"height", int(item.h));
        put(entry, u"r", item.r);
        put(entry, u"orient", item.orient);
        put(entry, u"dx", item.dx);
        put(entry, u"dy", item.dy);
        put(entry, u"dz", item.dz);
        put(entry, u"direction", item.directionText);
    }
}

void addItemTable(QTextStream &out, const QVector<PatternItem> &items)
{
    out << QStringLiteral("%1%2%3%4%5%6  %7\n")
               .arg(QStringLiteral("no"), 5)
               .arg(QStringLiteral("h mm"), 10)
               .arg(QStringLiteral("v mm"), 10)
               .arg(QStringLiteral("turn"), 6)
               .arg(QStringLiteral("dx mm"), 8)
               .arg(QStringLiteral("dy mm"), 8)
               .arg(QStringLiteral("direction"));
    for (const PatternItem &item : items)
        out << QStringLiteral("%1%2%3%4%5%6  %7\n")
                   .arg(item.index, 5)
                   .arg(item.x, 10, 'f', 2)
                   .arg(item.y, 10, 'f', 2)
                   .arg(item.r, 6)
                   .arg(item.dx, 8, 'f', 1)
                   .arg(item.dy, 8, 'f', 1)
                   .arg(item.directionText);
}

/// Prints a result, says why it is refused, and tells the exit code of both.
int finish(const Node &root, const QByteArray &table, Output output)
{
    QByteArray text = table;
    if (output == Output::Json) {
        orba::FormatError fault;
        text = orba::ModuleManager::toJson(root, true, &fault) + '\n';
        if (fault.isSet())
            return refuse(QStringLiteral("the items cannot be written: ") + fault.text());
    }
    if (!putResult(text))
        return kRefused;
    const QString refusal = root.getString(u"refusal");
    return refusal.isEmpty() ? kDone : refuse(refusal);
}

QString placementWord(palx::Placement placement)
{
    return placementWords().at(static_cast<int>(placement));
}

/// The farthest that some product of the layout reaches over the pallet.
double overEdge(const AutoLayout &layout, const palx::LayoutInput &input)
{
    const palx::Overhang over =
        palx::overhangOf(palx::itemsBounds(layout.items), QSizeF(input.palletWidth, input.palletLength));
    return layout.items.isEmpty() ? 0 : std::max({over.left, over.top, over.right, over.bottom});
}

QVector<AutoLayout> allKinds(const palx::LayoutInput &input)
{
    QVector<AutoLayout> layouts;
    for (int kind = 0; kind < palx::kLayoutKinds; ++kind)
        layouts.append(palx::generateLayout(input, palx::StackingPattern(kind)));
    return layouts;
}

/// The first with the most products among those that may become a pattern; else one that is refused.
int bestKind(const QVector<AutoLayout> &layouts)
{
    int best = 0;
    const auto rank = [&](int kind) {
        const qint64 count = layouts[kind].count;
        return palx::layoutProblem(layouts[kind]).isEmpty() ? (count > 0 ? count : -1) : 0;
    };
    for (int kind = 1; kind < layouts.size(); ++kind) {
        if (rank(kind) > rank(best))
            best = kind;
    }
    return best;
}

void putFigures(Node &node, const AutoLayout &layout, int kind, const palx::LayoutInput &input)
{
    put(node, u"kind", kind);
    put(node, u"name", palx::layoutName(palx::StackingPattern(kind)));
    put(node, u"count", layout.count);
    put(node, u"area_used", palx::areaUsed(input, layout.count));
    put(node, u"over_edge", overEdge(layout, input));
    put(node, u"refusal", palx::layoutProblem(layout));
}

QByteArray layoutTable(const Node &root, const QVector<PatternItem> &items)
{
    QByteArray text;
    QTextStream out(&text);
    out.setCodec("UTF-8");
    out << root.getString(u"name") << ", placement " << root.getString(u"placement") << '\n';
    addItemTable(out, items);
    out << "\nkinds\n";
    const Node &kinds = *root.child(u"kinds");
    for (int i = 0; i < kinds.size(); ++i) {
        const Node &kind = *kinds.at(i);
        out << QStringLiteral("%1  %2%3 products%4 % of the pallet")
                   .arg(kind.getInt(u"kind"))
                   .arg(kind.getString(u"name"), -22)
                   .arg(kind.getInt(u"count"), 6)
                   .arg(100 * kind.getDouble(u"area_used"), 8, 'f', 1);
        if (kind.getDouble(u"over_edge") > 0)
            out << QStringLiteral(", %1 mm over its edge").arg(kind.getDouble(u"over_edge"), 0, 'f', 1);
        if (!kind.getString(u"refusal").isEmpty())
            out << ", refused: " << kind.getString(u"refusal");
        out << '\n';
    }
    out.flush();
    return text;
}

QByteArray templateTable(const QVector<PatternItem> &items)
{
    QByteArray text;
    QTextStream out(&text);
    addItemTable(out, items);
    out.flush();
    return text;
}

} // namespace

const QStringList &placementWords()
{
    static const QStringList words{QStringLiteral("plain"), QStringLiteral("left"), QStringLiteral("right")};
    return words;
}

int runLayout(const LayoutRequest &request)
{
    const QVector<AutoLayout> layouts = allKinds(request.input);
    const int kind = request.kind == LayoutRequest::kBestKind ? bestKind(layouts) : request.kind;
    Node root;
    put(root, u"placement", placementWord(request.input.placement));
    putFigures(root, layouts[kind], kind, request.input);
    const bool isRefused = !root.getString(u"refusal").isEmpty();
    const QVector<PatternItem> items = isRefused ? QVector<PatternItem>() : layouts[kind].items;
    putItems(root, items);
    Node &kinds = *root.ensureChild(orba::Name(u"kinds"));
    kinds.reset(Node::Kind::List);
    for (int i = 0; i < layouts.size(); ++i)
        putFigures(*kinds.add(), layouts[i], i, request.input);
    return finish(root, layoutTable(root, items), request.output);
}

int runTemplate(const TemplateRequest &request)
{
    const QString refusal = palx::checkTemplate(request.stack, request.present);
    const int kind = palx::templateWords().indexOf(request.stack.getString(palx::templatePath("type")));
    QVector<PatternItem> items;
    if (refusal.isEmpty())
        items = palx::templateItems(request.stack, static_cast<palx::TemplateKind>(kind),
                                    palx::readTemplateNumbers(request.stack), request.present);
    Node root;
    put(root, u"count", items.size());
    put(root, u"refusal", refusal);
    putItems(root, items);
    return finish(root, refusal.isEmpty() ? templateTable(items) : QByteArray(), request.output);
}

} // namespace cli
