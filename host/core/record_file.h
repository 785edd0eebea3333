#pragma once

#include "orba/node.h"

#include <QString>

#include <vector>

namespace host {

/// Log records in a file, one JSON object per line, so that they survive the end of the process. A record is one write
/// call; the system brings it to the disk within seconds. When the file holds more than twice the kept number, it is
/// written anew, whole or not at all.
class PALX_API RecordFile
{
public:
    /// Keeps the newest `most` records. Nothing is opened yet.
    RecordFile(QString file, int most);

    /// The newest records, oldest first; a missing file has none. A line that is no record, as a power cut may leave
    /// one, is left out. False, with a reason, when the file cannot be read.
    bool read(std::vector<orba::Node> *records, QString *why);
    /// False, with a reason, when the record could not be written. Makes the folder.
    bool append(const orba::Node &record, QString *why);
    bool clear(QString *why);

private:
    bool compact(QString *why);

    QString file_;
    int most_;
    int lines_ = 0;           ///< in the file
    bool endsInLine_ = false; ///< the last line lacks its end
};

} // namespace host
