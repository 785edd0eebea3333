#pragma once

#include "orba/module_manager.h"

#include <QSaveFile>

namespace orba {

/// Writes a file piece by piece under a temporary name beside it, and gives it its name when it is whole and on the
/// disk. A writer that ends before, fails or is killed leaves the file of that name as it was.
class FileWriter
{
public:
    explicit FileWriter(const QString &file) : target_(file) {}

    // Each fails with the reason, without the file's name.
    bool open(FormatError *error);
    bool write(const char *bytes, qint64 size, FormatError *error);
    /// Syncs, renames, and syncs the folder.
    bool commit(FormatError *error);

private:
    bool refuse(const QString &why, FormatError *error);

    QSaveFile target_;
};

} // namespace orba
