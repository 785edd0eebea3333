#include "core/store.h"

#include "core/store_plan.h"
#include "orba/tree_registry.h"

#include <QCoreApplication>
#include <QDir>
#include <QSysInfo>

namespace host {

namespace {

Store *openStore = nullptr;

QString lost(const QString &what, const QString &why)
{
    return why.isEmpty() ? what : what + QStringLiteral(": ") + why;
}

} // namespace

Store::Store(QObject *parent) : QObject(parent)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { save(); });
}

Store::~Store()
{
    if (!isOpen())
        return;
    save();
    orba::TreeRegistry::instance().setChangeHook(nullptr);
    openStore = nullptr;
}

Store *Store::current()
{
    return openStore;
}

void Store::tell(const QString &text)
{
    problems_.append(text);
    Q_EMIT problem(text);
}

void Store::schedule()
{
    if (!timer_.isActive())
        timer_.start(kDelayMs);
}

// ---------------------------------------------------------------- the folder

bool Store::open(const QString &folder, QString *error)
{
    QString why;
    folder_ = QDir::cleanPath(QDir(folder).absolutePath());
    file_ = std::make_unique<StoreFile>(QDir(folder_).filePath(QStringLiteral("store.sqlite")));
    const bool isRefused = openStore || (QDir().mkpath(folder_) && lock(&why) == Lock::Held);
    if (isRefused) {
        if (error)
            *error = openStore ? tr("a store is open already in this program") : why;
        return false;
    }
    openStore = this;
    orba::TreeRegistry::instance().setChangeHook([this] { schedule(); });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { save(); });
    isWritable_ = attach(&why);
    if (!isWritable_) {
        readOnlyFirst();
        failed(why, nullptr);
    } else if (!pending_.empty() && rewriteAll_) {
        save(); // what was rescued is safe before anything else happens
    }
    return true;
}

Store::Lock Store::lock(QString *why)
{
    lock_ = std::make_unique<QLockFile>(QDir(folder_).filePath(QStringLiteral("store.lock")));
    lock_->setStaleLockTime(0); // however old: only the end of its holder frees a lock
    if (lock_->tryLock(0))
        return Lock::Taken;
    if (lock_->error() != QLockFile::LockFailedError) {
        lock_.reset();
        *why = tr("files cannot be made there");
        return Lock::Impossible;
    }
    qint64 process = 0;
    QString host;
    QString program;
    const bool isKnown = lock_->getLockInfo(&process, &host, &program);
    // After a power cut the file may be empty or name a process number that is ours by now. A file that is really
    // locked cannot be removed this way.
    if ((!isKnown || host == QSysInfo::machineHostName()) && lock_->removeStaleLockFile() &&
        lock_->tryLock(0))
        return Lock::Taken;
    lock_.reset();
    *why = tr("The data folder \"%1\" is in use by %2 (process %3 on %4). End that program or choose another "
              "data "
              "folder.")
               .arg(folder_, isKnown ? program : tr("another program"))
               .arg(process)
               .arg(host);
    return Lock::Held;
}

/// Opens or makes the file for writing. False with a reason when that cannot be done now.
bool Store::attach(QString *why)
{
    if (!QDir().mkpath(folder_)) {
        *why = tr("the folder cannot be made");
        return false;
    }
    if (!lock_ && lock(why) != Lock::Taken)
        return false;
    if (!file_->exists()) {
        const StoreFile::Outcome made = file_->create();
        *why = made.why;
        isRead_ = true;
        rewriteAll_ = made.isDone();
        seen_ = file_->stamp();
        return made.isDone();
    }
    if (!isRead_ && kept_.isEmpty())
        return readFirst(why);
    std::vector<StoredRow> rows;
    const StoreFile::Outcome opened = file_->open(StoreFile::Access::Write, &rows);
    *why = opened.why;
    if (opened.fault == StoreFile::Fault::Unreachable)
        return false;
    if (opened.isDone() && file_->stamp() == seen_)
        return true;
    return replaceFile(opened.isDone() ? tr("another program has written it in the meantime") : opened.why,
                       tr("What the panel holds is stored anew."), why);
}

/// Reads the rows that trees are going to be filled with.
bool Store::readFirst(QString *why)
{
    std::vector<StoredRow> rows;
    const StoreFile::Outcome opened = file_->open(StoreFile::Access::Write, &rows);
    *why = opened.why;
    if (opened.fault == StoreFile::Fault::Unreachable)
        return false;
    isRead_ = true;
    seen_ = file_->stamp();
    const int taken = takePending(std::move(rows));
    if (opened.isDone())
        return true;
    const qint64 expected = file_->expectedRows();
    const QString consequence =
        taken == 0     ? tr("The panel starts from its templates.")
        : expected < 0 ? tr("%1 entries in it were whole and were taken over.").arg(taken)
                       : tr("%1 of its %2 entries were whole and were taken over.").arg(taken).arg(expected);
    return replaceFile(opened.why, consequence, why);
}

/// A folder that cannot be written may still hold what was stored.
void Store::readOnlyFirst()
{
    if (isRead_ || !file_->exists())
        return;
    std::vector<StoredRow> rows;
    const StoreFile::Outcome opened = file_->open(StoreFile::Access::ReadOnly, &rows);
    file_->close();
    if (opened.fault == StoreFile::Fault::Unreachable) {
        tell(tr("The stored data in \"%1\" cannot be read: %2. The panel starts from its templates; the "
                "stored data will "
                "be kept aside.")
                 .arg(folder_, opened.why));
        return;
    }
    isRead_ = true;
    seen_ = opened.isDone() ? file_->stamp() : StoreFile::Stamp{-1, -1, -1};
    const int taken = takePending(std::move(rows));
    if (!opened.isDone())
        tell(tr("The stored data in \"%1\" is damaged: %2. %3 entries were whole and were taken over.")
                 .arg(folder_, opened.why)
                 .arg(taken));
}

/// Keeps the file under another name and makes a new one.
bool Store::replaceFile(const QString &why, const QString &consequence, QString *failure)
{
    const QString aside = file_->setAside(failure);
    const QString what = tr("The stored data in \"%1\" could not be used: %2.").arg(folder_, why);
    if (aside.isEmpty()) {
        *failure = lost(why, *failure);
        return false;
    }
    tell(QStringLiteral("%1 %2 %3")
             .arg(what, tr("The file was kept as \"%1\".").arg(QFileInfo(aside).fileName()), consequence));
    const StoreFile::Outcome made = file_->create();
    rewriteAll_ = made.isDone();
    seen_ = file_->stamp();
    *failure = made.why;
    return made.isDone();
}

// ---------------------------------------------------------------- saving

bool Store::write(Plan *plan, QString *why)
{
    if (plan->changes.isEmpty())
        return true;
    StoreFile::Outcome outcome = file_->apply(plan->changes);
    if (outcome.fault == StoreFile::Fault::Damaged) {
        if (!replaceFile(outcome.why, tr("What the panel holds is stored anew."), why))
            return false;
        *plan = makePlan();
        outcome = file_->apply(plan->changes);
    }
    *why = outcome.why;
    return outcome.isDone();
}

bool Store::save(QString *error)
{
    timer_.stop();
    if (!isOpen())
        return true;
    QString why;
    if (file_->isTouched())
        file_->close(); // and look at it again
    if (!file_->isOpen() && !attach(&why))
        return failed(why, error);
    Plan plan = makePlan();
    if (!write(&plan, &why))
        return failed(why, error);
    const int count = plan.changes.size();
    rows_ = std::move(plan.rows);
    rewriteAll_ = false;
    seen_ = file_->stamp();
    isWritable_ = true;
    lastFailure_ = plan.refused.join(QLatin1Char('\n'));
    orba::TreeRegistry::instance().root().clearChanged();
    if (!plan.refused.isEmpty()) {
        if (!problems_.contains(lastFailure_))
            tell(lastFailure_);
        if (error)
            *error = lastFailure_;
    }
    if (count > 0)
        Q_EMIT saved(count);
    return plan.refused.isEmpty();
}

bool Store::failed(const QString &why, QString *error)
{
    isWritable_ = false;
    const QString text =
        tr("The data folder \"%1\" cannot be written: %2. Changes are kept in memory, and saving is tried "
           "again every %3 seconds and at the end. Make the folder writable or free space on its disk; "
           "what is not saved is lost with the end of the program.")
            .arg(folder_, why)
            .arg(kRetryMs / 1000);
    if (text != lastFailure_) // every reason once, not every attempt
        tell(text);
    lastFailure_ = text;
    if (error)
        *error = text;
    timer_.start(kRetryMs);
    return false;
}

} // namespace host
