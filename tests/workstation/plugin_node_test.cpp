#include "workstation/plugin_node.h"

#include "orba/module_manager.h"
#include "orba/tree_registry.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "workstation/string_watcher.h"

#include <QFile>
#include <QSignalSpy>

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

QString childNames(const Node &node)
{
    QStringList names;
    for (int i = 0; i < node.size(); ++i)
        names << node.at(i)->name().toString();
    return names.join(QLatin1Char(' '));
}

TEST_F(PluginNodeTest, TemplateKeepsKeysInOrder)
{
    const Node &plugin = palx::pluginNode()->node();
    const struct
    {
        const char16_t *path;
        const char *keys;
    } expected[] = {
        {u"", "default pallet_cfg trigger stacks projects global_tool global_wobj"},
        {u"trigger", "save_to_rc load_from_rc refresh_table refresh_cmb refresh_data refresh_pallet_data "
                     "refresh_margin_data reset_margin_data"},
        {u"default",
         "tool calibrate toolset put get product_cfg pattern_cfg wobj_margin patterns layers points "
         "bollard automatic_stacker pallet_position use_global_tool use_global_wobj"},
        {u"default.product_cfg.product", "height length width weight orient dx dy dz direction"},
    };
    for (const auto &one : expected)
        EXPECT_EQ(childNames(*plugin.find(one.path)), QString::fromLatin1(one.keys));
    EXPECT_EQ(plugin.find(u"pallet_cfg")->size(), 7);
    EXPECT_EQ(plugin.getString(u"pallet_cfg.#0.name"), QStringLiteral("AISA 1: 1100x1100"));
    EXPECT_EQ(plugin.getInt(u"pallet_cfg.#3.length"), 1067);
    QFile file(QStringLiteral(":/palx_workstation/template/palx_workstation.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(3), QByteArray("\xef\xbb\xbf"));
}

TEST_F(PluginNodeTest, StacksAreFoundToTheLetter)
{
    EXPECT_FALSE(palx::hasStack(QStringLiteral("A")));
    EXPECT_EQ(palx::getStack(QStringLiteral("A")), emptyMobj());
    QSignalSpy grown(palx::stacksNode(), &ModuleObject::structureChanged);
    ModuleObject *first = palx::addStack(QStringLiteral("A"), QStringLiteral("first"));
    palx::addStack(QStringLiteral("A"), QStringLiteral("second"));
    palx::addStack(QStringLiteral("a.#1"), QString());
    palx::addStack(QString(), QString());
    EXPECT_EQ(grown.count(), 4);
    struct
    {
        const char *name;
        bool has;
        const char *desc;
    } const cases[] = {{"A", true, "first"}, {" A", false, nullptr}, {"a", false, nullptr},
                       {"a.#1", true, ""},   {"", true, nullptr},    {"   ", false, nullptr}};
    for (const auto &one : cases) {
        const QString name = QString::fromLatin1(one.name);
        EXPECT_EQ(palx::hasStack(name), one.has) << name;
        ModuleObject *stack = palx::getStack(name);
        EXPECT_EQ(stack->isEmptyMobj(), one.desc == nullptr) << name;
        EXPECT_EQ(stack->getString("desc"), QString::fromLatin1(one.desc ? one.desc : "")) << name;
    }
    EXPECT_EQ(first->getInt("product_cfg.pallet.height"), 150);
    EXPECT_EQ(first->p(1), palx::pluginNode());
    EXPECT_EQ(&palx::pluginNodeOf(first->node()), &palx::pluginNode()->node());
    EXPECT_EQ(palx::triggerNode(), m("palx.trigger"));
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

TEST(Records, FreshToolsetIsCompleted)
{
    ModuleObject toolset; // null, as in a new stack
    palx::ensureToolsetRecord(toolset.node());
    EXPECT_EQ(toolset.r("ref.rot")->cmobjCount(), 3);
    toolset.set(nullptr, "load.mass", 3.5);
    palx::ensureToolsetRecord(toolset.node());
    EXPECT_EQ(toolset.getDouble("load.mass"), 3.5);
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

TEST(StringWatcher, TellsOnlyOfOtherTexts)
{
    StringWatcher watcher;
    QSignalSpy spy(&watcher, &StringWatcher::valueChanged);
    for (const char *text : {"", "a", "a", "b", ""})
        watcher.setValue(QString::fromLatin1(text));
    ASSERT_EQ(spy.count(), 3);
    EXPECT_EQ(spy[1][0].toString(), QStringLiteral("b"));
}

} // namespace
