#pragma once

#include "orba/module_object.h"

#include <QObject>

namespace host {

/// Builds the trees that every module may expect ("nexo", "quill", "ix") from the host's own template and
/// keeps the children of "nexo.setting" equal to the settings. What is there already keeps its values. False
/// with a reason when the template does not hold.
PALX_API bool buildGlobalNodes(QString *error = nullptr);
/// Ends those trees.
PALX_API void removeGlobalNodes();

/// Publishes a log record of this moment and this robot to "quill.log.current"; `level` is "error", "warning"
/// or "info".
PALX_API void publishRecord(const QString &level, const QString &title);

/// Keeps the log records that are published by setting "quill.log.current" to a JSON text with "level",
/// "title", "date_time" and "rcid": appends each to the list "quill.log.list", which holds the newest
/// kMaxRecords, and shows it to the operator. A text that is no such record is reported and not kept. Made
/// after the global nodes.
class PALX_API LogKeeper : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxRecords = 500; // a shift's worth, and still quick to list

    explicit LogKeeper(QObject *parent = nullptr);

Q_SIGNALS:
    void recorded(const QString &level, const QString &title, const QString &dateTime);

private:
    void take(const QVariant &value);
    static void append(const orba::Node &record);
};

} // namespace host
