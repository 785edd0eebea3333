#include "core/record_file.h"

#include "orba/format_detail.h"
#include "orba/module_manager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace host {

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

RecordFile::RecordFile(QString file, int most) : file_(std::move(file)), most_(most) {}

bool RecordFile::read(std::vector<Node> *records, QString *why)
{
    records->clear();
    lines_ = 0;
    endsInLine_ = false;
    if (!QFileInfo::exists(file_))
        return true;
    QByteArray bytes;
    FormatError error;
    if (!orba::format::loadFile(file_, orba::ReadLimits(), &bytes, &error)) {
        *why = QStringLiteral("%1: %2").arg(file_, error.what);
        return false;
    }
    endsInLine_ = !bytes.isEmpty() && !bytes.endsWith('\n');
    const QList<QByteArray> lines = bytes.split('\n');
    lines_ = lines.size();
    for (const QByteArray &line : lines) {
        Node record;
        if (ModuleManager::fromJson(line, &record) && !record.getString(u"title").isEmpty())
            records->push_back(std::move(record));
    }
    if (records->size() > static_cast<std::size_t>(most_))
        records->erase(records->begin(), records->end() - most_);
    return true;
}

bool RecordFile::append(const Node &record, QString *why)
{
    QFile target(file_);
    QDir().mkpath(QFileInfo(file_).path()); // opening says why, when there is no folder
    if (!target.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        *why = QStringLiteral("%1: %2").arg(file_, target.errorString());
        return false;
    }
    QByteArray line = ModuleManager::toJson(record, true) + '\n';
    if (endsInLine_)
        line.prepend('\n');
    const qint64 written = target.write(line);
    endsInLine_ = written != line.size() && (written > 0 || endsInLine_);
    if (written != line.size()) {
        *why = QStringLiteral("%1: %2").arg(file_, target.errorString());
        return false;
    }
    target.close();
    return ++lines_ <= 2 * most_ || compact(why);
}

bool RecordFile::clear(QString *why)
{
    lines_ = 0;
    endsInLine_ = false;
    QFile file(file_);
    if (!file.exists() || file.remove())
        return true;
    *why = QStringLiteral("%1: %2").arg(file_, file.errorString());
    return false;
}

bool RecordFile::compact(QString *why)
{
    std::vector<Node> records;
    if (!read(&records, why))
        return false;
    QByteArray bytes;
    for (const Node &record : records)
        bytes += ModuleManager::toJson(record, true) + '\n';
    FormatError error;
    if (!orba::format::saveFile(file_, bytes, &error)) {
        *why = QStringLiteral("%1: %2").arg(file_, error.what);
        return false;
    }
    lines_ = static_cast<int>(records.size());
    return true;
}

} // namespace host
