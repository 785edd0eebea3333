#include "orba/format_detail.h"
#include "orba/xml_source.h"

#include <QFile>
#include <QXmlStreamReader>

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <charconv>
#include <cmath>
#include <vector>

namespace orba::format {

namespace {

enum class Type { None, Null, Bool, Int, Double, String, Doubles, List, Map };

struct TypeName
{
    QLatin1String name;
    Type type;
};

const TypeName kTypes[] = {
    {QLatin1String("null"), Type::Null},     {QLatin1String("bool"), Type::Bool},
    {QLatin1String("int"), Type::Int},       {QLatin1String("double"), Type::Double},
    {QLatin1String("string"), Type::String}, {QLatin1String("doubles"), Type::Doubles},
    {QLatin1String("list"), Type::List},     {QLatin1String("map"), Type::Map},
};

Type typeNamed(const QStringRef &name)
{
    for (const TypeName &known : kTypes)
        if (name == known.name)
            return known.type;
    return Type::None;
}

/// The whole text as one number.
template <class Number> bool toNumber(const char *begin, const char *end, Number *number)
{
    const auto [stop, fault] = std::from_chars(begin, end, *number);
    return fault == std::errc() && stop == end && std::isfinite(static_cast<double>(*number));
}

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

/// The offset of the first byte that is no UTF-8, or the size.
std::size_t firstBadByte(const QByteArray &text)
{
    const struct
    {
        void Put(char) const {}
    } nowhere;
    rapidjson::MemoryStream stream(text.constData(), static_cast<std::size_t>(text.size()));
    while (stream.src_ != stream.end_) {
        const std::size_t at = stream.Tell();
        if (!rapidjson::UTF8<>::Validate(stream, nowhere))
            return at;
    }
    return stream.Tell();
}

/// The reader names unexpected characters as they are.
QString printable(QString text)
{
    for (QChar &c : text)
        if (!c.isPrint())
            c = QChar(QChar::ReplacementCharacter);
    return text;
}

class XmlIn
{
public:
    explicit XmlIn(QIODevice *source) : reader_(source)
    {
        reader_.setNamespaceProcessing(false); // the dialect has none
    }

    bool document(Node *root);
    /// Passes the reason on.
    bool failed(FormatError *error) const { return fail(error, what_, line_, column_); }
    bool isCutShort() const { return reader_.error() == QXmlStreamReader::PrematureEndOfDocumentError; }
    /// The same for a reason from elsewhere, whose place is where the reader came to.
    bool failed(const FormatError &reason, FormatError *error) const
    {
        if (error) {
            *error = reason;
            error->line = reader_.lineNumber();
            error->column = reader_.columnNumber() + 1;
        }
        return false;
    }
    bool isEncoding(const char *name) const
    {
        return reader_.documentEncoding().compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    }
    bool isUtf8() const { return reader_.documentEncoding().isEmpty() || isEncoding("UTF-8"); }

private:
    /// The attributes of one element.
    struct Head
    {
        Type type = Type::None;
        Name name;
        bool isBase64 = false;
    };

    /// Those that extend ASCII and are still met.
    bool isEncodingKnown() const { return isUtf8() || isEncoding("US-ASCII") || isEncoding("ISO-8859-1"); }
    void next();
    void mark()
    {
        line_ = reader_.lineNumber();
        column_ = reader_.columnNumber() + 1;
    }
    bool refuse(const QString &what)
    {
        what_ = what;
        return false;
    }
    bool refuseToken();
    bool readHead(Head *head);
    bool element(Node *node);
    bool children(Node *node);
    bool scalar(Type type, const QString &text, Node *node);
    bool string(const QString &text, bool isBase64, Node *node);
    bool doubles(const QByteArray &text, Node *node);

    QXmlStreamReader reader_;
    std::vector<double> numbers_;
    QString what_;
    qint64 line_ = 1;
    qint64 column_ = 1;
    int depth_ = 0;
};

void XmlIn::next()
{
    const bool isAfterText = reader_.tokenType() == QXmlStreamReader::Characters;
    mark();
    if (isAfterText) // the reader has to see the "<" to know that a text is over
        --column_;
    reader_.readNext();
    if (depth_ ==
        0) // in front of the root the reader skips blanks without a token: the end of the token is named
        mark();
}

/// For a token that has no place in the dialect.
bool XmlIn::refuseToken()
{
    switch (reader_.tokenType()) {
    case QXmlStreamReader::Invalid:
        mark();
        return refuse(printable(reader_.errorString()));
    case QXmlStreamReader::EntityReference:
        return refuse(Texts::tr("the entity \"%1\" is unknown").arg(reader_.name().toString()));
    case QXmlStreamReader::StartElement:
        return refuse(Texts::tr("unknown element \"%1\"").arg(reader_.qualifiedName().toString()));
    default:
        return refuse(Texts::tr("text stands between elements"));
    }
}

bool XmlIn::document(Node *root)
{
    bool isRead = false;
    while (!reader_.atEnd()) {
        next();
        switch (reader_.tokenType()) {
        case QXmlStreamReader::StartDocument:
            if (!isEncodingKnown())
                return refuse(Texts::tr("the encoding \"%1\" is not accepted")
                                  .arg(reader_.documentEncoding().toString()));
            break;
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::StartElement:
            if (!element(root))
                return false;
            isRead = true;
            break;
        default:
            return refuseToken();
        }
    }
    return isRead || refuse(Texts::tr("the document is empty"));
}

bool XmlIn::readHead(Head *head)
{
    QStringRef name;
    bool isNameBase64 = false;
    const QXmlStreamAttributes attributes = reader_.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringRef key = attribute.qualifiedName();
        const QStringRef value = attribute.value();
        bool isKnown = true;
        if (key == QLatin1String("type"))
            head->type = typeNamed(value);
        else if (key == QLatin1String("name"))
            name = value;
        else if (key == QLatin1String("name-encoding"))
            isKnown = isNameBase64 = value == QLatin1String("base64");
        else if (key == QLatin1String("encoding"))
            isKnown = head->isBase64 = value == QLatin1String("base64");
        else
            isKnown = key == QLatin1String("xml:space") &&
                      (value == QLatin1String("preserve") || value == QLatin1String("default"));
        if (!isKnown)
            return refuse(Texts::tr("unknown attribute %1=\"%2\"").arg(key.toString(), value.toString()));
    }
    if (head->type == Type::None)
        return refuse(
            attributes.hasAttribute(QLatin1String("type"))
                ? Texts::tr("unknown type \"%1\"").arg(attributes.value(QLatin1String("type")).toString())
                : Texts::tr("the element has no type"));
    if (head->isBase64 && head->type != Type::String)
        return refuse(Texts::tr("only a string has an encoding"));
    if (!attributes.hasAttribute(QLatin1String("name")))
        return !isNameBase64 || refuse(Texts::tr("there is no name to be decoded"));
    QString decoded = name.toString();
    if (isNameBase64 && !fromBase64(name.toLatin1(), &decoded))
        return refuse(Texts::tr("the name is no base64 text of UTF-16"));
    head->name = Name(decoded);
    return true;
}

/// Reads the element that just began, up to its end.
bool XmlIn::element(Node *node)
{
    Head head;
    if (reader_.qualifiedName() != QLatin1String("node"))
        return refuseToken();
    if (!readHead(&head))
        return false;
    node->setName(head.name);
    const bool isContainer = head.type >= Type::Doubles;
    if (isContainer && ++depth_ > ReadLimits::kMaxDepth)
        return refuse(depthText());
    bool done = true;
    if (head.type == Type::List || head.type == Type::Map) {
        node->reset(head.type == Type::List ? Node::Kind::List : Node::Kind::Map);
        done = children(node);
        node->pack();
    } else {
        mark(); // a bad value is reported where it begins
        const QString text = reader_.readElementText();
        if (reader_.hasError())
            return refuseToken();
        if (head.type == Type::String)
            done = string(text, head.isBase64, node);
        else
            done = scalar(head.type, text, node);
    }
    if (isContainer)
        --depth_;
    return done;
}

bool XmlIn::children(Node *node)
{
    for (;;) {
        next();
        switch (reader_.tokenType()) {
        case QXmlStreamReader::StartElement:
            if (!element(node->add()))
                return false;
            break;
        case QXmlStreamReader::EndElement:
            return true;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::Characters:
            if (reader_.isWhitespace())
                break;
            return refuseToken();
        default:
            return refuseToken();
        }
    }
}

bool XmlIn::string(const QString &text, bool isBase64, Node *node)
{
    QString decoded = text;
    if (isBase64 && !fromBase64(text.trimmed().toLatin1(), &decoded))
        return refuse(Texts::tr("the string is no base64 text of UTF-16"));
    node->reset(Node::Kind::String);
    node->setString(decoded);
    return true;
}

bool XmlIn::scalar(Type type, const QString &text, Node *node)
{
    const QByteArray value = text.toLatin1().trimmed(); // what is not Latin-1 becomes "?" and fits no type
    qint64 integer = 0;
    double number = 0;
    switch (type) {
    case Type::Null:
        return value.isEmpty() || refuse(Texts::tr("a null holds no value"));
    case Type::Bool:
        node->setBool(value == "true");
        return value == "true" || value == "false" ||
               refuse(Texts::tr("\"%1\" is neither true nor false").arg(text));
    case Type::Int:
        if (!toNumber(value.begin(), value.end(), &integer))
            return refuse(Texts::tr("\"%1\" is no whole number of 64 bits").arg(text));
        node->setInt(integer);
        return true;
    case Type::Double:
        if (!toNumber(value.begin(), value.end(), &number))
            return refuse(Texts::tr("\"%1\" is no finite number").arg(text));
        node->setDouble(number);
        return true;
    default:
        return doubles(value, node);
    }
}

bool XmlIn::doubles(const QByteArray &text, Node *node)
{
    numbers_.clear();
    const char *at = text.begin();
    while (at != text.end()) {
        const char *end = at;
        while (end != text.end() && !isBlank(*end))
            ++end;
        double number = 0;
        if (!toNumber(at, end, &number))
            return refuse(Texts::tr("\"%1\" is no finite number")
                              .arg(QString::fromLatin1(at, static_cast<int>(end - at))));
        numbers_.push_back(number);
        while (end != text.end() && isBlank(*end))
            ++end;
        at = end;
    }
    node->setDoubles(numbers_.data(), static_cast<int>(numbers_.size()));
    return true;
}

} // namespace

bool readXml(QIODevice *source, const ReadLimits &limits, const Watch &watch, Node *node, FormatError *error)
{
    if (source->size() > limits.maxBytes)
        return fail(error, Texts::tr("the text has %1 bytes, more than the %2 that are read")
                               .arg(source->size())
                               .arg(limits.maxBytes));
    Node result;
    XmlSource bytes(source, watch);
    XmlIn xml(&bytes);
    const bool isRead = xml.document(&result);
    if (bytes.error().isSet() && (isRead || xml.isCutShort()))
        return xml.failed(bytes.error(), error);
    if (isRead) {
        node->take(result);
        return true;
    }
    const auto *file = qobject_cast<QFileDevice *>(source);
    if (file && file->error() != QFileDevice::NoError)
        return fail(error, Texts::tr("cannot be read: %1").arg(file->errorString()));
    source->seek(0);
    const QByteArray text = xml.isUtf8() ? source->readAll() : QByteArray();
    const std::size_t bad =
        firstBadByte(text); // the reader decodes in pieces and could only name the beginning of one
    if (bad < static_cast<std::size_t>(text.size()))
        return failAt(error, Texts::tr("the text is not UTF-8"), text.constData(), bad);
    return xml.failed(error);
}

} // namespace orba::format
