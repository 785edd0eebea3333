#pragma once

#include "panel/log_model.h"

namespace panel {

/// Log records as a table for spreadsheets: UTF-8 with a byte-order mark, a header line, comma separated, every field in
/// quotes, newest first. The words of the file do not follow the panel's language, so that programs can read it.
QByteArray logAsCsv(const QVector<LogRecord> &records);
/// The same for reading: one line per record, columns separated by tabs.
QByteArray logAsText(const QVector<LogRecord> &records);

/// Writes the file whole or not at all: text for a name that ends in ".txt", else the table. Makes the folder. Returns
/// why not, empty when done.
QString exportLog(const QVector<LogRecord> &records, const QString &file);

/// Where exports are offered: first the setting "export", else "export" in the data folder, else the temporary folder;
/// then the removable media that can be written now.
QStringList exportFolders();

} // namespace panel
