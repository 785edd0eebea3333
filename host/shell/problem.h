#pragma once

#include "orba/export.h"

#include <QString>

namespace host {

/// Something that failed while the host started or ran: kept as data, so that a panel can show it as a row
/// and a command can print it.
struct PALX_API Problem
{
    QString what;  ///< what did not work, one sentence
    QString where; ///< file, folder or key it concerns; may be empty
    QString why;   ///< the reason, the library's or system's own words; may be empty
    /// "what: where: why"
    QString text() const;
};

} // namespace host
