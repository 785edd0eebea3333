#include "shell/library_file.h"

#include <QCoreApplication>
#include <QFile>

#include <cstring>
#include <elf.h>
#include <link.h>

namespace host {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(host::LibraryFile)
};

template <typename T> bool readAt(QFile &file, quint64 offset, T *record)
{
    return file.seek(static_cast<qint64>(offset)) &&
           file.read(reinterpret_cast<char *>(record), sizeof(T)) == static_cast<qint64>(sizeof(T));
}

/// Where the last byte lies that the loader maps, or 0 when the table of segments cannot be read.
quint64 mappedEnd(QFile &file, const Header &header)
{
    quint64 end = 0;
    for (int i = 0; i < header.e_phnum; ++i) {
        Segment segment;
        if (!readAt(file, header.e_phoff + static_cast<quint64>(i) * header.e_phentsize, &segment))
            return 0;
        if (segment.p_type == PT_LOAD)
            end = qMax(end, static_cast<quint64>(segment.p_offset) + segment.p_filesz);
    }
    return end;
}

} // namespace

QString libraryFault(const QString &file)
{
    QFile library(file);
    if (!library.open(QIODevice::ReadOnly))
        return library.errorString();
    Header header;
    if (!readAt(library, 0, &header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return Text::tr("it is no library");
    const quint64 end = mappedEnd(library, header);
    if (end == 0 || end > static_cast<quint64>(library.size()))
        return Text::tr("the file is incomplete: it has %1 bytes, %2 are needed")
            .arg(library.size())
            .arg(end);
    return {};
}

} // namespace host
