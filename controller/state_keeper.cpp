#include "controller/state_keeper.h"

namespace controller {

using orba::Node;

namespace {

constexpr char kOwnFile[] = "controller.state";
constexpr char kCellFile[] = "cell.state";

} // namespace

StateKeeper::StateKeeper(std::unique_ptr<StateFolder> folder)
    : folder_(std::move(folder)), recipes_(folder_.get(), QStringLiteral("recipes")),
      projects_(folder_.get(), QStringLiteral("projects"))
{
}

StateSnapshot StateKeeper::load()
{
    auto own = std::make_shared<Node>();
    folder_->read(QLatin1String(kOwnFile), own.get());
    own_ = own;
    auto cell = std::make_shared<Node>();
    folder_->read(QLatin1String(kCellFile), cell.get());
    cell_ = cell;
    return {own_, cell_, recipes_.load(), projects_.load()};
}

bool StateKeeper::saveTree(const char *file, const std::shared_ptr<const Node> &tree,
                           std::shared_ptr<const Node> *saved, QString *why)
{
    if (!tree || (*saved && **saved == *tree))
        return true;
    if (!folder_->write(QLatin1String(file), *tree, why))
        return false;
    *saved = tree;
    return true;
}

bool StateKeeper::save(const StateSnapshot &snapshot, QString *why)
{
    // All parts are tried: what can be kept is kept, and the first reason is told.
    QString reasons[4];
    saveTree(kOwnFile, snapshot.own, &own_, &reasons[0]);
    projects_.save(snapshot.projects, &reasons[1]);
    saveTree(kCellFile, snapshot.cell, &cell_, &reasons[2]);
    recipes_.save(snapshot.recipes, &reasons[3]);
    for (const QString &reason : reasons)
        if (why->isEmpty())
            *why = reason;
    return why->isEmpty();
}

} // namespace controller
