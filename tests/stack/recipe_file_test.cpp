#include "stack/recipe_file.h"
#include "stack/recipe_shape.h"
#include "support/test_support.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using orba::Node;

Node templateStack()
{
    return nodeFromJson(R"({"tool": {"ref_p": null}, "get": {"get_p": null, "ready_h": 0}, "patterns": null,
        "layers": null, "toolset": null, "points": {"put": null}, "bollard": {"enabled": 0, "height": 0},
        "pallet_position": 0, "use_global_tool": false, "product_cfg": {"product": {"length": 200, "direction": "Middle"}}})");
}

Node pluginTemplate()
{
    Node plugin =
        nodeFromJson(R"({"default": null, "trigger": {"refresh_table": null}, "stacks": [], "global_tool": [],
        "global_wobj": []})");
    plugin.child(u"default")->assign(templateStack());
    return plugin;
}

class RecipeFileTest : public ::testing::Test
{
protected:
    QString file(const char *name, const QByteArray &content)
    {
        QFile out(folder_.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        return out.fileName();
    }
    QTemporaryDir folder_;
};

} // namespace

TEST(RecipeShape, TheFirstFaultIsNamedWithItsPath)
{
    const struct
    {
        const char *json;
        const char *fault;
    } cases[] = {
        {R"({"product_cfg": null, "patterns": {}, "further": [1, {"x": "y"}]})", ""},
        {R"({"get": {"get_p": {"trans": [0, 0, 0], "rot": [0, 0, 0], "near": [], "conf": [1, 2]}}})", ""},
        {R"({"patterns": {"A": [{"x": 1}, null]}, "layers": [{"pattern": "A"}, null]})", ""},
        {R"([1])", "recipe: is a list, expected a group"},
        {R"({"product_cfg": {"product": {"direction": ["Top"]}}})",
         "product_cfg.product.direction: is a list, expected a text"},
        {R"({"use_global_tool": "perhaps"})", "use_global_tool: is the text \"perhaps\", expected a number"},
        {R"({"get": {"get_p": 4}})", "get.get_p: is a number, expected a point"},
        {R"({"get": {"get_p": {"trans": [0, "up", 0], "rot": [0, 0, 0]}}})",
         "get.get_p.trans.#1: is the text \"up\", expected a number"},
        {R"({"layers": [1, 2]})", "layers: is a list of numbers, expected a list of groups"},
        {R"({"patterns": {"A": {"first": {"r": []}}}})", "patterns.A.first.r: is a list, expected a number"},
    };
    for (const auto &given : cases)
        EXPECT_EQ(palx::recipeFault(nodeFromJson(given.json), templateStack()), given.fault);
}

TEST_F(RecipeFileTest, APluginNodeKeepsWhatBelongsToTheRunningOne)
{
    const palx::RecipeFile recipes =
        palx::readRecipeFile(file("x", "\xEF\xBB\xBF \n{\"default\": 1, \"trigger\": 2, \"version\": \"9\", "
                                       "\"stacks\": [], \"global_tools\": [],"
                                       " \"global_wobj\": [{\"towards\": 1}]}"),
                             pluginTemplate());
    EXPECT_EQ(recipes.error, QString());
    EXPECT_EQ(recipes.content, nodeFromJson(R"({"stacks": [], "global_wobj": [{"towards": 1}]})"));
    EXPECT_EQ(recipes.notes, QStringList{"unknown key \"global_tools\" is left aside"});
}

TEST_F(RecipeFileTest, FilesAreAddedOneAfterTheOtherAndARefusedOneLeavesNothing)
{
    orba::ModuleObject plugin;
    plugin.copyFrom(pluginTemplate());
    const QString bad =
        file("bad", R"({"stacks": [{"name": "C"}, {"name": "D", "layers": 1}], "global_tool": [{}]})");
    const QString good = file("good", R"({"stacks": [{"name": "A"}], "global_wobj": [{"towards": 1}]})");
    EXPECT_EQ(palx::loadRecipeFiles(&plugin, {good, bad, file("two", R"({"stacks": [{"name": "B"}]})")}),
              QStringList{bad + ": recipe 2 \"D\": layers: is a number, expected a list"});
    EXPECT_EQ(plugin.c("stacks")->cmobjCount(), 2);
    EXPECT_EQ(plugin.getString("stacks.#1.name"), "B");
    EXPECT_EQ(plugin.getInt("global_wobj.#0.towards"), 1);
    EXPECT_EQ(plugin.c("global_tool")->cmobjCount(), 0);
}

TEST(SharedLists, RefuseWhatTheirEntriesCannotHold)
{
    const struct
    {
        const char *tools;
        const char *fault;
    } cases[] = {
        {R"([{"name": "Gripper", "frame": {"pos": {"x": 1, "y": 0.5}}, "load": {"mass": 3, "other": "kept"}}])", ""},
        {R"([{"frame": {"pos": {"x": "far"}}}])",
         "global_tool.#0.frame.pos.x: is the text \"far\", expected a number"},
        {R"([{}, {}, {"incoming_settings": {"bottom_left_node": {"trans": ["up", 0, 0], "rot": [0, 0, 0]}}}])",
         "global_tool.#2.incoming_settings.bottom_left_node.trans.#0: is the text \"up\", expected a number"},
        {R"([{}, {}, {}, {"waypoint_settings": {"get": 5}}])",
         "global_tool.#3.waypoint_settings.get: is a number, expected a group"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::globalToolFault(nodeFromJson(c.tools)), QString::fromUtf8(c.fault)) << c.tools;
}
