// What the controller's variables say of a side of the line, and the changes that an operator may ask for.

#include "project/rules/run_side.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::Node;
using palx::LineSide;
using palx::RunState;

namespace {

/// A left recipe of layers with 2, 2 and 1 products and a sheet below the last, another left one without points, and a
/// right one with a layer of 3.
Node stacks()
{
    return nodeFromJson(R"([
        {"name":"R","pallet_position":1,"layers":[{"pattern":"A"}],"points":{"put":[[{},{},{}]]},
         "product_cfg":{"product":{"height":180.4}}},
        {"name":"L","pallet_position":0,"points":{"put":[[{},{}],[{},{}],[{}],[{}]]},
         "layers":[{"pattern":"A"},{"pattern":"A"},{"pattern":"clapboard"},{"pattern":"B"}]},
        {"name":"Raw","pallet_position":0,"points":{"put":null}}])");
}

Node variables(const char *values)
{
    const Node wanted = nodeFromJson(values);
    Node list;
    list.reset(Node::Kind::List);
    for (int i = 0; i < wanted.size(); ++i) {
        Node *variable = list.add();
        variable->ensure(u"name")->setString(wanted.at(i)->name().toString());
        variable->ensure(u"value.[0][0][0]")->setString(wanted.at(i)->toString());
    }
    return list;
}

const char *const kLeft = R"({"enableStackL":"true","palletIndexL":"0","palletStatus":"1","currentLayerL":"4",
    "layerCountL":"1","palletCountL":"4","totalPalletsL":"2","cycleTimeL":"5.76","flagL":"0"})";

palx::RunSide read(const char *values, const char *project = R"({"scheme_layout":2})",
                   const char *program = R"({"state":"running"})", LineSide side = LineSide::Left)
{
    return palx::readRunSide({variables(values), stacks(), nodeFromJson(project), nodeFromJson(program)},
                             side);
}

QString text(const palx::VariableChanges &changes)
{
    QStringList all;
    for (const auto &[name, value] : changes)
        all.append(name + QLatin1Char('=') + value);
    return all.join(QLatin1Char(' '));
}

} // namespace

TEST(RunSide, IsReadFromTheVariablesAndTheRecipe)
{
    const palx::RunSide side = read(kLeft);
    EXPECT_TRUE(side.isPart && side.isEnabled && side.isStacked && !side.isFull);
    EXPECT_EQ(side.recipes, QStringList({QStringLiteral("L"), QStringLiteral("Raw")}));
    EXPECT_EQ(side.recipeName(), QStringLiteral("L"));
    const int figures[] = {side.piled, side.expected, side.layer,  side.layers,
                           side.piece, side.pieces,   side.pallets};
    const int wanted[] = {4, 5, 4, 4, 1, 1, 2};
    EXPECT_TRUE(std::equal(std::begin(figures), std::end(figures), std::begin(wanted)));
    EXPECT_DOUBLE_EQ(side.boxesPerHour(), 625);
    EXPECT_FALSE(read(kLeft, R"({"scheme_layout":2})", R"({"state":"stopped"})").isStacked);
    const Node all = stacks();
    EXPECT_NE(palx::recipeChangeProblem(side), QString());
    EXPECT_EQ(palx::enableProblem(side, palx::recipeOfSide(all, LineSide::Left, 0)), QString());
    EXPECT_TRUE(palx::enableProblem(side, palx::recipeOfSide(all, LineSide::Left, 1))
                    .contains(QStringLiteral("points")));
}

TEST(RunSide, IsPartOfTheLineByLayoutAndVariables)
{
    const char *const both =
        R"({"enableStackL":"0","palletIndexL":"0","enableStackR":"0","palletIndexR":"0"})";
    for (int scheme = 0; scheme < 4; ++scheme) {
        const QByteArray project = "{\"scheme_layout\":" + QByteArray::number(scheme) + '}';
        EXPECT_EQ(read(both, project).isPart, scheme == 0 || scheme == 2) << scheme;
        EXPECT_EQ(read(both, project, "null", LineSide::Right).isPart, scheme == 1 || scheme == 2) << scheme;
        EXPECT_FALSE(read("{}", project).isPart) << scheme;
    }
}

TEST(RunSide, HasOneStateTheMostUrgentFirst)
{
    struct Case
    {
        RunState state;
        bool enabled, full, stacked;
        const char *program;
        palx::RunCircumstances now;
    };
    const palx::RunCircumstances on{true, false, false};
    const Case cases[] = {
        {RunState::NoController, true, false, true, R"({"state":"running"})", {}},
        {RunState::Stacking, true, false, true, R"({"state":"running"})", on},
        {RunState::Waiting, true, false, false, R"({"state":"running"})", on},
        {RunState::Disabled, false, false, false, R"({"state":"running"})", on},
        {RunState::Full, true, true, false, R"({"state":"running"})", on},
        {RunState::Paused, true, false, true, R"({"state":"paused"})", on},
        {RunState::Standing, true, false, false, R"({"state":"stopped"})", on},
        {RunState::Fault, true, false, false, R"({"state":"stopped","fault":true})", {true, false, true}},
        {RunState::Unconfirmed, true, false, false, R"({"state":"stopped"})", {true, false, true}},
        {RunState::MovedByHand, true, false, false, R"({"state":"stopped"})", {true, true, false}},
    };
    for (const Case &each : cases) {
        palx::RunSide side;
        side.isPart = true;
        side.isEnabled = each.enabled;
        side.isFull = each.full;
        side.isStacked = each.stacked;
        EXPECT_EQ(palx::runState(side, nodeFromJson(each.program), each.now), each.state)
            << each.program << " case " << &each - cases;
    }
    EXPECT_EQ(palx::runState(palx::RunSide(), Node(), on), RunState::Absent);
}

TEST(RunSide, ChangesVariablesOfItsSide)
{
    const Node all = stacks();
    EXPECT_EQ(text(palx::enableChanges(LineSide::Right, true)), QStringLiteral("enableStackR=1"));
    EXPECT_EQ(text(palx::recipeChanges(LineSide::Right, *palx::recipeOfSide(all, LineSide::Right, 0), 3)),
              QStringLiteral("palletIndexR=3 boxHeightR=180 currentLayerR=1 layerCountR=1 palletCountR=0"));
    EXPECT_EQ(text(palx::resetChanges(LineSide::Left)),
              QStringLiteral("totalPalletsL=0 palletTotalCountL=0 totalPiledCountL=0 cycleTimeL=0"));
}
