#include "ui/imexportdialog.h"

#include "orba/module_manager.h"
#include "support/scripted_files.h"
#include "support/test_support.h"
#include "ui/exchange_table_model.h"
#include "ui/page_fixture.h"
#include "workstation/recipe_controller.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>

namespace {

using orba::ModuleManager;
using orba::Node;

class ImExportDialogTest : public RecipeControllerTest
{
protected:
    void SetUp() override
    {
        RecipeControllerTest::SetUp();
        QObject::connect(m("quill.log.current"), &orba::ModuleObject::changed, &context,
                         [this](const QVariant &json) {
                             Node record;
                             EXPECT_TRUE(ModuleManager::fromJson(json.toString().toUtf8(), &record));
                             records.append(record.getString(u"level") + QStringLiteral(": ") +
                                            record.getString(u"title"));
                         });
    }
    void TearDown() override
    {
        delete dialog;
        RecipeControllerTest::TearDown();
    }

    void open(bool import)
    {
        delete dialog;
        dialog = new ImExportDialog(import, palx::stacksNode());
        dialog->show();
    }
    /// A file with recipes of these names.
    QString file(const QStringList &names, const char *name = "pallet.xml")
    {
        Node content;
        content.reset(Node::Kind::List);
        content.add(orba::Name(u"default"))->ensure(u"name")->setString("of the writer");
        for (const QString &each : names) {
            Node *recipe = content.add();
            recipe->assign(*palx::pluginNode()->node().child(u"default"));
            recipe->ensure(u"name")->setString(each);
            recipe->ensure(u"desc")->setString(each + QStringLiteral(" from the file"));
        }
        EXPECT_TRUE(ModuleManager::writeToXmlFile(content, path(name)));
        return path(name);
    }
    QString rawFile(const QByteArray &xml)
    {
        QFile file(path("raw.xml"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(xml);
        return file.fileName();
    }
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    void choose(const QString &chosen)
    {
        files.answer({chosen});
        dialog->openFile();
    }

    template <typename T> T *child(const char *name) const { return partOf<T>(*dialog, name); }
    void press(const char *button) const { child<QAbstractButton>(button)->click(); }
    bool isOn(const char *button) const { return child<QAbstractButton>(button)->isEnabled(); }
    QString message() const { return child<MessageBar>("message")->text(); }
    void touchRow(int row) const
    {
        auto *table = child<QTableView>("tblRecipes");
        Q_EMIT table->clicked(table->model()->index(row, ExchangeTableModel::kName));
    }
    /// "[x] name: what happens" of every row
    QStringList rows() const
    {
        const QAbstractItemModel *model = child<QTableView>("tblRecipes")->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            const auto cell = [&](int column, int role = Qt::DisplayRole) {
                return model->index(row, column).data(role);
            };
            const bool ticked = cell(ExchangeTableModel::kTick, Qt::CheckStateRole).toInt() == Qt::Checked;
            texts << QStringLiteral("[%1] %2: %3")
                         .arg(ticked ? QStringLiteral("x") : QString(),
                              cell(ExchangeTableModel::kName).toString(),
                              cell(model->columnCount() - 1).toString());
        }
        return texts;
    }
    static QStringList names()
    {
        QStringList found;
        for (int i = 0; i < palx::stacksNode()->cmobjCount(); ++i)
            found << palx::stacksNode()->getString(QStringLiteral("#%1.name").arg(i));
        return found;
    }

    QTemporaryDir folder;
    const StandInDisk stick{folder.path()};
    ScriptedFiles files;
    QObject context;
    QStringList records;
    QPointer<ImExportDialog> dialog;
};

TEST_F(ImExportDialogTest, EveryRowFollowsTheOptionAndTheTicks)
{
    addRecipe("A");
    addRecipe("B");
    open(true);
    touchRow(0); // there is no file yet
    EXPECT_EQ(rows(), (QStringList{"[] A: ", "[] B: "}));
    EXPECT_FALSE(isOn("btnOk"));
    dialog->work();
    EXPECT_EQ(message(), "Choose a file to import from.");
    choose(file({"C", "B", "A", "C", ""}));
    EXPECT_EQ(rows(),
              (QStringList{"[x] C: New recipe", "[x] B: Renamed to \"B1\"", "[x] A: Renamed to \"A1\"",
                           "[x] C: Row 1 has the name: becomes \"C1\"", "[x] (no name): New recipe"}));
    press("optReplace");
    EXPECT_EQ(rows(),
              (QStringList{"[x] C: Skipped: row 4 replaces it", "[x] B: Replaces no. 2 and stands at no. 1",
                           "[x] A: Replaces no. 1 and stands at no. 2", "[x] C: New recipe",
                           "[x] (no name): New recipe"}));
    press("optDiscard");
    touchRow(0);
    EXPECT_EQ(rows().mid(0, 2), (QStringList{"[] C: Is left out", "[x] B: Skipped: the name is taken"}));
    EXPECT_EQ(child<QLabel>("lblCount")->text(), "4 of 5 ticked");
    press("btnNone");
    EXPECT_FALSE(isOn("btnOk"));
    EXPECT_EQ(names(), (QStringList{"A", "B"})); // nothing was merged so far
}

TEST_F(ImExportDialogTest, MergesWhatIsTickedRecordsItAndSendsEverything)
{
    connectLink();
    addRecipe("A");
    open(true);
    choose(file({"A", "B", "C"}));
    touchRow(1);
    QSignalSpy worked(dialog, &ImExportDialog::worked);
    QSignalSpy table(palx::triggerNode()->c("refresh_table"), &orba::ModuleObject::changed);
    takeCount("pallet.data");
    records.clear();
    press("btnOk");
    EXPECT_EQ(names(), (QStringList{"A", "A1", "C"}));
    EXPECT_EQ(records, QStringList("warning: Import success!"));
    EXPECT_EQ(takeCount("pallet.data"), 1);
    EXPECT_EQ(table.count(), 1);
    ASSERT_EQ(worked.count(), 1);
    EXPECT_EQ(worked[0][0].toString(), "Imported: 2 new recipes, 0 of them replace others.");
    EXPECT_TRUE(worked[0][1].toBool());
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(ImExportDialogTest, TheLastImportIsTakenBackAfterAQuestionAndSentAgain)
{
    connectLink();
    addRecipe("A");
    addRecipe("B");
    const Node before = palx::stacksNode()->node();
    open(true);
    choose(file({"A", "C"}));
    press("optReplace");
    press("btnOk");
    ASSERT_EQ(names(), (QStringList{"B", "A", "C"}));
    open(true); // later
    ASSERT_TRUE(isOn("btnUndo"));
    presenter.answer(false);
    press("btnUndo");
    EXPECT_EQ(names(), (QStringList{"B", "A", "C"}));
    takeCount("pallet.data");
    presenter.answer(true);
    press("btnUndo");
    EXPECT_EQ(palx::stacksNode()->node(), before);
    EXPECT_EQ(takeCount("pallet.data"), 1);
    EXPECT_FALSE(isOn("btnUndo"));
    EXPECT_TRUE(presenter.asked.last().text.startsWith("2 imported recipes are removed"));
}

TEST_F(ImExportDialogTest, AFileThatCannotBeReadEmptiesTheTable)
{
    addRecipe("A");
    open(true);
    choose(file({"C", "D"}));
    const QString bad = rawFile("<node type='list'><node type='map'>");
    records.clear();
    choose(bad);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_FALSE(isOn("btnOk"));
    EXPECT_TRUE(message().startsWith(bad + QStringLiteral(":1:"))) << message();
    EXPECT_EQ(records, QStringList("error: " + message()));
    dialog->work();
    EXPECT_EQ(names(), QStringList("A"));
    EXPECT_EQ(m("quill.help.file_path.import")->getString(),
              folder.path()); // where the next one is looked for
}

TEST_F(ImExportDialogTest, WritesTheTemplateAndWhatIsTicked)
{
    connectLink();
    for (const char *name : {"A", "B", "C"})
        addRecipe(name);
    open(false);
    EXPECT_TRUE(child<QTableView>("tblRecipes")->isColumnHidden(3));
    EXPECT_FALSE(child<QWidget>("boxClash")->isVisible());
    touchRow(1);
    choose(path("out.box"));
    records.clear();
    takeCount("pallet.data");
    press("btnOk");
    EXPECT_EQ(records, QStringList("warning: Export success to out!"));
    EXPECT_EQ(takeCount("pallet.data"), 1);
    EXPECT_FALSE(dialog->isVisible());
    Node content;
    ASSERT_TRUE(ModuleManager::readFromXmlFile(path("out.box.xml"), &content));
    ASSERT_EQ(content.size(), 3);
    EXPECT_EQ(*content.at(2), *palx::stacksNode()->node().at(2));
}

TEST_F(ImExportDialogTest, AnEmptyPathAndADiskThatIsGoneAreRefused)
{
    addRecipe("A");
    open(false);
    records.clear();
    press("btnOk");
    EXPECT_EQ(records, QStringList("error: Export path can not be empty!"));
    EXPECT_EQ(message(), "Export path can not be empty!");
    QDir().mkpath(path("stick"));
    const StandInDisk pulled(path("stick"));
    choose(path("stick/out.xml"));
    ASSERT_TRUE(QDir(path("stick")).removeRecursively());
    press("btnOk");
    EXPECT_EQ(message(), path("stick") + QStringLiteral(" is on no disk that is plugged in"));
    EXPECT_TRUE(dialog->isVisible());
}

} // namespace

TEST_F(ImExportDialogTest, AsksForFilesWhereTheLastOnesWere)
{
    m("quill.help.file_path")->set(nullptr, "import", "/media/one");
    open(true);
    choose(file({"C"}));
    ASSERT_EQ(files.asked.size(), 1);
    EXPECT_EQ(files.asked[0].kind, FileRequest::Open);
    EXPECT_EQ(files.asked[0].caption, "Open XML file");
    EXPECT_EQ(files.asked[0].start, "/media/one");
    EXPECT_EQ(files.asked[0].filter, "XML (*.xml)");
    EXPECT_EQ(m("quill.help.file_path.import")->getString(), folder.path());
    EXPECT_EQ(m("quill.help.file_path.export")->getString(), QString());
    open(false);
    choose(path("out"));
    choose(QString()); // refused: everything stays
    ASSERT_EQ(files.asked.size(), 3);
    EXPECT_EQ(files.asked[1].kind, FileRequest::Save);
    EXPECT_EQ(files.asked[1].caption, "Save XML file");
    EXPECT_EQ(files.asked[1].start, "pallet.xml");
    EXPECT_EQ(files.asked[2].start, folder.path() + QStringLiteral("/pallet.xml"));
    EXPECT_EQ(child<QLineEdit>("edtPath")->text(), path("out.xml"));
}
