#include "stack/recipe_patterns.h"

#include "stack/recipe_layers.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cmath>

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

struct PatternText
{
    Q_DECLARE_TR_FUNCTIONS(PatternText)
};

ModuleObject *patternMobj(ModuleObject *stack, const QString &name)
{
    return stack->r("patterns")->c(name);
}

bool isWhole(double value)
{
    return value == double(qint64(value));
}

void put(Node &item, QStringView key, double value)
{
    Node *field = item.ensure(key);
    if (isWhole(value))
        field->setInt(qint64(value));
    else
        field->setDouble(value);
}

/// Where the next product goes: beside the last one while the pallet is wide enough, else in a new row.
void nextPlace(const Node &stack, const Node &pattern, double *x, double *y)
{
    const double length = stack.getDouble(u"product_cfg.product.length");
    const double width = stack.getDouble(u"product_cfg.product.width");
    *x = width / 2;
    *y = length / 2;
    if (pattern.size() == 0)
        return;
    const QString last = QStringLiteral("#%1.").arg(pattern.size() - 1);
    *x = pattern.getDouble(QString(last + QLatin1Char('x'))) + width;
    *y = pattern.getDouble(QString(last + QLatin1Char('y')));
    if (*x + width / 2 <= stack.getDouble(u"product_cfg.pallet.width"))
        return;
    *x = width / 2;
    *y += length;
}

/// Of an item that is not turned: the scenes keep whole millimetres.
struct ItemSize
{
    double across;
    double along;
};

ItemSize productSize(const Node &stack)
{
    return {std::trunc(stack.getDouble(u"product_cfg.product.width")),
            std::trunc(stack.getDouble(u"product_cfg.product.length"))};
}

Node newItem(const Node &stack, const Node &pattern)
{
    double x = 0;
    double y = 0;
    nextPlace(stack, pattern, &x, &y);
    const Node *product = stack.find(u"product_cfg.product");
    const Node none;
    const Node &source = product ? *product : none;
    Node item;
    put(item, u"x", x);
    put(item, u"y", y);
    put(item, u"w",
        std::trunc(source.getDouble(u"width"))); // the scenes keep item sizes in whole millimetres
    put(item, u"h", std::trunc(source.getDouble(u"length")));
    put(item, u"r", 0);
    put(item, u"index", pattern.size() + 1);
    put(item, u"orient", source.getDouble(u"orient"));
    item.ensure(u"direction")->setString(source.getString(u"direction", QStringLiteral("Middle")));
    for (const char16_t *key : {u"dx", u"dy", u"dz"})
        put(item, key, source.getDouble(key));
    return item;
}

} // namespace

const QStringList &directionNames()
{
    static const QStringList names{
        QStringLiteral("Top"),        QStringLiteral("Bottom"),      QStringLiteral("Left"),
        QStringLiteral("Right"),      QStringLiteral("TopLeft"),     QStringLiteral("TopRight"),
        QStringLiteral("BottomLeft"), QStringLiteral("BottomRight"), QStringLiteral("Middle")};
    return names;
}

QString directionName(const QString &text)
{
    for (const QString &name : directionNames()) {
        if (name.compare(text, Qt::CaseInsensitive) == 0)
            return name;
    }
    return QString();
}

QString newPatternProblem(const Node &patterns, const QString &name)
{
    if (name.isEmpty())
        return PatternText::tr("Name is empty!");
    if (name.size() > kMaxPatternName)
        return PatternText::tr("Pattern name length is greater than 32!");
    if (patterns.child(QStringView(name)) || name == kSheetPattern || name == kEmptyPattern)
        return PatternText::tr("Name is repeated!");
    return QString();
}

QString firstFreeLetter(const Node &patterns)
{
    QChar letter(QLatin1Char('A'));
    while (patterns.child(QStringView(&letter, 1)))
        letter = QChar(letter.unicode() + 1);
    return QString(letter);
}

QString patternNameProblem(const Node &stack, const QString &name)
{
    static const QRegularExpression allowed(QStringLiteral("\\A[A-Za-z0-9_-]+\\z"));
    const Node *patterns = stack.find(u"patterns");
    const QString problem = newPatternProblem(patterns ? *patterns : Node(), name);
    if (problem.isEmpty() && !allowed.match(name).hasMatch())
        return PatternText::tr("Only letters, digits, \"_\" and \"-\" are allowed in a pattern's name.");
    return problem;
}

QString proposePatternName(const Node &stack)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const QString name(QLatin1Char{letter});
        if (patternNameProblem(stack, name).isEmpty())
            return name;
    }
    int number = 1;
    while (!patternNameProblem(stack, QStringLiteral("A%1").arg(number)).isEmpty())
        ++number;
    return QStringLiteral("A%1").arg(number);
}

const Node *findPattern(const Node &stack, const QString &name)
{
    const Node *patterns = stack.find(u"patterns");
    return patterns ? patterns->child(QStringView(name)) : nullptr;
}

QStringList patternNames(const Node &stack)
{
    QStringList names;
    const Node *patterns = stack.find(u"patterns");
    for (int i = 0; patterns && i < patterns->size(); ++i) {
        if (const Node *pattern = patterns->at(i))
            names << pattern->name().toString();
    }
    return names;
}

int patternUse(const Node &stack, const QString &name)
{
    int count = 0;
    for (const LayerFacts &layer : layerFacts(stack))
        count += layer.pattern == name ? 1 : 0;
    return count;
}

ModuleObject *createPattern(ModuleObject *patterns, const QString &name, const QString &cloneOf)
{
    if (patterns->isEmptyMobj() || !newPatternProblem(patterns->node(), name).isEmpty())
        return emptyMobj();
    Node content;
    content.reset(Node::Kind::List);
    if (const Node *source = patterns->node().child(QStringView(cloneOf)))
        content.assign(*source);
    ModuleObject *pattern = patterns->add(name);
    pattern->copyFrom(content);
    return pattern;
}

ModuleObject *addPattern(ModuleObject *stack, const QString &name, const QString &cloneOf)
{
    if (stack->isEmptyMobj() || !patternNameProblem(stack->node(), name).isEmpty())
        return emptyMobj();
    return createPattern(stack->ensure("patterns"), name, cloneOf);
}

bool renamePattern(ModuleObject *stack, const QString &name, const QString &newName)
{
    ModuleObject *pattern = patternMobj(stack, name);
    if (pattern->isEmptyMobj() || !patternNameProblem(stack->node(), newName).isEmpty())
        return false;
    pattern->node().setName(orba::Name(newName));
    const int layers = layerFacts(stack->node()).size();
    for (int i = 0; i < layers; ++i) {
        const QString path = QStringLiteral("layers.#%1.pattern").arg(i);
        if (stack->getString(path) == name)
            stack->set(nullptr, path, newName);
    }
    stack->r("patterns")->announceStructure();
    return true;
}

QString patternRemovalProblem(const Node &stack, const QString &name)
{
    constexpr int kNamed = 8; // more would not fit into a line
    const QVector<LayerFacts> layers = layerFacts(stack);
    QStringList users;
    for (int i = 0; i < layers.size(); ++i) {
        if (layers[i].pattern == name)
            users << QString::number(i + 1);
    }
    if (users.isEmpty())
        return QString();
    const QString named = users.mid(0, kNamed).join(QStringLiteral(", "));
    return users.size() == 1 ? PatternText::tr("Pattern \"%1\" is used by layer %2.").arg(name, named)
           : users.size() <= kNamed
               ? PatternText::tr("Pattern \"%1\" is used by the layers %2.").arg(name, named)
               : PatternText::tr("Pattern \"%1\" is used by %2 layers: %3, ...")
                     .arg(name, QString::number(users.size()), named);
}

bool removePattern(ModuleObject *stack, const QString &name)
{
    ModuleObject *pattern = patternMobj(stack, name);
    if (pattern->isEmptyMobj())
        return false;
    pattern->remove();
    return true;
}

int addItem(ModuleObject *stack, const QString &name)
{
    ModuleObject *pattern = patternMobj(stack, name);
    if (pattern->isEmptyMobj() || pattern->cmobjCount() >= kMaxItems)
        return -1;
    const Node item = newItem(stack->node(), pattern->node());
    pattern->addUnnamed()->copyFrom(item);
    return pattern->cmobjCount() - 1;
}

bool removeItem(ModuleObject *stack, const QString &name, int index)
{
    ModuleObject *pattern = patternMobj(stack, name);
    if (index < 0 || index >= pattern->cmobjCount())
        return false;
    pattern->cmobj(index)->remove();
    renumberItems(pattern);
    return true;
}

bool moveItem(ModuleObject *stack, const QString &name, int from, int to)
{
    ModuleObject *pattern = patternMobj(stack, name);
    const int count = pattern->cmobjCount();
    if (from < 0 || to < 0 || from >= count || to >= count)
        return false;
    pattern->move(from, to);
    renumberItems(pattern);
    return true;
}

int otherSizedItems(const Node &stack, const QString &name)
{
    const Node *pattern = findPattern(stack, name);
    const ItemSize size = productSize(stack);
    int count = 0;
    for (int i = 0; pattern && i < pattern->size(); ++i) {
        const QString item = QStringLiteral("#%1.").arg(i);
        const double w = pattern->getDouble(QString(item + QLatin1Char('w')));
        const double h = pattern->getDouble(QString(item + QLatin1Char('h')));
        count += std::trunc(w) != size.across || std::trunc(h) != size.along ? 1 : 0;
    }
    return count;
}

void applyProductSize(ModuleObject *stack, const QString &name)
{
    ModuleObject *pattern = patternMobj(stack, name);
    const ItemSize size = productSize(stack->node());
    for (int i = 0; i < pattern->cmobjCount(); ++i) {
        for (const auto &[key, value] : {std::pair("w", size.across), std::pair("h", size.along)}) {
            const QString path = mName(QStringLiteral("#%1").arg(i), QLatin1String(key));
            pattern->ensure(path);
            pattern->set(nullptr, path, qint64(value));
        }
    }
}

void renumberItems(ModuleObject *pattern)
{
    for (int i = 0; i < pattern->cmobjCount(); ++i) {
        const QString path = QStringLiteral("#%1.index").arg(i);
        if (pattern->getInt(path) == i + 1)
            continue;
        pattern->ensure(path);
        pattern->set(nullptr, path, qint64(i + 1));
    }
}

} // namespace palx
