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
        for (const QString &name : palx::trans_list + palx::rot_list) {
            auto *spin = new QDoubleSpinBox(&box);
            spin->setObjectName(name + QStringLiteral("_put"));
            spin->setRange(-10000, 10000);
            spin->setDecimals(6);
            spins.append(spin);
        }
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

TEST(PointEditor, WritesThePointWhenEditingIsFinished)
{
    Group group;
    const auto point = makePoint();
    palx::pointToGroupSpin(point.get(), &group.box, true);
    palx::connectSpinChangeToPoint(&group.box, point.get(), &group.box);
    group.spins[2]->setValue(700);
    EXPECT_EQ(point->getDouble("trans.#2"), 0.3); // not before editing is finished
    Q_EMIT group.spins[0]->editingFinished();     // any box writes the whole point
    EXPECT_EQ(point->getDouble("trans.#2"), 0.7);
}

} // namespace
