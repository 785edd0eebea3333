#include "palx_run.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct BrokenFile
{
    const char *name;
    QByteArray content;
    const char *reason; ///< part of the message, after the file's name
};

QByteArray recipeXml(const QByteArray &inner)
{
    return "<node type=\"list\"><node type=\"map\">" + inner + "</node></node>";
}

QByteArray nestedXml(int depth)
{
    return QByteArray("<node type=\"list\">").repeated(depth) + QByteArray("</node>").repeated(depth);
}

QByteArray pluginJson(const QByteArray &stack)
{
    return "{\"stacks\": [{\"name\": \"S\", " + stack + "}]}";
}

const QVector<BrokenFile> &brokenFiles()
{
    static const QVector<BrokenFile> files{
        {"empty", "", ":1:1: is neither a recipe XML nor the JSON of a plugin node"},
        {"plain text", "hello", ":1:1: is neither a recipe XML nor the JSON of a plugin node"},
        {"binary", QByteArray("\0\1\2\3", 4), ":1:1: is neither a recipe XML nor the JSON of a plugin node"},
        {"truncated XML", "<node type=\"list\">\n <node type=\"map\">", ":2:"},
        {"XML with an unknown type", "<node type=\"list\">\n <node type=\"matrix\"/>\n</node>", ":2:"},
        {"XML with a wrong number", recipeXml("\n<node name=\"pallet_position\" type=\"int\">two</node>"),
         ":2:"},
        {"XML with other elements", "<recipes/>", ":1:"},
        {"XML nested too deep", nestedXml(2000), ":1:"},
        {"XML of one value", "<node type=\"int\">3</node>", ": holds no list of recipes"},
        {"XML of a number as recipe", "<node type=\"list\"><node type=\"int\">3</node></node>",
         ": holds no list of recipes"},
        {"XML of a text as recipe", "<node type=\"list\"><node type=\"string\">A</node></node>",
         ": recipe 1: recipe: is the text \"A\", expected a group"},
        {"truncated JSON", "{\"stacks\": [\n{\"name\": ", ":2:"},
        {"JSON nested too deep", QByteArray("[").repeated(100000), ":1:"},
        {"JSON list", "[1, 2]", ": is no plugin node: there is no list \"stacks\""},
        {"JSON without stacks", "{\"global_tool\": []}", ": is no plugin node: there is no list \"stacks\""},
        {"JSON with one number as stacks", "{\"stacks\": 3}", ": stacks: expected a list of recipes"},
        {"JSON with numbers as stacks", "{\"stacks\": [1, 2]}", ": stacks: expected a list of recipes"},
        {"number too large", pluginJson("\"pallet_position\": 1e999"), ":1:"},
        {"text as length", pluginJson("\"product_cfg\": {\"product\": {\"length\": \"long\"}}"),
         ": recipe 1 \"S\": product_cfg.product.length: is the text \"long\", expected a number"},
        {"list as group", pluginJson("\"product_cfg\": [1]"),
         ": recipe 1 \"S\": product_cfg: is a list, expected a group"},
        {"number as layers", pluginJson("\"layers\": 4"),
         ": recipe 1 \"S\": layers: is a number, expected a list"},
        {"text as layer", pluginJson("\"layers\": [\"A\"]"),
         "layers.#0: is the text \"A\", expected a group"},
        {"text as height", pluginJson("\"layers\": [{\"pattern\": \"A\", \"h_offset\": \"x\"}]"),
         "layers.#0.h_offset: "},
        {"number as item", pluginJson("\"patterns\": {\"A\": [{}, 7.5, {}]}"), "patterns.A.#1: is a number"},
        {"text as position", pluginJson("\"patterns\": {\"A\": [{\"x\": \"left\"}]}"), "patterns.A.#0.x: "},
        {"point of two numbers", pluginJson("\"get\": {\"get_p\": {\"trans\": [1, 2], \"rot\": [0, 0, 0]}}"),
         "get.get_p.trans: is a list, expected a list of at least 3 numbers"},
        {"point without rotation", pluginJson("\"put\": {\"put_p\": {\"trans\": [1, 2, 3]}}"),
         "put.put_p: is a group without \"rot\", expected a point"},
        {"text as tool list", "{\"stacks\": [], \"global_tool\": \"t\"}", ": global_tool: is the text \"t\""},
        {"text as towards", "{\"stacks\": [], \"global_wobj\": [{\"towards\": \"left\"}]}",
         "global_wobj.#0.towards: "},
    };
    return files;
}

} // namespace

TEST(Refusals, EveryBrokenFileIsRefusedWithPlaceAndReason)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("recipe.any");
    for (const BrokenFile &broken : brokenFiles()) {
        SCOPED_TRACE(broken.name);
        writeFile(file, broken.content);
        for (const QString &command : {QStringLiteral("points"), QStringLiteral("check")}) {
            const PalxRun run = runPalx({command, file});
            EXPECT_EQ(run.code, 1) << run.err.constData();
            EXPECT_TRUE(run.out.isEmpty()) << run.out.constData();
            EXPECT_TRUE(run.err.contains(file.toUtf8())) << run.err.constData();
            EXPECT_TRUE(run.err.contains(broken.reason)) << run.err.constData();
            EXPECT_EQ(fileContent(file), broken.content);
        }
    }
}

TEST(Refusals, FilesThatCannotBeReadAreNamed)
{
    QTemporaryDir folder;
    for (const QString &file : {folder.filePath("none.xml"), folder.path()}) {
        const PalxRun run = runPalx({"points", file});
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(run.err.contains(file.toUtf8() + ": cannot be read: ")) << run.err.constData();
    }
}

TEST(Refusals, ATruncatedExampleIsRefusedAtAnyPlace)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("cut");
    for (const char *name : {"interlocked-1200x800.xml", "global-cell.json"}) {
        const QByteArray whole = fileContent(examplePath(name)).trimmed();
        for (int tenth = 0; tenth < 10; ++tenth) {
            writeFile(file, whole.left(whole.size() * tenth / 10 + (tenth == 0 ? 1 : 0)));
            const PalxRun run = runPalx({"points", file});
            EXPECT_EQ(run.code, 1) << name << " cut at " << tenth << "/10";
            EXPECT_TRUE(run.out.isEmpty()) << name << " cut at " << tenth << "/10";
        }
    }
}

TEST(Usage, WrongUsageExitsWithTwoAndHelpWithZero)
{
    const QString recipe = examplePath("line-left.xml");
    const QVector<QStringList> wrong{{},
                                     {"paint"},
                                     {"points"},
                                     {"points", recipe, "extra"},
                                     {"points", recipe, "--format", "yaml"},
                                     {"check", recipe, "--stack"},
                                     {"render", recipe, "--layer", "first", "-o", "x.png"},
                                     {"screenshots"},
                                     {"screenshots", "-o", "x", "--size", "wide"}};
    for (const QStringList &arguments : wrong) {
        const PalxRun run = runPalx(arguments);
        EXPECT_EQ(run.code, 2) << qPrintable(arguments.join(' '));
        EXPECT_TRUE(run.out.isEmpty()) << qPrintable(arguments.join(' '));
        EXPECT_FALSE(run.err.isEmpty()) << qPrintable(arguments.join(' '));
    }
    for (const QStringList &arguments : {QStringList{"--help"}, QStringList{"points", "--help"}}) {
        const PalxRun run = runPalx(arguments);
        EXPECT_EQ(run.code, 0);
        EXPECT_TRUE(run.out.contains("points")) << run.out.constData();
    }
}
