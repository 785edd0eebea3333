// The page: what it asks, shows and hands to the rules.

#include "project_fixture.h"

#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "ui/long_work_dialog.h"
#include "ui/program_view.h"
#include "ui/project_tables.h"
#include "ui/projectmanager.h"
#include "ui/projectparamsetuppage.h"
#include "workstation/plugin_node.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFrame>
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
    EXPECT_EQ(page->editMode(), ProjectManager::Adding);
    EXPECT_EQ(find<QLabel>("lblCaption")->text(), QStringLiteral("New Project"));
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
    EXPECT_EQ(column("tblPrograms", 1), QStringList({"0", "1", "2", "3", "4", "0", "0", "0", "0"}));
    EXPECT_EQ(column("tblVariables", 0).size(), 38);
    EXPECT_TRUE(palx::checkVarExists("SetZ"));
}

TEST_F(ProjectPage, ARefusalStaysOpenToBeCorrected)
{
    add(QStringLiteral("Old"));
    click("btnAdd");
    click("rBtnDoubleLineBothSizes");
    find<QCheckBox>("chbClone")->setChecked(true);
    setName(QStringLiteral("Old"));
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList("error: Project already exists"));
    presenter.answer(false);
    setName(QStringLiteral("New"));
    click("btnWork");
    EXPECT_EQ(page->editMode(), ProjectManager::Adding);
    EXPECT_EQ(name(), QStringLiteral("New"));
    EXPECT_TRUE(find<QCheckBox>("chbClone")->isChecked());
    EXPECT_TRUE(find<QRadioButton>("rBtnDoubleLineBothSizes")->isChecked());
    click("btnCancel");
    EXPECT_EQ(page->editMode(), ProjectManager::NotEditing);
    EXPECT_TRUE(find<QPushButton>("btnAdd")->isVisible());
    EXPECT_EQ(listed(), QStringList("Old"));
    EXPECT_FALSE(find<QRadioButton>("rBtnDoubleLineBothSizes")->isChecked());
    click("btnWork"); // nothing is being edited
    EXPECT_EQ(listed(), QStringList("Old"));
}

TEST_F(ProjectPage, ACommitThatFailsLateStaysOpenToo)
{
    add(QStringLiteral("Old"));
    QFile::remove(place(QStringLiteral("Old/var.json")));
    putFile(QStringLiteral("Old/var.json/in the way"), "");
    page->refreshData();
    choose(QStringLiteral("Old"));
    click("btnAdd");
    find<QCheckBox>("chbClone")->setChecked(true);
    setName(QStringLiteral("New"));
    click("rBtnSingleLineRightSize");
    presenter.answer(true);
    click("btnWork");
    EXPECT_EQ(takeMessages().last(), "error: Cannot write to file: " + place("New/var.json"));
    EXPECT_EQ(page->editMode(), ProjectManager::Adding);
    EXPECT_EQ(listed(), QStringList("Old"));
    EXPECT_TRUE(find<QCheckBox>("chbClone")->isChecked());
    EXPECT_TRUE(find<QRadioButton>("rBtnSingleLineRightSize")->isChecked());
    EXPECT_TRUE(find<QPushButton>("btnWork")->isVisible());
}

TEST_F(ProjectPage, ClonesTheChosenProject)
{
    add(QStringLiteral("A"), R"({"scheme_layout": 1})");
    putFile(QStringLiteral("A/.rlprog"), R"({"project_name": "A"})");
    add(QStringLiteral("B"));
    page->refreshData();
    choose(QStringLiteral("A"));
    click("btnAdd");
    EXPECT_TRUE(find<QRadioButton>("rBtnSingleLineRightSize")->isChecked());
    find<QCheckBox>("chbClone")->setChecked(true);
    setName(QStringLiteral("C"));
    presenter.answer(true);
    click("btnWork");
    EXPECT_EQ(content("C/.rlprog"), QByteArray(R"({"project_name": "C"})"));
    EXPECT_EQ(listed(), QStringList({"A", "B", "C"}));
    EXPECT_EQ(column("tblPrograms", 2).count("main"), 6); // it has no tasks yet, but their files
    EXPECT_FALSE(find<QCheckBox>("chbClone")->isChecked());
}

TEST_F(ProjectPage, EditsTheChosenProject)
{
    add(QStringLiteral("A"), R"({"clapboard": 1})");
    add(QStringLiteral("B"));
    page->refreshData();
    choose(QStringLiteral("A"));
    EXPECT_TRUE(find<QRadioButton>("rBtnWithoutClapboard")->isChecked());
    EXPECT_EQ(find<QLabel>("lblState")->text(), QStringLiteral("Not current"));
    click("btnEdit");
    EXPECT_EQ(page->editMode(), ProjectManager::Editing);
    EXPECT_EQ(find<QLabel>("lblCaption")->text(), QStringLiteral("Edit Project"));
    EXPECT_EQ(name(), QStringLiteral("A"));
    EXPECT_FALSE(find<QCheckBox>("chbClone")->isVisible());
    setName(QStringLiteral("Z"));
    click("rBtnSingleLineRightSize");
    presenter.answer(true);
    click("btnWork");
    EXPECT_EQ(listed(), QStringList({"B", "Z"}));
    EXPECT_EQ(current(), QStringLiteral("SIM-0001/Z"));
    EXPECT_EQ(palx::projectRecord("Z")->getInt("clapboard"), 1);
    EXPECT_EQ(palx::projectRecord("Z")->getInt("scheme_layout"), 1);
}

TEST_F(ProjectPage, RemovesAndSwitchesByItsButtons)
{
    add(QStringLiteral("A"));
    add(QStringLiteral("B"));
    page->refreshData();
    choose(QStringLiteral("A"));
    QStringList seen;
    QObject::connect(m("quill.project.cur_project"), &orba::ModuleObject::changed, page.get(), [this, &seen] {
        const auto *dialog = page->findChild<LongWorkDialog *>();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(dialog->isModal() && dialog->isVisible());
        EXPECT_FALSE(dialog->findChild<QPushButton *>()->isVisible());
        seen.append(dialog->windowTitle());
    });
    presenter.answer(true);
    click("btnReload");
    EXPECT_EQ(seen, QStringList("Preparing data..."));
    EXPECT_FALSE(page->findChild<LongWorkDialog *>());
    EXPECT_EQ(current(), QStringLiteral("SIM-0001/A"));
    m("quill.project.cur_project")->disconnect(page.get());
    choose(QStringLiteral("B"));
    click("btnSetDefault");
    EXPECT_EQ(takeMessages().last(), QStringLiteral("info: Set B to auto load project success!"));
    EXPECT_EQ(find<QLabel>("lblState")->text(), QStringLiteral("Loaded at start-up"));
    presenter.answer(false);
    click("btnRemove");
    EXPECT_EQ(page->chosenProject(), QStringLiteral("B")); // and not what is current
    presenter.answer(true);
    click("btnRemove");
    EXPECT_EQ(listed(), QStringList("A"));
    EXPECT_EQ(page->chosenProject(), QStringLiteral("A"));
    presenter.answer(true);
    click("btnRemove");
    EXPECT_EQ(listed(), QStringList());
    EXPECT_FALSE(find<QPushButton>("btnRemove")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("btnEdit")->isEnabled());
    page->deleteProject();
    EXPECT_EQ(takeMessages().last(), QStringLiteral("error: Cannot remove empty project"));
}

TEST_F(ProjectPage, ParametersAreThePlacesOfTheCheckedButtons)
{
    const struct
    {
        const char *frame;
        const char *key;
        QStringList buttons;
    } cases[] = {{"frameSchemeLayout",
                  "scheme_layout",
                  {"rBtnSingleLineLeftSize", "rBtnSingleLineRightSize", "rBtnSingleLineBothSizes",
                   "rBtnDoubleLineBothSizes"}},
                 {"framePalletizingType", "palletizing_type", {"rBtnPalletizing", "rBtnDepalletizing"}},
                 {"frameTypeOfSucker", "type_of_sucker", {"rBtnSingleSuction", "rBtnDoubleSuction"}},
                 {"frameBollard", "bollard", {"rBtnWithBollard", "rBtnWithoutBollard"}},
                 {"frameClapboard", "clapboard", {"rBtnWithClapboard", "rBtnWithoutClapboard"}}};
    auto *parameters = page->findChild<ProjectParamSetupPage *>();
    palx::addProjectRecord(QStringLiteral("P"));
    for (const auto &each : cases) {
        auto *frame = find<QFrame>(each.frame);
        for (int i = 0; i < each.buttons.size(); ++i) {
            palx::projectRecord("P")->set(nullptr, each.key, i);
            parameters->rBtnAndCmbUpdated(QStringLiteral("P"));
            EXPECT_TRUE(find<QRadioButton>(each.buttons[i].toLatin1())->isChecked()) << each.buttons[i];
            EXPECT_EQ(parameters->getCheckedId(frame), i);
            parameters->setDefault();
            EXPECT_EQ(parameters->getCheckedId(frame), 0);
            parameters->setCheckedId(frame, i);
            parameters->dataToOrbaSaved(QStringLiteral("P"));
            EXPECT_EQ(palx::projectRecord("P")->getInt(each.key), i);
        }
        parameters->setCheckedId(frame, 17);
        EXPECT_EQ(parameters->getCheckedId(frame), 0);
    }
}

TEST_F(ProjectPage, RecipesAreChosenByTheirPlaceOnTheirSide)
{
    auto *parameters = page->findChild<ProjectParamSetupPage *>();
    const auto *left = find<QComboBox>("cmbLeftRecipe");
    const auto *right = find<QComboBox>("cmbRightRecipe");
    const auto texts = [](const QComboBox *combo) {
        QStringList names;
        for (int i = 0; i < combo->count(); ++i)
            names.append(combo->itemText(i));
        return names;
    };
    EXPECT_EQ(texts(left), QStringList({"box", "crate"}));
    EXPECT_EQ(texts(right), QStringList("bag"));
    parameters->rBtnAndCmbUpdated(QStringLiteral("unknown"));
    EXPECT_EQ(left->currentText(), QStringLiteral("crate")); // the last one
    palx::addProjectRecord(QStringLiteral("P"));
    parameters->rBtnAndCmbUpdated(QStringLiteral("P"));
    EXPECT_EQ(left->currentText(), QStringLiteral("box"));
    palx::stacksNode()->clear();
    parameters->refreshCmb();
    EXPECT_EQ(texts(left), QStringList("empty"));
    EXPECT_EQ(texts(right), QStringList("empty"));
}

TEST_F(ProjectPage, ShowsTheProgramsOfEveryProject)
{
    add(QStringLiteral("A"), R"({"bollard": 1})");
    putFile(QStringLiteral("A/task0/main.mod"), "! one\n! two\nGLOBAL PROC main()\nENDPROC");
    putFile(QStringLiteral("A/task0/Init.mod"), "");
    QFile::remove(place(QStringLiteral("A/task1/main.mod")));
    page->refreshData();
    auto *table = find<QTableView>("tblPrograms");
    const auto *program = find<ProgramView>("program");
    const auto *title = find<QLabel>("lblProgram");
    const struct
    {
        int row;
        const char *title;
        int lines;
    } cases[] = {
        {0, "task0/main.mod - Main Function, Default (motion)", 4},
        {2, "task0/Init.mod - Init, Default (motion): empty", 1},
        {4, "task1/main.mod - Main Function, Conveyor belt inspection (semi_static): the file cannot be read",
         1}};
    for (const auto &each : cases) {
        table->selectRow(each.row);
        EXPECT_EQ(title->text(), QLatin1String(each.title));
        EXPECT_EQ(program->blockCount(), each.lines);
        EXPECT_TRUE(program->isReadOnly());
    }
    add(QStringLiteral("B"));
    page->refreshData();
    choose(QStringLiteral("A"));
    EXPECT_EQ(column("tblPrograms", 2),
              QStringList({"BackHome", "Init", "ZuoMaduo", "main", "main", "main", "main"}));
    table->selectRow(3);
    EXPECT_EQ(title->text(), QStringLiteral("task0/main.mod"));
    EXPECT_EQ(program->blockCount(), 4);
}

TEST_F(ProjectPage, FollowsTheControllerButNotIntoAnEdit)
{
    add(QStringLiteral("A"));
    add(QStringLiteral("B"));
    EXPECT_EQ(page->chosenProject(), QStringLiteral("B"));
    choose(QStringLiteral("A"));
    click("btnEdit");
    click("rBtnDoubleLineBothSizes");
    m("quill.project.cur_project")->set(nullptr, "", QString());
    EXPECT_EQ(page->editMode(), ProjectManager::Editing);
    EXPECT_EQ(page->chosenProject(), QStringLiteral("A"));
    EXPECT_TRUE(find<QRadioButton>("rBtnDoubleLineBothSizes")->isChecked());
    click("btnCancel");
    EXPECT_EQ(page->chosenProject(), QString());
    m("nexo.r.id")->set(nullptr, "", QString());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(find<QLabel>("lblState")->text(), QStringLiteral("Connect the controller first"));
    EXPECT_FALSE(find<QPushButton>("btnAdd")->isEnabled());
}
