#pragma once

#include "orba/node.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// Messages between the panel and the controller, and how they are written as frames. See
/// docs/controller-link.md.
namespace host {

constexpr std::uint16_t kLinkVersion = 1;
constexpr std::size_t kFrameHeaderBytes = 16;
/// All recipes of a large cell, several times over.
constexpr std::uint32_t kMaxFrameBytes = 256u * 1024 * 1024;

struct PALX_API LinkMessage
{
    enum class Kind : std::uint8_t {
        Hello = 1, ///< both ways, first: who speaks which version; from the controller with its state
        Request,   ///< panel to controller; answered by a Reply of the same id
        Reply,     ///< controller to panel
        Update,    ///< controller to panel: a mirrored value or subtree became `payload`
        Write,     ///< panel to controller: a value or subtree under "quill.project" became `payload`
        Trigger,   ///< panel to controller: an event node was raised
        Event,     ///< controller to panel: a value published by name (XService::watch)
        Ping,      ///< both ways when nothing else was sent for a while; from the controller also as
                   ///< acknowledgement
        Error,     ///< both ways: what was wrong with a frame; no answer
    };
    Kind kind = Kind::Ping;
    /// Request and Reply: pairs them. Write and Trigger: number in order, from 1. From the controller,
    /// Update: number in order, from 1 for each greeting; Hello and Ping: number of the last Update.
    std::uint64_t id = 0;
    /// From the controller: number of the last Write or Trigger that it had taken. From the panel, Request:
    /// number of the last Write or Trigger sent before it; Hello: the last one it knows to be taken.
    std::uint64_t knows = 0;
    QString name;   ///< request name, path or topic; Error: one of `fault`
    int status = 0; ///< Reply: one of `status`
    QString text;   ///< Reply and Error: the reason, for the operator
    orba::Node payload;
    /// From the header. A Hello and an Error are read from every version, so that both sides can say what is
    /// wrong; everything else only from kLinkVersion.
    std::uint16_t version = kLinkVersion;
};

/// What a Reply's `status` says.
namespace status {
constexpr int kDone = 0;
constexpr int kRefused = 1; ///< and nothing was done
/// Writes that the panel had sent before are missing; nothing was done, the request comes again behind them.
constexpr int kBehind = 2;
} // namespace status

/// What an Error's `name` says.
namespace fault {
constexpr const char *kBusy = "busy";       ///< the controller serves another panel
constexpr const char *kVersion = "version"; ///< the two sides speak different versions
constexpr const char *kFrame = "frame";     ///< a frame could not be read; `text` says why
} // namespace fault

/// Header and body as bytes. Fails (empty, with a reason) on a payload that cannot be written or is too long.
PALX_API std::string encodeFrame(const LinkMessage &message, QString *error = nullptr);
/// The same with the payload from elsewhere, which is not copied; `message.payload` is left out. Any thread,
/// as long as nobody changes the payload meanwhile.
PALX_API std::string encodeFrame(const LinkMessage &message, const orba::Node &payload,
                                 QString *error = nullptr);
/// False with a reason on anything that is no whole, well-formed frame.
PALX_API bool decodeFrame(const std::string &frame, LinkMessage *message, QString *error = nullptr);

/// Cuts a stream of bytes into frames. Holds at most what has arrived, never what a header merely claims.
class PALX_API FrameReader
{
public:
    /// Takes bytes as they come.
    void append(const char *bytes, std::size_t count);
    /// The next whole frame. False when there is none yet, or when the stream is broken: see `error`.
    bool next(std::string *frame);
    /// Why nothing can be read any more (bad magic or length); empty while all is well.
    const QString &error() const { return error_; }
    /// Bytes that wait for the rest of their frame.
    std::size_t pending() const { return buffer_.size() - start_; }
    /// Bytes of memory that the reader holds.
    std::size_t held() const { return buffer_.capacity(); }

private:
    void compact();

    std::string buffer_;
    std::size_t start_ = 0;
    QString error_;
};

} // namespace host
