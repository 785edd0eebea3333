#pragma once

#include "orba/export.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace palx {

/// Why a file system ("vfat") cannot keep a file or folder of that name, for the operator; empty when it can. An unknown file
/// system is taken for one that Linux writes by itself.
PALX_API QString nameRefusal(const QString &name, const QString &fileSystem);

/// One choice of "XML (*.xml);;All files (*)".
struct PALX_API FileFilter
{
    QString title;        ///< as given: "XML (*.xml)"
    QStringList patterns; ///< "*.xml"; empty lets every name through

    bool matches(const QString &name) const;
    /// The name with the first pattern's suffix when no pattern matches it.
    QString completed(const QString &name) const;
};

/// At least one; an empty text is one that lets every name through.
PALX_API QVector<FileFilter> parseFilters(const QString &filter);

} // namespace palx
