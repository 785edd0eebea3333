#include "ui/pattern_template_dialog.h"

#include "nexo/setting_manager.h"
#include "ui/dialog_fixture.h"
#include "ui/page_fixture.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace {

const char *const kSpins[] = {"spnNumX",    "spnNumY",    "spnNumY1",  "spnNumY2",
                              "spnOffsetX", "spnOffsetY", "spnSpaceX", "spnSpaceY"};

struct TemplateTest : OpenPattern
{
    explicit TemplateTest(const char *changes = "{}") : OpenPattern(changes), dialog(stack, &scene, &window)
    {
    }
    void choose(const char *kind) { partOf<QComboBox>(dialog, "cmbTemplate")->setCurrentText(kind); }
    void type(const char *spin, int value) { enter(partOf<QSpinBox>(dialog, spin), value); }
    QString values() const { return nodeText(stack->r("pattern_cfg.template")->node()); }

    PatternTemplateDialog dialog;
};

QImage imageOf(const QLabel *label)
{
    return label->pixmap(Qt::ReturnByValue).toImage();
}

QImage resourceImage(const QString &name)
{
    const QPixmap image(QStringLiteral(":/palx_workstation/images/stack/%1.png").arg(name));
    EXPECT_FALSE(image.isNull()) << name;
    return image.toImage();
}

} // namespace

TEST(PatternTemplateDialog, ShowsTheFieldsAndThePictureOfItsKind)
{
    const struct
    {
        const char *kind;
        const char *shown;
        const char *image;
    } cases[] = {{"Overlap", "lblX spnNumX lblY spnNumY", "overlap"},
                 {"Cross", "lblX spnNumX lblY1 spnNumY1 lblY2 spnNumY2", "cross"},
                 {"Clip", "", "clip"}};
    TemplateTest test;
    for (const auto &c : cases) {
        test.choose(c.kind);
        QStringList shown;
        for (const char *name :
             {"lblX", "spnNumX", "lblY", "spnNumY", "lblY1", "spnNumY1", "lblY2", "spnNumY2"})
            if (!partOf<QWidget>(test.dialog, name)->isHidden())
                shown << QLatin1String(name);
        EXPECT_EQ(shown.join(QLatin1Char(' ')), QLatin1String(c.shown)) << c.kind;
        for (const char *name : {"spnOffsetX", "spnOffsetY", "spnSpaceX", "spnSpaceY"})
            EXPECT_FALSE(partOf<QWidget>(test.dialog, name)->isHidden());
        EXPECT_TRUE(imageOf(partOf<QLabel>(test.dialog, "wgtImage")) ==
                    resourceImage(QLatin1String(c.image) + QStringLiteral("_en")))
            << c.kind;
        EXPECT_EQ(test.stack->getString("pattern_cfg.template.type"), QLatin1String(c.image));
    }
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride(QStringLiteral("language"), QStringLiteral("cn")); // has pictures of its own
    const TemplateTest chinese;
    const QImage shown = imageOf(partOf<QLabel>(chinese.dialog, "wgtImage"));
    settings->setOverride(QStringLiteral("language"), QString());
    EXPECT_TRUE(shown == resourceImage(QStringLiteral("overlap")));
    EXPECT_FALSE(shown == resourceImage(QStringLiteral("overlap_en")));
}

TEST(PatternTemplateDialog, KeepsWhatWasTypedAlsoWhenItIsCancelled)
{
    TemplateTest test;
    test.choose("Cross");
    for (int i = 0; i < 8; ++i)
        test.type(kSpins[i], 10 + i);
    partOf<QPushButton>(test.dialog, "btnCancel")->click();
    EXPECT_EQ(test.dialog.result(), QDialog::Rejected);
    EXPECT_EQ(test.stack->r("pattern_cfg.template")->node(),
              nodeFromJson(R"({"num_x": 10, "num_y": 11, "num_y1": 12, "num_y2": 13, "offset_x": 14,
                               "offset_y": 15, "space_x": 16, "space_y": 17, "type": "cross"})"));
    EXPECT_EQ(test.items(), QStringList());
    const PatternTemplateDialog again(test.stack, &test.scene, &test.window);
    EXPECT_EQ(partOf<QSpinBox>(again, "spnNumY2")->value(), 13);
}

TEST(PatternTemplateDialog, AppendsTheItems)
{
    TemplateTest test;
    test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, QStringLiteral("Top"));
    test.type("spnNumX", 1);
    test.type("spnNumY", 2);
    partOf<QPushButton>(test.dialog, "btnConfirm")->click();
    EXPECT_EQ(test.dialog.result(), QDialog::Accepted);
    EXPECT_EQ(test.items(), QStringList({"1: 500 700 0 Top", "2: 75 100 0 middle", "3: 226 100 0 middle"}));
    EXPECT_EQ(
        test.stack->r("patterns.A.#2")->node(),
        nodeFromJson(R"({"x": 226.0, "y": 100.0, "w": 150.0, "h": 200.0, "r": 0, "index": 3, "orient": 0,
                               "direction": "middle", "dx": 0.0, "dy": 0.0, "dz": 0.0})"));
}

TEST(PatternTemplateDialog, ARefusalAddsNothingAndStaysOpen)
{
    ScriptedPresenter presenter;
    TemplateTest test;
    QSignalSpy finished(&test.dialog, &QDialog::finished);
    auto *confirm = partOf<QPushButton>(test.dialog, "btnConfirm");
    confirm->click();
    test.type("spnNumX", 6);
    test.type("spnNumY", 1);
    confirm->click();
    EXPECT_EQ(presenter.asked.size(), 2);
    EXPECT_EQ(messageText(presenter.asked.value(0)), plainWarning("Invalid X number"));
    EXPECT_EQ(messageText(presenter.asked.value(1)), plainWarning("Wobj is beyond the pallet's x edge"));
    EXPECT_EQ(test.items(), QStringList());
    EXPECT_EQ(finished.count(), 0);
}

TEST(PatternTemplateDialog, EndsWithItsRecipe)
{
    TemplateTest test;
    QSignalSpy finished(&test.dialog, &QDialog::finished);
    test.stack->remove();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(test.dialog.addTemplate());
    test.dialog.saveCfg();
    test.dialog.patternChanged();
}
