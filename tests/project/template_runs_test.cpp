#include "project/template_tasks.h"

/// What the programs of the motion task do, in a recorder's cell.
namespace {

using namespace template_tasks;

TEST(TemplateRuns, stackingFetchesAndSetsDownPieceByPiece)
{
    Cell cell;
    cell.setInput(signalIndex(3, 0), true);
    cell.run("ZuoMaDuo", false);
    const std::vector<std::string> expected{
        "update A 1 2",
        "clock0=0 runs",
        "move 100 20 100 v4000 z200", // above the conveyor
        "move 200 20 100 v4000 fine",
        "DO2_6=1",
        "grabbing=1",
        "move 100 20 100 v4000 z200",
        "move 300 20 100 v4000 z200", // enter
        "move 400 20 100 v4000 z200", // ready
        "move 500 20 100 v4000 z200", // approach
        "move 600 20 100 v4000 fine", // put
        "grabbing=0",
        "DO2_6=0",
        "palletCountL=2",
        "layerCountL=3",
        "move 700 20 100 v4000 z200", // exit
        "move 300 20 100 v4000 z200",
        "move 100 20 100 v4000 z200",
        "clock0=11.5", // ten moves of a second each, suction and release
        "clock0=0",
        "update A 1 3",
    };
    EXPECT_EQ(cell.eventsFrom("update A 1 2", expected.size()), expected);
    EXPECT_EQ(cell.get("flagLL") + cell.get("flagL") + cell.get("totalPalletsL"), "111");
    EXPECT_EQ(cell.get("palletCountL") + cell.get("layerCountL") + cell.get("currentLayerL"), "013");
    EXPECT_EQ(cell.get("cycleTimeL"), "11.5");
    EXPECT_EQ(cell.count("DO2_6=1"), 5u);
}

TEST(TemplateRuns, theColumnFollowsTheLayers)
{
    Cell cell; // ready points lie at 100 and 200 mm, SetZ at 150
    cell.set("rise", 1);
    cell.setInput(signalIndex(3, 0), true);
    cell.run("ZuoMaDuo", true);
    EXPECT_EQ(cell.count("rise=0"), 2u); // before the first layer and when the pallet is full
    EXPECT_EQ(cell.count("PositionWrite=7000"), 2u);
    EXPECT_EQ(cell.count("move 600 10 100 v4000 fine"), 1u); // column down
    EXPECT_EQ(cell.count("move 600 10 140 v4000 fine"), 1u); // column up
    const std::vector<std::string> raising{
        "use_rise=1",
        "ControlwordWrite=0", // 128 times what was there, and back
        "ControlwordWrite=0",
        "ControlwordWrite=0", // power off
        "OperationModeWrite=1",
        "ControlwordWrite=6",
        "ControlwordWrite=7",
        "ControlwordWrite=15",
        "ProfileAcceleWrite=-1",
        "ProfileDeceWrite=-1",
        "ProfileVelocityWrite=350000",
        "PositionWrite=420000",
        "ControlwordWrite=31",
        "ControlwordWrite=15",
        "ControlwordWrite=0",
        "rise=1",
        "use_rise=0",
    };
    std::vector<std::string> expected{"update A 2 1"};
    expected.insert(expected.end(), raising.begin(), raising.end());
    EXPECT_EQ(cell.eventsFrom("update A 2 1", expected.size()), expected);
}

struct WayHome
{
    Target from;
    int layer;
    int piece;
    std::vector<std::string> moves;
    const char *counters; ///< layer, piece
};

TEST(TemplateRuns, theWayHomeLeadsOutOfTheStack)
{
    const WayHome cases[] = {
        {{0, 300, 100}, 1, 1, {"move 0 10 100 v1000 fine"}, "11"}, // within Margin
        {{0, 450, 100},
         1,
         2,
         {"move 0 450 350 v1000 fine", "move 300 20 100 v1000 z200", "move 0 20 100 v1000 fine"},
         "12"},
        {{0, 450, 800},
         1,
         2,
         {"move 300 20 100 v1000 z200", "move 0 20 100 v1000 fine"},
         "12"},                                                   // no room above
        {{0, 10, 100}, 3, 3, {"move 0 20 200 v1000 fine"}, "22"}, // behind the last layer
        {{0, 0, 900}, 3, 1, {"move 0 10 100 v1000 fine"}, "31"}, // not at the pallet: its counters stay
    };
    for (const WayHome &c : cases) {
        Cell cell;
        cell.stand(c.from);
        cell.set("currentLayerL", c.layer), cell.set("layerCountL", c.piece);
        cell.run("BackHome", false);
        std::vector<std::string> moves;
        for (const std::string &event : cell.events)
            if (event.rfind("move", 0) == 0)
                moves.push_back(event.substr(0, event.find('@')));
        EXPECT_EQ(moves, c.moves);
        EXPECT_EQ(cell.get("currentLayerL") + cell.get("layerCountL"), c.counters);
        EXPECT_EQ(cell.get("boxheight"), c.from.y > 0 ? "250" : "300");
    }
}

} // namespace
