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

const QVector<BrokenFile> &brokenFiles()
{
    static const QVector<BrokenFile> files{
        {"empty", "", ":1:1: is neither a recipe XML nor the JSON of a plugin node"},
        {"binary", QByteArray("\0\1\2\3", 4), ":1:1: is neither a recipe XML nor the JSON of a plugin node"},
        {"truncated XML", "<node type=\"list\">\n <node type=\"map\">", ":2:"},
        {"XML nested too deep", QByteArray("<node type=\"list\">").repeated(2000), ":1:"},
        {"XML of one value", "<node type=\"int\">3</node>", ": holds no list of recipes"},
        {"XML of a text as recipe", "<node type=\"list\"><node type=\"string\">A</node></node>",
         ": recipe 1: recipe: is the text \"A\", expected a group"},
        {"JSON nested too deep", QByteArray("[").repeated(100000), ":1:"},
        {"JSON without stacks", "{\"global_tool\": []}", ": is no plugin node: there is no list \"stacks\""},
        {"JSON with numbers as stacks", "{\"stacks\": [1, 2]}", ": stacks: expected a list of recipes"},
        {"text as length", R"({"stacks": [{"name": "S", "product_cfg": {"product": {"length": "long"}}}]})",
         ": recipe 1 \"S\": product_cfg.product.length: is the text \"long\", expected a number"},
        {"text as tool list", R"({"stacks": [], "global_tool": "t"})", ": global_tool: is the text \"t\""},
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
        const PalxRun run = runPalx({"points", file});
        EXPECT_EQ(run.code, 1) << run.err.constData();
        EXPECT_TRUE(run.out.isEmpty()) << run.out.constData();
        EXPECT_TRUE(run.err.contains(file.toUtf8())) << run.err.constData();
        EXPECT_TRUE(run.err.contains(broken.reason)) << run.err.constData();
        EXPECT_EQ(fileContent(file), broken.content);
    }
}

TEST(Refusals, ATruncatedExampleIsRefusedAtAnyPlace)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("cut");
    const QByteArray whole = fileContent(examplePath("global-cell.json")).trimmed();
    for (const int size : {1, whole.size() / 3, whole.size() * 2 / 3, whole.size() - 1}) {
        writeFile(file, whole.left(size));
        const PalxRun run = runPalx({"points", file});
        EXPECT_EQ(run.code, 1) << "cut at " << size;
        EXPECT_TRUE(run.out.isEmpty()) << "cut at " << size;
    }
}

TEST(Usage, WrongUsageExitsWithTwoAndHelpWithZero)
{
    const QString recipe = examplePath("line-left.xml");
    const QVector<QStringList> wrong{{},
                                     {"paint"},
                                     {"points"},
                                     {"points", recipe, "--format", "yaml"},
                                     {"render", recipe, "--layer", "first", "-o", "x.png"},
                                     {"screenshots", "-o", "x", "--size", "wide"}};
    for (const QStringList &arguments : wrong) {
        const PalxRun run = runPalx(arguments);
        EXPECT_EQ(run.code, 2) << qPrintable(arguments.join(' '));
        EXPECT_TRUE(run.out.isEmpty()) << qPrintable(arguments.join(' '));
        EXPECT_FALSE(run.err.isEmpty()) << qPrintable(arguments.join(' '));
    }
    const PalxRun help = runPalx({"--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.contains("points")) << help.out.constData();
}
