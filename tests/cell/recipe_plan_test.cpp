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

/// `sign` -1: points look the other way, as with one-point calibration in a cell that looks forward.
Node recipe(double sign = 1, Vector origin = Vector::Zero())
{
    Node made = nodeFromJson(kRecipe);
    Node *put = made.find(u"points.put");
    const auto add = [&](Node *layer, double along, double across, double z) {
        addPoint(layer, origin.x() + sign * along, origin.y() + sign * across, origin.z() + z);
    };
    Node *first = put->add();
    add(first, 0.2, 0.1, 0.1);
    add(first, 0.2, 0.3, 0.1);
    add(put->add(), 0.6, 0.4, 0.2);
    add(put->add(), 0.6, 0.4, 0.203);
    return made;
}

RecipePlan planOf(const Node &node)
{
    return RecipePlan(std::make_shared<Node>(node));
}

void setPoint(Node *recipe, const char16_t *path, double x, double y, double z)
{
    Node *point = recipe->find(path);
    const double trans[] = {x, y, z};
    const double rot[] = {kPi, 0, 0};
    point->ensure(u"trans")->setDoubles(trans, 3);
    point->ensure(u"rot")->setDoubles(rot, 3);
}

void expectAt(const Vector &wished, const Pose &pose)
{
    EXPECT_NEAR(0, (pose.translation() - wished).norm(), 1e-9) << pose.translation().transpose();
}

Vector putPoint(const RecipePlan &plan, int layer, int piece)
{
    Pose pose;
    QString why;
    EXPECT_TRUE(plan.point(PalletPoint::Wobj, layer, piece, &pose, &why)) << why;
    return pose.translation();
}

} // namespace

TEST(RecipePlan, CountsLayersAndPieces)
{
    const RecipePlan plan = planOf(recipe());
    EXPECT_EQ("", plan.problem());
    EXPECT_EQ(3, plan.layers());
    EXPECT_EQ(2, plan.pieces(1));
    EXPECT_EQ(0, plan.pieces(2)) << "a sheet";
    EXPECT_EQ(1, plan.pieces(3));
    EXPECT_EQ(3, plan.productCount());
    EXPECT_EQ(0, plan.pieces(4));
    EXPECT_EQ(0, plan.pieces(0));
}

TEST(RecipePlan, GivesProductsSheetsAndThePalletTheirPlaces)
{
    const RecipePlan plan = planOf(recipe());
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

struct FrameCase
{
    const char *name;
    void (*calibrate)(Node *recipe);
    Vector put; ///< of (0.2, 0.1, 0.1) in the frame
};

class Frames : public ::testing::TestWithParam<FrameCase>
{
};

TEST_P(Frames, OfAnOwnCalibration)
{
    Node node = recipe();
    GetParam().calibrate(&node);
    const RecipePlan plan = planOf(node);
    EXPECT_EQ("", plan.problem());
    EXPECT_NEAR(0, (putPoint(plan, 1, 1) - GetParam().put).norm(), 1e-9) << putPoint(plan, 1, 1).transpose();
}

INSTANTIATE_TEST_SUITE_P(
    All, Frames,
    ::testing::Values(
        FrameCase{"NoneIsTheBase", [](Node *) {}, {0.2, 0.1, 0.1}},
        FrameCase{"ThreePoints",
                  [](Node *r) {
                      setPoint(r, u"calibrate.p1", 1, -0.5, -0.4);
                      setPoint(r, u"calibrate.p2", 0, -0.5, -0.4); // x looks back
                      setPoint(r, u"calibrate.p3", 0.5, -1.5, -0.4);
                  },
                  {0.8, -0.6, -0.3}},
        FrameCase{"ThreePointsShifted",
                  [](Node *r) {
                      setPoint(r, u"calibrate.p1", 1, -0.5, -0.4);
                      setPoint(r, u"calibrate.p2", 0, -0.5, -0.4);
                      setPoint(r, u"calibrate.p3", 0.5, -1.5, -0.4);
                      r->set(u"calibrate.wobj_x", 100);
                      r->set(u"calibrate.wobj_y", 50);
                  },
                  {0.7, -0.65, -0.3}},
        FrameCase{"OnePoint",
                  [](Node *r) {
                      setPoint(r, u"calibrate.p1", 1, -0.5, -0.4);
                      r->ensure(u"calibrate.calibration_method")->setInt(1);
                  },
                  {1.2, -0.4, -0.3}},
        FrameCase{
            "ReferenceOfTheToolset",
            [](Node *r) {
                *r->find(u"toolset") = nodeFromJson(
                    R"({"ref":{"trans":[0,0,1],"rot":[0,0,0]},"end":{"trans":[0,0,0.2],"rot":[0,0,0]}})");
            },
            {0.2, 0.1, 1.1}},
        FrameCase{"SharedWorkObjectsAreInTheBase",
                  [](Node *r) {
                      setPoint(r, u"calibrate.p1", 1, -0.5, -0.4);
                      r->set(u"use_global_wobj", true);
                  },
                  {0.2, 0.1, 0.1}}),
    [](const auto &test) { return std::string(test.param.name); });

TEST(RecipePlan, FindsThePalletUnderPointsThatLookTheOtherWay)
{
    Node node = recipe(-1, {1.14, 1.42, -0.45});
    node.set(u"use_global_wobj", true);
    const RecipePlan plan = planOf(node);
    expectAt({1.14 - 0.6, 1.42 - 0.4, -0.45 - 0.075}, plan.pallet().pose);
}

TEST(RecipePlan, TakesTheMiddleOfPointsFromElsewhere)
{
    Node node = recipe();
    node.find(u"patterns")->reset(Node::Kind::Null);
    expectAt({0.2, 0.2, -0.075}, planOf(node).pallet().pose);
}

TEST(RecipePlan, SaysWhatIsMissing)
{
    Node node = recipe();
    setPoint(&node, u"calibrate.p1", 1, 0, 0);
    EXPECT_EQ("its work object needs three calibration points", planOf(node).problem());
    setPoint(&node, u"calibrate.p2", 1, 0.001, 0);
    setPoint(&node, u"calibrate.p3", 1, 1, 0);
    EXPECT_NE("", planOf(node).problem()) << "the points are too near to each other";
    Node empty = recipe();
    empty.find(u"points.put")->reset(Node::Kind::Null);
    EXPECT_EQ("it has no points", planOf(empty).problem());
    Pose pose;
    QString why;
    EXPECT_FALSE(planOf(recipe()).point(PalletPoint::GetApproach, 1, 1, &pose, &why));
    EXPECT_EQ("the recipe \"A\" has no point \"get.approach_p\" for layer 1, piece 1", why);
}

TEST(RecipePlan, KnowsItsOwnToolOrNone)
{
    Node node = recipe();
    EXPECT_FALSE(planOf(node).tool());
    *node.find(u"toolset") = nodeFromJson(R"({"end":{"trans":[0,0,0.2],"rot":[0,0,0]}})");
    ASSERT_TRUE(planOf(node).tool());
    expectAt({0, 0, 0.2}, *planOf(node).tool());
    node.set(u"use_global_tool", true);
    EXPECT_FALSE(planOf(node).tool());
}
