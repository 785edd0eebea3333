#include "bwaf/bmodule.h"
#include "orba/tree_registry.h"
#include "support/test_support.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class BModuleTest : public ::testing::Test
{
protected:
    void TearDown() override { orba::TreeRegistry::instance().removeModule(QStringLiteral("sample_module")); }
    QString write(const char *text) const
    {
        QFile file(folder.filePath(QStringLiteral("template.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    QTemporaryDir folder;
    ScriptedPresenter presenter;
};

} // namespace

TEST_F(BModuleTest, APageAnswersItsParentsTree)
{
    bwaf::BModule module;
    module.bindMobjJson(QStringLiteral("sample_module"), write("{}"), false);
    bwaf::BModule page(&module); // not added yet, as in a page's constructor
    EXPECT_EQ(page.mobj(), module.mobj());
    EXPECT_EQ(page.parentModule(), &module);
}

TEST_F(BModuleTest, ABadTemplateIsToldAndTheTreeHoldsOnlyTheVersion)
{
    for (const QString &file : {QStringLiteral(":/none/template/none.json"), write("{\"a\": [1, }")}) {
        presenter.notices.clear();
        bwaf::BModule module;
        module.bindMobjJson(QStringLiteral("sample_module"), file, false);
        EXPECT_TRUE(module.mobj()->set(&module, "version", QStringLiteral("1"), true));
        EXPECT_EQ(nodeText(module.mobj()->node()), nodeText(nodeFromJson(R"({"version": "1"})")));
        ASSERT_EQ(presenter.notices.size(), 1) << file;
        EXPECT_TRUE(presenter.notices.first().startsWith(QStringLiteral("error: ")))
            << presenter.notices.first();
        EXPECT_TRUE(presenter.notices.first().contains(file)) << presenter.notices.first();
    }
}
