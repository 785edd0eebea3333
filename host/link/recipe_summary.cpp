#include "link/recipe_summary.h"

#include <string>
#include <zlib.h>

namespace host {

using orba::Node;

namespace {

bool isNumberList(const Node &node)
{
    for (int i = 0; !node.isPacked() && i < node.size(); ++i) {
        const Node &child = *node.at(i);
        if (!child.name().isNull() || (child.kind() != Node::Kind::Int && child.kind() != Node::Kind::Double))
            return false;
    }
    return node.size() > 0;
}

/// Feeds a tree into a CRC-32. A list of numbers counts the same packed or not.
class Checksum
{
public:
    void add(const Node &node);
    std::uint32_t value()
    {
        flush();
        return static_cast<std::uint32_t>(sum_);
    }

private:
    static constexpr std::size_t kBlock = 32768; // summing a few bytes at a time takes ten times as long

    void bytes(const void *data, std::size_t count)
    {
        waiting_.append(static_cast<const char *>(data), count);
        if (waiting_.size() >= kBlock)
            flush();
    }
    void flush()
    {
        sum_ =
            crc32(sum_, reinterpret_cast<const Bytef *>(waiting_.data()), static_cast<uInt>(waiting_.size()));
        waiting_.clear();
    }
    void number(double value) { bytes(&value, sizeof value); }
    void tag(char kind, int count)
    {
        const qint32 head[2] = {kind, count};
        bytes(head, sizeof head);
    }
    void text(QStringView view)
    {
        tag('t', static_cast<int>(view.size()));
        bytes(view.data(), static_cast<std::size_t>(view.size()) * sizeof(QChar));
    }
    void numbers(const Node &list);
    void children(const Node &node);

    std::string waiting_;
    uLong sum_ = crc32(0, nullptr, 0);
};

void Checksum::add(const Node &node)
{
    switch (node.kind()) {
    case Node::Kind::Null:
        return tag('0', 0);
    case Node::Kind::Bool:
        return tag('b', node.toBool() ? 1 : 0);
    case Node::Kind::Int:
    case Node::Kind::Double:
        tag('n', 1);
        return number(node.toDouble());
    case Node::Kind::String:
        return text(node.toString());
    case Node::Kind::List:
    case Node::Kind::Map:
        return isNumberList(node) ? numbers(node) : children(node);
    }
}

void Checksum::numbers(const Node &list)
{
    tag('N', list.size());
    if (list.isPackedDoubles())
        return bytes(list.packedDoubles(), static_cast<std::size_t>(list.size()) * sizeof(double));
    for (int i = 0; i < list.size(); ++i)
        number(list.number(i));
}

void Checksum::children(const Node &node)
{
    tag('c', node.size());
    for (int i = 0; i < node.size(); ++i) {
        const Node &child = *node.at(i);
        if (!child.name().isNull())
            text(child.name().view());
        add(child);
    }
}

} // namespace

RecipeSummary summaryOf(const Node &recipe)
{
    RecipeSummary summary{recipe.getString(u"name"), recipe.getString(u"desc")};
    Checksum checksum;
    for (const QStringView key : {QStringView(u"get"), QStringView(u"points")})
        if (const Node *part = recipe.child(key))
            checksum.add(*part);
    summary.checksum = checksum.value();
    const Node *put = recipe.find(u"points.put");
    summary.layers = put && put->isContainer() ? put->size() : 0;
    for (int i = 0; i < summary.layers; ++i)
        if (const Node *layer = put->at(i))
            summary.products += layer->size();
    return summary;
}

Node RecipeSummary::toNode() const
{
    Node node;
    node.ensure(u"name")->setString(name);
    node.ensure(u"desc")->setString(desc);
    node.ensure(u"layers")->setInt(layers);
    node.ensure(u"products")->setInt(products);
    node.ensure(u"checksum")->setInt(checksum);
    return node;
}

} // namespace host
