#pragma once

#include "orba/module_object.h"

#include <QByteArray>

#include <functional>

namespace orba {

/// What a refused read or write says: what, where, why.
struct PALX_API FormatError
{
    QString file;           ///< empty for text from memory
    QString what;           ///< the reason, one sentence without the place
    qint64 line = 0;        ///< from 1; 0 when the fault has no place in the text
    qint64 column = 0;      ///< from 1
    bool isStopped = false; ///< nothing is wrong; the watch wanted no more
    bool isSet() const { return !what.isEmpty(); }
    /// "file:line:column: what"
    QString text() const;
};

/// Limits for reading from outside; what is written keeps them too, because nobody could read it back.
struct PALX_API ReadLimits
{
    static constexpr int kMaxDepth = 256;
    qint64 maxBytes = 64LL * 1024 * 1024;
};

/// Is told from time to time, several times per megabyte, how much of long reading (bytes) or writing (nodes) is done.
/// By false it stops the work, which then fails and leaves everything as it was.
using Watch = std::function<bool(qint64 done, qint64 total)>;

/// Writes node trees as JSON and XML text and reads them back without loss: kinds, order, names (null, empty,
/// equal), any string, doubles in their shortest exact form. Integers stay integers, 1.0 stays a double.
///
/// A failed read changes nothing: the target is filled only when the whole text was accepted. A file is written to a
/// temporary name beside it, synced, and renamed, so a failed write leaves the old file.
/// All functions are safe on any thread for trees without handles.
class PALX_API ModuleManager
{
public:
    /// JSON: arrays are lists, objects are maps, equal keys are kept. A container that mixes named and unnamed
    /// children is an object {"#mixed": "list"|"map", "#items": [{"name": ..., "value": ...}, ...]}; a name that
    /// begins with "#" is written with one more "#". A text with half a surrogate pair is {"#utf16": base64}. NaN and
    /// infinities are refused both ways.
    static QByteArray toJson(const Node &node, bool compact, FormatError *error = nullptr);
    static bool fromJson(const QByteArray &text, Node *node, FormatError *error = nullptr,
                         const ReadLimits &limits = ReadLimits());
    static bool writeToJson(const Node &node, const QString &file, FormatError *error = nullptr);
    static bool readFromJson(const QString &file, Node *node, FormatError *error = nullptr,
                             const ReadLimits &limits = ReadLimits());

    /// XML: <node name="..." type="null|bool|int|double|string|doubles|list|map">; see docs/formats.md.
    static QByteArray toXml(const Node &node, FormatError *error = nullptr);
    static bool fromXml(const QByteArray &text, Node *node, FormatError *error = nullptr,
                        const ReadLimits &limits = ReadLimits());
    static bool writeToXmlFile(const Node &node, const QString &file, FormatError *error = nullptr);
    static bool readFromXmlFile(const QString &file, Node *node, FormatError *error = nullptr,
                                const ReadLimits &limits = ReadLimits());

    /// The same in pieces: beside the tree they hold no more of the file than one of them.
    static bool writeToXmlFile(const Node &node, const QString &file, FormatError *error,
                               const ReadLimits &limits, const Watch &watch);
    static bool readFromXmlFile(const QString &file, Node *node, FormatError *error, const ReadLimits &limits,
                                const Watch &watch);

    // The same on handles; reading replaces the node's content and announces it.
    static bool writeToXmlFile(const ModuleObject *mobj, const QString &file, FormatError *error = nullptr);
    static bool readFromXmlFile(const QString &file, ModuleObject *mobj, FormatError *error = nullptr);
    static bool writeToJson(const ModuleObject *mobj, const QString &file, FormatError *error = nullptr);
    static bool readFromJson(const QString &file, ModuleObject *mobj, FormatError *error = nullptr);
};

} // namespace orba
