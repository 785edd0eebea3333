#include "workstation/point_editor.h"

#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "workstation/plugin_node.h"

#include <QGroupBox>
#include <QSpinBox>

#include <gtest/gtest.h>

using orba::ModuleObject;

namespace {

constexpr double kPi = 3.141592653589793;

/// A point editor whose boxes carry longer names, as a form with several groups has them.
struct Group
{
    Group()
    {
        for (const QString &name : palx::trans_list + palx::rot_list)
            spins.append(add(name + QStringLiteral("_put"), &box));
    }
    QDoubleSpinBox *add(const QString &name, QWidget *parent)
    {
        auto *spin = new QDoubleSpinBox(parent);
        spin->setObjectName(name);
        spin->setRange(-10000, 10000);
        spin->setDecimals(6);
        return spin;
    }
    QGroupBox box;
    QList<QDoubleSpinBox *> spins;
};

std::unique_ptr<ModuleObject> makePoint()
{
    auto point = std::make_unique<ModuleObject>(QStringLiteral("p"));
    point->copyFrom(nodeFromJson(pointJson(0.1, -0.2, 0.3, kPi / 4)));
    return point;
}

TEST(PointEditor, ShowsMillimetresAndDegreesAndReadsThemBack)
{
    Group group;
    const auto point = makePoint();
    const orba::Node before(point->node());
    palx::pointToGroupSpin(point.get(), &group.box, true);
    EXPECT_DOUBLE_EQ(group.spins[1]->value(), -200);
    EXPECT_DOUBLE_EQ(group.spins[5]->value(), 45);
    palx::groupSpinToPoint(point.get(), &group.box);
    for (const char16_t *list : {u"trans", u"rot"})
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(point->node().find(list)->number(i), before.find(list)->number(i), 1e-8);
    palx::pointToGroupSpin(point.get(), &group.box, false); // read back, it is scaled
    palx::groupSpinToPoint(point.get(), &group.box);
    EXPECT_NEAR(point->getDouble("trans.#1"), -0.0002, 1e-12);
}

TEST(PointEditor, SeesOnlyDirectChildren)
{
    Group group;
    QWidget inner(&group.box);
    QDoubleSpinBox *nested = group.add(QStringLiteral("dspnW"), &inner);
    EXPECT_EQ(palx::findDouleSpin(QStringLiteral("dspnW"), &group.box), nullptr);
    EXPECT_EQ(palx::findDouleSpin(QStringLiteral("dspnX"), &group.box), group.spins[0]);
    const auto point = makePoint();
    palx::pointToGroupSpin(point.get(), &group.box, true);
    palx::connectSpinChangeToPoint(&group.box, point.get(), &group.box);
    group.spins[2]->setValue(700);
    EXPECT_EQ(point->getDouble("trans.#2"), 0.3); // not before editing is finished
    Q_EMIT nested->editingFinished();
    EXPECT_EQ(point->getDouble("trans.#2"), 0.3);
    Q_EMIT group.spins[0]->editingFinished(); // any box writes the whole point
    EXPECT_EQ(point->getDouble("trans.#2"), 0.7);
}

TEST(PointEditor, SurvivesAPointThatEndsWhileItIsWritten)
{
    Group group;
    auto point = makePoint();
    palx::connectSpinChangeToPoint(&group.box, point.get(), &group.box);
    point.reset();
    Q_EMIT group.spins[0]->editingFinished();

    auto tree = std::make_unique<ModuleObject>(QStringLiteral("tree"));
    tree->copyFrom(nodeFromJson("{\"p\":" + pointJson(1, 2, 3) + "}"));
    ModuleObject *inner = tree->c("p");
    QObject::connect(tree->r("p.trans.#0"), &ModuleObject::changed, tree.get(), [&] { tree->clear(); });
    palx::groupSpinToPoint(inner, &group.box);
    EXPECT_EQ(tree->cmobjCount(), 0);
}

TEST(Dialogs, CloseWithTheirNode)
{
    auto tree = std::make_unique<ModuleObject>(QStringLiteral("tree"));
    tree->copyFrom(nodeFromJson(R"({"stack":{"name":"A"}})"));
    QDialog dialog;
    palx::bindDialogToNode(&dialog, tree->c("stack"));
    dialog.show();
    tree->c("stack")->remove();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), int(QDialog::Rejected));
}

} // namespace
