#include "link/frame.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

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

/// A frame with that body and a right head.
std::string frameAround(const std::string &body, Kind kind = Kind::Ping)
{
    LinkMessage filler;
    filler.kind = kind;
    filler.text = QString(static_cast<int>(body.size()) - 11, QLatin1Char('x')); // {"text":"x"}
    std::string frame = encodeFrame(filler);
    EXPECT_EQ(frame.size(), host::kFrameHeaderBytes + body.size());
    return frame.replace(host::kFrameHeaderBytes, std::string::npos, body);
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

QString bodyRefusal(const char *body, Kind kind = Kind::Ping)
{
    std::string padded(body);
    while (padded.size() < 12)
        padded.push_back(' ');
    return refusal(withSum(frameAround(padded, kind)));
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
        EXPECT_EQ(got.kind, sent.kind);
        EXPECT_EQ(got.id, sent.id);
        EXPECT_EQ(got.knows, sent.knows);
        EXPECT_EQ(got.name, sent.name);
        EXPECT_EQ(got.status, sent.status);
        EXPECT_EQ(got.text, sent.text);
        EXPECT_EQ(got.payload, sent.payload);
        EXPECT_EQ(got.version, sent.version);
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

TEST(Frame, APayloadThatHasNoFormIsRefusedWithItsPlace)
{
    LinkMessage message;
    message.payload.ensure(u"put.ready_h")->setDouble(std::numeric_limits<double>::quiet_NaN());
    QString error;
    EXPECT_TRUE(encodeFrame(message, &error).empty());
    EXPECT_TRUE(error.contains(QStringLiteral("put.ready_h"))) << error;
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
        {7, "\1", "kind"},
        {8, "\xff\xff\xff\xff", "longer than"},
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
        {"{\"id\":-1   }", "\"id\" is out of range"},
        {"{\"id\":1.0   }", "\"id\" is of the wrong kind"},
        {"{\"id\":99999999999999999999}", "64 bits"},
        {"{\"knows\":\"1\"}", "\"knows\" is of the wrong kind"},
        {"{\"name\":null}", "\"name\" is of the wrong kind"},
        {"{\"status\":4294967296}", "\"status\" is out of range"},
        {"{\"payload\":nan}", ""},
        {"{\"payload\":1e999}", ""},
        {"{\"payload\":\"\xff\xff\"}", ""},
        {"{\"payload\":", ""},
    };
    for (const auto &item : cases) {
        const QString why = bodyRefusal(item.body);
        EXPECT_FALSE(why.isEmpty()) << item.body;
        EXPECT_TRUE(why.contains(QLatin1String(item.why))) << item.body << ": " << why;
    }
    const std::string deep =
        std::string("{\"payload\":") + std::string(400, '[') + std::string(400, ']') + "}";
    EXPECT_TRUE(bodyRefusal(deep.c_str()).contains(QStringLiteral("256"))) << bodyRefusal(deep.c_str());
    EXPECT_EQ(bodyRefusal("{\"later\": [1, {\"x\": 2}]}"), QString()); // keys of a later form are let be
}

// ---------------------------------------------------------------- streams

namespace {

std::vector<std::string> read(FrameReader &reader)
{
    std::vector<std::string> frames;
    std::string frame;
    while (reader.next(&frame))
        frames.push_back(frame);
    return frames;
}

} // namespace

TEST(FrameReader, ABrokenStreamStaysBrokenAndHoldsNothing)
{
    const std::string good = encodeFrame(sample());
    std::string huge = good;
    huge.replace(8, 4, "\xff\xff\xff\xff");
    for (const std::string &bytes : {std::string("G"), std::string("GET / HTTP/1.1\r\n\r\n"), huge}) {
        FrameReader reader;
        reader.append(good.data(), good.size());
        reader.append(bytes.data(), bytes.size());
        EXPECT_EQ(read(reader), std::vector<std::string>{good});
        EXPECT_FALSE(reader.error().isEmpty());
        reader.append(good.data(), good.size());
        EXPECT_TRUE(read(reader).empty());
        EXPECT_EQ(reader.pending(), 0u);
    }
    huge.replace(8, 4, std::string("\0\0\xff\x0f", 4)); // nearly 256 MB, which only the head claims
    FrameReader reader;
    reader.append(huge.data(), host::kFrameHeaderBytes);
    EXPECT_TRUE(read(reader).empty());
    EXPECT_TRUE(reader.error().isEmpty());
    EXPECT_LT(reader.held(), 4096u);
}

TEST(FrameReader, RandomPiecesOfRandomFrames)
{
    std::mt19937 random(7);
    std::vector<std::string> sent;
    std::string stream;
    for (int i = 0; i < 300; ++i) {
        LinkMessage message;
        message.text = QString(static_cast<int>(random() % 5000), QLatin1Char('t'));
        sent.push_back(encodeFrame(message));
        stream += sent.back();
    }
    FrameReader reader;
    std::vector<std::string> got;
    for (std::size_t at = 0; at < stream.size();) {
        const std::size_t count = std::min<std::size_t>(1 + random() % 9000, stream.size() - at);
        reader.append(stream.data() + at, count);
        at += count;
        for (const std::string &frame : read(reader))
            got.push_back(frame);
        EXPECT_LT(reader.held(), 100000u); // what was read is given back
    }
    EXPECT_EQ(got, sent);
}
