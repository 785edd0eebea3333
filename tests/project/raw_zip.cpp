#include "raw_zip.h"

#include <zlib.h>

namespace {

void put(QByteArray *bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes->append(static_cast<char>(value >> (8 * i)));
}

std::uint32_t checksum(const RawEntry &entry)
{
    return entry.checksum.value_or(static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef *>(entry.data.constData()), uInt(entry.data.size()))));
}

/// What the head of an entry and its line in the list share.
void putCommon(QByteArray *bytes, const RawEntry &entry)
{
    put(bytes, 20, 2);
    put(bytes, entry.flags, 2);
    put(bytes, entry.method, 2);
    put(bytes, 0x58210000, 4); // some day
    put(bytes, checksum(entry), 4);
    put(bytes, std::uint32_t(entry.data.size()), 4);
    put(bytes, entry.size.value_or(std::uint32_t(entry.data.size())), 4);
    put(bytes, std::uint32_t(entry.name.size()), 2);
    put(bytes, 0, 2);
}

} // namespace

QByteArray rawZip(const std::vector<RawEntry> &entries)
{
    QByteArray bytes;
    QByteArray list;
    for (const RawEntry &entry : entries) {
        const auto at = std::uint32_t(bytes.size());
        bytes += "PK\3\4";
        putCommon(&bytes, entry);
        bytes += entry.name + entry.data;
        list += "PK\1\2";
        put(&list, 0x0314, 2); // written by Unix
        putCommon(&list, entry);
        put(&list, 0, 4); // comment, disk
        put(&list, 0, 2);
        put(&list, entry.mode << 16 | entry.dosAttributes, 4);
        put(&list, at, 4);
        list += entry.name;
    }
    const auto at = std::uint32_t(bytes.size());
    bytes += list + "PK\5\6";
    put(&bytes, 0, 4);
    put(&bytes, std::uint32_t(entries.size()), 2);
    put(&bytes, std::uint32_t(entries.size()), 2);
    put(&bytes, std::uint32_t(list.size()), 4);
    put(&bytes, at, 4);
    put(&bytes, 0, 2);
    return bytes;
}

RawEntry zeros(const QByteArray &name, int size)
{
    const QByteArray plain(size, '\0');
    RawEntry entry{name, QByteArray(), 0100644, 0, 8, std::uint32_t(size), 0, 0};
    entry.data = qCompress(plain).mid(6).chopped(4); // without the length and the frame around the stream
    entry.checksum = std::uint32_t(crc32(0, reinterpret_cast<const Bytef *>(plain.constData()), uInt(size)));
    return entry;
}
