// The page of the simulated cell, against a controller whose time the test turns.

#include "panel/cell_page.h"

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "panel/cell_scene.h"
#include "support/test_support.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using orba::Node;

namespace {

constexpr const char *kProgram = "GLOBAL PROC main()\n"
                                 "    WHILE true\n"
                                 "        Wait(0.5)\n"
                                 "        count := count + 1\n"
                                 "        SetDO(DO2_0, DI2_3)\n"
                                 "        Wait(0.5)\n"
                                 "    ENDWHILE\n"
                                 "ENDPROC\n";

class CellPageTest : public ::testing::Test
{
protected:
    CellPageTest()
    {
        EXPECT_TRUE(host::buildGlobalNodes());
        controller::StationOptions options;
        options.workspaceFolder = folder.path();
        auto made = std::make_unique<controller::SteppedCarrier>(options);
        carrier = made.get();
        link = std::make_unique<host::ControllerLink>(std::move(made));
        link->open();
        settle();
        EXPECT_TRUE(link->isConnected());
    }
    ~CellPageTest() override
    {
        page.reset();
        link.reset();
        host::removeGlobalNodes();
    }
    void settle()
    {
        do
            QCoreApplication::processEvents();
        while (!link->isIdle());
    }
    void makeProject()
    {
        QDir(folder.path()).mkpath(QStringLiteral("SIM-0001/P/task0"));
        QFile file(folder.filePath(QStringLiteral("SIM-0001/P/task0/main.mod")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(kProgram);
        file.close();
        m("quill.project")->set(nullptr, "cur_project", QStringLiteral("SIM-0001/P"), true);
        m("quill.project.task._list")
            ->copyFrom(nodeFromJson(R"([{"name":"task0","description":"Default","type":"motion","priority":2,
                                         "files":[{"name":"main","type":"MOD"}]}])"));
        m("quill.project.var._list")->copyFrom(nodeFromJson(R"([
            {"name":"count","description":"turns","type":"int","pers":"true","d":[0,0,0],"value":{"[0][0][0]":"0"}}])"));
        settle();
    }
    void openPage()
    {
        page = std::make_unique<panel::CellPage>();
        page->resize(1080, 720);
        page->show();
        settle();
    }
    /// Simulated seconds.
    void pass(double seconds)
    {
        carrier->pass(seconds);
        settle();
        page->refresh();
    }
    template <typename T> T *child(const char *name) const
    {
        T *found = page->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void press(const char *button)
    {
        child<QPushButton>(button)->click();
        settle();
    }
    QString text(const char *label) const { return child<QLabel>(label)->text(); }
    QString look(const char *widget) const { return child<QWidget>(widget)->property("state").toString(); }
    QStringList row(const char *table, int number) const
    {
        const QAbstractItemModel *model = child<QTableView>(table)->model();
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells.append(model->index(number, column).data().toString());
        return cells;
    }
    void choose(const char *table, const char *name)
    {
        auto *view = child<QTableView>(table);
        for (int i = 0; i < view->model()->rowCount(); ++i)
            if (view->model()->index(i, 0).data().toString() == QLatin1String(name))
                return view->setCurrentIndex(view->model()->index(i, 0));
        ADD_FAILURE() << name;
    }

    QTemporaryDir folder;
    controller::SteppedCarrier *carrier;
    std::unique_ptr<host::ControllerLink> link;
    std::unique_ptr<panel::CellPage> page;
};

} // namespace

TEST_F(CellPageTest, RunsPausesStepsAndStopsThePrograms)
{
    makeProject();
    openPage();
    EXPECT_EQ(text("lblState"), QStringLiteral("Stopped"));
    press("btnRun");
    EXPECT_EQ(text("lblState"), QStringLiteral("Running"));
    press("tabTasks");
    pass(3.3);
    EXPECT_EQ(row("tblTasks", 0), QStringList({QStringLiteral("task0"), QStringLiteral("waits"),
                                               QStringLiteral("main.mod:3"), QStringLiteral("main")}));
    press("btnPause");
    EXPECT_EQ(text("lblState"), QStringLiteral("Paused"));
    press("btnStep");
    pass(2);
    EXPECT_EQ(text("lblState"), QStringLiteral("Paused"));
    EXPECT_NE(row("tblTasks", 0).value(2), QStringLiteral("main.mod:3"));
    press("btnStop");
    EXPECT_EQ(text("lblState"), QStringLiteral("Stopped"));
}

TEST_F(CellPageTest, ARefusedRequestSaysWhy)
{
    openPage();
    press("btnRun");
    EXPECT_TRUE(text("lblMessage").contains(QStringLiteral("no current project"))) << text("lblMessage");
    EXPECT_EQ(look("lblMessage"), QStringLiteral("fault"));
    carrier->cut("the cable is pulled");
    QCoreApplication::processEvents();
    page->refresh();
    EXPECT_EQ(text("lblState"), QStringLiteral("No controller"));
    EXPECT_FALSE(child<QPushButton>("btnRun")->isEnabled());
    EXPECT_FALSE(child<QWidget>("stkParts")->isEnabled());
}

TEST_F(CellPageTest, ShowsAndSetsVariables)
{
    makeProject();
    openPage();
    press("tabVariables");
    choose("tblVariables", "count");
    child<QLineEdit>("edtValue")->setText(QStringLiteral("41"));
    press("btnSet");
    EXPECT_EQ(row("tblVariables", 0).value(1), QStringLiteral("41"));
    press("btnRun");
    pass(1.2);
    EXPECT_EQ(row("tblVariables", 0).value(1), QStringLiteral("42"));
    child<QLineEdit>("edtValue")->setText(QStringLiteral("many"));
    press("btnSet");
    EXPECT_TRUE(text("lblMessage").contains(QStringLiteral("many"))) << text("lblMessage");
}

TEST_F(CellPageTest, PressesButtonsForcesInputsAndShowsLamps)
{
    makeProject();
    openPage();
    press("btnRun");
    press("btnArrowLeft");
    EXPECT_TRUE(panel::cellSignal(m("nexo.cell")->node(), QStringLiteral("DI2_3")));
    pass(2);
    EXPECT_EQ(look("btnDeskStart"), QStringLiteral("running")) << "the lamp of the start button";
    press("tabInputs");
    choose("tblSignals", "DI2_2");
    press("btnOn");
    EXPECT_TRUE(panel::cellSignal(m("nexo.cell")->node(), QStringLiteral("DI2_2")));
    press("tabDesk");
    press("btnTakeRight");
    pass(0.1);
    EXPECT_EQ(text("lblPalletRight"), QStringLiteral("Right: no pallet"));
    press("tabFaults");
    press("btnFault_conveyor-jam");
    EXPECT_TRUE(m("nexo.cell.conveyor")->getBool("jammed"));
}
