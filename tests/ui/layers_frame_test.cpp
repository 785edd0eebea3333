#include "ui/layers_frame.h"

#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"
#include "support/test_support.h"
#include "ui/layer_series_dialog.h"
#include "ui/page_fixture.h"
#include "ui/stack_panel.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>

#include <gtest/gtest.h>

using palx::LayerSet;

namespace {

/// The frame over a recipe with the layers A, B, A, B.
struct Layers
{
    Layers() : stack(tree.addRecipe("Box"))
    {
        palx::repeatLayers(stack, {0, 1});
        frame.resize(900, 600);
        frame.setStack(stack);
        frame.show();
    }
    template <typename T> T *at(const char *name) const
    {
        T *found = frame.findChild<T *>(QLatin1String(name));
        if (!found)
            ADD_FAILURE() << "no control " << name;
        return found;
    }
    void click(const char *name) const { at<QPushButton>(name)->click(); }
    void several(const LayerSet &layers)
    {
        at<QPushButton>("btnSeveral")->setChecked(true);
        frame.chooseLayers(layers);
    }
    QStringList patterns() const
    {
        QStringList names;
        for (const palx::LayerFacts &layer : palx::layerFacts(stack->node()))
            names << layer.pattern;
        return names;
    }

    PluginTree tree;
    orba::ModuleObject *stack;
    LayersFrame frame;
};

} // namespace

TEST(LayersFrame, SeveralLayersAreEditedAlikeInOneStep)
{
    Layers l;
    l.several({0, 2, 3});
    QSignalSpy edits(&l.frame, &RecipeFrame::edited);
    enter(l.at<QDoubleSpinBox>("spnOffset"), 7.0);
    EXPECT_EQ(edits.count(), 1);
    for (const int layer : {0, 1, 2, 3})
        EXPECT_EQ(l.stack->getInt(QStringLiteral("layers.#%1.h_offset").arg(layer)), layer == 1 ? 0 : 7);
    auto *pattern = l.at<QComboBox>("cmbPattern");
    pattern->setCurrentIndex(pattern->findData(QStringLiteral("B")));
    Q_EMIT pattern->activated(pattern->currentIndex());
    EXPECT_EQ(l.patterns(), (QStringList{"B", "B", "B", "B"}));
    EXPECT_EQ(edits.count(), 2);
    EXPECT_EQ(l.frame.layers(), (LayerSet{0, 2, 3}));
}

TEST(LayersFrame, ButtonsActOnTheChosenLayers)
{
    Layers l;
    l.several({0, 1});
    l.click("btnSheet");
    EXPECT_EQ(l.patterns(), (QStringList{"A", "clapboard", "B", "clapboard", "A", "B"}));
    l.several({2, 3});
    l.click("btnDown");
    EXPECT_EQ(l.patterns(), (QStringList{"A", "clapboard", "A", "B", "clapboard", "B"}));
    EXPECT_EQ(l.frame.layers(), (LayerSet{3, 4}));
    l.click("btnRepeat");
    EXPECT_EQ(l.patterns().mid(6), (QStringList{"B", "clapboard"}));
    l.click("btnRemove");
    EXPECT_EQ(l.patterns(), (QStringList{"A", "clapboard", "A", "B", "B", "clapboard"}));
    EXPECT_EQ(l.frame.layers(), (LayerSet{3}));
}

TEST(LayersFrame, ASheetOnASheetIsRefused)
{
    Layers l;
    l.frame.chooseLayer(0);
    l.click("btnSheet");
    QSignalSpy refusals(&l.frame, &RecipeFrame::refused);
    l.frame.chooseLayer(0);
    l.click("btnSheet");
    ASSERT_EQ(refusals.count(), 1);
    EXPECT_EQ(l.patterns().size(), 5);
}

TEST(LayersFrame, LaysLayersInTurn)
{
    Layers l;
    l.frame.chooseLayer(1);
    l.at<QAction>("actSeries")->trigger();
    auto *dialog = l.frame.window()->findChild<LayerSeriesDialog *>();
    ASSERT_NE(dialog, nullptr);
    const auto choose = [dialog](const char *name, const QVariant &data) {
        auto *combo = dialog->findChild<QComboBox *>(QLatin1String(name));
        combo->setCurrentIndex(combo->findData(data));
    };
    auto *result = dialog->findChild<QLabel *>(QStringLiteral("lblResult"));
    auto *ok = dialog->findChild<QPushButton *>(QStringLiteral("btnOk"));
    choose("cmbFirst", QStringLiteral("B"));
    choose("cmbSecond", 0); // its mirror image
    choose("cmbWhere", 1);  // from the second layer on
    dialog->findChild<QSpinBox *>(QStringLiteral("spnSheet"))->setValue(2);
    dialog->findChild<QSpinBox *>(QStringLiteral("spnCount"))->setValue(200);
    EXPECT_FALSE(ok->isEnabled());
    EXPECT_TRUE(result->text().contains(QStringLiteral("at most 200"))) << result->text();
    dialog->findChild<QSpinBox *>(QStringLiteral("spnCount"))->setValue(3);
    EXPECT_TRUE(result->text().startsWith(QStringLiteral("Boxes: 5, layers: 4"))) << result->text();
    EXPECT_EQ(l.patterns().size(), 4) << "nothing is laid before it is confirmed";
    ok->click();
    EXPECT_EQ(l.patterns(), (QStringList{"A", "B", "B_m", "clapboard", "B"}));
}
