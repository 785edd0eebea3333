#pragma once

#include "orba/module_object.h"

#include <QAbstractListModel>
#include <QHash>
#include <QPixmap>
#include <QPointer>
#include <QStringList>

/// The patterns of a recipe with small plans of them. A plan is drawn when it is asked for and drawn again when
/// its pattern or the sizes of product or pallet have changed.
class PALX_API PatternListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int kPixels = 112; ///< side of a plan

    using QAbstractListModel::QAbstractListModel;

    void setStack(orba::ModuleObject *stack);
    /// After an edit; rows stay while the names stay.
    void refresh();
    QString name(int row) const { return names_.value(row); }
    /// -1 for none.
    int rowOf(const QString &name) const { return names_.indexOf(name); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QPixmap plan(const QString &name) const;

    /// What a plan was drawn from.
    struct Drawn
    {
        orba::Node pattern, sizes;
        QPixmap plan;
    };
    QPointer<orba::ModuleObject> stack_;
    QStringList names_;
    mutable QHash<QString, Drawn> drawn_;
};
