#pragma once

#include "stack/recipe_exchange.h"

#include <QAbstractTableModel>

/// The recipes that an import or export offers: a tick, name, description and what will become of each.
class PALX_API ImExportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Tick, Name, Description, Outcome };

    using QAbstractTableModel::QAbstractTableModel;

    /// The recipes of a list, all ticked; `added` says for each what it got from the template stack (may be empty).
    void setRecipes(const orba::Node &list, const std::vector<QStringList> &added);
    /// What will happen, row by row; without steps nothing is said.
    void setSteps(const std::vector<palx::ImportStep> &steps);

    const std::vector<bool> &ticked() const { return ticked_; }
    int tickedCount() const;
    void toggle(int row);
    void tickAll(bool isTicked);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// Ticks have changed.
    void tickedChanged();

private:
    struct Row
    {
        QString name;
        QString desc;
        QStringList added;
    };

    const palx::ImportStep *step(int row) const;
    QString text(int row, int column) const;
    QString outcome(int row) const;
    QVariant look(int row, int role) const;

    std::vector<Row> rows_;
    std::vector<bool> ticked_;
    std::vector<palx::ImportStep> steps_;
};
