#include "workstation/plugin_node.h"

#include "orba/module_manager.h"
#include "orba/tree_registry.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using orba::Node;

namespace {

/// The plugin node in its place, built from the template in the plug-in's resources.
class PluginNodeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Node *tree = orba::TreeRegistry::instance().addModule(palx::getPluginName());
        orba::FormatError error;
        ASSERT_TRUE(orba::ModuleManager::readFromJson(
            QStringLiteral(":/palx_workstation/template/palx_workstation.json"), tree, &error))
            << qPrintable(error.text());
    }
    void TearDown() override { orba::TreeRegistry::instance().removeModule(palx::getPluginName()); }
};

TEST_F(PluginNodeTest, StacksAreFoundToTheLetter)
{
    EXPECT_FALSE(palx::hasStack(QStringLiteral("A")));
    EXPECT_EQ(palx::getStack(QStringLiteral("A")), emptyMobj());
    ModuleObject *first = palx::addStack(QStringLiteral("A"), QStringLiteral("first"));
    palx::addStack(QStringLiteral("A"), QStringLiteral("second"));
    palx::addStack(QStringLiteral("a.#1"), QString());
    palx::addStack(QString(), QString());
    struct
    {
        const char *name;
        bool has;
        const char *desc;
    } const cases[] = {{"A", true, "first"},
                       {" A", false, nullptr},
                       {"a", false, nullptr},
                       {"a.#1", true, ""},
                       {"", true, nullptr}};
    for (const auto &one : cases) {
        const QString name = QString::fromLatin1(one.name);
        EXPECT_EQ(palx::hasStack(name), one.has) << name;
        ModuleObject *stack = palx::getStack(name);
        EXPECT_EQ(stack->isEmptyMobj(), one.desc == nullptr) << name;
        EXPECT_EQ(stack->getString("desc"), QString::fromLatin1(one.desc ? one.desc : "")) << name;
    }
    EXPECT_EQ(first->getInt("product_cfg.pallet.height"), 150);
}

TEST(Records, IdentityZeroesWhatIsThere)
{
    struct
    {
        void (*identity)(ModuleObject *);
        const char *before, *after;
    } const cases[] = {
        {palx::identityPointNode,
         R"({"trans":[1.0,2.0,3.0],"rot":[1.0,2.0],"near":[1,2,3,4,5,6,7],"conf":[1.0,2.0]})",
         R"({"trans":[0.0,0.0,0.0],"rot":[0.0,0.0],"near":[0.0,0.0,0.0,0.0,0.0,0.0,7],"conf":[1.0,2.0]})"},
        {palx::identityToolNode,
         R"({"end":{"trans":[1.0,1.0,1.0],"rot":[1.0,1.0,1.0]},"ref":{"trans":[5.0,5.0,5.0]},"load":{"cog":[1.0,1.0,1.0],"inertia":[2.0,2.0,2.0],"mass":4.0}})",
         R"({"end":{"trans":[0.0,0.0,0.0],"rot":[0.0,0.0,0.0]},"ref":{"trans":[5.0,5.0,5.0]},"load":{"cog":[0.0,0.0,0.0],"inertia":[0.0,0.0,0.0],"mass":0.0}})"},
        {palx::identityToolsetNode,
         R"({"ref":{"trans":[5.0,5.0,5.0],"rot":[5.0,5.0,5.0]},"load":{"mass":1}})",
         R"({"ref":{"trans":[0.0,0.0,0.0],"rot":[0.0,0.0,0.0]},"load":{"mass":0.0}})"},
    };
    for (const auto &one : cases) {
        ModuleObject record;
        record.copyFrom(nodeFromJson(one.before));
        one.identity(&record);
        EXPECT_EQ(record.node(), nodeFromJson(one.after));
    }
}

TEST(Records, CopyCountsBySourceAndStopsAtTheDestination)
{
    struct
    {
        const char *source, *destination, *after;
    } const cases[] = {
        {R"({"conf":[1,2,3,4],"trans":[0.5,"1.5",null]})",
         R"({"trans":[9.0,9.0,9.0],"conf":[0.0,0.0,0.0,0.0,5.0,6.0]})",
         R"({"trans":[0.5,1.5,0.0],"conf":[1.0,2.0,3.0,4.0,5.0,6.0]})"},
        {R"({"conf":[1.0,2.0,3.0]})", R"({"conf":[0.0]})", R"({"conf":[1.0]})"},
        {"null", R"({"conf":[0.5]})", R"({"conf":[0.5]})"},
        {R"({"rot":[1.0,2.0,3.0]})", R"({"rot":[0.0,0.0,0.0]})", R"({"rot":[1.0,2.0,3.0]})"},
    };
    for (const auto &one : cases) {
        ModuleObject source;
        source.copyFrom(nodeFromJson(one.source));
        ModuleObject destination;
        destination.copyFrom(nodeFromJson(one.destination));
        Node inner(destination.node());
        palx::copyPointData(&destination, &source);
        EXPECT_EQ(destination.node(), nodeFromJson(one.after)) << one.source;
        palx::copyPointData(inner, source.node()); // the inner form must agree
        EXPECT_EQ(inner, nodeFromJson(one.after)) << one.source;
    }
}

} // namespace
