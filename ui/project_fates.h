#pragma once

#include "project/rules/project_export.h"
#include "project/rules/project_import.h"
#include "ui/exchange_table_model.h"

/// What the operator is told of the projects of an export. `plans` has one for each row, ticked or not; more are left out.
QVector<ExchangeFate> exportFates(const QVector<ExchangeTableModel::Row> &rows,
                                  const QVector<palx::ExportPlan> &plans);

/// What the operator is told of archives before they are imported; `plans` has one for each row that is ticked.
QVector<ExchangeFate> importFates(const QVector<ExchangeTableModel::Row> &rows,
                                  const QVector<palx::ImportPlan> &plans);

/// Which archive is replaced.
QString replacesText(const palx::ExportPlan &plan);
