#pragma once

#include "orba/export.h"

#include <QString>

namespace orba {

/// A log line's way to the console and to a file.
///
/// A line is: header, one blank, text, footer. It goes to standard error, with the colour prefix in front and
/// the reset sequence behind when standard error is a terminal, and, when a file is named, without colour to
/// "<file>.<kind>". A relative file name lies below the folder of the setting "data"; while that setting is
/// empty nothing is written to a file. Each line is one write call in append mode, so lines of several
/// processes do not mix. Line breaks inside the text are written as "\n" so that one record stays one line,
/// other control characters as
/// "?".
///
/// A file that would grow beyond kRotateBytes is renamed to "<file>.<kind>.1" first, the older one to ".2";
/// what was
/// ".2" ends. A file that cannot be written is reported once per file on the console; lines still reach the
/// console.
class PALX_API QFLog
{
public:
    // Three such files fit the smallest panel's data partition.
    static constexpr qint64 kRotateBytes = 2LL * 1024 * 1024;
    static constexpr int kKeptFiles = 2;

    /// `prefix` is a terminal colour sequence or empty. An empty `file` writes to the console only. The
    /// file's place is fixed here, by the settings of this moment; GUI thread.
    QFLog(const QString &prefix, const QString &header, const QString &footer = QString(),
          const QString &file = QString(), const QString &kind = QString());

    /// Writes one line. Any thread.
    void write(const QString &text) const;
    /// The file this logger writes to, or empty.
    QString filePath() const { return filePath_; }

private:
    QString prefix_;
    QString header_;
    QString footer_;
    QString filePath_;
};

} // namespace orba
