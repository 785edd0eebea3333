#pragma once

#include "orba/node.h"

#include <QStringList>

#include <memory>

namespace controller {

/// The controller's state on disk: small trees in files of their own. A file is written beside, synced and renamed, and
/// begins with the length and checksum of what follows, so that it is read whole or known to be damaged. Damaged files are
/// set aside with a dated name and reported, never deleted.
///
/// One process at a time. One thread.
class StateFolder
{
public:
    /// Makes the folder. Null with a reason when it cannot be used or another controller uses it.
    static std::unique_ptr<StateFolder> open(const QString &folder, QString *why);
    ~StateFolder();
    StateFolder(const StateFolder &) = delete;
    StateFolder &operator=(const StateFolder &) = delete;

    enum class Found { Good, Missing, Damaged };
    /// `name` may lie in a folder below ("recipes/1.state"). Fills `node` only when good.
    Found read(const QString &name, orba::Node *node);
    /// False with a reason; the old file then stands.
    bool write(const QString &name, const orba::Node &node, QString *why);
    void remove(const QString &name);
    /// Names of the files of a folder below, "1.state" and the like.
    QStringList files(const QString &subfolder) const;

    /// What was set aside since opening, for the operator.
    const QStringList &reports() const { return reports_; }
    void report(const QString &text) { reports_.append(text); }

private:
    StateFolder(QString folder, int lock) : folder_(std::move(folder)), lock_(lock) {}
    void signLock() const;
    QString pathOf(const QString &name) const;
    void setAside(const QString &name, const QString &why);

    QString folder_;
    QStringList reports_;
    int lock_; ///< descriptor of the file that is locked
};

} // namespace controller
