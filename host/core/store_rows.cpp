// How the nodes of trees become rows of the store, and back.

#include "core/store_plan.h"
#include "orba/format_detail.h"
#include "orba/tree_registry.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace host {

using orba::Node;

namespace {

const QString kTrigger = QStringLiteral("trigger");

/// The levels of rows.
constexpr int kModule = 0;
constexpr int kKey = 1;

} // namespace

// ---------------------------------------------------------------- from rows to trees

/// Keeps the rows that hang together; returns how many.
int Store::takePending(std::vector<StoredRow> rows)
{
    QSet<qint64> reached{0};
    std::vector<StoredRow> kept;
    for (int level = 0; level < 3; ++level) {
        QSet<qint64> here;
        for (StoredRow &row : rows) {
            if (!reached.contains(row.parent))
                continue;
            here.insert(row.id);
            nextId_ = std::max(nextId_, row.id + 1);
            kept.push_back(row);
            row.parent = -1; // taken
        }
        reached = here;
    }
    std::sort(kept.begin(), kept.end(), [](const StoredRow &a, const StoredRow &b) {
        return std::tie(a.parent, a.position, a.id) < std::tie(b.parent, b.position, b.id);
    });
    pending_ = std::move(kept);
    return static_cast<int>(pending_.size());
}

std::vector<StoredRow> Store::pendingBelow(qint64 parent) const
{
    const auto first = std::lower_bound(pending_.begin(), pending_.end(), parent,
                                        [](const StoredRow &row, qint64 id) { return row.parent < id; });
    const auto last = std::upper_bound(first, pending_.end(), parent,
                                       [](qint64 id, const StoredRow &row) { return id < row.parent; });
    return {first, last}; // texts are shared
}

QString Store::pendingName(const StoredRow &module) const
{
    Node item;
    orba::format::readJsonItem(module.text, &item, nullptr);
    return item.name().toString();
}

void Store::fill(const QString &module, Node *tree)
{
    if (isKept(module))
        refetch(module);
    QString why;
    for (const StoredRow &stored : pendingBelow(0)) {
        if (pendingName(stored) != module)
            continue;
        forgetRows(stored.id);
        const Row row{stored.id, 0, stored.position, stored.id, stored.textSum, true};
        rows_.insert(tree, row);
        for (const StoredRow &key : pendingBelow(stored.id))
            fillRow(key, tree, row, &why);
        dropPending(stored.id);
        break;
    }
    tree->clearChanged();
    QString failure;
    if (!why.isEmpty() && !replaceFile(why, tr("All other entries were taken over."), &failure))
        tell(tr("The stored data in \"%1\" is damaged: %2.").arg(folder_, why));
}

/// Of a tree that is gone.
void Store::forgetRows(qint64 module)
{
    for (auto row = rows_.begin(); row != rows_.end();)
        row = row->module == module ? rows_.erase(row) : std::next(row);
}

/// Adds the node of a row, and those of the rows below it.
bool Store::fillRow(const StoredRow &stored, Node *parent, const Row &above, QString *why)
{
    Node item;
    orba::FormatError error;
    const auto below = pendingBelow(stored.id);
    bool isWhole = orba::format::readJsonItem(stored.text, &item, &error);
    const bool isSplit = above.parent == 0 && item.isContainer() && item.size() == 0;
    if (!isWhole || (!below.empty() && !isSplit)) {
        *why = tr("entry %1 has no valid text").arg(stored.id) + QStringLiteral(" (") + error.text() +
               QLatin1Char(')');
        return false;
    }
    Node *node = parent->add(item.name());
    node->take(item);
    const Row row{stored.id, stored.parent, stored.position, above.module, stored.textSum, isSplit};
    rows_.insert(node, row);
    for (const StoredRow &child : below)
        isWhole = fillRow(child, node, row, why) && isWhole;
    return isWhole;
}

void Store::dropPending(qint64 module)
{
    QSet<qint64> dropped{module};
    for (const StoredRow &key : pendingBelow(module))
        dropped.insert(key.id);
    const auto isDropped = [&](const StoredRow &row) {
        return dropped.contains(row.id) || dropped.contains(row.parent);
    };
    pending_.erase(std::remove_if(pending_.begin(), pending_.end(), isDropped), pending_.end());
}

/// The tree of a module was removed while its rows stayed: they are read again.
void Store::refetch(const QString &module)
{
    std::vector<StoredRow> rows;
    if (!file_->isOpen() || !file_->open(StoreFile::Access::Write, &rows).isDone())
        return;
    takePending(std::move(rows));
    for (const StoredRow &stored : pendingBelow(0))
        if (pendingName(stored) != module && kept_.contains(pendingName(stored)))
            dropPending(stored.id);
}

void Store::keep(const QString &module)
{
    if (!kept_.contains(module))
        kept_.append(module);
    schedule();
}

// ---------------------------------------------------------------- from trees to rows

Store::Plan Store::makePlan()
{
    Plan plan;
    plan.all = rewriteAll_;
    QSet<qint64> modules;
    for (const QString &module : qAsConst(kept_)) {
        const Node *tree = orba::TreeRegistry::instance().root().child(QStringView(module));
        if (!tree) // removed with its module, which is no reason to forget what was stored
            continue;
        visit(&plan, *tree, Row(), 0, kModule);
        modules.insert(plan.rows.value(tree).id);
    }
    QSet<qint64> left;
    for (const Row &row : qAsConst(plan.rows))
        left.insert(row.id);
    for (auto row = rows_.cbegin(); row != rows_.cend(); ++row) {
        if (!modules.contains(row->module))
            plan.rows.insert(row.key(), *row);
        else if (!left.contains(row->id) && !plan.all)
            plan.changes.removed.push_back(row->id);
    }
    if (plan.all)
        plan.changes.written.insert(plan.changes.written.end(), pending_.begin(), pending_.end());
    return plan;
}

/// Writes the text of a row into `stored`. False when the node cannot be written.
bool Store::state(Plan *plan, const Node &node, bool isSplit, StoredRow *stored)
{
    Node head(node.name());
    if (isSplit)
        head.reset(node.kind());
    orba::FormatError error;
    if (!orba::format::writeJsonItem(isSplit ? head : node, &stored->text, &error)) {
        plan->refused.append(tr("\"%1\" cannot be stored: %2.")
                                 .arg(node.pathFrom(orba::TreeRegistry::instance().root()), error.what));
        return false;
    }
    stored->textSum = StoreFile::sumOf(stored->text);
    return true;
}

void Store::visit(Plan *plan, const Node &node, const Row &above, qint64 position, int level)
{
    const Row known = rows_.value(&node);
    // An address below another row is a new node at the place of an old one.
    const bool isNew = known.id == 0 || known.parent != above.id;
    Row row = isNew ? Row() : known;
    if (isNew)
        row.id = nextId_++;
    row.parent = above.id;
    row.position = position;
    row.module = level == kModule ? row.id : above.module;
    row.isSplit = level == kModule || (level == kKey && node.isContainer() && !node.isPacked());
    const bool isStale = isNew || plan->all || node.isChanged() || row.isSplit != known.isSplit;
    StoredRow stored{row.id, row.parent, row.position, row.textSum, QByteArray()};
    if (isStale && !state(plan, node, row.isSplit, &stored)) {
        if (isNew || plan->all)
            return;
        row.isSplit = known.isSplit;
    }
    if (isNew || plan->all || stored.textSum != known.textSum)
        plan->changes.written.push_back(stored);
    else if (row.position != known.position)
        plan->changes.moved.push_back(stored);
    row.textSum = stored.textSum;
    plan->rows.insert(&node, row);
    if (row.isSplit)
        visitChildren(plan, node, row, level);
}

void Store::visitChildren(Plan *plan, const Node &node, const Row &row, int level)
{
    const bool isTrigger = level == kKey && node.name().view() == kTrigger;
    for (int i = 0; i < node.size(); ++i)
        if (!isTrigger || !node.at(i)->isNull())
            visit(plan, *node.at(i), row, i, level + 1);
}

} // namespace host
