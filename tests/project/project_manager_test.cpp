// The page: what it asks, shows and hands to the rules.

#include "project_fixture.h"

#include "project/rules/project_record.h"
#include "ui/projectmanager.h"
#include "workstation/plugin_node.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

class ProjectPage : public ProjectTest
{
protected:
    void SetUp() override
    {
        ProjectTest::SetUp();
        palx::stacksNode()->copyFrom(nodeFromJson(R"([{"name": "box", "pallet_position": 0},
            {"name": "bag", "pallet_position": 1}, {"name": "crate", "pallet_position": 0}])"));
        page = std::make_unique<ProjectManager>(nullptr, nullptr);
        page->show();
    }
    void TearDown() override { page.reset(); }

    template <typename T> T *find(const char *name) const
    {
        T *found = page->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void click(const char *name) const { find<QAbstractButton>(name)->click(); }
    std::unique_ptr<ProjectManager> page;
};

} // namespace

TEST_F(ProjectPage, AddsWhatWasChosen)
{
    click("btnAdd");
    click("rBtnDoubleLineBothSizes");
    EXPECT_TRUE(find<QLabel>("lblNoPrograms")->text().startsWith("There are no robot programs"));
    find<QLineEdit>("edtName")->setText(QStringLiteral("Line 1"));
    for (const char *button : {"rBtnSingleLineBothSizes", "rBtnDepalletizing", "rBtnDoubleSuction",
                               "rBtnWithoutBollard", "rBtnWithoutClapboard"})
        click(button);
    EXPECT_EQ(find<QLabel>("lblNoPrograms")->text(), "");
    auto *recipes = find<QComboBox>("cmbLeftRecipe");
    palx::stacksNode()->addUnnamed()->copyFrom(nodeFromJson(R"({"name": "Boxes", "pallet_position": 0})"));
    palx::triggerNode()->c("refresh_cmb")->trigger();
    EXPECT_EQ(recipes->itemText(recipes->count() - 1), "Boxes"); // while the page is shown
    recipes->setCurrentIndex(0);
    presenter.answer(true);
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList({"ask: Are you sure to create and switch to new project: Line 1?",
                                           "info: Set Line 1 to auto load project success!"}));
    EXPECT_EQ(page->editMode(), ProjectManager::NotEditing);
    EXPECT_EQ(palx::projectRecord("Line 1")->node(), nodeFromJson(R"({"name": "Line 1", "scheme_layout": 2,
        "palletizing_type": 1, "type_of_sucker": 1, "bollard": 1, "clapboard": 1, "left_stack_recipe": 0,
        "right_stack_recipe": 0})"));
    EXPECT_EQ(page->chosenProject(), QStringLiteral("Line 1"));
    EXPECT_EQ(find<QLabel>("lblState")->text(), QStringLiteral("Current, loaded at start-up"));
}
