#include "points_output.h"

#include "orba/module_manager.h"

#include <QTextStream>

namespace cli {
namespace {

using orba::Node;

constexpr double kDegreesPerRadian = 57.29577951308232;

const QStringList &getPoints()
{
    static const QStringList names{QStringLiteral("enter_p"), QStringLiteral("ready_p"),
                                   QStringLiteral("approach_p"), QStringLiteral("get_p"),
                                   QStringLiteral("retract_p")};
    return names;
}

const QStringList &putPoints()
{
    static const QStringList names{QStringLiteral("enter_p"),    QStringLiteral("ready_p"),
                                   QStringLiteral("approach_p"), QStringLiteral("put_p"),
                                   QStringLiteral("retract_p"),  QStringLiteral("exit_p")};
    return names;
}

const Node &part(const Node &node, QStringView path)
{
    static const Node nothing{};
    const Node *found = node.find(path);
    return found ? *found : nothing;
}

/// The record's four lists and nothing else, in their fixed order.
void copyPoint(Node &target, const Node &point)
{
    for (const char16_t *key : {u"trans", u"rot", u"near", u"conf"}) {
        Node &list = *target.ensureChild(orba::Name(key));
        list.reset(Node::Kind::List);
        list.assign(part(point, key));
    }
}

void copyPoints(Node &target, const Node &source, const QStringList &names)
{
    for (const QString &name : names)
        copyPoint(*target.ensureChild(orba::Name(name)), part(source, name));
}

/// As it stands, so that a whole number stays one; 0 when it is missing.
void copyNumber(Node &target, const Node &source, const char16_t *key)
{
    Node &number = *target.ensureChild(orba::Name(key));
    const Node &value = part(source, key);
    if (value.kind() == Node::Kind::Int)
        number.setInt(value.toInt());
    else
        number.setDouble(value.toDouble());
}

void copyLayers(Node &target, const Node &layers)
{
    target.reset(Node::Kind::List);
    for (int i = 0; i < layers.size(); ++i) {
        Node &layer = *target.add();
        layer.ensureChild(orba::Name(u"pattern"))->setString(layers.at(i)->getString(u"pattern"));
        copyNumber(layer, *layers.at(i), u"h_offset");
    }
}

void copyPut(Node &target, const Node &put)
{
    target.reset(Node::Kind::List);
    for (int i = 0; i < put.size(); ++i) {
        Node &layer = *target.add();
        layer.reset(Node::Kind::List);
        for (int j = 0; j < put.at(i)->size(); ++j)
            copyPoints(*layer.add(), *put.at(i)->at(j), putPoints());
    }
}

void addStack(Node &stacks, const Node &stack)
{
    Node &target = *stacks.add();
    target.ensureChild(orba::Name(u"name"))->setString(stack.getString(u"name"));
    copyLayers(*target.ensureChild(orba::Name(u"layers")), part(stack, u"layers"));
    copyPoints(*target.ensureChild(orba::Name(u"get")), part(stack, u"get"), getPoints());
    copyPut(*target.ensureChild(orba::Name(u"put")), part(stack, u"points.put"));
    Node &heights = *target.ensureChild(orba::Name(u"put_heights"));
    for (const char16_t *key : {u"ready_h", u"approach_h", u"retract_h", u"exit_h"})
        copyNumber(heights, part(stack, u"put"), key);
}

// --- table

QString column(double value, int decimals)
{
    return QString::number(value, 'f', decimals).rightJustified(10);
}

void addRow(QTextStream &out, const QString &where, const QString &name, const Node &point)
{
    out << where.leftJustified(22) << name.leftJustified(11);
    for (int i = 0; i < 3; ++i)
        out << column(part(point, u"trans").number(i) * 1000, 2);
    for (int i = 0; i < 3; ++i)
        out << column(part(point, u"rot").number(i) * kDegreesPerRadian, 3);
    out << '\n';
}

void addTable(QTextStream &out, const Node &stack)
{
    const Node &put = part(stack, u"points.put");
    out << "Recipe \"" << stack.getString(u"name") << "\": " << put.size() << " layers\n";
    out << QStringLiteral("%1%2%3%4%5%6%7%8\n")
               .arg(QStringLiteral("layer, product"), -22)
               .arg(QStringLiteral("point"), -11)
               .arg(QStringLiteral("x mm"), 10)
               .arg(QStringLiteral("y mm"), 10)
               .arg(QStringLiteral("z mm"), 10)
               .arg(QStringLiteral("A deg"), 10)
               .arg(QStringLiteral("B deg"), 10)
               .arg(QStringLiteral("C deg"), 10);
    for (const QString &name : getPoints())
        addRow(out, QStringLiteral("pick"), name, part(part(stack, u"get"), name));
    for (int i = 0; i < put.size(); ++i) {
        const QString pattern = part(stack, QStringLiteral("layers.#%1").arg(i)).getString(u"pattern");
        for (int j = 0; j < put.at(i)->size(); ++j) {
            const QString where = QStringLiteral("%1 %2, %3").arg(i + 1).arg(pattern).arg(j + 1);
            for (const QString &name : putPoints())
                addRow(out, where, name, part(*put.at(i)->at(j), name));
        }
    }
}

} // namespace

QByteArray pointsJson(const RecipeList &stacks, const QVector<LogRecord> &log, QString *error)
{
    Node root;
    Node &list = *root.ensureChild(orba::Name(u"stacks"));
    list.reset(Node::Kind::List);
    for (const orba::ModuleObject *stack : stacks)
        addStack(list, stack->node());
    Node &records = *root.ensureChild(orba::Name(u"log"));
    records.reset(Node::Kind::List);
    for (const LogRecord &record : log) {
        Node &entry = *records.add();
        entry.ensureChild(orba::Name(u"level"))->setString(record.level);
        entry.ensureChild(orba::Name(u"text"))->setString(record.text);
    }
    orba::FormatError fault;
    const QByteArray json = orba::ModuleManager::toJson(root, true, &fault);
    if (fault.isSet())
        *error = QStringLiteral("the points cannot be written: ") + fault.text();
    return fault.isSet() ? QByteArray() : json + '\n';
}

QByteArray pointsTable(const RecipeList &stacks)
{
    QByteArray text;
    QTextStream out(&text);
    out.setCodec("UTF-8");
    for (const orba::ModuleObject *stack : stacks)
        addTable(out, stack->node());
    out.flush();
    return text;
}

} // namespace cli
