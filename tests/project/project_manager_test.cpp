// The page: what it asks, shows and hands to the rules.

#include "project_fixture.h"

#include "project/rules/project_record.h"
#include "ui/project_tables.h"
#include "ui/projectmanager.h"
#include "workstation/plugin_node.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>

using orba::Node;

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
    QString name() const { return find<QLineEdit>("edtName")->text(); }
    void setName(const QString &text) const { find<QLineEdit>("edtName")->setText(text); }
    QStringList listed() const
    {
        QStringList names;
        const auto *combo = find<QComboBox>("cmbProject");
        for (int i = 0; i < combo->count(); ++i)
            names.append(combo->itemText(i));
        return names;
    }
    void choose(const QString &project) const
    {
        auto *combo = find<QComboBox>("cmbProject");
        combo->setCurrentText(project);
        Q_EMIT combo->activated(combo->currentIndex());
    }
    QStringList column(const char *table, int column) const
    {
        QStringList texts;
        const QAbstractItemModel *model = find<QTableView>(table)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, column).data().toString());
        return texts;
    }

    std::unique_ptr<ProjectManager> page;
};

} // namespace

TEST_F(ProjectPage, AddsWhatWasChosen)
{
    click("btnAdd");
    EXPECT_TRUE(QRegularExpression("^Palletizing_\\d{4}_\\d{4}_\\d{4}$").match(name()).hasMatch()) << name();
    setName(QStringLiteral("Line 1"));
    for (const char *button : {"rBtnSingleLineBothSizes", "rBtnDepalletizing", "rBtnDoubleSuction",
                               "rBtnWithoutBollard", "rBtnWithoutClapboard"})
        click(button);
    find<QComboBox>("cmbLeftRecipe")->setCurrentIndex(0);
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
    EXPECT_EQ(column("tblPrograms", 2), QStringList({"main", "BackHome", "Init", "ZuoMaduo", "YouMaduo",
                                                     "main", "main", "main", "main"}));
}

TEST_F(ProjectPage, WhatFailsStaysOpenToBeCorrected)
{
    add(QStringLiteral("Old"));
    QFile::remove(place(QStringLiteral("Old/var.json")));
    putFile(QStringLiteral("Old/var.json/in the way"), "");
    page->refreshData();
    choose(QStringLiteral("Old"));
    click("btnAdd");
    find<QCheckBox>("chbClone")->setChecked(true);
    click("rBtnSingleLineRightSize");
    const struct
    {
        const char *name;
        bool answer;
        QString message;
    } cases[] = {{"Old", true, "error: Project already exists"},
                 {"New", false, "ask: Are you sure to create and switch to new project: New?"},
                 {"New", true, "error: Cannot write to file: " + place("New/var.json")}};
    for (const auto &each : cases) {
        presenter.answer(each.answer);
        setName(QLatin1String(each.name));
        click("btnWork");
        EXPECT_EQ(takeMessages().last(), each.message);
        EXPECT_EQ(page->editMode(), ProjectManager::Adding);
        EXPECT_EQ(name(), QLatin1String(each.name));
        EXPECT_EQ(listed(), QStringList("Old"));
        EXPECT_TRUE(find<QCheckBox>("chbClone")->isChecked());
        EXPECT_TRUE(find<QRadioButton>("rBtnSingleLineRightSize")->isChecked());
    }
    click("btnCancel");
    EXPECT_EQ(page->editMode(), ProjectManager::NotEditing);
    EXPECT_FALSE(find<QRadioButton>("rBtnSingleLineRightSize")->isChecked());
}

TEST_F(ProjectPage, FollowsTheControllerButNotIntoAnEdit)
{
    add(QStringLiteral("A"), R"({"clapboard": 1})");
    add(QStringLiteral("B"));
    EXPECT_EQ(page->chosenProject(), QStringLiteral("B"));
    choose(QStringLiteral("A"));
    EXPECT_TRUE(find<QRadioButton>("rBtnWithoutClapboard")->isChecked());
    click("btnEdit");
    EXPECT_EQ(name(), QStringLiteral("A"));
    click("rBtnDoubleLineBothSizes");
    m("quill.project.cur_project")->set(nullptr, "", QString());
    EXPECT_EQ(page->editMode(), ProjectManager::Editing);
    EXPECT_EQ(page->chosenProject(), QStringLiteral("A"));
    EXPECT_TRUE(find<QRadioButton>("rBtnDoubleLineBothSizes")->isChecked());
    click("btnCancel");
    EXPECT_EQ(page->chosenProject(), QString());
    choose(QStringLiteral("B"));
    presenter.answer(true);
    click("btnRemove");
    EXPECT_EQ(listed(), QStringList("A")) << "what is shown goes";
    m("nexo.r.id")->set(nullptr, "", QString());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(find<QLabel>("lblState")->text(), QStringLiteral("Connect the controller first"));
    EXPECT_FALSE(find<QPushButton>("btnAdd")->isEnabled());
}
