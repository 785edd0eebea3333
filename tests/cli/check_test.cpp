#include "palx_run.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace {

using orba::Node;
using Edit = std::function<void(Node &)>;

Edit setter(const char *path, const QVariant &value)
{
    return [path, value](Node &stack) { stack.ensure(orba::Path(path))->setValue(value); };
}

} // namespace

TEST(Check, SaysWhatItRepairsRefusesAndWarnsOf)
{
    const struct
    {
        Edit edit;
        int code;
        const char16_t *kind;
        const char *finding; ///< the beginning of one of the texts
    } cases[] = {
        {setter("product_cfg.product.length", -5), 0, u"repairs",
         "Product length is invalid and is setted to default"},
        {[](Node &stack) { stack.remove(u"product_cfg.product"); }, 1, u"refusals",
         "Product para is invalid"},
        {setter("layers.#2.pattern", QStringLiteral("empty")), 1, u"refusals",
         "A layer with a pattern follows an \"empty\" layer."},
        {setter("patterns.A.#0.x", 60), 0, u"warnings",
         "Pattern \"A\": Product 1 reaches 60.0 mm over the pallet."},
        {[](Node &stack) { stack.find(u"get.get_p")->reset(Node::Kind::Null); }, 0, u"warnings",
         "The pick point is not taught."},
    };
    const QTemporaryDir folder;
    const QString file = folder.filePath("edited.xml");
    for (const auto &given : cases) {
        SCOPED_TRACE(given.finding);
        Node stacks = exampleContent("line-left.xml");
        given.edit(*stacks.at(0));
        writeRecipes(file, stacks);
        const PalxRun run = runPalx({"check", file, "--format", "json"});
        EXPECT_EQ(run.code, given.code);
        const Node result = parsed(run.out);
        const Node *stack = result.find(u"stacks.#0");
        ASSERT_TRUE(stack);
        EXPECT_EQ(childNames(*stack), (QStringList{"name", "repairs", "refusals", "warnings"}));
        const QStringList found = texts(*stack->child(given.kind));
        EXPECT_EQ(found.filter(given.finding).size(), 1) << qPrintable(found.join('\n'));
    }
}

TEST(Check, TextNamesRecipeAndFindings)
{
    const PalxRun run =
        runPalx({"check", examplePath("global-cell.json"), "--format", "table", "--stack", "Cell left"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "Cell left: repairs 0, refusals 0, warnings 0\n");
}

TEST(Examples, TheyAreWhatTheirProgramWrites)
{
    const QTemporaryDir folder;
    QProcess process;
    process.start(
        QStringLiteral(PALX_BIN_DIR "/make_examples"),
        {QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json"), folder.path()});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    for (const QString &file : exampleFiles())
        EXPECT_EQ(fileContent(folder.filePath(file)), fileContent(examplePath(file))) << qPrintable(file);
}
