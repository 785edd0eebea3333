#include "controller/cell/recipe_plan.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using namespace controller;
using namespace controller::cell;
using orba::Node;
using script::PalletPoint;

namespace {

/// Two boxes of 400 x 200 x 100 mm on a pallet of 1200 x 800 x 150 mm, put at z = 0.1 m in the pallet frame: the frame lies
/// on the pallet's top. A sheet of 3 mm above, then one box.
constexpr const char *kRecipe =
    R"({"name":"A","pallet_position":0,"use_global_tool":false,"use_global_wobj":false,
  "calibrate":{"p1":null,"p2":null,"p3":null,"wobj_x":0,"wobj_y":0},"toolset":null,
  "get":{"get_p":{"trans":[1.3,0,0.5],"rot":[3.141592653589793,0,0]},
         "enter_p":{"trans":[1.1,0,0.9],"rot":[3.141592653589793,0,0]}},
  "product_cfg":{"product":{"length":400,"width":200,"height":100},"clapboard":{"length":1200,"width":800,"height":3},
                 "pallet":{"length":1200,"width":800,"height":150}},
  "patterns":{"P":[{"x":100,"y":200},{"x":300,"y":200}],"Q":[{"x":400,"y":600}]},
  "layers":[{"pattern":"P","h_offset":0},{"pattern":"clapboard","h_offset":0},{"pattern":"Q","h_offset":0}],
  "points":{"put":[]}})";

void addPoint(Node *layer, double x, double y, double z)
{
    Node *product = layer->add();
    for (const char16_t *key : {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"}) {
        const double trans[] = {x, y, z};
        const double rot[] = {kPi, 0, 0};
        product->ensure(key)->ensure(u"trans")->setDoubles(trans, 3);
        product->ensure(key)->ensure(u"rot")->setDoubles(rot, 3);
    }
}

Node recipe()
{
    Node made = nodeFromJson(kRecipe);
    Node *put = made.find(u"points.put");
    Node *first = put->add();
    addPoint(first, 0.2, 0.1, 0.1);
    addPoint(first, 0.2, 0.3, 0.1);
    addPoint(put->add(), 0.6, 0.4, 0.2);
    addPoint(put->add(), 0.6, 0.4, 0.203);
    return made;
}

RecipePlan planOf(const Node &node)
{
    return RecipePlan(std::make_shared<Node>(node));
}

void expectAt(const Vector &wished, const Pose &pose)
{
    EXPECT_NEAR(0, (pose.translation() - wished).norm(), 1e-9) << pose.translation().transpose();
}

} // namespace

TEST(RecipePlan, CountsPiecesAndGivesEverythingItsPlace)
{
    const RecipePlan plan = planOf(recipe());
    EXPECT_EQ(3, plan.layers());
    for (const int layer : {0, 1, 2, 3, 4})
        EXPECT_EQ(std::vector({0, 2, 0, 1, 0}).at(std::size_t(layer)), plan.pieces(layer))
            << "the second is a sheet";
    EXPECT_EQ(3, plan.productCount());
    expectAt({0.6, 0.4, -0.075}, plan.pallet().pose);
    EXPECT_NEAR(0, plan.pallet().top(), 1e-12);
    EXPECT_NEAR(-0.15, plan.floor(), 1e-12);
    const Block box = plan.productAt(poseOf({0.2, 0.1, 0.1}, {kPi, 0, 0}));
    expectAt({0.2, 0.1, 0.05}, box.pose);
    EXPECT_EQ(Vector(0.2, 0.1, 0.05), box.half);
    const Block turned = plan.productAt(poseOf({0.2, 0.1, 0.1}, {kPi, 0, kPi / 2}));
    EXPECT_NEAR(0.1, turned.extent(Vector::UnitX()), 1e-12) << "its width lies along x";
    // The second layer's point is the product's height above the layer; the sheet lies on 0.1 m.
    const Block sheet = plan.sheetAt(poseOf({0.6, 0.4, 0.2}, {kPi, 0, 0}));
    EXPECT_NEAR(0.1, sheet.bottom(), 1e-12);
    EXPECT_NEAR(0.103, sheet.top(), 1e-12);
}

TEST(RecipePlan, ReadsTheFrameOfItsCalibration)
{
    const auto point = [](double x, double y) {
        return QStringLiteral(R"({"trans":[%1,%2,-0.4],"rot":[3.141592653589793,0,0]})").arg(x).arg(y);
    };
    const QString threePoints = QStringLiteral(R"("p1":%1,"p2":%2,"p3":%3)")
                                    .arg(point(1, -0.5), point(0, -0.5), point(0.5, -1.5)); // x looks back
    const QString onePoint = QStringLiteral(R"("p1":%1,"wobj_x":0,"wobj_y":0)").arg(point(1, -0.5));
    const QString toolset =
        QStringLiteral(R"({"ref":{"trans":[0,0,1],"rot":[0,0,0]},"end":{"trans":[0,0,0.2],"rot":[0,0,0]}})");
    const struct
    {
        const char *name;
        QString calibrate, toolset;
        bool isShared;
        Vector put; ///< of (0.2, 0.1, 0.1) in the frame
    } cases[] = {
        {"none is the base", R"("p1":null)", "null", false, {0.2, 0.1, 0.1}},
        {"three points", threePoints, "null", false, {0.8, -0.6, -0.3}},
        {"shifted", threePoints + R"(,"wobj_x":100,"wobj_y":50)", "null", false, {0.7, -0.65, -0.3}},
        {"one point", onePoint + R"(,"calibration_method":1)", "null", false, {1.2, -0.4, -0.3}},
        {"the toolset's reference", R"("p1":null)", toolset, false, {0.2, 0.1, 1.1}},
        {"shared ones are in the base", onePoint, "null", true, {0.2, 0.1, 0.1}},
    };
    for (const auto &c : cases) {
        Node node = recipe();
        *node.find(u"calibrate") = nodeFromJson(("{" + c.calibrate + "}").toLatin1().constData());
        *node.find(u"toolset") = nodeFromJson(c.toolset.toLatin1().constData());
        node.set(u"use_global_wobj", c.isShared);
        const RecipePlan plan = planOf(node);
        EXPECT_EQ("", plan.problem()) << c.name;
        Pose pose;
        QString why;
        EXPECT_TRUE(plan.point(PalletPoint::Wobj, 1, 1, &pose, &why)) << why;
        EXPECT_NEAR(0, (pose.translation() - c.put).norm(), 1e-9) << c.name << pose.translation().transpose();
    }
}

TEST(RecipePlan, SaysWhatIsMissing)
{
    Node node = recipe();
    *node.find(u"calibrate.p1") = nodeFromJson(R"({"trans":[1,0,0],"rot":[3.141592653589793,0,0]})");
    EXPECT_EQ("its work object needs three calibration points", planOf(node).problem());
    Node empty = recipe();
    empty.find(u"points.put")->reset(Node::Kind::Null);
    EXPECT_EQ("it has no points", planOf(empty).problem());
    Pose pose;
    QString why;
    EXPECT_FALSE(planOf(recipe()).point(PalletPoint::GetApproach, 1, 1, &pose, &why));
    EXPECT_EQ("the recipe \"A\" has no point \"get.approach_p\" for layer 1, piece 1", why);
}
