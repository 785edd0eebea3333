#include "formats/random_tree.h"
#include "support/test_support.h"

#include "orba/module_manager.h"

#include <gtest/gtest.h>

#include <cmath>

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

namespace {

/// One of the two formats, so that each case is tried with both.
struct Format
{
    const char *name;
    QByteArray (*write)(const Node &, FormatError *);
    bool (*read)(const QByteArray &, Node *, FormatError *, const orba::ReadLimits &);
};

QByteArray writeJson(const Node &node, FormatError *error)
{
    return ModuleManager::toJson(node, false, error);
}

class RoundTrip : public ::testing::TestWithParam<Format>
{
protected:
    void expectSame(const Node &node)
    {
        FormatError error;
        text_ = GetParam().write(node, &error);
        EXPECT_FALSE(error.isSet()) << error.text();
        Node back;
        EXPECT_TRUE(GetParam().read(text_, &back, &error, orba::ReadLimits())) << error.text() << "\n"
                                                                               << text_.constData();
        EXPECT_TRUE(back == node) << text_.constData();
    }
    QByteArray text_;
    qint64 bytes_ = 0;
};

TEST_P(RoundTrip, RandomTrees)
{
    for (unsigned seed = 0; seed < 1000 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        expectSame(RandomTree(seed).make());
        bytes_ += text_.size();
    }
    EXPECT_GT(bytes_, 160000); // the trees are not all small
}

TEST_P(RoundTrip, DeepestTreeAllowed)
{
    Node root;
    Node *deepest = &root;
    for (int depth = 1; depth < orba::ReadLimits::kMaxDepth; ++depth)
        deepest = deepest->add();
    deepest->add()->setString(
        QString(QChar(0xdc00))); // a leaf below the last list, written as an object in JSON
    expectSame(root);
}

TEST_P(RoundTrip, WhatCannotBeReadIsNotWritten)
{
    Node deep;
    Node *deepest = &deep;
    for (int depth = 0; depth < orba::ReadLimits::kMaxDepth; ++depth)
        deepest = deepest->add();
    deepest->reset(Node::Kind::List);
    Node infinite;
    infinite.ensure(u"stack.height")->setDouble(INFINITY);
    const double nan = NAN;
    Node packed;
    packed.ensure(u"trans")->setDoubles(&nan, 1);
    const struct
    {
        const Node &node;
        const char *what;
    } kCases[] = {{deep, "nested"}, {infinite, "(at \"stack.height\")"}, {packed, "(at \"trans\")"}};
    for (const auto &refused : kCases) {
        FormatError error;
        EXPECT_TRUE(GetParam().write(refused.node, &error).isEmpty());
        EXPECT_TRUE(error.what.contains(QLatin1String(refused.what))) << error.what;
    }
}

/// The target of a read changes only when the whole text was accepted.
TEST_P(RoundTrip, TruncationAtEveryByteChangesNothing)
{
    Node sample = RandomTree(17).make();
    sample.reset(Node::Kind::Map);
    sample.ensure(u"points.trans")->setDoubles(std::vector<double>{0.5, -1.25e-9, 3.0}.data(), 3);
    sample.ensure(u"name")->setString(QStringLiteral("Короб <1>\u0001 \U0001F4E6"));
    const QByteArray text = GetParam().write(sample, nullptr).trimmed();
    Node target = nodeFromJson(R"({"kept": 1})");
    const Node before = target;
    for (int length = 0; length < text.size(); ++length) {
        FormatError error;
        ASSERT_FALSE(GetParam().read(text.left(length), &target, &error, orba::ReadLimits())) << length;
        ASSERT_TRUE(target == before) << length;
        ASSERT_GT(error.line, 0) << length;
        ASSERT_GT(error.column, 0) << length;
    }
    ASSERT_TRUE(GetParam().read(text, &target, nullptr, orba::ReadLimits()));
    EXPECT_TRUE(target == sample);
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip,
                         ::testing::Values(Format{"json", writeJson, ModuleManager::fromJson},
                                           Format{"xml", ModuleManager::toXml, ModuleManager::fromXml}),
                         [](const auto &format) { return std::string(format.param.name); });

} // namespace
