#pragma once

#include "orba/export.h"

#include <QObject>
#include <QString>

/// Holds one text and tells when it becomes another.
class PALX_API StringWatcher : public QObject
{
    Q_OBJECT

public:
    explicit StringWatcher(QObject *parent = nullptr) : QObject(parent) {}

    QString value() const { return value_; }

public Q_SLOTS:
    /// An equal text changes nothing and sends nothing.
    void setValue(QString value);

Q_SIGNALS:
    void valueChanged(QString value);

private:
    QString value_;
};
