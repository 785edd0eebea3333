#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

class QSqlDatabase;
class QSqlQuery;

namespace host {

/// One stored node: a module, a top-level key of one, or a child of a top-level list or map.
struct StoredRow
{
    qint64 id = 0;       ///< stays with the node as long as the node lives, over restarts
    qint64 parent = 0;   ///< id of the row above; 0 for a module
    qint64 position = 0; ///< among the rows with the same parent
    quint32 textSum = 0; ///< checksum of the text
    QByteArray text; ///< the node as a JSON item; a node whose children have rows of their own is empty here
};

/// What one save changes.
struct StoreChanges
{
    std::vector<StoredRow> written; ///< new rows and rows with a new text
    std::vector<StoredRow> moved; ///< rows with a new place; the text stays and is not looked at, its sum is
    std::vector<qint64> removed;
    bool isEmpty() const { return written.empty() && moved.empty() && removed.empty(); }
    int size() const { return static_cast<int>(written.size() + moved.size() + removed.size()); }
};

/// The SQLite file of a store and nothing of trees: rows in, rows out, every one with a checksum, and a manifest with
/// their number and the sum of their checksums, so that a lost row is noticed too.
class StoreFile
{
public:
    enum class Fault {
        None,
        Damaged,    ///< what is there cannot be trusted
        Unreachable ///< permissions, a full disk, a lock: another time it may work
    };
    struct Outcome
    {
        Fault fault = Fault::None;
        QString why;
        int code = 0; ///< SQLite's
        bool isDone() const { return fault == Fault::None; }
    };
    enum class Access { Write, ReadOnly };

    explicit StoreFile(const QString &file);
    ~StoreFile();
    StoreFile(const StoreFile &) = delete;
    StoreFile &operator=(const StoreFile &) = delete;

    const QString &fileName() const { return file_; }
    bool exists() const;
    bool isOpen() const { return isOpen_; }
    /// Somebody else has written, replaced or removed the open file.
    bool isTouched() const;

    /// Opens and checks an existing file and reads its rows: all of them, or after damage those that are whole.
    Outcome open(Access access, std::vector<StoredRow> *rows);
    /// Makes an empty file where there is none and opens it.
    Outcome create();
    void close();
    /// Renames the file to a dated name beside it. Empty with a reason when that failed.
    QString setAside(QString *why);
    /// One transaction. After a fault the file is as before.
    Outcome apply(const StoreChanges &changes);

    /// The save that the file holds: number of rows, sum of their checksums, count of saves.
    using Stamp = std::array<qint64, 3>;
    Stamp stamp() const { return {sums_.size(), total_, generation_}; }
    static quint32 sumOf(const QByteArray &text);
    /// How many rows the file says it has; -1 when that is not known.
    qint64 expectedRows() const { return expectedRows_; }

private:
    /// Inode, size, time of the last write: what every write changes.
    using Trace = std::array<qint64, 4>;
    static Trace traceOf(const QString &file);

    Outcome connect(const QString &file, Access access);
    Outcome checkSchema();
    Outcome readRows(std::vector<StoredRow> *rows);
    Outcome checkManifest(qint64 rows);
    Outcome write(const StoreChanges &changes);
    Outcome run(const QString &sql);
    bool putEntry(QSqlQuery *query, const StoredRow &row);
    bool putManifest(QSqlQuery *query);
    void forget(qint64 id);
    QSqlDatabase database() const;

    QString file_;
    QString connection_;
    bool isOpen_ = false;
    Trace trace_{};
    QHash<qint64, quint32> sums_; ///< of every row in the file
    qint64 total_ = 0;            ///< of these sums
    qint64 generation_ = 0;
    qint64 expectedRows_ = -1;
};

} // namespace host
