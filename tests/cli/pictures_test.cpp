#include "palx_run.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <iterator>

namespace {

/// One picture of every group of pages and dialogs; there are more.
const char *const kPages[] = {
    "home",           "panel-controller-gone", "keypad",       "new-pattern",  "setup-patterns",
    "move-ready",     "home-running",          "recovery",     "cell-faulted", "projects-tasks",
    "project-export", "wizard-layers-2",       "panel-notices"};

QStringList picturesIn(const QString &folder)
{
    return QDir(folder).entryList({"*.png"}, QDir::Files, QDir::Name);
}

/// A page or drawing has far more than eight colours, an empty picture one.
bool isDrawn(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (colours.insert(picture.pixel(x, y)), colours.size() > 8)
                return true;
    return false;
}

class Pictures : public ::testing::Test
{
protected:
    QString path(const char *name) { return folder_.filePath(QString::fromUtf8(name)); }
    PalxRun render(const QStringList &arguments)
    {
        return runPalx(QStringList{"render", examplePath("interlocked-1200x800.xml")} + arguments);
    }
    QTemporaryDir folder_;
};

} // namespace

TEST_F(Pictures, AStackIsDrawnAtAnyTurnAndHalfLaid)
{
    const QStringList size{"--size", "640x480"};
    EXPECT_EQ(render(size + QStringList{"-o", path("whole.png")}).code, 0);
    EXPECT_EQ(render(size + QStringList{"--turn", "90", "-o", path("turned.png")}).code, 0);
    EXPECT_EQ(render(size + QStringList{"--pieces", "32", "-o", path("half.png")}).code, 0);
    EXPECT_EQ(render({"--layer", "1", "-o", path("plan.png")}).code, 0);
    const QImage whole(path("whole.png"));
    EXPECT_EQ(whole.size(), QSize(640, 480));
    EXPECT_EQ(QImage(path("plan.png")).size(), QSize(1280, 800));
    EXPECT_NE(QImage(path("turned.png")), whole);
    EXPECT_NE(QImage(path("half.png")), whole);
    for (const QString &name : picturesIn(folder_.path()))
        EXPECT_TRUE(isDrawn(QImage(folder_.filePath(name)))) << qPrintable(name);
}

TEST_F(Pictures, ARefusedDrawingLeavesTheOldFile)
{
    writeFile(path("kept.png"), "old");
    const QString cell = examplePath("global-cell.json");
    const struct
    {
        QStringList arguments;
        int code;
        const char *reason;
    } cases[] = {
        {{examplePath("line-left.xml"), "--layer", "7", "-o", path("kept.png")},
         1,
         "has no layer 7, only 1 to 6"},
        {{examplePath("interlocked-1200x800.xml"), "--pieces", "76", "-o", path("kept.png")},
         1,
         "has 75 products and sheets, not 76"},
        {{examplePath("line-left.xml"), "--layer", "1", "--turn", "15", "-o", path("kept.png")}, 2, "--turn"},
        {{cell, "-o", path("kept.png")}, 1, "\"Cell left\", \"Cell right\""},
        {{cell, "--stack", "Cell", "-o", path("kept.png")},
         1,
         "no recipe is called \"Cell\"; there are: \"Cell left\""},
        {{cell, "--stack", "Cell left", "-o", path("none/x.png")}, 1, "cannot write"},
    };
    for (const auto &given : cases) {
        const PalxRun run = runPalx(QStringList{"render"} + given.arguments);
        EXPECT_EQ(run.code, given.code) << given.reason;
        EXPECT_TRUE(run.err.contains(given.reason)) << run.err.constData();
        EXPECT_EQ(fileContent(path("kept.png")), "old");
    }
}

/// On the examples, of which the pair for the lift column is filled one layer high.
TEST_F(Pictures, TheDemonstrationGoesTheWholePath)
{
    ASSERT_TRUE(QDir(folder_.path()).mkdir("examples"));
    const PalxRun empty = runPalx({"screenshots", "-o", path("out"), "--examples", path("examples")});
    EXPECT_EQ(empty.code, 1);
    EXPECT_TRUE(empty.err.contains("no example recipes")) << empty.err.constData();
    for (const QString &file : exampleFiles())
        writeFile(folder_.filePath("examples/" + file), fileContent(examplePath(file)));
    writeRecipes(path("examples/lift-pair.xml"), exampleContent("lift-pair.xml", 1));
    const PalxRun run = runPalx({"demo", "--examples", path("examples")}, folder_.path());
    ASSERT_EQ(run.code, 0) << run.err.constData();
    const QString pictures = path("build/demo");
    const int pages = picturesIn(pictures).size() - 16;
    EXPECT_GE(pages, int(std::size(kPages)));
    for (const QByteArray &step : {
             QByteArray("read   interlocked-1200x800.xml: \"Interlocked 1200x800\", 8 layers and 3 sheets, "
                        "72 products"),
             QByteArray("check  8 recipes, 0 findings"),
             QByteArray("draw   16 pictures"),
             QByteArray("store  read back after a restart"),
             QByteArray("cell   20 of 20 products on 2 full pallets, 0 violations"),
             "pages  " + QByteArray::number(pages) + " pictures",
             "done   the pictures are in " + pictures.toUtf8(),
         })
        EXPECT_TRUE(run.out.contains(step)) << step.constData() << " not in\n" << run.out.constData();
    for (const char *page : kPages)
        EXPECT_TRUE(isDrawn(QImage(pictures + '/' + page + ".png"))) << page;
}
