// The dialog: what the operator chooses, sees before, and can take back.

#include "exchange_fixture.h"

#include "project/rules/project_place.h"
#include "support/scripted_files.h"
#include "ui/exchange_table_model.h"
#include "ui/imexportprojectdialog.h"
#include "ui/message_bar.h"
#include "ui/projectmanager.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QTableView>

namespace {

class ExchangeDialogTest : public ExchangeTest
{
protected:
    void SetUp() override
    {
        ExchangeTest::SetUp();
        putProject(QStringLiteral("P"));
        putProject(QStringLiteral("Q"));
    }
    void TearDown() override
    {
        dialog.reset();
        palx::forgetLastImport();
    }
    void open(bool import)
    {
        dialog = std::make_unique<ImExportProjectDialog>(import, nullptr, programs());
        dialog->show();
    }
    template <typename T> T *find(const char *name) const
    {
        T *found = dialog->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void click(const char *name) const { find<QAbstractButton>(name)->click(); }
    void touchRow(int row) const
    {
        auto *table = find<QTableView>("tblProjects");
        Q_EMIT table->clicked(table->model()->index(row, ExchangeTableModel::kBecomes));
    }
    /// "+" for a checked row, and what will happen to it.
    QStringList shown() const
    {
        QStringList rows;
        for (const ExchangeTableModel::Row &row : dialog->findChild<ExchangeTableModel *>()->rows())
            rows.append((row.isChecked ? "+ " : "- ") + row.becomes);
        return rows;
    }
    QString told() const { return find<MessageBar>("message")->text(); }

    std::unique_ptr<ImExportProjectDialog> dialog;
};

} // namespace

TEST_F(ExchangeDialogTest, ExportsWhatIsChosenAndSaysWhatIsReplaced)
{
    ScriptedFiles files({{disk()}});
    open(false);
    EXPECT_FALSE(find<QWidget>("gpbProjectTemplates")->isVisible());
    EXPECT_EQ(find<QGroupBox>("gpbProjects")->title(), QStringLiteral("Select Project"));
    EXPECT_EQ(shown(), QStringList({"- Not exported", "- Not exported"}));
    EXPECT_FALSE(find<QAbstractButton>("btnWork")->isEnabled());
    touchRow(1);
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList("error: Export path can not be empty!"));
    click("btnTarget");
    EXPECT_EQ(shown(), QStringList({"- Not exported", "+ New file Q.zip"}));
    click("btnAll");
    find<QCheckBox>("chbProjectTemplates")->setChecked(true);
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList("info: Export to " + disk() + " success!"));
    EXPECT_EQ(names(disk()), QStringList({"P.zip", "Q.zip", "mod.zip"}));
    EXPECT_EQ(m("quill.help.file_path")->getString("project_export"), disk());
    EXPECT_TRUE(told().startsWith(QStringLiteral("Exported."))) << told();
    EXPECT_TRUE(shown().first().startsWith(QStringLiteral("+ Replaces P.zip of "))) << shown().first();

    open(false); // remembers the folder
    dialog->chooseProject(QStringLiteral("P"));
    EXPECT_TRUE(shown().first().startsWith(QStringLiteral("+ Replaces P.zip of "))) << shown().first();
}

TEST_F(ExchangeDialogTest, ImportsWhatIsChosenAndTakesItBack)
{
    ASSERT_TRUE(exportNames({"P"}));
    putArchive(QStringLiteral("N.zip"), {{"a", "1", 0, 0, 0, {}, {}, 0}});
    putArchive(QStringLiteral("bad.zip"), {{"../a", "1", 0, 0, 0, {}, {}, 0}});
    takeMessages();
    ScriptedFiles files({{onDisk("P.zip"), onDisk("N.zip"), onDisk("bad.zip")}});
    open(true);
    EXPECT_FALSE(find<QWidget>("chbProjectTemplates")->isVisible());
    EXPECT_FALSE(find<QAbstractButton>("btnWork")->isEnabled());
    click("btnFiles");
    EXPECT_EQ(files.asked.first().kind, FileRequest::OpenSeveral);
    EXPECT_EQ(m("quill.help.file_path")->getString("project_import"), disk());
    const QString problem = QStringLiteral("- the entry \"../a\" leads out of the folder");
    EXPECT_EQ(shown(), QStringList({"+ Renamed to P(1)", "+ New project N", problem}));
    click("rBtnReplace");
    EXPECT_EQ(shown(), QStringList({"+ Replaces the project P", "+ New project N", problem}));
    touchRow(1);
    touchRow(2); // cannot be chosen
    EXPECT_EQ(shown(), QStringList({"+ Replaces the project P", "- Not imported", problem}));
    touchRow(1);
    const auto before = this->files();
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList({"info: " + onDisk("P.zip") + " import success!",
                                           "info: " + onDisk("N.zip") + " import success!"}));
    EXPECT_EQ(palx::projectNames(), QStringList({"N", "P", "Q"}));
    EXPECT_EQ(told(), QStringLiteral("Imported: P, N"));
    open(true); // still known to another one
    presenter.answer(false);
    click("btnAction");
    EXPECT_EQ(told(), QStringLiteral("Imported: P, N"));
    presenter.answer(true);
    click("btnAction");
    EXPECT_EQ(told(), QStringLiteral("The last import was taken back."));
    EXPECT_EQ(this->files(), before);
}

TEST_F(ExchangeDialogTest, TemplatesAreResetOrReplaced)
{
    putArchive(QStringLiteral("mod.zip"), {{"top/a.mod", "1", 0, 0, 0, {}, {}, 0}});
    ScriptedFiles files({{onDisk("mod.zip")}});
    open(true);
    click("rBtnCustom");
    EXPECT_FALSE(find<QAbstractButton>("btnWork")->isEnabled()); // which one?
    click("btnTemplates");
    EXPECT_EQ(find<QLineEdit>("edtTemplates")->text(), onDisk(QStringLiteral("mod.zip")));
    click("btnWork");
    EXPECT_EQ(names(programs() + "/mod"), QStringList("a.mod"));
    click("rBtnReset");
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList({"info: Import project templates success!",
                                           "info: Project templates import success!",
                                           "info: Reset project templates success!"}));
    EXPECT_FALSE(QDir(programs() + "/mod").exists());
}

TEST_F(ExchangeDialogTest, ThePageOpensBothDirections)
{
    ProjectManager page(nullptr, nullptr);
    page.show();
    for (const char *button : {"btnExport", "btnImport"}) {
        auto *opener = page.findChild<QAbstractButton *>(QLatin1String(button));
        ASSERT_TRUE(opener && opener->isEnabled());
        opener->click();
        auto *opened = page.findChild<ImExportProjectDialog *>();
        ASSERT_TRUE(opened);
        EXPECT_EQ(opened->findChild<QAbstractButton *>("btnFiles")->isVisible(),
                  button == QString("btnImport"));
    }
    EXPECT_EQ(page.findChildren<ImExportProjectDialog *>().size(), 1);
    putArchive(QStringLiteral("N.zip"), {{"a", "1", 0, 0, 0, {}, {}, 0}});
    ScriptedFiles files({{onDisk("N.zip")}});
    auto *import = page.findChild<ImExportProjectDialog *>();
    import->findChild<QAbstractButton *>("btnFiles")->click();
    import->work();
    EXPECT_GE(page.findChild<QComboBox *>("cmbProject")->findText("N"), 0);
    palx::forgetLastImport();
}
