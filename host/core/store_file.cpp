#include "core/store_file.h"

#include "orba/files.h"
#include "orba/format_detail.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>
#include <QtEndian>

#include <array>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace host {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(host::Store)
};

using Fault = StoreFile::Fault;
using Outcome = StoreFile::Outcome;

constexpr int kApplication = 0x70616c78; // marks the file as ours
constexpr int kSchema = 1;
constexpr int kReadOnly = 8; // SQLite's code

/// Over numbers, so that a damaged id or position is noticed as well.
template <std::size_t n> quint32 sumOfNumbers(const std::array<qint64, n> &numbers)
{
    std::array<qint64, n> bytes;
    qToLittleEndian<qint64>(numbers.data(), n, bytes.data());
    return static_cast<quint32>(crc32(0, reinterpret_cast<const Bytef *>(bytes.data()), sizeof bytes));
}

quint32 sumOfRow(const StoredRow &row)
{
    return sumOfNumbers(std::array<qint64, 4>{row.id, row.parent, row.position, row.textSum});
}

Outcome damaged(const QString &why)
{
    return {Fault::Damaged, why, 0};
}

/// Tells a file that cannot be trusted from one that cannot be reached now.
Outcome outcomeOf(const QSqlError &error)
{
    if (!error.isValid())
        return {};
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const QString why = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    switch (code) {
    case 3: // permission
    case 5: // busy
    case 6: // locked
    case 7: // memory
    case kReadOnly:
    case 10: // input or output
    case 13: // full
    case 14: // cannot open
    case 23: // authorization
        return {Fault::Unreachable, why, code};
    default:
        return {Fault::Damaged, why, code};
    }
}

bool isWritable(const QString &path)
{
    return ::access(QFile::encodeName(path).constData(), W_OK) == 0;
}

bool hasContent(const QString &file)
{
    return QFileInfo(file).size() > 0;
}

const QString kSideFiles[] = {QStringLiteral("-wal"), QStringLiteral("-shm"), QStringLiteral("-journal")};

void removeWithSideFiles(const QString &file)
{
    for (const QString &side : kSideFiles)
        QFile::remove(file + side);
    QFile::remove(file);
}

} // namespace

StoreFile::StoreFile(const QString &file)
    : file_(file), connection_(QStringLiteral("palx-store-%1").arg(reinterpret_cast<quintptr>(this), 0, 16))
{
}

StoreFile::~StoreFile()
{
    close();
}

quint32 StoreFile::sumOf(const QByteArray &text)
{
    return static_cast<quint32>(
        crc32(0, reinterpret_cast<const Bytef *>(text.constData()), static_cast<uInt>(text.size())));
}

QSqlDatabase StoreFile::database() const
{
    return QSqlDatabase::database(connection_, false);
}

bool StoreFile::exists() const
{
    return QFileInfo::exists(file_);
}

StoreFile::Trace StoreFile::traceOf(const QString &file)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(file).constData(), &status) != 0)
        return {};
    return {static_cast<qint64>(status.st_ino), status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

bool StoreFile::isTouched() const
{
    return isOpen_ && traceOf(file_) != trace_;
}

void StoreFile::close()
{
    if (QSqlDatabase::contains(connection_)) {
        database().close();
        QSqlDatabase::removeDatabase(connection_);
    }
    isOpen_ = false;
}

Outcome StoreFile::run(const QString &sql)
{
    QSqlQuery query(database());
    return query.exec(sql) ? Outcome() : outcomeOf(query.lastError());
}

// ---------------------------------------------------------------- opening

Outcome StoreFile::connect(const QString &file, Access access)
{
    close();
    QSqlDatabase made = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    if (!made.isValid())
        return {Fault::Unreachable, Texts::tr("the SQLite driver of Qt is not installed"), 0};
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=200");
    QString name = file;
    if (access == Access::ReadOnly) {
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
        // SQLite makes files beside the database even for reading, unless it is told that nobody will change it.
        if (!hasContent(file + kSideFiles[0])) {
            options += QStringLiteral(";QSQLITE_OPEN_URI");
            name =
                QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded()) + QStringLiteral("?immutable=1");
        }
    }
    made.setConnectOptions(options);
    made.setDatabaseName(name);
    if (!made.open())
        return outcomeOf(made.lastError());
    const Outcome checked = run(QStringLiteral("PRAGMA cell_size_check = ON"));
    return checked.isDone() ? run(QStringLiteral("PRAGMA synchronous = FULL")) : checked;
}

Outcome StoreFile::checkSchema()
{
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("PRAGMA application_id")) || !query.next())
        return outcomeOf(query.lastError());
    if (query.value(0).toInt() != kApplication)
        return damaged(Texts::tr("it is no store of this panel"));
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next())
        return outcomeOf(query.lastError());
    const int schema = query.value(0).toInt();
    if (schema > kSchema)
        return damaged(Texts::tr("it was written by a newer version of this panel (form %1)").arg(schema));
    if (schema != kSchema)
        return damaged(Texts::tr("its form %1 is unknown").arg(schema));
    if (!query.exec(QStringLiteral("PRAGMA quick_check(1)")) || !query.next())
        return outcomeOf(query.lastError());
    const QString verdict = query.value(0).toString();
    return verdict == QLatin1String("ok") ? Outcome() : damaged(verdict);
}

Outcome StoreFile::open(Access access, std::vector<StoredRow> *rows)
{
    Outcome outcome = connect(file_, access);
    if (!outcome.isDone())
        return outcome;
    outcome = checkSchema();
    if (outcome.fault == Fault::Unreachable)
        return outcome;
    // Rows are read even from a damaged file: what is whole may be saved.
    const Outcome reading = readRows(rows);
    const Outcome manifest = checkManifest(static_cast<qint64>(rows->size()));
    if (outcome.isDone())
        outcome = reading.isDone() ? manifest : reading;
    if (!outcome.isDone() || access == Access::ReadOnly)
        return outcome;
    outcome = run(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (outcome.isDone())
        outcome = run(QStringLiteral("BEGIN IMMEDIATE"));
    run(QStringLiteral("ROLLBACK"));
    if (outcome.code == kReadOnly && isWritable(file_) && isWritable(QFileInfo(file_).path()))
        outcome.fault = Fault::Damaged; // only the file itself says that it must not be written
    isOpen_ = outcome.isDone();
    trace_ = traceOf(file_);
    return outcome;
}

Outcome StoreFile::readRows(std::vector<StoredRow> *rows)
{
    rows->clear();
    sums_.clear();
    total_ = 0;
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral(
            "SELECT entry.id, entry.parent, entry.position, entry.text_sum, entry.sum, text.json "
            "FROM entry LEFT JOIN text ON text.id = entry.id ORDER BY entry.id")))
        return outcomeOf(query.lastError());
    Outcome outcome;
    while (query.next()) {
        StoredRow row{query.value(0).toLongLong(), query.value(1).toLongLong(), query.value(2).toLongLong(),
                      0, query.value(5).toByteArray()};
        row.textSum = sumOf(row.text);
        const quint32 sum = sumOfRow(row);
        if (query.value(3).toLongLong() != row.textSum || query.value(4).toLongLong() != sum ||
            sums_.contains(row.id)) {
            outcome = damaged(Texts::tr("the checksum of entry %1 is wrong").arg(row.id));
            continue;
        }
        total_ += sum;
        sums_.insert(row.id, sum);
        rows->push_back(std::move(row));
    }
    return query.lastError().isValid() ? outcomeOf(query.lastError()) : outcome;
}

Outcome StoreFile::checkManifest(qint64 rows)
{
    expectedRows_ = -1;
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("SELECT entries, total, generation, sum FROM manifest")))
        return outcomeOf(query.lastError());
    if (!query.next())
        return damaged(Texts::tr("its manifest is missing"));
    const Stamp known{query.value(0).toLongLong(), query.value(1).toLongLong(), query.value(2).toLongLong()};
    if (query.value(3).toLongLong() != sumOfNumbers(known) || query.next())
        return damaged(Texts::tr("the checksum of its manifest is wrong"));
    expectedRows_ = known[0];
    generation_ = known[2];
    if (known[0] != rows || known[1] != total_)
        return damaged(Texts::tr("it holds %1 entries instead of %2, or others").arg(rows).arg(known[0]));
    return {};
}

/// Made whole under another name first: a file with the store's name always has a manifest.
Outcome StoreFile::create()
{
    const QString made = file_ + QStringLiteral(".new");
    removeWithSideFiles(made);
    sums_.clear();
    total_ = 0;
    generation_ = 0;
    Outcome outcome = connect(made, Access::Write);
    const QString statements[] = {
        QStringLiteral("BEGIN IMMEDIATE"),
        QStringLiteral("PRAGMA application_id = %1").arg(kApplication),
        QStringLiteral("PRAGMA user_version = %1").arg(kSchema),
        QStringLiteral("CREATE TABLE entry(id INTEGER PRIMARY KEY, parent INTEGER NOT NULL, "
                       "position INTEGER NOT NULL, text_sum INTEGER NOT NULL, sum INTEGER NOT NULL)"),
        QStringLiteral("CREATE TABLE text(id INTEGER PRIMARY KEY, json BLOB NOT NULL)"),
        QStringLiteral("CREATE TABLE manifest(id INTEGER PRIMARY KEY, entries INTEGER NOT NULL, "
                       "total INTEGER NOT NULL, generation INTEGER NOT NULL, sum INTEGER NOT NULL)"),
    };
    for (const QString &statement : statements)
        if (outcome.isDone())
            outcome = run(statement);
    if (outcome.isDone()) {
        QSqlQuery query(database());
        outcome = putManifest(&query) ? run(QStringLiteral("COMMIT")) : outcomeOf(query.lastError());
    }
    close();
    if (!outcome.isDone()) {
        removeWithSideFiles(made);
        return {Fault::Unreachable, outcome.why, outcome.code};
    }
    for (const QString &side : kSideFiles) // of an older file with this name
        QFile::remove(file_ + side);
    QString why;
    if (!QFile::rename(made, file_) || !orba::format::syncFolder(QFileInfo(file_).path(), &why))
        return {Fault::Unreachable, why.isEmpty() ? Texts::tr("the file cannot be renamed") : why, 0};
    std::vector<StoredRow> none;
    return open(Access::Write, &none);
}

QString StoreFile::setAside(QString *why)
{
    close();
    QString name = orba::damagedName(file_);
    if (!QFile::rename(file_, name)) {
        *why = Texts::tr("it cannot be renamed");
        return QString();
    }
    // The log belongs to the file; left behind it would meet the next one.
    QFile::rename(file_ + kSideFiles[0], name + kSideFiles[0]);
    QFile::remove(file_ + kSideFiles[1]);
    QFile::rename(file_ + kSideFiles[2], name + kSideFiles[2]);
    return name;
}

// ---------------------------------------------------------------- writing

Outcome StoreFile::apply(const StoreChanges &changes)
{
    const auto sums = sums_;
    const qint64 total = total_;
    Outcome outcome = run(QStringLiteral("BEGIN IMMEDIATE"));
    if (outcome.isDone())
        outcome = write(changes);
    ++generation_;
    if (outcome.isDone()) {
        QSqlQuery query(database());
        outcome = putManifest(&query) ? run(QStringLiteral("COMMIT")) : outcomeOf(query.lastError());
    }
    if (outcome.isDone()) {
        // Between saves the whole store is one file. When this fails, the log keeps the save until the next one.
        run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    } else {
        run(QStringLiteral("ROLLBACK"));
        sums_ = sums;
        total_ = total;
        --generation_;
    }
    trace_ = traceOf(file_);
    return outcome;
}

Outcome StoreFile::write(const StoreChanges &changes)
{
    QSqlQuery entry(database());
    QSqlQuery text(database());
    const auto prepare = [&](const char *entrySql, const char *textSql) {
        return entry.prepare(QString::fromLatin1(entrySql)) && text.prepare(QString::fromLatin1(textSql));
    };
    const auto failed = [&] {
        const Outcome outcome = outcomeOf(entry.lastError());
        return outcome.isDone() ? outcomeOf(text.lastError()) : outcome;
    };
    if (!prepare("DELETE FROM entry WHERE id = ?", "DELETE FROM text WHERE id = ?"))
        return failed();
    for (const qint64 id : changes.removed) {
        entry.bindValue(0, id);
        text.bindValue(0, id);
        if (!entry.exec() || !text.exec())
            return failed();
        forget(id);
    }
    if (!prepare("INSERT OR REPLACE INTO entry(id, parent, position, text_sum, sum) VALUES(?, ?, ?, ?, ?)",
                 "INSERT OR REPLACE INTO text(id, json) VALUES(?, ?)"))
        return failed();
    for (const StoredRow &row : changes.written) {
        text.bindValue(0, row.id);
        text.bindValue(1, row.text);
        if (!putEntry(&entry, row) || !text.exec())
            return failed();
    }
    for (const StoredRow &row : changes.moved)
        if (!putEntry(&entry, row))
            return failed();
    return {};
}

bool StoreFile::putEntry(QSqlQuery *query, const StoredRow &row)
{
    const quint32 sum = sumOfRow(row);
    forget(row.id);
    total_ += sum;
    sums_.insert(row.id, sum);
    query->bindValue(0, row.id);
    query->bindValue(1, row.parent);
    query->bindValue(2, row.position);
    query->bindValue(3, row.textSum);
    query->bindValue(4, sum);
    return query->exec();
}

bool StoreFile::putManifest(QSqlQuery *query)
{
    const Stamp manifest = stamp();
    query->prepare(QStringLiteral("INSERT OR REPLACE INTO manifest(id, entries, total, generation, sum) "
                                  "VALUES(1, ?, ?, ?, ?)"));
    for (std::size_t i = 0; i < manifest.size(); ++i)
        query->bindValue(static_cast<int>(i), manifest[i]);
    query->bindValue(3, sumOfNumbers(manifest));
    return query->exec();
}

void StoreFile::forget(qint64 id)
{
    total_ -= sums_.take(id);
}

} // namespace host
