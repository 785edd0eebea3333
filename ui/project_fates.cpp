#include "ui/project_fates.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ImExportProjectDialog)
};

ExchangeFate exportFate(const palx::ExportPlan &plan, bool isTicked)
{
    if (!isTicked)
        return {ExchangeFate::Stays, Text::tr("Not exported")};
    if (!plan.problem.isEmpty())
        return {ExchangeFate::Impossible, plan.problem};
    if (plan.replaced.isValid())
        return {ExchangeFate::Replaces, replacesText(plan)};
    return {ExchangeFate::Comes, Text::tr("New file %1").arg(plan.file)};
}

ExchangeFate importFate(const palx::ImportPlan &plan)
{
    if (plan.isReplacing)
        return {ExchangeFate::Replaces, Text::tr("Replaces the project %1").arg(plan.name)};
    const QString text = plan.isRenamed ? Text::tr("Renamed to %1") : Text::tr("New project %1");
    return {ExchangeFate::Comes, text.arg(plan.name)};
}

} // namespace

QVector<ExchangeFate> exportFates(const QVector<ExchangeTableModel::Row> &rows,
                                  const QVector<palx::ExportPlan> &plans)
{
    QVector<ExchangeFate> fates;
    for (const ExchangeTableModel::Row &row : rows)
        fates.append(exportFate(plans.value(fates.size()), row.isTicked));
    return fates;
}

QVector<ExchangeFate> importFates(const QVector<ExchangeTableModel::Row> &rows,
                                  const QVector<palx::ImportPlan> &plans)
{
    QVector<ExchangeFate> fates;
    int next = 0;
    for (const ExchangeTableModel::Row &row : rows) {
        if (!row.problem.isEmpty())
            fates.append({ExchangeFate::Impossible, row.problem});
        else if (!row.isTicked)
            fates.append({ExchangeFate::Stays, Text::tr("Not imported")});
        else
            fates.append(importFate(plans.at(next++)));
    }
    return fates;
}

QString replacesText(const palx::ExportPlan &plan)
{
    return Text::tr("Replaces %1 of %2")
        .arg(plan.file, plan.replaced.toString(QStringLiteral("yyyy-MM-dd HH:mm")));
}
