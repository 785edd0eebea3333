// The dialog: what the operator chooses, sees before, and can take back.

#include "exchange_fixture.h"

#include "project/rules/project_place.h"
#include "support/scripted_files.h"
#include "ui/exchange_table_model.h"
#include "ui/imexportprojectdialog.h"
#include "ui/message_bar.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QDir>
#include <QFile>
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
    void TearDown() override { dialog.reset(); }
    void open(bool isImport)
    {
        dialog = std::make_unique<ImExportProjectDialog>(isImport, nullptr, programs());
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
        Q_EMIT table->clicked(table->model()->index(row, ExchangeTableModel::kName));
    }
    /// "+" for a checked row, and what will happen to it.
    QStringList shown() const
    {
        QStringList rows;
        const auto *model = dialog->findChild<ExchangeTableModel *>();
        for (int row = 0; row < model->rowCount(); ++row)
            rows.append((model->rows().at(row).isTicked ? "+ " : "- ") + model->fate(row).text);
        return rows;
    }
    QString told() const { return find<MessageBar>("message")->text(); }

    const StandInDisk stick{disk()};
    std::unique_ptr<ImExportProjectDialog> dialog;
};

} // namespace

TEST_F(ExchangeDialogTest, ImportsWhatIsChosenAndTakesItBack)
{
    ASSERT_TRUE(exportNames({"P"}));
    putArchive(QStringLiteral("N.zip"), {{".rlprog", "{}", 0, 0, 0, {}, {}, 0}});
    putArchive(QStringLiteral("bad.zip"), {{"../a", "1", 0, 0, 0, {}, {}, 0}});
    takeMessages();
    ScriptedFiles files({{onDisk("P.zip"), onDisk("N.zip"), onDisk("bad.zip")}});
    open(true);
    click("btnFiles");
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
    presenter.answer(true);
    click("btnAction");
    EXPECT_EQ(told(), QStringLiteral("The last import was taken back."));
    EXPECT_EQ(this->files(), before);
}

TEST_F(ExchangeDialogTest, OffersOnlyWhatDidNotComeOnceMore)
{
    ASSERT_TRUE(exportNames({"P"}));
    putArchive(QStringLiteral("bad.zip"), {{"var.xml", "<node", 0, 0, 0, {}, {}, 0}});
    putArchive(QStringLiteral("photos.zip"), {{"a.png", "1", 0, 0, 0, {}, {}, 0}});
    ScriptedFiles files({{onDisk("P.zip"), onDisk("bad.zip"), onDisk("photos.zip")}});
    open(true);
    click("btnFiles");
    EXPECT_EQ(shown(), QStringList({"+ Renamed to P(1)", "+ New project bad", "- it holds no project"}));
    click("btnWork");
    EXPECT_EQ(told(), QStringLiteral("Imported: P(1). Not imported: bad.zip"));
    EXPECT_EQ(shown(), QStringList({"- It was not imported; the log says why", "- it holds no project"}));
}

TEST_F(ExchangeDialogTest, ExportsWhatIsTickedAndSaysWhatItReplaces)
{
    putProject(QStringLiteral("R"));
    putArchive(QStringLiteral("Q.zip"), {{"old", "1", 0, 0, 0, {}, {}, 0}});
    ScriptedFiles files({{disk()}});
    open(false);
    click("btnTarget");
    touchRow(0);
    touchRow(1);
    const QStringList plan = shown();
    ASSERT_EQ(plan.size(), 3);
    EXPECT_EQ(plan.at(0), QStringLiteral("+ New file P.zip"));
    EXPECT_TRUE(plan.at(1).startsWith(QStringLiteral("+ Replaces Q.zip of "))) << plan.at(1);
    EXPECT_EQ(plan.at(2), QStringLiteral("- Not exported"));
    click("btnWork");
    EXPECT_EQ(takeMessages(), QStringList("info: Export to " + disk() + " success!"));
    EXPECT_EQ(told(), QStringLiteral("Exported. It is safe to pull out the disk disk now."));
    EXPECT_EQ(names(disk()), QStringList({"P.zip", "Q.zip"}));
    EXPECT_TRUE(shown().at(0).startsWith(QStringLiteral("+ Replaces P.zip of "))) << shown().at(0);
    for (const char *project : {"P", "Q"})
        ASSERT_TRUE(QDir(place(QLatin1String(project))).removeRecursively());
    EXPECT_TRUE(import({"P.zip", "Q.zip"}, palx::OnClash::Replace));
    EXPECT_NE(content("Q/task0/main.mod"), QByteArray("(no file)")) << "not the old archive any more";
}

TEST_F(ExchangeDialogTest, ThePlanOfAnExportSaysWhatIsOnTheDisk)
{
    const QDateTime made(QDate(2024, 5, 6), QTime(7, 8));
    putArchive(QStringLiteral("P.zip"), {{"old", "1", 0, 0, 0, {}, {}, 0}});
    QFile archive(onDisk(QStringLiteral("P.zip")));
    ASSERT_TRUE(archive.open(QIODevice::ReadWrite));
    ASSERT_TRUE(archive.setFileTime(made, QFileDevice::FileModificationTime));
    archive.close();
    QDir().mkpath(onDisk(QStringLiteral("Q.zip")));
    const auto plan = [](const QString &target) {
        QStringList lines;
        for (const palx::ExportPlan &each : palx::planExport(target, {"P", "Q", "R"}))
            lines.append(
                QStringList({each.file, each.problem, each.replaced.toString(Qt::ISODate)}).join('|'));
        return lines;
    };
    QStringList there = plan(disk());
    there[1] = there[1].section('|', 0, 1); // the time of a folder
    EXPECT_EQ(there, QStringList(
                         {"P.zip||2024-05-06T07:08:00", "Q.zip|There is a folder of that name.", "R.zip||"}));
    EXPECT_EQ(plan(QString()), QStringList({"P.zip||", "Q.zip||", "R.zip||"})) << "nothing is chosen yet";
    const QString gone = programs() + QStringLiteral(" is on no disk that is plugged in");
    EXPECT_EQ(plan(programs()).last(), "R.zip|" + gone + '|');

    m("quill.help.file_path")->set(nullptr, "project_export", disk());
    open(false);
    click("btnAll");
    const QStringList before = shown();
    EXPECT_EQ(before,
              QStringList({"+ Replaces P.zip of 2024-05-06 07:08", "+ There is a folder of that name."}));
    ASSERT_TRUE(archive.remove());
    touchRow(0);
    touchRow(0);
    EXPECT_EQ(shown(), before) << "the disk is not asked at each touch";
}
