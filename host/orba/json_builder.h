#pragma once

#include "orba/format_detail.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/rapidjson.h>

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace orba::format {

using rapidjson::SizeType;

/// Few names recur often: the last ones are kept, so that most need neither a conversion nor the table of all names.
class RecentNames
{
public:
    Name of(std::string_view text);

private:
    struct Entry
    {
        std::string text;
        Name name;
    };
    std::array<Entry, 128> entries_;
};

/// Whether a number of JSON may hold it.
inline bool isNumberPart(char c)
{
    return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E';
}

/// Builds nodes from the events of the parser. A function that returns false ends the parse; `what` says why.
class JsonBuilder
{
public:
    explicit JsonBuilder(const rapidjson::MemoryStream &stream) : stream_(stream) {}

    void expectValue(Node *target) { stack_.push_back({State::Root, target}); }
    void expectItem(Node *target) { stack_.push_back({State::RootItem, target}); }
    const QString &what() const { return what_; }

    bool Null() { return place() != nullptr; }
    bool Bool(bool value)
    {
        Node *node = place();
        return node && (node->setBool(value), true);
    }
    bool Int(int value) { return integer(value); }
    bool Uint(unsigned value) { return integer(value); }
    bool Int64(std::int64_t value) { return integer(value); }
    bool Uint64(std::uint64_t value)
    {
        if (value > static_cast<std::uint64_t>(std::numeric_limits<qint64>::max()))
            return refuse(rangeText());
        return integer(static_cast<qint64>(value));
    }
    bool Double(double approximate);
    bool RawNumber(const char *, SizeType, bool) { return false; } // only sent on request
    bool String(const char *text, SizeType length, bool);
    bool Key(const char *text, SizeType length, bool);
    bool StartObject();
    bool EndObject(SizeType);
    bool StartArray();
    bool EndArray(SizeType);

private:
    enum class State : std::uint8_t {
        Root,     // one value
        RootItem, // one {"name", "value"}
        Done,
        Array,
        Doubles, // an array of doubles only, so far
        Ints,
        ObjectStart, // an object before its first key
        Object,
        MixedKind, // after "#mixed"
        MixedKey,
        MixedList, // after "#items"
        Items,
        MixedEnd,
        ItemStart, // an item before its first key
        ItemName,
        ItemNamed, // an item after its name
        ItemValue,
        ItemEnd,
        Utf16, // after "#utf16"
        Utf16End
    };
    struct Frame
    {
        State state;
        Node *node; // null: the name of an item
    };

    bool integer(qint64 value);
    Node *place();
    void unpackNumbers(Frame &frame);
    bool firstKey(std::string_view key);
    bool itemKey(std::string_view key);
    bool utf16(const QString &base64);
    bool refuse(const QString &what)
    {
        what_ = what;
        return false;
    }
    static QString rangeText() { return Texts::tr("a whole number is outside of 64 bits"); }
    QString orderText() const;

    /// The frames of the open objects and arrays. Every container has one and one for its open item.
    class Stack
    {
    public:
        Frame &back() { return frames_[size_ - 1]; }
        const Frame &back() const { return frames_[size_ - 1]; }
        const Frame *below() const { return size_ > 1 ? &frames_[size_ - 2] : nullptr; }
        void push_back(Frame frame) { frames_[size_++] = frame; }
        void pop_back() { --size_; }

    private:
        std::array<Frame, 2 * (ReadLimits::kMaxDepth + 2) + 2> frames_;
        std::size_t size_ = 0;
    };

    const rapidjson::MemoryStream &stream_;
    Stack stack_;
    std::vector<double> doubles_;
    std::vector<qint64> ints_;
    RecentNames names_;
    Name key_;
    Name itemName_;
    QString what_;
    int depth_ = 0;
};

} // namespace orba::format
