#include "orba/file_writer.h"
#include "orba/format_detail.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace orba::format {

namespace {

enum class Place { Text, Attribute };

constexpr int kPiece = 64 * 1024; // characters that are kept before they are written

/// XML has no form for most control characters and half surrogate pairs, and readers turn line ends into "\n" and, in
/// attributes, white space into blanks.
bool isHeldByXml(const QString &text, Place place)
{
    const bool allHeld = std::all_of(text.begin(), text.end(), [place](QChar c) {
        const bool isLayout = c == QLatin1Char('\n') || c == QLatin1Char('\t');
        return c.unicode() >= 0x20 ? c.unicode() < 0xfffe : isLayout && place == Place::Text;
    });
    return allHeld && text.isValidUtf16();
}

/// Whether there is more than single blanks between words.
bool isWhiteSpaceMeant(const QString &text)
{
    bool isAfterSpace = true;
    for (const QChar c : text) {
        if (c.isSpace() && (isAfterSpace || c != QLatin1Char(' ')))
            return true;
        isAfterSpace = c.isSpace();
    }
    return isAfterSpace && !text.isEmpty();
}

bool isOfDoubles(const Node &list)
{
    if (list.isPacked() || list.kind() != Node::Kind::List || list.size() == 0)
        return list.isPackedDoubles();
    for (int i = 0; i < list.size(); ++i)
        if (list.at(i)->kind() != Node::Kind::Double || !list.at(i)->name().isNull())
            return false;
    return true;
}

/// Nodes below and including this one; a packed list counts once.
qint64 countNodes(const Node &node)
{
    qint64 count = 1;
    for (int i = 0; i < (node.isPacked() ? 0 : node.size()); ++i)
        count += countNodes(*node.at(i));
    return count;
}

/// Takes over what the writer has put into the text.
class Drain
{
public:
    virtual ~Drain() = default;
    /// Called after every node; false ends the writing.
    virtual bool take(QString *text) = 0;
};

/// Into a text, because the library encodes and hands over every few characters when it writes into a device.
class XmlOut
{
public:
    XmlOut(QString *out, const Node &root, Drain *drain = nullptr)
        : writer_(out), out_(out), root_(root), drain_(drain)
    {
        writer_.setAutoFormatting(true);
        writer_.setAutoFormattingIndent(1);
    }

    bool document()
    {
        *out_ = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        const bool done = element(root_);
        writer_.writeEndDocument();
        return done;
    }
    const QString &what() const { return what_; }

private:
    bool element(const Node &node);
    bool container(const Node &node);
    bool doubles(const Node &list);
    void text(const QString &text);
    void name(const QString &name);
    bool refuse(const QString &why, const Node &node)
    {
        what_ = refusal(why, node, root_);
        return false;
    }
    void type(const QString &type) { writer_.writeAttribute(type_, type); }
    void value(const QString &text) { writer_.writeCharacters(text); }

    QXmlStreamWriter writer_;
    QString *out_;
    const Node &root_;
    Drain *drain_;
    const QString element_ = QStringLiteral("node"); // made once, not per element
    const QString type_ = QStringLiteral("type");
    const QString name_ = QStringLiteral("name");
    QString what_;
    QByteArray numbers_;
    int depth_ = 0;
};

bool XmlOut::element(const Node &node)
{
    writer_.writeStartElement(element_);
    if (!node.name().isNull())
        name(node.name().toString());
    bool done = true;
    switch (node.kind()) {
    case Node::Kind::Null:
        type(QStringLiteral("null"));
        break;
    case Node::Kind::Bool:
        type(QStringLiteral("bool"));
        value(node.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
        break;
    case Node::Kind::Int:
        type(QStringLiteral("int"));
        value(QString::number(node.toInt()));
        break;
    case Node::Kind::Double: {
        type(QStringLiteral("double"));
        char buffer[kNumberLength];
        value(QString::fromLatin1(buffer, static_cast<int>(writeShortest(buffer, node.toDouble()) - buffer)));
        done = std::isfinite(node.toDouble()) || refuse(Texts::tr("a number is not finite"), node);
        break;
    }
    case Node::Kind::String:
        text(node.toString());
        break;
    default:
        done = container(node);
    }
    writer_.writeEndElement();
    return done && (!drain_ || drain_->take(out_));
}

void XmlOut::name(const QString &name)
{
    if (isHeldByXml(name, Place::Attribute)) {
        writer_.writeAttribute(name_, name);
        return;
    }
    writer_.writeAttribute(name_, QString::fromLatin1(toBase64(name)));
    writer_.writeAttribute(QStringLiteral("name-encoding"), QStringLiteral("base64"));
}

void XmlOut::text(const QString &text)
{
    type(QStringLiteral("string"));
    if (!isHeldByXml(text, Place::Text)) {
        writer_.writeAttribute(QStringLiteral("encoding"), QStringLiteral("base64"));
        value(QString::fromLatin1(toBase64(text)));
        return;
    }
    if (isWhiteSpaceMeant(text))
        writer_.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    value(text);
}

bool XmlOut::container(const Node &node)
{
    if (++depth_ > ReadLimits::kMaxDepth)
        return refuse(depthText(), node);
    bool done = true;
    if (isOfDoubles(node)) {
        done = doubles(node);
    } else {
        type(node.kind() == Node::Kind::List ? QStringLiteral("list") : QStringLiteral("map"));
        const qint64 *ints = node.packedInts();
        for (int i = 0; i < node.size() && done; ++i) {
            if (!ints) {
                done = element(*node.at(i));
                continue;
            }
            writer_.writeStartElement(element_);
            type(QStringLiteral("int"));
            value(QString::number(ints[i]));
            writer_.writeEndElement();
        }
    }
    --depth_;
    return done;
}

bool XmlOut::doubles(const Node &list)
{
    type(QStringLiteral("doubles"));
    numbers_.clear();
    for (int i = 0; i < list.size(); ++i) {
        const double number = list.number(i);
        if (!std::isfinite(number))
            return refuse(Texts::tr("a number is not finite"), list);
        char buffer[kNumberLength];
        if (i > 0)
            numbers_ += ' ';
        numbers_.append(buffer, static_cast<int>(writeShortest(buffer, number) - buffer));
    }
    value(QString::fromLatin1(numbers_));
    return true;
}

/// Into a file, piece by piece.
class FileDrain : public Drain
{
public:
    FileDrain(FileWriter *file, const ReadLimits &limits, const Watch &watch, qint64 total)
        : file_(file), limits_(limits), watch_(watch), total_(total)
    {
    }
    bool take(QString *text) override
    {
        ++done_;
        return text->size() < kPiece || flush(text);
    }
    bool flush(QString *text)
    {
        const QByteArray bytes = text->toUtf8();
        bytes_ += bytes.size();
        if (bytes_ > limits_.maxBytes)
            return format::failTooLarge(&error_);
        if (!file_->write(bytes.constData(), bytes.size(), &error_))
            return false;
        text->resize(0); // keeps its room
        return !watch_ || watch_(done_, total_) || format::failStopped(&error_);
    }
    /// Why it ended the writing.
    const FormatError &error() const { return error_; }

private:
    FileWriter *file_;
    const ReadLimits &limits_;
    const Watch &watch_;
    qint64 total_;
    qint64 done_ = 0;
    qint64 bytes_ = 0;
    FormatError error_;
};

} // namespace

bool writeXml(const Node &node, QByteArray *out, FormatError *error)
{
    QString text;
    XmlOut xml(&text, node);
    const bool done = xml.document();
    *out = text.toUtf8();
    return done || fail(error, xml.what());
}

bool writeXml(const Node &node, FileWriter *out, const ReadLimits &limits, const Watch &watch,
              FormatError *error)
{
    QString text;
    text.reserve(kPiece);
    FileDrain drain(out, limits, watch, watch ? countNodes(node) : 0);
    XmlOut xml(&text, node, &drain);
    if (xml.document() && drain.flush(&text))
        return true;
    if (!drain.error().isSet())
        return fail(error, xml.what());
    if (error)
        *error = drain.error();
    return false;
}

} // namespace orba::format
