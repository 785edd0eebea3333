#include "pattern/rules/pattern_template.h"

#include <QCoreApplication>

#include <cmath>

namespace palx {

namespace {

using orba::Node;

struct TemplateText
{
    Q_DECLARE_TR_FUNCTIONS(TemplateText)
};

constexpr qint64 kMaxNumber = 1000000; // products of two such numbers stay exact
constexpr int kClipItems = 4;

int kindOf(const Node &stack)
{
    return templateWords().indexOf(stack.getString(templatePath("type")));
}

bool isKind(int index, TemplateKind kind)
{
    return index == static_cast<int>(kind);
}

/// Why the counts of the kind cannot be used, or how many items they make.
QString countItems(int kind, const TemplateNumbers &n, qint64 *count)
{
    *count = 0;
    if (n.numX < 1 && !isKind(kind, TemplateKind::Clip))
        return TemplateText::tr("Invalid X number");
    if (isKind(kind, TemplateKind::Overlap)) {
        if (n.numY < 1)
            return TemplateText::tr("Invalid Y number");
        *count = qint64(n.numX) * n.numY;
    } else if (isKind(kind, TemplateKind::Cross)) {
        if (n.numY1 < 1 || n.numY2 < 1)
            return TemplateText::tr("Invalid Y1 or Y2 number");
        *count = qint64((n.numX + 1) / 2) * n.numY1 + qint64(n.numX / 2) * n.numY2;
    } else if (isKind(kind, TemplateKind::Clip)) {
        *count = kClipItems;
    }
    return QString();
}

struct Extent
{
    double x = 0, y = 0;
};

/// What the items reach to from the pallet's origin. Length and width are the product's.
Extent extentOf(int kind, const TemplateNumbers &n, double length, double width)
{
    const double spaces = (n.numX - 1.0) * n.spaceX;
    const auto row = [&n](int count, double pitch) {
        return n.offsetY + count * pitch + (count - 1.0) * n.spaceY;
    };
    if (isKind(kind, TemplateKind::Overlap))
        return {n.offsetX + n.numX * length + spaces, row(n.numY, width)};
    if (isKind(kind, TemplateKind::Cross)) {
        const double first = row(n.numY1, width);
        return {n.offsetX + n.numX / 2 * (length + width) + n.numX % 2 * length + spaces,
                n.numX == 1 ? first : std::max(first, row(n.numY2, length))};
    }
    if (isKind(kind, TemplateKind::Clip))
        return {n.offsetX + length + n.spaceX + width, n.offsetY + length + n.spaceY + width};
    return {};
}

/// Makes items of the recipe's product one after the other.
class ItemMaker
{
public:
    ItemMaker(const Node &stack, int present)
        : length_(stack.getDouble(u"product_cfg.product.length")),
          width_(stack.getDouble(u"product_cfg.product.width"))
    {
        model_.w = std::trunc(width_);
        model_.h = std::trunc(length_);
        model_.index = present;
        model_.orient = int(stack.getInt(u"product_cfg.product.orient"));
        model_.directionText = QStringLiteral("middle");
    }

    double length() const { return length_; }
    double width() const { return width_; }
    bool isFull() const { return items_.size() >= kMaxShownItems; }
    void add(double across, double along, int turn)
    {
        ++model_.index;
        model_.x = across;
        model_.y = along;
        model_.r = turn;
        items_.append(model_);
    }
    QVector<PatternItem> take() { return std::move(items_); }

private:
    double length_;
    double width_;
    PatternItem model_;
    QVector<PatternItem> items_;
};

/// One row from `start` along X; returns where the next one starts.
double addRow(ItemMaker &maker, const TemplateNumbers &n, int count, bool turned, double start)
{
    const double thickness = turned ? maker.width() : maker.length();
    const double extent = turned ? maker.length() : maker.width();
    for (int j = 0; j < count && !maker.isFull(); ++j)
        maker.add(n.offsetY + (2 * j + 1) * extent / 2 + double(j) * n.spaceY, start + thickness / 2,
                  turned ? 90 : 0);
    return start + thickness + n.spaceX;
}

void addRows(ItemMaker &maker, const TemplateNumbers &n, TemplateKind kind)
{
    double start = n.offsetX;
    for (int row = 0; row < n.numX && !maker.isFull(); ++row) {
        const bool turned = kind == TemplateKind::Cross && row % 2 == 1;
        const int count = kind == TemplateKind::Overlap ? n.numY : turned ? n.numY2 : n.numY1;
        start = addRow(maker, n, count, turned, start);
    }
}

void addClip(ItemMaker &maker, const TemplateNumbers &n)
{
    const double l = maker.length();
    const double w = maker.width();
    maker.add(n.offsetY + w / 2, n.offsetX + l / 2, 0);
    maker.add(n.offsetY + w + n.spaceY + l / 2, n.offsetX + w / 2, 90);
    maker.add(n.offsetY + l + n.spaceY + w / 2, n.offsetX + w + n.spaceX + l / 2, 0);
    maker.add(n.offsetY + l / 2, n.offsetX + l + n.spaceX + w / 2, 90);
}

} // namespace

const QStringList &templateWords()
{
    static const QStringList words{QStringLiteral("overlap"), QStringLiteral("cross"),
                                   QStringLiteral("clip")};
    return words;
}

const QVector<TemplateField> &templateFields()
{
    static const QVector<TemplateField> fields{
        {"num_x", &TemplateNumbers::numX},       {"num_y", &TemplateNumbers::numY},
        {"num_y1", &TemplateNumbers::numY1},     {"num_y2", &TemplateNumbers::numY2},
        {"offset_x", &TemplateNumbers::offsetX}, {"offset_y", &TemplateNumbers::offsetY},
        {"space_x", &TemplateNumbers::spaceX},   {"space_y", &TemplateNumbers::spaceY}};
    return fields;
}

QString templatePath(const char *key)
{
    return QStringLiteral("pattern_cfg.template.") + QLatin1String(key);
}

TemplateNumbers readTemplateNumbers(const Node &stack)
{
    TemplateNumbers numbers;
    for (const TemplateField &field : templateFields())
        numbers.*field.number = int(qBound(-kMaxNumber, stack.getInt(templatePath(field.key)), kMaxNumber));
    return numbers;
}

QString checkTemplate(const Node &stack, int present)
{
    const int kind = kindOf(stack);
    const TemplateNumbers numbers = readTemplateNumbers(stack);
    qint64 count = 0;
    const QString wrongCount = countItems(kind, numbers, &count);
    if (!wrongCount.isEmpty())
        return wrongCount;
    if (count + present > kMaxItems)
        return TemplateText::tr("Wobj number is greater than 200");
    const Extent extent = extentOf(kind, numbers, stack.getDouble(u"product_cfg.product.length"),
                                   stack.getDouble(u"product_cfg.product.width"));
    // Asked this way round, a size that is no number is refused too.
    if (!(extent.x <= stack.getDouble(u"product_cfg.pallet.length")))
        return TemplateText::tr("Wobj is beyond the pallet's x edge");
    if (!(extent.y <= stack.getDouble(u"product_cfg.pallet.width")))
        return TemplateText::tr("Wobj is beyond the pallet's y edge");
    return QString();
}

QVector<PatternItem> templateItems(const Node &stack, TemplateKind kind, const TemplateNumbers &numbers,
                                   int present)
{
    ItemMaker maker(stack, present);
    if (kind == TemplateKind::Clip)
        addClip(maker, numbers);
    else
        addRows(maker, numbers, kind);
    return maker.take();
}

QString templateImage(const QString &word, const QString &language)
{
    const QString variant = language == QLatin1String("cn") ? word : word + QStringLiteral("_en");
    return QStringLiteral(":/palx_workstation/images/stack/%1.png").arg(variant);
}

} // namespace palx
