#include "controller/state_keeper.h"

namespace controller {

using orba::Node;

namespace {

constexpr char kOwnFile[] = "controller.state";

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
    return {own_, recipes_.load(), projects_.load()};
}

bool StateKeeper::saveOwn(const StateSnapshot &snapshot, QString *why)
{
    if (own_ && *own_ == *snapshot.own)
        return true;
    if (!folder_->write(QLatin1String(kOwnFile), *snapshot.own, why))
        return false;
    own_ = snapshot.own;
    return true;
}

bool StateKeeper::save(const StateSnapshot &snapshot, QString *why)
{
    // All parts are tried: what can be kept is kept, and the first reason is told.
    QString reasons[3];
    saveOwn(snapshot, &reasons[0]);
    projects_.save(snapshot.projects, &reasons[1]);
    recipes_.save(snapshot.recipes, &reasons[2]);
    for (const QString &reason : reasons)
        if (why->isEmpty())
            *why = reason;
    return why->isEmpty();
}

} // namespace controller
