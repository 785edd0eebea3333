#include "orba/format_detail.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <array>
#include <cmath>
#include <string_view>

namespace orba::format {

namespace {

using Buffer = rapidjson::StringBuffer;

/// A name as the key of an object: UTF-8, a leading "#" doubled. Few names recur often, so each is made once.
class KeyTexts
{
public:
    struct Key
    {
        Name name;
        QByteArray text;
        bool isWritable = true; ///< false for half surrogate pairs, which UTF-8 has no form for
    };

    const Key &of(Name name)
    {
        const auto address = reinterpret_cast<std::uintptr_t>(name.view().data());
        Key &key = keys_[(address >> 5) % keys_.size()];
        if (key.name != name) {
            const QString text = name.toString();
            key.name = name;
            key.isWritable = text.isValidUtf16();
            key.text = text.toUtf8();
            if (key.text.startsWith('#'))
                key.text.prepend('#');
        }
        return key;
    }

private:
    std::array<Key, 256> keys_;
};

template <class Writer> class JsonOut
{
public:
    JsonOut(Buffer &buffer, const Node &root) : writer_(buffer), root_(root) {}
    Writer &writer() { return writer_; }
    const QString &what() const { return what_; }

    bool value(const Node &node)
    {
        switch (node.kind()) {
        case Node::Kind::Null:
            return writer_.Null();
        case Node::Kind::Bool:
            return writer_.Bool(node.toBool());
        case Node::Kind::Int:
            return writer_.Int64(node.toInt());
        case Node::Kind::Double:
            return number(node.toDouble(), node);
        case Node::Kind::String:
            return text(node.toString());
        default:
            return container(node);
        }
    }

    /// The node as an item of a mixed container.
    bool item(const Node &node)
    {
        writer_.StartObject();
        if (!node.name().isNull()) {
            writer_.Key("name");
            text(node.name().toString());
        }
        writer_.Key("value");
        return value(node) && writer_.EndObject();
    }

private:
    bool refuse(const QString &why, const Node &node)
    {
        what_ = refusal(why, node, root_);
        return false;
    }

    bool number(double value, const Node &node)
    {
        if (!std::isfinite(value))
            return refuse(Texts::tr("a number is not finite"), node);
        char buffer[kNumberLength + 2];
        char *end = writeShortest(buffer, value);
        if (std::string_view(buffer, static_cast<std::size_t>(end - buffer)).find_first_of(".e") ==
            std::string_view::npos) { // 1.0 is to come back as a double
            *end++ = '.';
            *end++ = '0';
        }
        return writer_.RawValue(buffer, static_cast<std::size_t>(end - buffer), rapidjson::kNumberType);
    }

    bool text(const QString &text)
    {
        if (text.isValidUtf16()) {
            const QByteArray utf8 = text.toUtf8();
            return writer_.String(utf8.constData(), static_cast<rapidjson::SizeType>(utf8.size()));
        }
        const QByteArray base64 = toBase64(text);
        writer_.StartObject();
        writer_.Key("#utf16");
        writer_.String(base64.constData(), static_cast<rapidjson::SizeType>(base64.size()));
        return writer_.EndObject();
    }

    bool container(const Node &node)
    {
        if (++depth_ > ReadLimits::kMaxDepth)
            return refuse(depthText(), node);
        const bool done = node.isPacked()                   ? numbers(node)
                          : isMixed(node)                   ? mixed(node)
                          : node.kind() == Node::Kind::List ? list(node)
                                                            : map(node);
        --depth_;
        return done;
    }

    bool isMixed(const Node &node)
    {
        const bool isMap = node.kind() == Node::Kind::Map;
        for (int i = 0; i < node.size(); ++i) {
            const Name name = node.at(i)->name();
            if (name.isNull() == isMap || (isMap && !keys_.of(name).isWritable))
                return true;
        }
        return false;
    }

    bool numbers(const Node &node)
    {
        writer_.StartArray();
        const double *doubles = node.packedDoubles();
        const qint64 *ints = node.packedInts();
        for (int i = 0; i < node.size(); ++i)
            if (doubles ? !number(doubles[i], node) : !writer_.Int64(ints[i]))
                return false;
        return writer_.EndArray();
    }

    bool list(const Node &node)
    {
        writer_.StartArray();
        for (int i = 0; i < node.size(); ++i)
            if (!value(*node.at(i)))
                return false;
        return writer_.EndArray();
    }

    bool map(const Node &node)
    {
        writer_.StartObject();
        for (int i = 0; i < node.size(); ++i) {
            const Node &child = *node.at(i);
            const QByteArray &key = keys_.of(child.name()).text;
            writer_.Key(key.constData(), static_cast<rapidjson::SizeType>(key.size()));
            if (!value(child))
                return false;
        }
        return writer_.EndObject();
    }

    bool mixed(const Node &node)
    {
        writer_.StartObject();
        writer_.Key("#mixed");
        writer_.String(node.kind() == Node::Kind::List ? "list" : "map");
        writer_.Key("#items");
        writer_.StartArray();
        for (int i = 0; i < node.size(); ++i)
            if (!item(*node.at(i)))
                return false;
        writer_.EndArray();
        return writer_.EndObject();
    }

    Writer writer_;
    const Node &root_;
    KeyTexts keys_;
    QString what_;
    int depth_ = 0;
};

template <class Writer>
bool finish(bool done, const JsonOut<Writer> &json, const Buffer &buffer, QByteArray *out, FormatError *error)
{
    if (!done)
        return fail(error, json.what());
    constexpr std::size_t kMaxBytes = 1u << 30; // what one QByteArray surely holds
    if (buffer.GetSize() > kMaxBytes)
        return fail(error, Texts::tr("the tree is too large to be written"));
    *out = QByteArray(buffer.GetString(), static_cast<int>(buffer.GetSize()));
    return true;
}

} // namespace

bool writeJson(const Node &node, bool compact, QByteArray *out, FormatError *error)
{
    Buffer buffer;
    if (compact) {
        JsonOut<rapidjson::Writer<Buffer>> json(buffer, node);
        const bool done = json.value(node);
        return finish(done, json, buffer, out, error);
    }
    JsonOut<rapidjson::PrettyWriter<Buffer>> json(buffer, node);
    json.writer().SetIndent(' ', 2);
    json.writer().SetFormatOptions(rapidjson::kFormatSingleLineArray);
    const bool done = json.value(node);
    buffer.Put('\n');
    return finish(done, json, buffer, out, error);
}

bool writeJsonItem(const Node &node, QByteArray *out, FormatError *error)
{
    Buffer buffer;
    JsonOut<rapidjson::Writer<Buffer>> json(buffer, node);
    const bool done = json.item(node);
    return finish(done, json, buffer, out, error);
}

} // namespace orba::format
