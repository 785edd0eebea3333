#include "pattern/rules/edit_write.h"

#include "orba/module_object.h"
#include "pattern/plan_recipe.h"
#include "pattern/rules/edit_move.h"
#include "pattern/rules/edit_order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using orba::Node;
using palx::PatternItem;

namespace {

/// A pattern of its own with foreign keys and values that cannot be used.
struct Pattern
{
    explicit Pattern(const char *json) { root.node().assign(nodeFromJson(json)); }
    QVector<PatternItem> read() { return palx::readPatternItems(root.node(), 100, 200); }
    QString json() { return nodeText(root.node()); }
    ModuleObject root;
};

const char *const kOdd = R"([{"x":1,"y":2.5,"w":10,"h":20,"r":0,"index":1,"made_by":"foreign"},
    {"x":"left","y":7,"index":9,"direction":"sideways","h":0},null,17])";

} // namespace

TEST(EditWrite, WritesOnlyWhatTheEditChanged)
{
    Pattern pattern(kOdd);
    const QVector<PatternItem> was = pattern.read();
    QVector<PatternItem> is = was;
    palx::moveItems(&is, {0, 1}, QPointF(2, 0));
    palx::writeItems(&pattern.root, was, is);
    EXPECT_EQ(pattern.root.node(),
              nodeFromJson(R"([{"x":3,"y":2.5,"w":10,"h":20,"r":0,"index":1,"made_by":"foreign"},
                  {"x":2.0,"y":7,"index":9,"direction":"sideways","h":0},null,17])"))
        << pattern.json();
}

TEST(EditWrite, ReordersRemovesAndAdds)
{
    Pattern pattern(
        R"([{"x":1,"y":1,"a":1,"index":1},{"x":2,"y":2,"a":2,"index":2},{"x":3,"y":3,"a":3,"index":3}])");
    const QVector<PatternItem> was = pattern.read();
    QVector<PatternItem> is{was[2], was[0], planItem(9, 9, 10, 10)};
    palx::numberItems(&is);
    palx::writeItems(&pattern.root, was, is, {2, 0, -1});
    EXPECT_EQ(placesOf(pattern.read()), "3,3/0 1,1/0 9,9/0");
    EXPECT_EQ(pattern.root.getInt("#0.a"), 3);
    EXPECT_EQ(pattern.root.getInt("#1.a"), 1);
    EXPECT_FALSE(pattern.root.has("#2.a"));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(pattern.root.getInt(QStringLiteral("#%1.index").arg(i)), i + 1);
    palx::writeItems(&pattern.root, is, {}, {});
    EXPECT_EQ(pattern.root.cmobjCount(), 0);
}

TEST(EditWrite, RecordsBeyondThoseThatWereReadStay)
{
    Pattern pattern("[]");
    for (int i = 0; i < palx::kMaxShownItems + 3; ++i)
        pattern.root.node().add()->ensure(u"x")->setInt(i);
    const QVector<PatternItem> was = pattern.read();
    ASSERT_EQ(was.size(), palx::kMaxShownItems);
    palx::writeItems(&pattern.root, was, was.mid(1999), {1999});
    ASSERT_EQ(pattern.root.cmobjCount(), 4);
    EXPECT_EQ(pattern.root.getInt("#0.x"), 1999);
    EXPECT_EQ(pattern.root.getInt("#3.x"), 2002);
}
