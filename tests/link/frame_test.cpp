#include "link/frame.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <tuple>

using host::decodeFrame;
using host::encodeFrame;
using host::FrameReader;
using host::LinkMessage;
using Kind = LinkMessage::Kind;

namespace {

LinkMessage sample()
{
    LinkMessage message;
    message.kind = Kind::Request;
    message.id = 7;
    message.knows = 1ull << 40;
    message.name = QStringLiteral("pallet.set.one");
    message.payload =
        nodeFromJson(R"({"name": "A.b#1", "trans": [0.1, -2.5e-300, 3.0], "conf": [1, 2], "empty": []})");
    return message;
}

/// What reading refuses these bytes for; empty when they are taken.
QString refusal(const std::string &frame)
{
    LinkMessage message;
    QString error;
    const bool read = decodeFrame(frame, &message, &error);
    EXPECT_EQ(read, error.isEmpty());
    return error;
}

std::string withSum(std::string frame)
{
    // CRC-32, written out here so that the codec is not measured by itself
    std::uint32_t sum = 0xffffffff;
    for (std::size_t i = host::kFrameHeaderBytes; i < frame.size(); ++i) {
        sum ^= static_cast<unsigned char>(frame[i]);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xedb88320 : 0);
    }
    for (int i = 0; i < 4; ++i)
        frame[12 + static_cast<std::size_t>(i)] = static_cast<char>(~sum >> (8 * i));
    return frame;
}

/// What a Ping of this body is refused for.
QString bodyRefusal(const std::string &body)
{
    std::string head("PXL1\1\0\10\0????????", 16);
    for (std::size_t i = 0; i < 4; ++i)
        head[8 + i] = static_cast<char>(body.size() >> (8 * i));
    return refusal(withSum(head + body));
}

} // namespace

TEST(Frame, EveryKindComesBackAsItWas)
{
    for (int kind = 1; kind <= static_cast<int>(Kind::Error); ++kind) {
        LinkMessage sent = sample();
        sent.kind = static_cast<Kind>(kind);
        sent.status = -kind;
        sent.text = QString::fromUtf8("gr\xc3\xbc\xc3\x9f dich \"x\"\n");
        if (sent.kind == Kind::Hello || sent.kind == Kind::Error)
            sent.version = 9; // are read from every version
        const orba::Node payload = sent.payload;
        LinkMessage got;
        QString error;
        ASSERT_TRUE(decodeFrame(encodeFrame(sent), &got, &error)) << error;
        EXPECT_EQ(std::tie(got.kind, got.id, got.knows, got.version),
                  std::tie(sent.kind, sent.id, sent.knows, sent.version));
        EXPECT_EQ(std::tie(got.name, got.status, got.text), std::tie(sent.name, sent.status, sent.text));
        EXPECT_EQ(got.payload, sent.payload);
        sent.payload = orba::Node();
        EXPECT_EQ(encodeFrame(sent, payload), encodeFrame(got)) << "a payload from elsewhere";
    }
}

TEST(Frame, TheBytesAreTheDescribedOnes)
{
    LinkMessage ping;
    EXPECT_EQ(encodeFrame(ping), withSum(std::string("PXL1\1\0\10\0\2\0\0\0????{}", 18)));
    ping.kind = Kind::Trigger;
    ping.id = 3;
    ping.name = QStringLiteral("quill.project.rsync.build");
    ping.payload.setBool(true);
    const std::string frame = encodeFrame(ping);
    EXPECT_EQ(frame, withSum(frame)); // the checksum is zlib's
    EXPECT_EQ(frame.substr(host::kFrameHeaderBytes),
              R"({"id":3,"name":"quill.project.rsync.build","payload":true})");
}

TEST(Frame, DamageIsNoticedWhereverItIs)
{
    const std::string frame = encodeFrame(sample());
    EXPECT_TRUE(refusal(frame).isEmpty());
    EXPECT_FALSE(refusal(frame + "x").isEmpty());
    for (std::size_t i = 0; i < frame.size(); ++i) {
        EXPECT_FALSE(refusal(frame.substr(0, i)).isEmpty()) << i << " bytes";
        std::string damaged = frame;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x20);
        EXPECT_TRUE(i == 6 || !refusal(damaged).isEmpty()) << "byte " << i; // another kind may be right, too
    }
}

TEST(Frame, HeadsAreRefusedForTheirReason)
{
    const struct
    {
        std::size_t at;
        std::string bytes;
        const char *why;
    } cases[] = {
        {0, "PXL2", "no message of the link"},
        {4, std::string("\0\1", 2), "version 256"},
        {6, std::string(1, '\0'), "kind 0"},
        {6, "\12", "kind 10"},
        {8, std::string("\0\0\0\x10", 4), "longer than"}, // 256 MB and the head above it
        {8, std::string("\1\0\0\0", 4), "its head names 17"},
        {12, std::string(4, '\0'), "damaged"},
    };
    LinkMessage message = sample();
    for (const auto &item : cases) {
        std::string frame = encodeFrame(sample());
        frame.replace(item.at, item.bytes.size(), item.bytes);
        EXPECT_TRUE(refusal(frame).contains(QLatin1String(item.why))) << item.why << ": " << refusal(frame);
        EXPECT_FALSE(decodeFrame(frame, &message));
    }
    EXPECT_EQ(message.payload, sample().payload); // is left alone
}

TEST(Frame, BodiesAreRefusedForTheirReason)
{
    const struct
    {
        const char *body, *why;
    } cases[] = {
        {"[1,2,3,4,5,6]", "no map"},
        {"{\"id\":-1}", "\"id\" is out of range"},
        {"{\"id\":1.0}", "\"id\" is of the wrong kind"},
        {"{\"name\":null}", "\"name\" is of the wrong kind"},
        {"{\"status\":4294967296}", "\"status\" is out of range"},
        {"{\"payload\":nan}", ""},
        {"{\"payload\":", ""},
    };
    for (const auto &item : cases) {
        const QString why = bodyRefusal(item.body);
        EXPECT_FALSE(why.isEmpty()) << item.body;
        EXPECT_TRUE(why.contains(QLatin1String(item.why))) << item.body << ": " << why;
    }
    const std::string deep = "{\"payload\":" + std::string(400, '[') + std::string(400, ']') + "}";
    EXPECT_TRUE(bodyRefusal(deep).contains(QStringLiteral("256")));
    EXPECT_EQ(bodyRefusal("{\"later\": [1, {\"x\": 2}]}"), QString()); // keys of a later form are let be
}

TEST(FrameReader, ABrokenStreamStaysBrokenAndHoldsNothing)
{
    const std::string good = encodeFrame(sample());
    std::string huge = good;
    std::string frame;
    huge.replace(8, 4, "\xff\xff\xff\xff");
    for (const std::string &bytes : {std::string("G"), std::string("GET / HTTP/1.1\r\n\r\n"), huge}) {
        FrameReader reader;
        reader.append(good.data(), good.size());
        reader.append(bytes.data(), bytes.size());
        EXPECT_TRUE(reader.next(&frame));
        EXPECT_EQ(frame, good);
        EXPECT_FALSE(reader.next(&frame));
        EXPECT_FALSE(reader.error().isEmpty());
        reader.append(good.data(), good.size());
        EXPECT_FALSE(reader.next(&frame));
        EXPECT_EQ(reader.pending(), 0u);
    }
    huge.replace(8, 4, std::string("\0\0\xff\x0f", 4)); // nearly 256 MB, which only the head claims
    FrameReader reader;
    reader.append(huge.data(), host::kFrameHeaderBytes);
    EXPECT_FALSE(reader.next(&frame));
    EXPECT_TRUE(reader.error().isEmpty());
    EXPECT_LT(reader.held(), 4096u);
}
