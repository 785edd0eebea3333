#include "stack/stack_check.h"

#include "orba/tree_registry.h"
#include "support/test_support.h"

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
                         [this](const QVariant &value) {
                             titles_.append(nodeFromJson(value.toString().toUtf8()).getString(u"title"));
                         });
    }

    void TearDown() override
    {
        orba::TreeRegistry::instance().removeModule("quill");
        orba::TreeRegistry::instance().removeModule("nexo");
    }

    QStringList takeTitles() { return std::exchange(titles_, {}); }

private:
    QObject context_;
    QStringList titles_;
};

TEST_F(CheckTest, ProductAndPalletAreRepaired)
{
    const QString length = QStringLiteral("Product length is invalid and is setted to default");
    const QString width = QStringLiteral("Product width is invalid and is setted to default");
    const struct
    {
        bool (*check)(Node &);
        const char *productCfg;
        QStringList titles;
        const char *expected;
    } cases[] = {
        {palx::checkProductPara,
         R"({"product":{"height":9,"length":-5}})",
         {length, width},
         R"({"product":{"height":9,"length":200,"width":150}})"},
        {palx::checkProductPara,
         R"({"product":{"length":"abc","width":"20"}})",
         {length},
         R"({"product":{"length":200,"width":"20"}})"},
        {palx::checkPalletPara,
         R"({"product":{"width":200},"pallet":{"length":1000,"width":-1}})",
         {QStringLiteral("Pallet width is invalid and is setted to default")},
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
