#pragma once

#include "orba/module_manager.h"

#include <QCoreApplication>

class QFile;
class QIODevice;

namespace orba {
class FileWriter;
}

/// What the JSON and XML halves of ModuleManager share with each other, with the store and with the controller's state.
namespace orba::format {

/// Messages of the formats.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orba::ModuleManager)
};

/// Long enough for the shortest exact form of any double and of any 64-bit integer.
constexpr int kNumberLength = 32;

/// Writes the shortest text that reads back as the same double ("1", "0.1", "1e+22"); returns its end.
char *writeShortest(char *buffer, double value);

/// Strings that a format cannot hold travel as base64 of their UTF-16 code units, high byte first.
QByteArray toBase64(const QString &text);
/// False when it is no such text.
bool fromBase64(const QByteArray &base64, QString *text);

/// Fills an error that somebody asked for; returns false for the caller to pass on.
bool fail(FormatError *error, const QString &what, qint64 line = 0, qint64 column = 0);
/// The same for a place in UTF-8 text; columns count characters.
bool failAt(FormatError *error, const QString &what, const char *text, std::size_t offset);
bool failTooLarge(FormatError *error);
/// For work that its watch has stopped.
bool failStopped(FormatError *error);
/// "why (at path)" for a node that cannot be written.
QString refusal(const QString &why, const Node &node, const Node &root);
QString depthText();

/// Opens a regular file or resource of at most that many bytes for reading.
bool openFile(QFile *file, const ReadLimits &limits, FormatError *error);
/// The whole content of such a file.
PALX_API bool loadFile(const QString &file, const ReadLimits &limits, QByteArray *bytes, FormatError *error);
/// Writes beside the file, syncs, renames, and syncs the folder.
PALX_API bool saveFile(const QString &file, const QByteArray &bytes, FormatError *error);

/// Makes what was renamed in the folder survive a power cut. File systems that cannot do so are let off.
bool syncFolder(const QString &folder, QString *why);

bool writeJson(const Node &node, bool compact, QByteArray *out, FormatError *error);
/// Fills `node` only on success.
bool readJson(const QByteArray &text, const ReadLimits &limits, Node *node, FormatError *error);

/// One node with its name, as the items of a mixed container: {"name": ..., "value": ...}.
bool writeJsonItem(const Node &node, QByteArray *out, FormatError *error);
/// Fills name and content of a detached node; what it holds after a failure is undefined.
bool readJsonItem(const QByteArray &text, Node *item, FormatError *error);

bool writeXml(const Node &node, QByteArray *out, FormatError *error);
bool writeXml(const Node &node, FileWriter *out, const ReadLimits &limits, const Watch &watch,
              FormatError *error);
/// Fills `node` only on success. `source` can be sought in.
bool readXml(QIODevice *source, const ReadLimits &limits, const Watch &watch, Node *node, FormatError *error);

} // namespace orba::format
