#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QString>

/// The program templates on disk: the folder "mod" in the program's folder, which is used instead of the built-in ones.
namespace palx {

enum class TemplateAction {
    None,
    Reset, ///< the folder "mod" goes, so that the built-in templates are used
    Custom ///< it is replaced by an archive's contents
};

/// What an import did to the folder "mod", to be undone.
class TemplateChange
{
public:
    TemplateChange() = default;
    /// Removes what was kept.
    ~TemplateChange() { forget(); }
    TemplateChange(const TemplateChange &) = delete;
    TemplateChange &operator=(const TemplateChange &) = delete;

    /// Removes "mod". Logs and reports. Nothing is made to be undone when there was none.
    bool reset(const QString &programFolder);
    /// Replaces "mod" by what is in an archive; one that holds a single folder gives what is in that. Logs and reports. False
    /// when nothing was changed: it was cancelled, or there is no template of ours in the archive.
    bool replace(const QString &programFolder, const QString &archive, Progress *progress);

    bool isMade() const { return !programFolder_.isEmpty(); }
    /// Whether what was made is a reset.
    bool isReset() const { return isReset_; }
    /// Puts the folder back as it was.
    bool undo();
    void forget();

    /// Puts "mod" back when a process was killed while it replaced it, and removes what else such a one left. What a running
    /// process keeps stays.
    static void recover(const QString &programFolder);

private:
    bool keepOld(const QString &programFolder);

    QString programFolder_; ///< empty: nothing was changed
    QString kept_;          ///< the "mod" of before; empty: there was none
    bool isReset_ = false;
};

} // namespace palx
