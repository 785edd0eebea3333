#include "orba/json_builder.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

namespace orba::format {

namespace {

// Without the parser's own full precision: it reads outside of its table for numbers like 2.4039953411124204e-350.
constexpr unsigned kFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;

/// Where the token that ends at `end` begins; the parser names the end of what the builder refused.
std::size_t tokenStart(const char *text, std::size_t end)
{
    if (end == 0)
        return end;
    std::size_t start = end;
    const auto isWordPart = [](char c) { return isNumberPart(c) || (c >= 'a' && c <= 'z'); };
    while (start > 0 && isWordPart(text[start - 1]))
        --start;
    if (start < end || text[end - 1] != '"')
        return start;
    --start;
    while (start > 0) {
        --start;
        std::size_t slashes = 0;
        while (slashes < start && text[start - 1 - slashes] == '\\')
            ++slashes;
        if (text[start] == '"' && slashes % 2 == 0)
            break;
    }
    return start;
}

bool parse(const QByteArray &bytes, bool asItem, Node *node, FormatError *error)
{
    const int bom = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    const char *text = bytes.constData() + bom;
    const auto size = static_cast<std::size_t>(bytes.size() - bom);
    rapidjson::MemoryStream stream(text, size);
    rapidjson::Reader reader;
    JsonBuilder builder(stream);
    if (asItem)
        builder.expectItem(node);
    else
        builder.expectValue(node);
    const rapidjson::ParseResult result = reader.Parse<kFlags>(stream, builder);
    if (result.Code() == rapidjson::kParseErrorTermination)
        return failAt(error, builder.what(), text, tokenStart(text, result.Offset()));
    if (!result)
        return failAt(error, QString::fromLatin1(rapidjson::GetParseError_En(result.Code())), text,
                      result.Offset());
    if (stream.Tell() != size) // the parser takes a zero byte for the end
        return failAt(error, Texts::tr("a zero byte stands outside of a text"), text, stream.Tell());
    return true;
}

} // namespace

bool readJson(const QByteArray &text, const ReadLimits &limits, Node *node, FormatError *error)
{
    if (text.size() > limits.maxBytes)
        return fail(error, Texts::tr("the text has %1 bytes, more than the %2 that are read")
                               .arg(text.size())
                               .arg(limits.maxBytes));
    Node result;
    if (!parse(text, false, &result, error))
        return false;
    node->take(result);
    return true;
}

bool readJsonItem(const QByteArray &text, Node *item, FormatError *error)
{
    return parse(text, true, item, error);
}

} // namespace orba::format
