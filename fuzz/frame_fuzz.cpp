// The reader of the controller link: whatever bytes come, it refuses them with a reason or reads a message
// that it writes and reads again as the same.

#include "link/frame.h"
#include "link/path_write.h"

#include <cstdlib>
#include <cstring>
#include <zlib.h>

using host::LinkMessage;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool isSame(const LinkMessage &a, const LinkMessage &b)
{
    return a.kind == b.kind && a.id == b.id && a.knows == b.knows && a.name == b.name &&
           a.status == b.status && a.text == b.text && a.payload == b.payload && a.version == b.version;
}

void readFrame(const std::string &frame)
{
    LinkMessage message;
    QString error;
    if (!host::decodeFrame(frame, &message, &error)) {
        require(!error.isEmpty());
        return;
    }
    LinkMessage again;
    const std::string written = host::encodeFrame(message, &error);
    require(!written.empty() && host::decodeFrame(written, &again, &error) && isSame(message, again));
    orba::Node tree; // where the two sides put what came
    tree.ensure(u"quill.project.var._list")->reset(orba::Node::Kind::List);
    host::applyWrite(tree, message.name, message.payload);
}

/// The bytes as the body of a frame with a right head, so that what lies behind the checksum is reached.
std::string frameAround(const char *body, std::size_t size, std::uint8_t kind)
{
    std::string frame("PXL1\1\0\0\0", 8);
    frame[6] = static_cast<char>(kind);
    const auto put = [&frame](std::uint32_t value) {
        for (int i = 0; i < 4; ++i)
            frame.push_back(static_cast<char>(value >> (8 * i)));
    };
    put(static_cast<std::uint32_t>(size));
    put(static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef *>(body), static_cast<uInt>(size))));
    return frame.append(body, size);
}

/// The bytes as a stream in pieces of a few lengths.
void readStream(const char *bytes, std::size_t size, std::size_t piece)
{
    host::FrameReader reader;
    std::string frame;
    for (std::size_t at = 0; at < size; at += piece) {
        reader.append(bytes + at, std::min(piece, size - at));
        while (reader.next(&frame))
            readFrame(frame);
        require(reader.pending() <= at + piece);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::uint8_t way = data[0];
    const char *bytes = reinterpret_cast<const char *>(data) + 1;
    --size;
    if (way < 128)
        readFrame(frameAround(bytes, size, way % 12));
    else if (way < 192)
        readStream(bytes, size, way % 64 + 1u);
    else
        readFrame(std::string(bytes, size));
    return 0;
}
