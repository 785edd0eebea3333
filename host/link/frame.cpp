#include "link/frame.h"

#include "orba/module_manager.h"

#include <QCoreApplication>

#include <cstring>
#include <zlib.h>

namespace host {

using orba::Node;
using Kind = LinkMessage::Kind;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(host::Link)
};

constexpr char kMagic[] = {'P', 'X', 'L', '1'};
constexpr std::uint32_t kMaxBodyBytes = kMaxFrameBytes - kFrameHeaderBytes;

bool fail(QString *error, const QString &why)
{
    if (error)
        *error = why;
    return false;
}

// ---------------------------------------------------------------- header

/// Magic, version, kind, zero, length and checksum of the body; numbers are little-endian.
struct Header
{
    std::uint16_t version;
    std::uint8_t kind;
    std::uint8_t zero;
    std::uint32_t length;
    std::uint32_t sum;
};

std::uint32_t littleEndian(const char *bytes, int count)
{
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

void putLittleEndian(char *bytes, int count, std::uint32_t value)
{
    for (int i = 0; i < count; ++i, value >>= 8)
        bytes[i] = static_cast<char>(value & 0xff);
}

Header headerOf(const char *frame)
{
    return {static_cast<std::uint16_t>(littleEndian(frame + 4, 2)), static_cast<std::uint8_t>(frame[6]),
            static_cast<std::uint8_t>(frame[7]), littleEndian(frame + 8, 4), littleEndian(frame + 12, 4)};
}

std::uint32_t sumOf(const char *bytes, std::size_t count)
{
    return static_cast<std::uint32_t>(
        crc32(crc32(0, nullptr, 0), reinterpret_cast<const Bytef *>(bytes), static_cast<uInt>(count)));
}

bool hasMagic(const char *bytes, std::size_t count)
{
    return std::memcmp(bytes, kMagic, std::min(count, sizeof kMagic)) == 0;
}

QString lengthText(std::uint32_t length)
{
    return Texts::tr("a message of %1 bytes is longer than the %2 that are read")
        .arg(length)
        .arg(kMaxBodyBytes);
}

/// Kinds whose form stays the same in all versions, so that two versions can tell each other apart.
bool isOfEveryVersion(Kind kind)
{
    return kind == Kind::Hello || kind == Kind::Error;
}

bool checkHeader(const Header &header, std::size_t frameBytes, QString *error)
{
    if (header.zero != 0 || header.kind < static_cast<int>(Kind::Hello) ||
        header.kind > static_cast<int>(Kind::Error))
        return fail(error, Texts::tr("no message is of the kind %1").arg(header.kind + 256 * header.zero));
    if (header.version != kLinkVersion && !isOfEveryVersion(static_cast<Kind>(header.kind)))
        return fail(error, Texts::tr("the message is of version %1 of the link, only version %2 is read")
                               .arg(header.version)
                               .arg(kLinkVersion));
    if (header.length > kMaxBodyBytes)
        return fail(error, lengthText(header.length));
    if (frameBytes != kFrameHeaderBytes + header.length)
        return fail(error, Texts::tr("the message has %1 bytes where its head names %2")
                               .arg(frameBytes)
                               .arg(kFrameHeaderBytes + header.length));
    return true;
}

// ---------------------------------------------------------------- body

Node headOf(const LinkMessage &message)
{
    Node head;
    head.reset(Node::Kind::Map);
    if (message.id != 0)
        head.ensure(u"id")->setInt(static_cast<qint64>(message.id));
    if (message.knows != 0)
        head.ensure(u"knows")->setInt(static_cast<qint64>(message.knows));
    if (!message.name.isEmpty())
        head.ensure(u"name")->setString(message.name);
    if (message.status != 0)
        head.ensure(u"status")->setInt(message.status);
    if (!message.text.isEmpty())
        head.ensure(u"text")->setString(message.text);
    return head;
}

/// The value of a key that may be left out; false when it is of another kind.
const Node *valueOf(const Node &body, const char16_t *key, Node::Kind kind, QString *error)
{
    static const Node missing{};
    const Node *value = body.child(QStringView(key));
    if (!value)
        return &missing;
    if (value->kind() == kind)
        return value;
    fail(error, Texts::tr("\"%1\" is of the wrong kind").arg(QString::fromUtf16(key)));
    return nullptr;
}

bool readNumber(const Node &body, const char16_t *key, qint64 smallest, qint64 largest, qint64 *number,
                QString *error)
{
    const Node *value = valueOf(body, key, Node::Kind::Int, error);
    if (!value)
        return false;
    *number = value->toInt();
    if (*number >= smallest && *number <= largest)
        return true;
    return fail(error, Texts::tr("\"%1\" is out of range").arg(QString::fromUtf16(key)));
}

bool readText(const Node &body, const char16_t *key, QString *text, QString *error)
{
    const Node *value = valueOf(body, key, Node::Kind::String, error);
    if (value)
        *text = value->toString();
    return value != nullptr;
}

bool readBody(Node &body, LinkMessage *message, QString *error)
{
    constexpr qint64 kMax = std::numeric_limits<qint64>::max();
    constexpr qint64 kMaxStatus = std::numeric_limits<int>::max();
    qint64 id = 0;
    qint64 knows = 0;
    qint64 status = 0;
    if (body.kind() != Node::Kind::Map)
        return fail(error, Texts::tr("the message is no map of keys"));
    if (!readNumber(body, u"id", 0, kMax, &id, error) ||
        !readNumber(body, u"knows", 0, kMax, &knows, error) ||
        !readNumber(body, u"status", -kMaxStatus, kMaxStatus, &status, error) ||
        !readText(body, u"name", &message->name, error) || !readText(body, u"text", &message->text, error))
        return false;
    message->id = static_cast<std::uint64_t>(id);
    message->knows = static_cast<std::uint64_t>(knows);
    message->status = static_cast<int>(status);
    if (Node *payload = body.child(QStringView(u"payload")))
        message->payload.take(*payload);
    return true;
}

} // namespace

// ---------------------------------------------------------------- frames

std::string encodeFrame(const LinkMessage &message, QString *error)
{
    return encodeFrame(message, message.payload, error);
}

std::string encodeFrame(const LinkMessage &message, const Node &payload, QString *error)
{
    orba::FormatError why;
    const QByteArray value =
        payload.isNull() ? QByteArray() : orba::ModuleManager::toJson(payload, true, &why);
    QByteArray head = orba::ModuleManager::toJson(headOf(message), true, &why);
    if (why.isSet()) {
        fail(error, why.text());
        return {};
    }
    if (static_cast<std::size_t>(head.size()) + static_cast<std::size_t>(value.size()) > kMaxBodyBytes - 16) {
        fail(error, lengthText(static_cast<std::uint32_t>(head.size() + value.size())));
        return {};
    }
    if (!value.isEmpty()) { // spliced in as text, so that a large payload is never copied as nodes
        head.chop(1);
        head += head.size() > 1 ? ",\"payload\":" : "\"payload\":";
    }
    std::string frame;
    frame.reserve(kFrameHeaderBytes + static_cast<std::size_t>(head.size() + value.size()) + 1);
    frame.assign(kFrameHeaderBytes, '\0');
    frame.append(head.constData(), static_cast<std::size_t>(head.size()));
    frame.append(value.constData(), static_cast<std::size_t>(value.size()));
    if (!value.isEmpty())
        frame.push_back('}');
    const std::size_t length = frame.size() - kFrameHeaderBytes;
    std::memcpy(frame.data(), kMagic, sizeof kMagic);
    putLittleEndian(frame.data() + 4, 2, message.version);
    frame[6] = static_cast<char>(message.kind);
    putLittleEndian(frame.data() + 8, 4, static_cast<std::uint32_t>(length));
    putLittleEndian(frame.data() + 12, 4, sumOf(frame.data() + kFrameHeaderBytes, length));
    return frame;
}

bool decodeFrame(const std::string &frame, LinkMessage *message, QString *error)
{
    if (!hasMagic(frame.data(), frame.size()))
        return fail(error, Texts::tr("these bytes are no message of the link"));
    if (frame.size() < kFrameHeaderBytes)
        return fail(error, Texts::tr("the message is cut off in its head"));
    const Header header = headerOf(frame.data());
    if (!checkHeader(header, frame.size(), error))
        return false;
    if (sumOf(frame.data() + kFrameHeaderBytes, header.length) != header.sum)
        return fail(error, Texts::tr("the message was damaged on its way"));
    orba::FormatError why;
    orba::ReadLimits limits;
    limits.maxBytes = kMaxBodyBytes;
    Node body;
    if (!orba::ModuleManager::fromJson(
            QByteArray::fromRawData(frame.data() + kFrameHeaderBytes, static_cast<int>(header.length)), &body,
            &why, limits))
        return fail(error, why.text());
    LinkMessage read;
    read.kind = static_cast<Kind>(header.kind);
    read.version = header.version;
    if (!readBody(body, &read, error))
        return false;
    *message = std::move(read);
    return true;
}

// ---------------------------------------------------------------- streams

void FrameReader::append(const char *bytes, std::size_t count)
{
    if (error_.isEmpty()) // nothing of a broken stream is kept
        buffer_.append(bytes, count);
}

bool FrameReader::next(std::string *frame)
{
    const std::size_t there = pending();
    if (!error_.isEmpty() || there == 0)
        return false;
    const char *begin = buffer_.data() + start_;
    const bool isKnown = hasMagic(begin, there);
    const std::uint32_t length = isKnown && there >= kFrameHeaderBytes ? headerOf(begin).length : 0;
    if (!isKnown || length > kMaxBodyBytes) {
        error_ = isKnown ? lengthText(length) : Texts::tr("these bytes are no message of the link");
        buffer_ = std::string();
        start_ = 0;
        return false;
    }
    const std::size_t size = kFrameHeaderBytes + length;
    if (there < size)
        return false;
    if (start_ == 0 && there == size) {
        *frame = std::move(buffer_);
        buffer_ = std::string();
        return true;
    }
    frame->assign(begin, size);
    start_ += size;
    compact();
    return true;
}

/// Gives read bytes back once they are most of what is held.
void FrameReader::compact()
{
    if (start_ < buffer_.size() && start_ < buffer_.size() / 2)
        return;
    buffer_.erase(0, start_);
    start_ = 0;
    if (buffer_.capacity() > 2 * buffer_.size() + 65536) // one large message must not hold its room for ever
        buffer_.shrink_to_fit();
}

} // namespace host
