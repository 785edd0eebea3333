// With which piece a side goes on after work was broken off, and what keeps it from doing so.

#include "project/rules/run_recovery.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::Node;
using palx::PalletPiece;

namespace {

/// A cell with a left recipe of layers with 2, 2 and 1 products, a sheet between the last two, and an empty right one.
struct Cell
{
    QString state = QStringLiteral("stopped");
    int served = 0;      ///< "palletStatus"
    PalletPiece counted; ///< of the left side
    int lies = 0;        ///< products on the left pallet
    PalletPiece lying;
    const char *recipe = "Left";
    bool carries = false, suction = false;
    bool isKnown = true;
    double column = 0;
    int columnUse = 0;
};

Node variablesOf(const Cell &cell)
{
    Node list;
    list.reset(Node::Kind::List);
    const std::pair<const char *, int> values[] = {{"palletStatus", cell.served},
                                                   {"currentLayerL", cell.counted.layer},
                                                   {"layerCountL", cell.counted.piece},
                                                   {"palletIndexL", 0},
                                                   {"currentLayerR", 1},
                                                   {"layerCountR", 1},
                                                   {"palletIndexR", 3},
                                                   {"use_rise", cell.columnUse},
                                                   {"liftHeight", 500}};
    for (const auto &[name, value] : values) {
        Node *record = list.add();
        record->ensure(u"name")->setString(QLatin1String(name));
        record->ensure(u"value.[0][0][0]")->setString(QString::number(value));
    }
    return list;
}

Node stacks()
{
    return nodeFromJson(R"([
        {"name":"Right","pallet_position":1,"layers":[{"pattern":"A"}],"points":{"put":[[{},{}]]}},
        {"name":"Left","pallet_position":0,
         "layers":[{"pattern":"A"},{"pattern":"A"},{"pattern":"clapboard"},{"pattern":"B"}],
         "points":{"put":[[{},{}],[{},{}],[{}],[{}]]}}])");
}

Node cellNode(const Cell &cell)
{
    if (!cell.isKnown)
        return Node();
    Node node = nodeFromJson(
        R"({"program":{},"gripper":{},"column":{"state":"switch on disabled"},"signals":[{"name":"DO2_6","on":false}],
        "pallets":[{"recipe":""},{"recipe":"","count":0,"layer":1,"piece":1}]})");
    node.find(u"program")->ensure(u"state")->setString(cell.state);
    node.find(u"gripper")->ensure(u"carries")->setBool(cell.carries);
    node.find(u"signals.#0")->ensure(u"on")->setBool(cell.suction);
    node.find(u"column")->ensure(u"height")->setDouble(cell.column);
    Node *left = node.find(u"pallets.#0");
    left->ensure(u"recipe")->setString(QLatin1String(cell.recipe));
    left->ensure(u"count")->setInt(cell.lies);
    left->ensure(u"layer")->setInt(cell.lying.layer);
    left->ensure(u"piece")->setInt(cell.lying.piece);
    return node;
}

palx::RunRecovery read(const Cell &cell)
{
    return palx::readRunRecovery(cellNode(cell), variablesOf(cell), stacks());
}

QString textOf(PalletPiece piece)
{
    return QStringLiteral("%1/%2").arg(piece.layer).arg(piece.piece);
}

struct RecoveryCase
{
    const char *name;
    Cell cell;
    const char *proposed;
    bool isAsked;
    const char *whyNotEnable;
    const char *whyNotConfirm; ///< what is proposed
};

const char *const kConfirm = "Confirm layer and piece of the left pallet first!";
const char *const kFull = "The left pallet is full; replace it first!";
const char *const kClear = "Clear the gripper first!";

const RecoveryCase kCases[] = {
    {"Fresh", {}, "1/1", false, "", ""},
    {"BrokenOff", {"stopped", 1, {2, 2}, 3, {2, 2}}, "2/2", true, kConfirm, ""},
    {"BehindTheLastOfALayer", {"stopped", 0, {1, 3}, 2, {2, 1}}, "2/1", false, "", ""},
    {"ASheetIsPassed", {"stopped", 0, {3, 1}, 4, {4, 1}}, "4/1", false, "", ""},
    {"Full", {"stopped", 1, {4, 1}, 5, {5, 1}}, "5/1", true, kFull, kFull},
    {"FullAndReplaced", {"stopped", 0, {5, 1}, 0, {1, 1}}, "1/1", true, kConfirm, ""},
    {"AtTheGripper", {"stopped", 1, {1, 2}, 1, {1, 2}, "Left", true, true}, "1/2", true, kClear, kClear},
    {"Foreign",
     {"stopped", 0, {1, 2}, 1, {1, 2}, "Other"},
     "1/2",
     true,
     kConfirm,
     "Products of the recipe \"Other\" lie on the left pallet!"},
    {"Running", {"running", 1, {1, 2}, 2, {2, 1}}, "2/1", false, "", "Stop the program first!"},
    {"NobodySeesTheFullPallet", {"", 0, {5, 1}, 0, {1, 1}, "", false, false, false}, "1/1", false, "", ""},
};

} // namespace

TEST(RunRecovery, ProposesAndAsks)
{
    for (const RecoveryCase &c : kCases) {
        SCOPED_TRACE(c.name);
        const palx::RunRecovery run = read(c.cell);
        EXPECT_EQ(QLatin1String(c.proposed), textOf(run.sides[0].proposed));
        EXPECT_EQ(c.isAsked, palx::needsConfirmation(run, 0));
        EXPECT_EQ(QLatin1String(c.whyNotEnable), palx::whyNotEnable(run, 0));
        EXPECT_EQ(QLatin1String(c.whyNotConfirm), palx::whyNotConfirm(run, 0, run.sides[0].proposed));
        EXPECT_EQ("There is no recipe for the right pallet!", palx::whyNotEnable(run, 1));
        EXPECT_FALSE(palx::needsConfirmation(run, 1));
    }
}

TEST(RunRecovery, ProductsOfAnotherSizeAreNotStackedOn)
{
    const std::pair<const char *, bool> boxes[] = {
        {"[[0, 0, 0, 0, 380, 260, 180]]", true},
        {"[[0, 0, 0, 90, 260, 380, 180.4]]", true}, // lies the other way
        {"[[0, 0, 0, 0, 380, 260, 100]]", false},
        {"[[0, 0, 0, 0, 360, 280, 180]]", false},
        {"[]", true},
        {"[[1, 2]]", true},
    };
    Node list = stacks();
    *list.find(u"#1")->ensure(u"product_cfg.product") =
        nodeFromJson(R"({"length":380,"width":260,"height":180})");
    for (const char *state : {"stopped", "paused"}) {
        for (const auto &[lying, isOfSize] : boxes) {
            const Cell cell{QLatin1String(state), 1, {1, 2}, 1, {1, 2}};
            Node node = cellNode(cell);
            *node.find(u"pallets.#0")->ensure(u"boxes") = nodeFromJson(lying);
            const palx::RunRecovery run = palx::readRunRecovery(node, variablesOf(cell), list);
            EXPECT_EQ(palx::isMiscounted(run), !isOfSize && run.isPaused) << lying;
            if (run.isPaused)
                continue;
            EXPECT_EQ(palx::whyNotConfirm(run, 0, {1, 2}).startsWith("The products on the left pallet"),
                      !isOfSize)
                << lying;
        }
    }
}

TEST(RunRecovery, OnlyPiecesOfTheRecipeAreConfirmed)
{
    const palx::RunRecovery run = read({});
    const std::pair<PalletPiece, const char *> cases[] = {{{2, 2}, ""},
                                                          {{0, 1}, "The recipe has layers 1 to 4!"},
                                                          {{2, 3}, "Layer 2 has pieces 1 to 2!"},
                                                          {{3, 1}, "Layer 3 has pieces 1 to 0!"}};
    for (const auto &[piece, why] : cases)
        EXPECT_EQ(QLatin1String(why), palx::whyNotConfirm(run, 0, piece)) << qPrintable(textOf(piece));
}

TEST(RunRecovery, AConfirmationSetsEverythingThatCounts)
{
    Cell cell{"stopped", 1, {1, 2}, 4, {4, 1}};
    EXPECT_EQ(nodeFromJson(R"({"currentLayerL":4,"layerCountL":1,"palletCountL":4,"flagL":0,"grabbing":0,
                              "palletStatus":0,"rise":0})"),
              palx::confirmedVariables(read(cell), 0, {4, 1}));
    cell.column = 499;
    cell.served = 2; // the other side stays to be confirmed
    EXPECT_EQ(nodeFromJson(
                  R"({"currentLayerL":2,"layerCountL":2,"palletCountL":3,"flagL":0,"grabbing":0,"rise":1})"),
              palx::confirmedVariables(read(cell), 0, {2, 2}));
}

TEST(RunRecovery, APausedProgramGoesOnWithItsProductItsPalletAndTheColumn)
{
    const char *lost = "The product was lost; stop the program and confirm the piece!";
    const char *miscounted = "The pallet is not as counted; stop the program and confirm the piece!";
    Cell stopped{"paused", 1, {1, 2}, 1, {1, 2}};
    stopped.columnUse = 2;
    Cell powerless = stopped;
    powerless.columnUse = 1;
    const std::pair<Cell, const char *> cases[] = {
        {{"paused", 1, {1, 2}, 2, {2, 1}}, ""}, // put down, not counted
        {{"paused", 1, {1, 2}, 1, {1, 2}, "Left", true, true}, ""},
        {{"paused", 1, {1, 2}, 1, {1, 2}, "Left", false, true}, lost},
        {{"paused", 1, {1, 2}, 0, {1, 1}}, miscounted},
        {{"paused", 1, {1, 2}, 1, {1, 2}, "Other"}, miscounted},
        {{"running", 1, {1, 2}, 0, {1, 1}, "Left", false, true}, ""},
        {stopped, "The lift column was stopped; go on with the start button of the cell!"},
        {powerless, "The lift column has no power; press the stop and then the start button of the cell!"},
    };
    for (const auto &[cell, why] : cases)
        EXPECT_EQ(QLatin1String(why), palx::whyNotGoOn(read(cell)));
}

TEST(RunRecovery, AProgramThatRunsIsWatched)
{
    const std::pair<Cell, bool> cases[] = {
        {{"running", 1, {1, 2}, 1, {1, 2}}, false}, {{"running", 1, {1, 2}, 2, {2, 1}}, false},
        {{"running", 1, {2, 1}, 1, {1, 2}}, true},  {{"running", 0, {2, 1}, 1, {1, 2}}, false},
        {{"stopped", 1, {2, 1}, 1, {1, 2}}, false},
    };
    for (const auto &[cell, isMiscounted] : cases)
        EXPECT_EQ(isMiscounted, palx::isMiscounted(read(cell)));
}

/// Of the left side, which uses its second recipe, or whose pallet holds products.
TEST(RunRecovery, RecipesThatAreUsedKeepTheirNameAndPlace)
{
    Node list = nodeFromJson(R"([{"name":"First","pallet_position":0},{"name":"Right","pallet_position":1},
                                 {"name":"Used","pallet_position":0},{"name":"Last","pallet_position":0}])");
    const struct
    {
        const char *what;
        Cell cell;
        bool isEnabled;
        const char *fixedNames;
        const char *fixedPlaces;
    } cases[] = {
        {"nothing runs", {"stopped", 1, {1, 1}, 0, {1, 1}, "Used"}, false, "", ""},
        {"may start any time", {"stopped", 0, {1, 1}, 0, {1, 1}, ""}, true, "Used", "First Used"},
        {"stacks", {"running", 1, {1, 1}, 0, {1, 1}, "Used"}, false, "Used", "First Used"},
        {"waits for its turn",
         {"paused", 2, {1, 1}, 0, {1, 1}, "Last"},
         true,
         "Used Last",
         "First Used Last"},
        {"is not wanted", {"running", 2, {1, 1}, 0, {1, 1}, "Used"}, false, "", ""},
        {"lies there", {"stopped", 0, {1, 2}, 1, {1, 2}, "Last"}, false, "Last", "Last"},
        {"the cell tells nothing",
         {"", 0, {1, 1}, 0, {1, 1}, "", false, false, false},
         true,
         "Used",
         "First Used"},
    };
    for (const auto &c : cases) {
        Node variables = variablesOf(c.cell);
        const auto put = [&variables](const char *name, const QString &value) {
            Node *record = variables.add();
            record->ensure(u"name")->setString(QLatin1String(name));
            record->ensure(u"value.[0][0][0]")->setString(value);
        };
        variables.removeAt(3);
        put("palletIndexL", QStringLiteral("1"));
        put("enableStackL", c.isEnabled ? QStringLiteral("true") : QStringLiteral("false"));
        const palx::RunRecovery run = palx::readRunRecovery(cellNode(c.cell), variables, list);
        QStringList names, places;
        for (const char *name : {"First", "Right", "Used", "Last"}) {
            if (!palx::whyNotRename(run, name).isEmpty())
                names << name;
            if (!palx::whyNotMove(run, list, name).isEmpty())
                places << name;
        }
        EXPECT_EQ(names.join(' '), c.fixedNames) << c.what;
        EXPECT_EQ(places.join(' '), c.fixedPlaces) << c.what;
    }
}
