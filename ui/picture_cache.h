#pragma once

#include "orba/node.h"

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Pictures of recipes by name, drawn one per turn of the event loop and only for those that were asked for,
/// so that a long list is shown at once.
class PALX_API PictureCache : public QObject
{
    Q_OBJECT

public:
    /// The recipe of a name, or null when it is gone.
    using Source = std::function<const orba::Node *(const QString &name)>;

    PictureCache(Source source, QSize pixels, QObject *parent = nullptr);

    /// The picture as last drawn, or a null one; is drawn soon when it is missing or out of date.
    QPixmap picture(const QString &name);
    /// Every picture is out of date; the old ones are shown until they are drawn anew.
    void invalidate();

Q_SIGNALS:
    void drawn(const QString &name);

private:
    void drawNext();

    struct Entry
    {
        QPixmap picture;
        bool current = false;
    };
    Source source_;
    QSize pixels_;
    QHash<QString, Entry> entries_;
    QStringList waiting_;
    QTimer turn_;
};
