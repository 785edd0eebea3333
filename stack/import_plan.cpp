#include "stack/recipe_exchange.h"

#include <QHash>
#include <QRegularExpression>

#include <deque>
#include <utility>

// What becomes of the recipes of a file in a list.
namespace palx {

using orba::Node;

namespace {

/// Adds one to a number of any length.
QString countedUp(QString digits)
{
    int i = digits.size();
    while (i > 0 && digits[i - 1] == QLatin1Char('9'))
        digits[--i] = QLatin1Char('0');
    if (i == 0)
        return QLatin1Char('1') + digits;
    digits[i - 1] = QChar(digits[i - 1].unicode() + 1);
    return digits;
}

QString withoutZerosInFront(const QString &digits)
{
    int zeros = 0;
    while (zeros + 1 < digits.size() && digits[zeros] == QLatin1Char('0'))
        ++zeros;
    return digits.mid(zeros);
}

class Planner
{
public:
    Planner(const Node &list, RecipeClash onClash) : onClash_(onClash)
    {
        for (const int child : recipeIndexes(list)) {
            owners_[list.at(child)->getString(u"name")].push_back(standing_.size());
            places_.insert(child, static_cast<int>(standing_.size()));
            standing_.push_back({child, -1, true});
        }
    }

    void take(const Node &recipe, bool isTicked)
    {
        steps_.emplace_back();
        if (!isTicked)
            return;
        const QString name = recipe.getString(u"name");
        if (!isTaken(name))
            add(ImportStep::New, name);
        else
            clash(name);
    }

    std::vector<ImportStep> finish()
    {
        int place = 0;
        for (const Standing &each : standing_) {
            if (each.isThere && each.row >= 0)
                steps_[static_cast<std::size_t>(each.row)].place = place;
            place += each.isThere ? 1 : 0;
        }
        return std::move(steps_);
    }

private:
    /// A recipe of the list as it grows: a child of the list, or a recipe of the file.
    struct Standing
    {
        int child = -1;
        int row = -1;
        bool isThere = true;
    };
    using Places = std::deque<std::size_t>;

    bool isTaken(const QString &name) const
    {
        const auto found = owners_.find(name);
        return found != owners_.end() && !found->empty();
    }

    /// Continues where it ended for the same name before, so that many equal names do not count from 1 each time.
    QString freeName(const QString &name)
    {
        QString &last = counted_[name];
        QString free = last.isNull() ? name : last;
        do
            free = nextRecipeName(free);
        while (isTaken(free));
        last = free;
        return free;
    }

    void clash(const QString &name)
    {
        ImportStep &step = steps_.back();
        const Standing &first = standing_[owners_[name].front()];
        step.sameAs = first.row;
        if (onClash_ == RecipeClash::Discard) {
            step.arrival = ImportStep::Skipped;
        } else if (onClash_ == RecipeClash::Rename) {
            add(ImportStep::Renamed, freeName(name));
        } else {
            replace(name);
        }
    }

    void replace(const QString &name)
    {
        Standing &gone = standing_[owners_[name].front()];
        owners_[name].pop_front();
        gone.isThere = false;
        const int child = gone.row >= 0 ? overtake(gone.row) : gone.child;
        add(child >= 0 ? ImportStep::Replacing : ImportStep::New, name);
        steps_.back().replaced = child;
        steps_.back().replacedPlace = child >= 0 ? places_.value(child) : -1;
        steps_.back().sameAs = -1;
    }

    /// Returns the child that the earlier recipe was to replace; its successor does now.
    int overtake(int row)
    {
        ImportStep &earlier = steps_[static_cast<std::size_t>(row)];
        earlier.sameAs = static_cast<int>(steps_.size()) - 1;
        earlier.arrival = ImportStep::Overtaken;
        earlier.name = QString();
        return std::exchange(earlier.replaced, -1);
    }

    void add(ImportStep::Arrival arrival, const QString &name)
    {
        steps_.back().arrival = arrival;
        steps_.back().name = name;
        owners_[name].push_back(standing_.size());
        standing_.push_back({-1, static_cast<int>(steps_.size()) - 1, true});
    }

    RecipeClash onClash_;
    std::vector<ImportStep> steps_;
    std::vector<Standing> standing_;
    QHash<QString, Places> owners_;   ///< places in `standing_`, by name
    QHash<int, int> places_;          ///< of the list's children among its recipes
    QHash<QString, QString> counted_; ///< last name that was made of a name
};

} // namespace

QString nextRecipeName(const QString &name)
{
    static const QRegularExpression number(QStringLiteral("\\d+$"));
    const QRegularExpressionMatch match = number.match(name);
    if (!match.hasMatch())
        return name + QLatin1Char('1');
    return name.left(match.capturedStart()) + countedUp(withoutZerosInFront(match.captured()));
}

std::vector<ImportStep> planImport(const Node &list, const Node &content, const std::vector<bool> &ticked,
                                   RecipeClash onClash)
{
    Planner planner(list, onClash);
    std::size_t row = 0;
    for (const int child : recipeIndexes(content)) {
        planner.take(*content.at(child), row < ticked.size() && ticked[row]);
        ++row;
    }
    return planner.finish();
}

} // namespace palx
