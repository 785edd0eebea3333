#include "ui/recipe_fates.h"

#include <QCoreApplication>

using palx::ImportStep;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RecipeFates)
};

/// What operators call the parts that older recipes lack.
QString partText(const QString &key)
{
    const struct
    {
        QLatin1String key;
        QString text;
    } parts[] = {{QLatin1String("get"), Text::tr("pick points")},
                 {QLatin1String("bollard"), Text::tr("corner posts")},
                 {QLatin1String("pallet_position"), Text::tr("pallet side")},
                 {QLatin1String("use_global_tool"), Text::tr("choice of tool")},
                 {QLatin1String("use_global_wobj"), Text::tr("choice of work object")},
                 {QLatin1String("automatic_stacker"), Text::tr("automatic layout")},
                 {QLatin1String("wobj_margin"), Text::tr("margins")}};
    for (const auto &part : parts)
        if (key == part.key)
            return part.text;
    return key;
}

QString partsText(const QStringList &keys)
{
    QStringList parts;
    for (const QString &key : keys)
        parts.append(partText(key));
    return parts.join(QStringLiteral(", "));
}

ExchangeFate fateOf(const ImportStep &step)
{
    const int other = step.sameAs + 1; // the number of its row
    switch (step.arrival) {
    case ImportStep::Unticked:
        return {ExchangeFate::Stays, Text::tr("Is left out")};
    case ImportStep::Skipped:
        return {ExchangeFate::Stays, other > 0 ? Text::tr("Skipped: row %1 has the name").arg(other)
                                               : Text::tr("Skipped: the name is taken")};
    case ImportStep::Overtaken:
        return {ExchangeFate::Stays, Text::tr("Skipped: row %1 replaces it").arg(other)};
    case ImportStep::New:
        return {ExchangeFate::Comes, Text::tr("New recipe")};
    case ImportStep::Renamed:
        return {ExchangeFate::Comes,
                other > 0 ? Text::tr("Row %1 has the name: becomes \"%2\"").arg(other).arg(step.name)
                          : Text::tr("Renamed to \"%1\"").arg(step.name)};
    case ImportStep::Replacing:
        return {
            ExchangeFate::Replaces,
            Text::tr("Replaces no. %1 and stands at no. %2").arg(step.replacedPlace + 1).arg(step.place + 1)};
    }
    return {};
}

} // namespace

QVector<ExchangeTableModel::Row> recipeRows(const orba::Node &list)
{
    QVector<ExchangeTableModel::Row> rows;
    for (const int child : palx::recipeIndexes(list)) {
        const orba::Node &recipe = *list.at(child);
        const QString name = recipe.getString(u"name");
        rows.append({{name.trimmed().isEmpty() ? Text::tr("(no name)") : name, recipe.getString(u"desc")},
                     name,
                     QString(),
                     true});
    }
    return rows;
}

QVector<ExchangeFate> recipeFates(const std::vector<ImportStep> &steps, const std::vector<QStringList> &added)
{
    QVector<ExchangeFate> fates;
    for (std::size_t row = 0; row < steps.size(); ++row) {
        ExchangeFate fate = fateOf(steps[row]);
        if (steps[row].arrives() && row < added.size() && !added[row].isEmpty())
            fate.text += QStringLiteral(". ") + Text::tr("Usual values for: %1").arg(partsText(added[row]));
        fates.append(fate);
    }
    return fates;
}
