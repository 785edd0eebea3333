#pragma once

#include "core/record_file.h"

#include <QObject>

#include <memory>

namespace host {

/// Keeps what the operator was told in the list "quill.log.list", which holds the newest kMaxRecords, oldest first:
///
/// - records that are published by setting "quill.log.current" to a JSON text with "level", "title", "date_time" and
///   "rcid"; they are shown to the operator, too. A text that is no such record is reported and not kept;
/// - notices of nexo::ManagerHelper, as records of their moment.
///
/// Texts are cut after kMaxText characters, other keys are left out. Who clears the list clears the file. Made after the global nodes; GUI
/// thread.
class PALX_API LogKeeper : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxRecords = 500; // a shift's worth, and still quick to list
    static constexpr int kMaxText =
        1000; // the longest reasons stay below; with the above it bounds the memory

    explicit LogKeeper(QObject *parent = nullptr);

    /// From now on records are kept in that file as well, and those that it holds come before the present ones. A file
    /// that cannot be read is set aside; trouble with it is told, once until it is over.
    void keepIn(const QString &file);

private:
    void take(const QVariant &value);
    void takeNotice(QObject *sender, const QString &level, const QString &text);
    void append(const orba::Node &published);
    void followList();
    void note(bool done, const QString &why);

    std::unique_ptr<RecordFile> file_;
    bool isFailing_ = false;
};

} // namespace host
