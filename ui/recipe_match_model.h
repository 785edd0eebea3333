#pragma once

#include "ix/xtheme.h"
#include "stack/recipe_match.h"

#include <QAbstractTableModel>

/// The recipes of panel and controller side by side.
class PALX_API RecipeMatchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Place, Name, Panel, Controller, State };

    using QAbstractTableModel::QAbstractTableModel;

    void setMatches(const std::vector<palx::RecipeMatch> &matches);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const palx::RecipeMatch &match, int column) const;

    std::vector<palx::RecipeMatch> matches_;
};
