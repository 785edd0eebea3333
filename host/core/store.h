#pragma once

#include "orba/node.h"

#include <QHash>
#include <QLockFile>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <array>
#include <memory>
#include <vector>

namespace host {

class StoreFile;
struct StoredRow;

/// Keeps the trees of modules in the panel's data folder, so that they survive the end of the process, whatever ends it.
///
/// A change is on the disk kDelayMs after it at the latest, together with all others made until then or not at all.
/// Only what changed is written: every child of a top-level list or map is a row of its own. Null children of "trigger"
/// are events and not stored. When saving fails, editing goes on, the reason is told once, and saving is tried again
/// every kRetryMs and at the end; nothing is given up.
///
/// A damaged store is set aside under a dated name and told; its whole rows are taken over, and the rest comes from the
/// templates. One store per process and one process per folder. GUI thread only.
class PALX_API Store : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDelayMs = 300;
    static constexpr int kRetryMs = 5000;

    explicit Store(QObject *parent = nullptr);
    /// Saves. The trees must still be there.
    ~Store() override;

    /// The store that is open in this process, or null.
    static Store *current();

    /// Takes the folder, which is made when missing. False with a reason only when the store must not be used, because
    /// somebody else does; every other trouble is a problem that the panel can live with.
    bool open(const QString &folder, QString *error = nullptr);
    bool isOpen() const { return current() == this; }
    /// Whether the last attempt to write succeeded.
    bool isWritable() const { return isWritable_; }
    /// Saves now what has changed. False with a reason when something could not be saved.
    bool save(QString *error = nullptr);
    /// What was told since `open`: what, where, why and the way out.
    const QStringList &problems() const { return problems_; }

    /// Adds the stored children of a module to its empty tree and leaves them unchanged. For binding trees.
    void fill(const QString &module, orba::Node *tree);
    /// From now on the tree of that name below the registry's root is saved.
    void keep(const QString &module);
    bool isKept(const QString &module) const { return kept_.contains(module); }

Q_SIGNALS:
    void problem(const QString &text);
    /// After a save that wrote something.
    void saved(int rows);

private:
    /// What the file holds of a node.
    struct Row
    {
        qint64 id = 0; ///< 0: nothing
        qint64 parent = 0;
        qint64 position = 0;
        qint64 module = 0; ///< id of the module's row
        quint32 textSum = 0;
        bool isSplit = false; ///< its children have rows
    };
    using Rows = QHash<const orba::Node *, Row>;
    struct Plan;
    enum class Lock { Taken, Held, Impossible };

    Lock lock(QString *why);
    bool attach(QString *why);
    bool readFirst(QString *why);
    void readOnlyFirst();
    bool replaceFile(const QString &why, const QString &consequence, QString *failure);
    int takePending(std::vector<StoredRow> rows);
    void refetch(const QString &module);
    void forgetRows(qint64 module);
    std::vector<StoredRow> pendingBelow(qint64 parent) const;
    QString pendingName(const StoredRow &module) const;
    bool fillRow(const StoredRow &stored, orba::Node *parent, const Row &above, QString *why);
    void dropPending(qint64 module);
    Plan makePlan();
    void visit(Plan *plan, const orba::Node &node, const Row &above, qint64 position, int level);
    void visitChildren(Plan *plan, const orba::Node &node, const Row &row, int level);
    bool state(Plan *plan, const orba::Node &node, bool isSplit, StoredRow *stored);
    bool write(Plan *plan, QString *why);
    void schedule();
    void tell(const QString &text);
    bool failed(const QString &why, QString *error);

    QString folder_;
    std::unique_ptr<QLockFile> lock_;
    std::unique_ptr<StoreFile> file_;
    QTimer timer_;
    QStringList problems_;
    QStringList kept_;
    Rows rows_;
    std::vector<StoredRow> pending_; ///< of modules whose trees are not built, ordered by parent and position
    qint64 nextId_ = 1;
    std::array<qint64, 3> seen_{}; ///< stamp of the file that was read or written last
    bool isRead_ = false;          ///< some file was read, or there was none
    bool rewriteAll_ = false;      ///< the file is new and empty
    bool isWritable_ = false;
    QString lastFailure_;
};

} // namespace host
