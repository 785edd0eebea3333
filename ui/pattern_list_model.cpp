#include "ui/pattern_list_model.h"

#include "pattern/recipe_picture.h"
#include "pattern/rules/stack_plan.h"
#include "stack/recipe_patterns.h"

void PatternListModel::setStack(orba::ModuleObject *stack)
{
    stack_ = stack;
    drawn_.clear();
    refresh();
}

void PatternListModel::refresh()
{
    const QStringList names = stack_ ? palx::patternNames(stack_->node()) : QStringList();
    if (names != names_) {
        beginResetModel();
        names_ = names;
        endResetModel();
    } else if (!names_.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(names_.size() - 1));
    }
}

int PatternListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : names_.size();
}

QVariant PatternListModel::data(const QModelIndex &index, int role) const
{
    const QString name = this->name(index.row());
    if (!stack_ || !index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return name;
    if (role == Qt::DecorationRole)
        return plan(name);
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return tr("In %1 layers").arg(palx::patternUse(stack_->node(), name));
    return QVariant();
}

QPixmap PatternListModel::plan(const QString &name) const
{
    const orba::Node *pattern = palx::findPattern(stack_->node(), name);
    const orba::Node *sizes = stack_->node().find(u"product_cfg");
    if (!pattern)
        return QPixmap();
    const auto known = drawn_.constFind(name);
    const orba::Node none;
    if (known != drawn_.constEnd() && known->pattern == *pattern && known->sizes == (sizes ? *sizes : none))
        return known->plan;
    const QPixmap plan =
        QPixmap::fromImage(palx::patternPicture(stack_->node(), name, QSize(kPixels, kPixels)));
    drawn_.insert(name, {*pattern, sizes ? *sizes : none, plan});
    return plan;
}
