#include "stack/stack_check.h"

#include "orba/tree_registry.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using orba::Node;

namespace {

/// The operator's log, listened to without a host.
class CheckTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Node *quill = orba::TreeRegistry::instance().addModule("quill");
        Node *current = quill->ensure(u"log.current");
        current->setString(QString());
        current->setEvent(true);
        orba::TreeRegistry::instance().addModule("nexo")->ensure(u"r.id")->setString("R7");
        QObject::connect(m("quill.log.current"), &orba::ModuleObject::changed, &context_,
                         [this](const QVariant &value) { records_.append(value.toString()); });
    }

    void TearDown() override
    {
        orba::TreeRegistry::instance().removeModule("quill");
        orba::TreeRegistry::instance().removeModule("nexo");
    }

    /// Titles of the records so far, forgetting them; also checks what each record holds.
    QStringList takeTitles()
    {
        QStringList titles;
        for (const QString &text : records_) {
            const Node record = nodeFromJson(text.toUtf8());
            titles << record.getString(u"title");
            EXPECT_EQ(record.getString(u"level"), "warning");
            EXPECT_EQ(record.getString(u"rcid"), "R7");
        }
        records_.clear();
        return titles;
    }

private:
    QObject context_;
    QStringList records_;
};

TEST_F(CheckTest, ProductAndPalletAreRepaired)
{
    const QString length = QStringLiteral("%1 length is invalid and is setted to default");
    const QString width = QStringLiteral("%1 width is invalid and is setted to default");
    const QString product = QStringLiteral("Product");
    const QString pallet = QStringLiteral("Pallet");
    const struct
    {
        bool (*check)(Node &);
        const char *productCfg;
        QStringList titles;
        const char *expected;
    } cases[] = {
        {palx::checkProductPara,
         R"({"product":{"height":9,"length":-5}})",
         {length.arg(product), width.arg(product)},
         R"({"product":{"height":9,"length":200,"width":150}})"},
        {palx::checkProductPara,
         R"({"product":{"length":"abc","width":"20"}})",
         {length.arg(product)},
         R"({"product":{"length":200,"width":"20"}})"},
        {palx::checkProductPara,
         R"({"product":null})",
         {QStringLiteral("Product para is invalid")},
         R"({"product":null})"},
        {palx::checkPalletPara,
         R"({"product":{"width":200},"pallet":{"length":0,"width":-1}})",
         {length.arg(pallet), width.arg(pallet)},
         R"({"product":{"width":200},"pallet":{"length":1000,"width":800}})"},
        {palx::checkPalletPara, // a long product is no reason
         R"({"product":{"length":5000,"width":900.5},"pallet":{"length":100,"width":800}})",
         {QStringLiteral("Pallet'width is less than product'width")},
         R"({"product":{"length":5000,"width":900.5},"pallet":{"length":100,"width":900.5}})"},
        {palx::checkPalletPara, // but the key "product" is one
         R"({"product":{"product":1500},"pallet":{"length":1000,"width":800}})",
         {QStringLiteral("Pallet'length is less than product'length")},
         R"({"product":{"product":1500},"pallet":{"length":1500.0,"width":800}})"},
        {palx::checkPalletPara,
         R"({"product":{}})",
         {QStringLiteral("Pallet para is invalid")},
         R"({"product":{}})"},
    };
    for (const auto &one : cases) {
        Node stack;
        stack.ensure(u"product_cfg")->assign(nodeFromJson(one.productCfg));
        EXPECT_FALSE(one.check(stack)) << one.productCfg;
        EXPECT_EQ(takeTitles(), one.titles) << one.productCfg;
        EXPECT_EQ(*stack.find(u"product_cfg"), nodeFromJson(one.expected));
    }
}

TEST_F(CheckTest, ProductPalletNeverReachesThePallet)
{
    const auto plugin = makePluginTree();
    orba::ModuleObject *stack = addTestStack(
        plugin.get(),
        R"({"product_cfg.product.length":0,"product_cfg.pallet.length":-3,"product_cfg.pallet.width":0})");
    QSignalSpy spy(stack->r("product_cfg.product.length"), &orba::ModuleObject::changed);
    EXPECT_FALSE(palx::checkProductPallet(stack));
    EXPECT_EQ(stack->getInt("product_cfg.pallet.length"), -3);
    EXPECT_EQ(stack->getInt("product_cfg.product.length"), 200);
    EXPECT_EQ(spy.count(), 1); // a field that shows the length follows
    EXPECT_EQ(takeTitles().size(), 1);
}

TEST(LayerCheck, OnlyBlanksFollowTheFirstEmptyLayer)
{
    struct
    {
        QStringList patterns;
        bool good;
    } const cases[] = {
        {{"A", "", "B"}, true}, // no "empty" at all
        {{"A", "empty", "B"}, false},
        {{"A", "empty", "empty", "", "empty"}, true},
        {{"empty", "", "clapboard"}, false},
        {{"A", "Empty", "B"}, true}, // the word is case-sensitive
        {{"empty", " "}, false},
    };
    for (const auto &one : cases) {
        Node layers;
        layers.reset(Node::Kind::List);
        for (const QString &pattern : one.patterns)
            layers.add()->ensure(u"pattern")->setString(pattern);
        EXPECT_EQ(palx::checkLayersName(layers), one.good) << one.patterns.join(QLatin1Char(','));
    }
    EXPECT_TRUE(palx::checkLayersName(nodeFromJson("[1,2]")));
}

} // namespace
