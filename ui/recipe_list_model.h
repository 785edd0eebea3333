#pragma once

#include "orba/module_object.h"
#include "ui/picture_cache.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>
#include <QVector>

/// The recipes in the order of the plugin node, with what a row shows. Reads names and figures when it is
/// told to reload.
class PALX_API RecipeListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NameRole = Qt::DisplayRole, DescRole = Qt::UserRole, FactsRole, PictureRole, SearchRole };
    static constexpr QSize kPicture{120, 96};

    explicit RecipeListModel(QObject *parent = nullptr);

    void reload();
    QStringList names() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        QString name;
        QString desc;
        QString facts;
    };
    QVector<Row> rows_;
    PictureCache *pictures_;
};

/// A row for fingers: picture, name, description, figures.
class PALX_API RecipeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
