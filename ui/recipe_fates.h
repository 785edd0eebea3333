#pragma once

#include "stack/recipe_exchange.h"
#include "ui/exchange_table_model.h"

/// The recipes of a list as they are offered, all ticked.
QVector<ExchangeTableModel::Row> recipeRows(const orba::Node &list);

/// What the operator is told of the recipes of a file before they are imported; `added` says for each which parts it got
/// from the template stack.
QVector<ExchangeFate> recipeFates(const std::vector<palx::ImportStep> &steps,
                                  const std::vector<QStringList> &added);
