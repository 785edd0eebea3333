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

/// A part of a packed stream that ends at a byte.
QByteArray packedZeros(int size)
{
    const QByteArray plain(size, '\0');
    QByteArray packed(size / 100 + 1000, Qt::Uninitialized);
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
    stream.avail_in = uInt(size);
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FULL_FLUSH);
    packed.chop(int(stream.avail_out));
    deflateEnd(&stream);
    return packed;
}

} // namespace

QByteArray rawZip(const std::vector<RawEntry> &entries, const QByteArray &comment)
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
    put(&bytes, std::uint32_t(comment.size()), 2);
    return bytes + comment;
}

RawEntry zeros(const QByteArray &name, qint64 size)
{
    constexpr int kPiece = 1 << 20;
    RawEntry entry{name, QByteArray(), 0100644, 0, 8, std::uint32_t(size), 0, 0};
    const QByteArray piece = packedZeros(kPiece); // pieces that stand for themselves can be strung together
    const auto pieceSum =
        crc32(0, reinterpret_cast<const Bytef *>(QByteArray(kPiece, '\0').constData()), kPiece);
    auto sum = crc32(0, nullptr, 0);
    for (qint64 i = 0; i < size / kPiece; ++i) {
        entry.data += piece;
        sum = crc32_combine(sum, pieceSum, kPiece);
    }
    const QByteArray rest(int(size % kPiece), '\0');
    entry.data += packedZeros(rest.size()) + QByteArray("\3\0", 2); // an empty block is the end
    entry.checksum =
        std::uint32_t(crc32(sum, reinterpret_cast<const Bytef *>(rest.constData()), uInt(rest.size())));
    return entry;
}
