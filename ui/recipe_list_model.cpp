#include "ui/recipe_list_model.h"

#include "ui/recipe_texts.h"
#include "workstation/plugin_node.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int kPad = 8;

const orba::Node *recipeNode(const QString &name)
{
    orba::ModuleObject *stack = palx::getStack(name);
    return stack->isEmptyMobj() ? nullptr : &stack->node();
}

} // namespace

RecipeListModel::RecipeListModel(QObject *parent)
    : QAbstractListModel(parent), pictures_(new PictureCache(recipeNode, kPicture, this))
{
    connect(pictures_, &PictureCache::drawn, this, [this](const QString &name) {
        const QModelIndex row = index(names().indexOf(name));
        if (row.isValid())
            Q_EMIT dataChanged(row, row, {PictureRole});
    });
}

void RecipeListModel::reload()
{
    const orba::Node &stacks = palx::stacksNode()->node();
    beginResetModel();
    rows_.clear();
    for (int i = 0; i < stacks.size(); ++i) {
        if (const orba::Node *stack = stacks.at(i))
            rows_.append({stack->getString(u"name"), stack->getString(u"desc"), recipeFactsText(*stack)});
    }
    pictures_->invalidate();
    endResetModel();
}

QStringList RecipeListModel::names() const
{
    QStringList names;
    for (const Row &row : rows_)
        names << row.name;
    return names;
}

int RecipeListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_.size();
}

QVariant RecipeListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows_.size())
        return QVariant();
    const Row &row = rows_[index.row()];
    switch (role) {
    case NameRole:
    case Qt::AccessibleTextRole:
        return row.name;
    case DescRole:
        return row.desc;
    case FactsRole:
        return row.facts;
    case PictureRole:
        return pictures_->picture(row.name);
    case SearchRole:
        return QString(row.name + QLatin1Char('\n') + row.desc);
    case Qt::ToolTipRole:
        return QString(row.name + QLatin1Char('\n') + row.desc).trimmed();
    default:
        return QVariant();
    }
}

QSize RecipeDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(320, RecipeListModel::kPicture.height() + 2 * kPad);
}

namespace {

void drawLine(QPainter *painter, QRect *area, const QString &text, int lines)
{
    const QFontMetrics metrics(painter->font());
    const QRect line(area->topLeft(), QSize(area->width(), metrics.height() * lines));
    QStringList shown;
    for (const QString &part : text.split(QLatin1Char('\n')))
        shown << metrics.elidedText(part, Qt::ElideRight, line.width());
    painter->drawText(line, Qt::AlignLeft | Qt::AlignTop, shown.join(QLatin1Char('\n')));
    area->setTop(line.bottom() + 1);
}

} // namespace

/// Name on its own line; the description shares the rest with the figures.
void RecipeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
    painter->save();
    const bool chosen = row.state.testFlag(QStyle::State_Selected);
    painter->setPen(row.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    const QRect inner = row.rect.adjusted(kPad, kPad, -kPad, -kPad);
    const QPixmap picture = index.data(RecipeListModel::PictureRole).value<QPixmap>();
    const QRect frame(inner.topLeft(), RecipeListModel::kPicture);
    painter->fillRect(frame, row.palette.color(QPalette::AlternateBase));
    painter->drawPixmap(frame.topLeft(), picture);
    QRect area = inner.adjusted(frame.width() + 12, 0, 0, 0);
    QFont bold = row.font;
    bold.setBold(true);
    painter->setFont(bold);
    const QString desc = index.data(RecipeListModel::DescRole).toString().simplified();
    drawLine(painter, &area, index.data(RecipeListModel::NameRole).toString(), 1);
    painter->setFont(row.font);
    if (!desc.isEmpty())
        drawLine(painter, &area, desc, 1);
    drawLine(painter, &area, index.data(RecipeListModel::FactsRole).toString(), 3);
    painter->setPen(row.palette.color(QPalette::Mid));
    painter->drawLine(row.rect.bottomLeft(), row.rect.bottomRight());
    painter->restore();
}
