#include "palx_run.h"

#include "orba/module_manager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace {

using orba::Node;

struct Found
{
    int code = -1;
    QStringList repairs, refusals, warnings;
};

/// Checks the recipe "Line left" after an edit.
Found checkEdited(const std::function<void(Node &)> &edit)
{
    QTemporaryDir folder;
    Node stacks = exampleContent("line-left.xml");
    edit(*stacks.at(0));
    const QString file = folder.filePath("edited.xml");
    EXPECT_TRUE(orba::ModuleManager::writeToXmlFile(stacks, file));
    const PalxRun run = runPalx({"check", file, "--format", "json"});
    const Node result = parsed(run.out);
    const Node *stack = result.find(u"stacks.#0");
    if (!stack)
        return {};
    return {run.code, texts(*stack->child(u"repairs")), texts(*stack->child(u"refusals")),
            texts(*stack->child(u"warnings"))};
}

std::function<void(Node &)> setter(const char *path, const QVariant &value)
{
    return [path, value](Node &stack) { stack.ensure(orba::Path(path))->setValue(value); };
}

} // namespace

TEST(Check, TheExamplesAreWithoutFinding)
{
    for (const QString &file : exampleFiles()) {
        const PalxRun run = runPalx({"check", examplePath(file), "--format", "json"});
        EXPECT_EQ(run.code, 0) << run.err.constData();
        const Node result = parsed(run.out);
        const Node &stacks = *result.child(u"stacks");
        EXPECT_EQ(stacks.size(), exampleContent(file).size());
        for (int i = 0; i < stacks.size(); ++i) {
            EXPECT_EQ(childNames(*stacks.at(i)), (QStringList{"name", "repairs", "refusals", "warnings"}));
            for (const char16_t *kind : {u"repairs", u"refusals", u"warnings"})
                EXPECT_EQ(texts(*stacks.at(i)->child(kind)), QStringList()) << qPrintable(file);
        }
    }
}

TEST(Check, RepairsArePrintedOnceAndAcceptable)
{
    const Found product = checkEdited([](Node &stack) {
        setter("product_cfg.product.length", -5)(stack);
        setter("product_cfg.product.width", 0)(stack);
    });
    EXPECT_EQ(product.code, 0);
    EXPECT_EQ(product.repairs, (QStringList{"Product length is invalid and is setted to default",
                                            "Product width is invalid and is setted to default"}));
    const Found pallet = checkEdited([](Node &stack) {
        setter("product_cfg.pallet.length", 0)(stack);
        setter("product_cfg.pallet.width", 100)(stack);
    });
    EXPECT_EQ(pallet.code, 0);
    EXPECT_EQ(pallet.repairs, (QStringList{"Pallet length is invalid and is setted to default",
                                           "Pallet'width is less than product'width"}));
}

TEST(Check, WhatCannotBeRepairedIsRefused)
{
    const Found product = checkEdited([](Node &stack) { stack.remove(u"product_cfg.product"); });
    EXPECT_EQ(product.code, 1);
    EXPECT_EQ(product.refusals, QStringList{"Product para is invalid"});
    const Found layers = checkEdited(setter("layers.#2.pattern", QStringLiteral("empty")));
    EXPECT_EQ(layers.code, 1);
    EXPECT_EQ(layers.refusals, QStringList{"A layer with a pattern follows an \"empty\" layer."});
}

TEST(Check, PlainMistakesAreWarnedOf)
{
    const struct
    {
        std::function<void(Node &)> edit;
        const char *warning; ///< the beginning of one of the warnings
    } cases[] = {
        {setter("patterns.A.#0.x", 60), "Pattern \"A\": Product 1 reaches 60.0 mm over the pallet."},
        {setter("patterns.A.#1.x", 650), "Pattern \"A\": Products 1 and 2 overlap by "},
        {[](Node &stack) { stack.find(u"get.get_p")->reset(Node::Kind::Null); },
         "The pick point is not taught."},
        {[](Node &stack) { stack.find(u"put.put_p")->reset(Node::Kind::Null); },
         "The place point is not taught."},
    };
    for (const auto &given : cases) {
        const Found found = checkEdited(given.edit);
        EXPECT_EQ(found.code, 0) << given.warning;
        EXPECT_EQ(found.warnings.filter(given.warning).size(), 1)
            << given.warning << " not in " << qPrintable(found.warnings.join('\n'));
    }
}

TEST(Check, ALayerThatNamesAnUnknownPatternIsWarnedOf)
{
    const Found found = checkEdited(setter("layers.#2.pattern", QStringLiteral("Z")));
    EXPECT_EQ(found.code, 0);
    ASSERT_EQ(found.warnings.size(), 1) << qPrintable(found.warnings.join('\n'));
    EXPECT_TRUE(found.warnings.first().contains("Z")) << qPrintable(found.warnings.first());
}

TEST(Check, TextNamesRecipeAndFindings)
{
    const PalxRun run =
        runPalx({"check", examplePath("global-cell.json"), "--format", "table", "--stack", "Cell left"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "Cell left: repairs 0, refusals 0, warnings 0\n");
}
