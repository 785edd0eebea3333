#include "orba/json_builder.h"

#include <charconv>
#include <cmath>

namespace orba::format {

namespace {

/// A text exactly as it stands: Qt takes a leading byte-order mark for no part of it.
QString exactText(std::string_view utf8)
{
    constexpr std::string_view kMark("\xef\xbb\xbf");
    int marks = 0;
    for (; utf8.substr(0, kMark.size()) == kMark; ++marks)
        utf8.remove_prefix(kMark.size());
    const QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    return marks == 0 ? text : QString(marks, QChar(QChar::ByteOrderMark)) + text;
}

/// The text of a number.
struct NumberToken
{
    const char *begin;
    const char *end;
    bool hasPoint = false;
    bool hasExponent = false;

    /// The number that ends here.
    NumberToken(const char *text, const char *numberEnd) : begin(numberEnd), end(numberEnd)
    {
        for (; begin > text && isNumberPart(begin[-1]); --begin) {
            hasPoint |= begin[-1] == '.';
            hasExponent |= (begin[-1] & ~0x20) == 'E';
        }
    }
    /// Up to 15 digits without an exponent: the parser's quotient of two exact numbers is rounded only once.
    bool isSimple() const { return end - begin <= 16 && !hasExponent; }
};

} // namespace

Name RecentNames::of(std::string_view text)
{
    std::size_t hash = text.size();
    for (const char c : text)
        hash = hash * 31 + static_cast<unsigned char>(c);
    Entry &entry = entries_[hash % entries_.size()];
    if (entry.name.isNull() || entry.text != text) {
        entry.text = text;
        entry.name = Name(exactText(text));
    }
    return entry.name;
}

QString JsonBuilder::orderText() const
{
    switch (stack_.back().state) {
    case State::RootItem:
    case State::Items:
    case State::ItemStart:
    case State::ItemName:
    case State::ItemNamed:
    case State::ItemEnd:
        return Texts::tr("an item is {\"name\": text, \"value\": ...}, without \"name\" when it has none");
    case State::Utf16:
    case State::Utf16End:
        return Texts::tr("\"#utf16\" stands alone with one text");
    default:
        return Texts::tr("a mixed container is {\"#mixed\": \"list\" or \"map\", \"#items\": [...]}");
    }
}

/// The node that the next value fills, or null with a reason when no value may stand here.
Node *JsonBuilder::place()
{
    Frame &top = stack_.back();
    switch (top.state) {
    case State::Root:
        top.state = State::Done;
        return top.node;
    case State::Doubles:
    case State::Ints:
        unpackNumbers(top);
        return top.node->add();
    case State::Array:
        return top.node->add();
    case State::Object:
        return top.node->add(key_);
    case State::ItemValue:
        top.state = State::ItemEnd;
        return top.node;
    default:
        refuse(orderText());
        return nullptr;
    }
}

/// What looked like a list of numbers holds something else as well.
void JsonBuilder::unpackNumbers(Frame &frame)
{
    if (frame.state == State::Doubles)
        for (const double value : doubles_)
            frame.node->add()->setDouble(value);
    else
        for (const qint64 value : ints_)
            frame.node->add()->setInt(value);
    frame.state = State::Array;
}

bool JsonBuilder::integer(qint64 value)
{
    Frame &top = stack_.back();
    if (top.state == State::Array && top.node->size() == 0) {
        ints_.clear();
        top.state = State::Ints;
    }
    if (top.state == State::Ints) {
        ints_.push_back(value);
        return true;
    }
    Node *node = place();
    return node && (node->setInt(value), true);
}

bool JsonBuilder::Double(double approximate)
{
    const NumberToken token(stream_.begin_, stream_.src_);
    double value = approximate;
    if (!token.isSimple()) {
        const auto [end, fault] = std::from_chars(token.begin, token.end, value);
        if (fault == std::errc::result_out_of_range && std::abs(approximate) < 1)
            value = approximate; // too small to be told from 0, or nearly so
        else if (fault != std::errc() || end != token.end)
            return refuse(Texts::tr("a number is too large"));
    }
    // The parser gives whole numbers that are too large as doubles.
    if (!token.hasPoint && !token.hasExponent)
        return refuse(rangeText());
    Frame &top = stack_.back();
    if (top.state == State::Array && top.node->size() == 0) {
        doubles_.clear();
        top.state = State::Doubles;
    }
    if (top.state == State::Doubles) {
        doubles_.push_back(value);
        return true;
    }
    Node *node = place();
    return node && (node->setDouble(value), true);
}

bool JsonBuilder::String(const char *text, SizeType length, bool)
{
    const QString value = exactText({text, length});
    Frame &top = stack_.back();
    if (top.state == State::Utf16)
        return utf16(value);
    if (top.state == State::ItemName) {
        itemName_ = Name(value);
        top.state = State::ItemNamed;
        return true;
    }
    if (top.state == State::MixedKind) {
        if (value != QLatin1String("list") && value != QLatin1String("map"))
            return refuse(orderText());
        top.node->reset(value == QLatin1String("list") ? Node::Kind::List : Node::Kind::Map);
        top.state = State::MixedKey;
        return true;
    }
    Node *node = place();
    return node && (node->setString(value), true);
}

bool JsonBuilder::utf16(const QString &base64)
{
    QString text;
    if (!fromBase64(base64.toLatin1(), &text))
        return refuse(Texts::tr("\"#utf16\" holds no base64 text of UTF-16"));
    Frame &top = stack_.back();
    top.state = State::Utf16End;
    if (!top.node) {
        itemName_ = Name(text);
        return true;
    }
    top.node->reset(Node::Kind::String);
    top.node->setString(text);
    return true;
}

bool JsonBuilder::Key(const char *text, SizeType length, bool)
{
    const std::string_view key(text, length);
    Frame &top = stack_.back();
    switch (top.state) {
    case State::ObjectStart:
        return firstKey(key);
    case State::Object:
        if (key.size() > 1 && key[0] == '#' && key[1] == '#')
            key_ = names_.of(key.substr(1));
        else if (!key.empty() && key[0] == '#')
            return refuse(Texts::tr("keys that begin with one \"#\" are reserved, write \"##\""));
        else
            key_ = names_.of(key);
        return true;
    case State::MixedKey:
        top.state = State::MixedList;
        return key == "#items" || refuse(orderText());
    default:
        return itemKey(key);
    }
}

/// Tells what the object is.
bool JsonBuilder::firstKey(std::string_view key)
{
    Frame &top = stack_.back();
    top.state = key == "#utf16" ? State::Utf16 : key == "#mixed" ? State::MixedKind : State::Object;
    if (top.state == State::Utf16)
        return true;
    if (!top.node)
        return refuse(Texts::tr("a name is a text or {\"#utf16\": ...}"));
    if (depth_ > ReadLimits::kMaxDepth)
        return refuse(depthText());
    return top.state == State::MixedKind || Key(key.data(), static_cast<SizeType>(key.size()), true);
}

bool JsonBuilder::itemKey(std::string_view key)
{
    Frame &top = stack_.back();
    if (top.state == State::ItemStart && key == "name") {
        top.state = State::ItemName;
        return true;
    }
    if ((top.state != State::ItemStart && top.state != State::ItemNamed) || key != "value")
        return refuse(orderText());
    const Frame *below = stack_.below();
    if (below && below->state == State::Items)
        top.node = top.node->add(itemName_);
    else
        top.node->setName(itemName_);
    top.state = State::ItemValue;
    return true;
}

bool JsonBuilder::StartObject()
{
    Frame &top = stack_.back();
    if (top.state == State::Items || top.state == State::RootItem) {
        itemName_ = Name();
        if (top.state == State::RootItem)
            top.state = State::Done;
        stack_.push_back({State::ItemStart, top.node});
        return true;
    }
    if (top.state == State::ItemName) {
        top.state = State::ItemNamed;
        stack_.push_back({State::ObjectStart, nullptr});
        ++depth_;
        return true;
    }
    Node *node = place();
    if (!node)
        return false;
    node->reset(Node::Kind::Map);
    stack_.push_back({State::ObjectStart, node});
    ++depth_;
    // A text in its own object is no container: whether this one is too deep shows with its first key.
    return depth_ <= ReadLimits::kMaxDepth + 1 || refuse(depthText());
}

bool JsonBuilder::EndObject(SizeType)
{
    const Frame top = stack_.back();
    switch (top.state) {
    case State::ObjectStart:
        if (!top.node)
            return refuse(Texts::tr("a name is a text or {\"#utf16\": ...}"));
        if (depth_ > ReadLimits::kMaxDepth)
            return refuse(depthText());
        break;
    case State::Object:
    case State::MixedEnd:
    case State::Utf16End:
        break;
    case State::ItemEnd:
        stack_.pop_back();
        return true;
    default:
        return refuse(orderText());
    }
    --depth_;
    stack_.pop_back();
    return true;
}

bool JsonBuilder::StartArray()
{
    Frame &top = stack_.back();
    if (top.state == State::MixedList) {
        top.state = State::Items;
        return true;
    }
    Node *node = place();
    if (!node)
        return false;
    if (++depth_ > ReadLimits::kMaxDepth)
        return refuse(depthText());
    node->reset(Node::Kind::List);
    stack_.push_back({State::Array, node});
    return true;
}

bool JsonBuilder::EndArray(SizeType)
{
    Frame &top = stack_.back();
    if (top.state == State::Items) {
        top.state = State::MixedEnd;
        return true;
    }
    if (top.state == State::Doubles)
        top.node->setDoubles(doubles_.data(), static_cast<int>(doubles_.size()));
    else if (top.state == State::Ints)
        top.node->setInts(ints_.data(), static_cast<int>(ints_.size()));
    --depth_;
    stack_.pop_back();
    return true;
}

} // namespace orba::format
