#include "palx_run.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <iterator>

namespace {

/// A page or drawing has far more colours than this, an empty picture one.
constexpr int kFewColours = 8;

int coloursOf(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return colours.size();
}

QStringList picturesIn(const QString &folder)
{
    return QDir(folder).entryList({"*.png"}, QDir::Files, QDir::Name);
}

/// One picture of every page of the plug-in and the panel, of dialogs and wizards; there are more.
const char *const kPages[] = {"home",
                              "new-recipe",
                              "delete-recipe",
                              "controller-recipes",
                              "panel-notices",
                              "panel-controller-gone",
                              "keypad",
                              "setup-product",
                              "setup-pallet",
                              "setup-patterns",
                              "new-pattern",
                              "setup-layers",
                              "setup-waypoints",
                              "setup-points",
                              "move-ready",
                              "panel-controller",
                              "home-no-project",
                              "home-running",
                              "start-at",
                              "recovery",
                              "panel-cell",
                              "cell-running",
                              "cell-variables",
                              "cell-faulted",
                              "projects",
                              "projects-tasks",
                              "project-export",
                              "project-import",
                              "wizard-layers-1",
                              "wizard-layers-2",
                              "wizard-patterns-1",
                              "wizard-patterns-2",
                              "wizard-directions-1",
                              "wizard-directions-2"};

void expectDrawn(const QString &file)
{
    const QImage picture(file);
    ASSERT_FALSE(picture.isNull()) << qPrintable(file);
    EXPECT_GT(coloursOf(picture), kFewColours) << qPrintable(file);
}

class Pictures : public ::testing::Test
{
protected:
    QString path(const char *name) { return folder_.filePath(QString::fromLatin1(name)); }
    PalxRun render(const QStringList &arguments)
    {
        return runPalx(QStringList{"render", examplePath("interlocked-1200x800.xml")} + arguments);
    }
    QTemporaryDir folder_;
};

} // namespace

TEST_F(Pictures, AStackIsDrawnAtAnyTurnAndHalfLaid)
{
    EXPECT_EQ(render({"--size", "640x480", "-o", path("whole.png")}).code, 0);
    EXPECT_EQ(render({"--size", "640x480", "--turn", "90", "-o", path("turned.png")}).code, 0);
    EXPECT_EQ(render({"--size", "640x480", "--pieces", "32", "-o", path("half.png")}).code, 0);
    EXPECT_EQ(render({"--size", "640x480", "--pieces", "75", "-o", path("all.png")}).code, 0);
    const QImage whole(path("whole.png"));
    EXPECT_NE(QImage(path("turned.png")), whole);
    EXPECT_NE(QImage(path("half.png")), whole);
    EXPECT_EQ(QImage(path("all.png")), whole);
    const PalxRun tooMany = render({"--pieces", "76", "-o", path("none.png")});
    EXPECT_EQ(tooMany.code, 1);
    EXPECT_TRUE(tooMany.err.contains("has 75 products and sheets, not 76")) << tooMany.err.constData();
    EXPECT_EQ(render({"--layer", "1", "--turn", "15", "-o", path("none.png")}).code, 2);
    EXPECT_FALSE(QFile::exists(path("none.png")));
}

TEST_F(Pictures, PlansAndStacksAreDrawnInTheSizeAskedFor)
{
    EXPECT_EQ(render({"--layer", "1", "-o", path("a.png")}).code, 0);
    EXPECT_EQ(render({"--layer", "2", "--size", "640x480", "-o", path("b.png")}).code, 0);
    EXPECT_EQ(render({"-o", path("stack.png")}).code, 0);
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(1280, 800));
    EXPECT_EQ(QImage(path("b.png")).size(), QSize(640, 480));
    for (const char *name : {"a.png", "b.png", "stack.png"})
        expectDrawn(path(name));
}

TEST_F(Pictures, ARefusedDrawingLeavesTheOldFile)
{
    writeFile(path("kept.png"), "old");
    const QString cell = examplePath("global-cell.json");
    const struct
    {
        QStringList arguments;
        const char *reason;
    } cases[] = {
        {{examplePath("line-left.xml"), "--layer", "7", "-o", path("kept.png")},
         "has no layer 7, only 1 to 6"},
        {{cell, "-o", path("kept.png")}, "\"Cell left\", \"Cell right\""},
        {{cell, "--stack", "Cell", "-o", path("kept.png")}, "no recipe is called \"Cell\""},
        {{cell, "--stack", "Cell left", "-o", path("none/x.png")}, "cannot write"},
    };
    for (const auto &given : cases) {
        const PalxRun run = runPalx(QStringList{"render"} + given.arguments);
        EXPECT_EQ(run.code, 1) << given.reason;
        EXPECT_TRUE(run.err.contains(given.reason)) << run.err.constData();
        EXPECT_EQ(fileContent(path("kept.png")), "old");
    }
}

TEST_F(Pictures, ScreenshotsShowEveryPageInEveryLanguage)
{
    QStringList first;
    for (const char *language : {"en", "cn", "ru"}) {
        const PalxRun run =
            runPalx({"screenshots", "-o", path(language), "--language", language, "--size", "1000x700"});
        ASSERT_EQ(run.code, 0) << run.err.constData();
        const QStringList taken = picturesIn(path(language));
        first = first.isEmpty() ? taken : first;
        EXPECT_EQ(taken, first) << language;
        for (const QString &name : taken)
            expectDrawn(folder_.filePath(QLatin1String(language) + QLatin1Char('/') + name));
        for (const char *page : kPages)
            EXPECT_TRUE(taken.contains(QLatin1String(page) + QLatin1String(".png"))) << page;
    }
    EXPECT_NE(QImage(path("en/setup-product.png")), QImage(path("cn/setup-product.png")));
    EXPECT_NE(QImage(path("cn/setup-product.png")), QImage(path("ru/setup-product.png")));
}

TEST_F(Pictures, ScreenshotsSayWhatIsMissing)
{
    writeFile(path("file"), "not a folder");
    const PalxRun blocked = runPalx({"screenshots", "-o", path("file")});
    EXPECT_EQ(blocked.code, 1);
    EXPECT_TRUE(blocked.err.contains("the folder cannot be made")) << blocked.err.constData();
    const PalxRun empty = runPalx({"screenshots", "-o", path("out"), "--examples", path("none")});
    EXPECT_EQ(empty.code, 1);
    EXPECT_TRUE(empty.err.contains("no example recipes")) << empty.err.constData();
}

TEST_F(Pictures, TheDemonstrationGoesTheWholePath)
{
    const PalxRun run = runPalx({"demo"}, folder_.path());
    ASSERT_EQ(run.code, 0) << run.err.constData();
    for (const char *step :
         {"read   interlocked-1200x800.xml: \"Interlocked 1200x800\", 8 layers and 3 sheets, 72 products",
          "check  8 recipes, 0 findings", "points 2493 products", "draw   16 pictures",
          "store  read back after a restart"})
        EXPECT_TRUE(run.out.contains(step)) << step << " not in\n" << run.out.constData();
    const QString pictures = path("build/demo");
    EXPECT_TRUE(run.out.contains("done   the pictures are in " + pictures.toUtf8())) << run.out.constData();
    const int pages = picturesIn(pictures).size() - 16;
    EXPECT_GE(pages, int(std::size(kPages)));
    EXPECT_TRUE(run.out.contains("pages  " + QByteArray::number(pages) + " pictures")) << run.out.constData();
}
