#pragma once

#include "orba/module_object.h"
#include "stack/recipe_match.h"

#include <QObject>
#include <QTimer>

struct XReply;

namespace palx {

/// Knows which of the panel's recipes the controller holds. Asks the controller when it comes and after whatever was sent
/// to it, and compares again after edits; both a moment later, so that many edits are one comparison, without waiting, and
/// with a rest between recipes, so that pages stay smooth. GUI thread; made when the plugin node is there.
class PALX_API ControllerRecipes : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDelayMs = 300;
    static constexpr int kTurnMs = 8; ///< what one turn of the event loop spends on comparing

    enum class State {
        NoConnection,
        Asking,  ///< for the first time since the connection
        Unknown, ///< the controller did not answer as it should; `error` says why
        Known,   ///< `matches` holds
    };

    explicit ControllerRecipes(QObject *parent = nullptr);

    State state() const { return state_; }
    /// Of the state Unknown, for the operator.
    const QString &error() const { return error_; }
    const std::vector<RecipeMatch> &matches() const { return matches_; }
    int differing() const { return countDiffering(matches_); }

    /// Asks the controller again soon.
    void ask();
    /// Tells the controller that a recipe has another name. Nothing while it is not known to hold the recipe: what it holds
    /// otherwise is shown then.
    void tellName(const QString &old, const QString &name, const QString &desc);

Q_SIGNALS:
    /// State or matches may be others.
    void changed();

private:
    void followConnection(bool connected);
    void compareSoon();
    void work();
    void take(const XReply &reply);
    void fail(const QString &why);
    void forget();
    void compare();
    void sumUp();
    void enter(State state);

    State state_ = State::NoConnection;
    QString error_;
    std::vector<host::RecipeSummary> told_;
    std::vector<host::RecipeSummary> summed_; ///< of the panel's recipes, so far
    std::vector<RecipeMatch> matches_;
    QTimer timer_;
    QTimer turn_; ///< while recipes are summed up
    bool mustAsk_ = false;
    bool hasList_ = false; ///< `told_` holds
    bool isAsking_ = false;
    bool isRecorded_ = false; ///< that the controller does not answer
};

} // namespace palx
