#include "project/rules/run_recovery.h"

#include "project/rules/project_record.h"
#include "project/rules/run_side.h"
#include "workstation/plugin_node.h"
#include "xservice.h"

#include <QCoreApplication>

namespace palx {

using orba::Node;

namespace {

const QString kSuction = QStringLiteral("DO2_6");
constexpr int kColumnUsed = 1; // "use_rise"
constexpr int kColumnStopped = 2;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::RunText)
};

QString sideName(int side)
{
    return side == 0 ? Text::tr("left pallet") : Text::tr("right pallet");
}

QString onSide(const char *variable, int side)
{
    return sideVariable(variable, kLineSides[side]);
}

int numberOf(const Node &variables, const QString &name, int fallback)
{
    const Node *value = valueOfVariable(variables, name);
    return value ? static_cast<int>(value->toInt()) : fallback;
}

QVector<int> piecesOfLayers(const Node &stack)
{
    QVector<int> pieces;
    for (int layer = 1; layer <= pointLayers(stack); ++layer)
        pieces.append(layerPieces(stack, layer));
    return pieces;
}

/// The first piece there is from that place on: behind the last one of a layer comes the next layer's first.
PalletPiece firstFrom(const QVector<int> &pieces, PalletPiece from)
{
    PalletPiece next{std::max(1, from.layer), std::max(1, from.piece)};
    while (next.layer <= pieces.size() && next.piece > pieces.at(next.layer - 1))
        next = {next.layer + 1, 1};
    return next.layer > pieces.size() && !pieces.isEmpty() ? PalletPiece{pieces.size() + 1, 1} : next;
}

bool isBehindTheLast(const SideRun &side, PalletPiece piece)
{
    return !side.pieces.isEmpty() && piece.layer > side.pieces.size();
}

/// Pieces that come before that one.
int piecesBefore(const SideRun &side, PalletPiece piece)
{
    int count = piece.piece - 1;
    for (int i = 0; i < side.pieces.size() && i < piece.layer - 1; ++i)
        count += side.pieces.at(i);
    return count;
}

void readCounters(const Node &variables, const Node &stacks, int side, SideRun *run)
{
    const QStringList names = sideRecipes(stacks, side == 0);
    run->recipe = names.value(numberOf(variables, onSide("palletIndex", side), 0));
    const Node *enabled = valueOfVariable(variables, onSide("enableStack", side));
    run->isEnabled = enabled && enabled->toBool();
    if (const Node *stack = run->recipe.isEmpty() ? nullptr : recordOfName(stacks, run->recipe))
        run->pieces = piecesOfLayers(*stack);
    run->counted = firstFrom(run->pieces, {numberOf(variables, onSide("currentLayer", side), 1),
                                           numberOf(variables, onSide("layerCount", side), 1)});
}

/// Whether the first product that lies there has the size of the recipe's; true where nobody knows.
bool isOfSize(const Node &pallet, const Node &stack)
{
    constexpr double kToleranceMm = 1;
    const Node *boxes = pallet.child(u"boxes");
    const Node *box = boxes ? boxes->at(0) : nullptr; // a block: place, turn, length, width, height
    if (!box || box->size() < 7)
        return true;
    const auto isNear = [](double a, double b) { return std::abs(a - b) <= kToleranceMm; };
    const double length = stack.getDouble(u"product_cfg.product.length");
    const double width = stack.getDouble(u"product_cfg.product.width");
    return isNear(box->number(6), stack.getDouble(u"product_cfg.product.height")) &&
           isNear(box->number(4) + box->number(5), length + width) &&
           isNear(std::max(box->number(4), box->number(5)), std::max(length, width));
}

void readPallet(const Node &pallet, const Node &stacks, SideRun *run)
{
    run->products = static_cast<int>(pallet.getInt(u"count"));
    run->followed = pallet.getString(u"recipe");
    if (run->products > 0 && run->followed != run->recipe) {
        run->foreign = run->followed;
        return;
    }
    run->isKnown = true;
    const Node *stack = run->products > 0 ? recordOfName(stacks, run->recipe) : nullptr;
    run->isOtherSize = stack && !isOfSize(pallet, *stack);
    run->lying = firstFrom(run->pieces, {static_cast<int>(pallet.getInt(u"layer", 1)),
                                         static_cast<int>(pallet.getInt(u"piece", 1))});
}

void propose(SideRun *run)
{
    run->proposed = run->isKnown ? run->lying : run->counted;
    run->isFull = isBehindTheLast(*run, run->proposed);
    if (run->isFull && !run->isKnown)
        run->proposed = {}; // nobody sees whether it was replaced; the operator says so by confirming
}

void readCell(const Node &cell, const Node &variables, RunRecovery *run)
{
    const QString state = cell.getString(u"program.state");
    run->isRunning = state == QLatin1String("running");
    run->isPaused = state == QLatin1String("paused");
    run->holdsProduct = cell.getBool(u"gripper.carries");
    if (const Node *all = cell.child(u"signals"))
        if (const Node *suction = recordOfName(*all, kSuction))
            run->isSuctionOn = suction->getBool(u"on");
    run->columnUse = numberOf(variables, QStringLiteral("use_rise"), 0);
    run->hasColumnPower = cell.getString(u"column.state") == QLatin1String("operation enabled");
    const double lift = numberOf(variables, QStringLiteral("liftHeight"), 0);
    if (lift > 0)
        run->isColumnUp = cell.getDouble(u"column.height") > lift / 2;
}

/// Whether programs stack a side, or will when they run.
bool isServed(const RunRecovery &run, int side)
{
    return run.sides[static_cast<std::size_t>(side)].isEnabled ||
           ((run.isRunning || run.isPaused) && run.served == side);
}

} // namespace

RunRecovery readRunRecovery(const Node &cell, const Node &variables, const Node &stacks)
{
    RunRecovery run;
    const Node *pallets = cell.child(u"pallets");
    run.isCellKnown = pallets != nullptr;
    if (run.isCellKnown)
        readCell(cell, variables, &run);
    run.served = numberOf(variables, QStringLiteral("palletStatus"), 0) - 1;
    for (int i = 0; i < 2; ++i) {
        SideRun &side = run.sides[static_cast<std::size_t>(i)];
        readCounters(variables, stacks, i, &side);
        if (pallets && pallets->at(i))
            readPallet(*pallets->at(i), stacks, &side);
        side.isInterrupted = run.isCellKnown && !run.isRunning && !run.isPaused && run.served == i;
        propose(&side);
    }
    return run;
}

bool needsConfirmation(const RunRecovery &run, int side)
{
    const SideRun &at = run.sides[static_cast<std::size_t>(side)];
    if (!run.isCellKnown || run.isRunning || run.isPaused || at.recipe.isEmpty())
        return false;
    return at.isInterrupted || !at.foreign.isEmpty() || at.isOtherSize ||
           (at.isKnown && at.counted != at.lying);
}

QString whyNotConfirm(const RunRecovery &run, int side, PalletPiece piece)
{
    const SideRun &at = run.sides[static_cast<std::size_t>(side)];
    if (run.isRunning || run.isPaused)
        return Text::tr("Stop the program first!");
    if (at.recipe.isEmpty())
        return Text::tr("There is no recipe for the %1!").arg(sideName(side));
    if (run.holdsProduct || run.isSuctionOn)
        return Text::tr("Clear the gripper first!");
    if (!at.foreign.isEmpty())
        return Text::tr("Products of the recipe \"%1\" lie on the %2!").arg(at.foreign, sideName(side));
    if (at.isOtherSize)
        return Text::tr("The products on the %1 are not of the recipe's size. Take them off, or change the "
                        "recipe back!")
            .arg(sideName(side));
    if (at.isKnown && at.isFull)
        return Text::tr("The %1 is full; replace it first!").arg(sideName(side));
    if (piece.layer < 1 || piece.layer > at.pieces.size())
        return Text::tr("The recipe has layers 1 to %1!").arg(at.pieces.size());
    const int pieces = at.pieces.at(piece.layer - 1);
    if (piece.piece < 1 || piece.piece > pieces)
        return Text::tr("Layer %1 has pieces 1 to %2!").arg(piece.layer).arg(pieces);
    return {};
}

Node confirmedVariables(const RunRecovery &run, int side, PalletPiece piece)
{
    const SideRun &at = run.sides[static_cast<std::size_t>(side)];
    Node values;
    const auto set = [&values](const QString &name, int value) {
        values.ensureChild(orba::Name(name))->setInt(value);
    };
    set(onSide("currentLayer", side), piece.layer);
    set(onSide("layerCount", side), piece.piece);
    set(onSide("palletCount", side), piecesBefore(at, piece));
    set(onSide("flag", side), 0);
    set(QStringLiteral("grabbing"), 0);
    if (at.isInterrupted)
        set(QStringLiteral("palletStatus"), 0);
    if (run.isColumnUp)
        set(QStringLiteral("rise"), *run.isColumnUp ? 1 : 0);
    return values;
}

QString whyNotEnable(const RunRecovery &run, int side)
{
    const SideRun &at = run.sides[static_cast<std::size_t>(side)];
    if (at.recipe.isEmpty())
        return Text::tr("There is no recipe for the %1!").arg(sideName(side));
    if (run.isRunning || run.isPaused || !run.isCellKnown)
        return {};
    if (run.holdsProduct || run.isSuctionOn)
        return Text::tr("Clear the gripper first!");
    if (at.isKnown && at.isFull)
        return Text::tr("The %1 is full; replace it first!").arg(sideName(side));
    if (needsConfirmation(run, side))
        return Text::tr("Confirm layer and piece of the %1 first!").arg(sideName(side));
    return {};
}

QString whyNotRename(const RunRecovery &run, const QString &name)
{
    for (int i = 0; i < 2; ++i) {
        const SideRun &side = run.sides[static_cast<std::size_t>(i)];
        if (isServed(run, i) && (side.recipe == name || side.followed == name))
            return Text::tr("The %1 is stacked with the recipe \"%2\". Disable the side and let its pallet "
                            "end, or stop the program!")
                .arg(sideName(i), name);
        if (side.products > 0 && side.followed == name)
            return Text::tr("Products of the recipe \"%1\" lie on the %2!").arg(name, sideName(i));
    }
    return {};
}

QString whyNotMove(const RunRecovery &run, const Node &stacks, const QString &name)
{
    for (int i = 0; i < 2; ++i) {
        if (!isServed(run, i))
            continue;
        const QStringList names = sideRecipes(stacks, i == 0);
        const QString used = run.sides[static_cast<std::size_t>(i)].recipe;
        if (names.contains(name) && names.indexOf(name) < names.indexOf(used))
            return Text::tr("The %1 is stacked with the recipe \"%2\", which stands behind this one: another "
                            "would take its place. Disable the side and let its pallet end, or stop the "
                            "program!")
                .arg(sideName(i), used);
    }
    return whyNotRename(run, name);
}

bool isMiscounted(const RunRecovery &run)
{
    if (!(run.isRunning || run.isPaused) || run.served < 0 || run.served > 1)
        return false;
    const SideRun &at = run.sides[static_cast<std::size_t>(run.served)];
    const PalletPiece next =
        firstFrom(at.pieces, {at.counted.layer, at.counted.piece + 1}); // put down, not counted yet
    return !at.foreign.isEmpty() || at.isOtherSize ||
           (at.isKnown && at.lying != at.counted && at.lying != next);
}

GoOn howToGoOn(const RunRecovery &run)
{
    const bool isLost = run.isSuctionOn && !run.holdsProduct && run.served >= 0;
    if (!run.isPaused)
        return GoOn::AsItIs;
    if (isLost || isMiscounted(run))
        return GoOn::NotAtAll;
    if (run.columnUse == kColumnStopped)
        return GoOn::ByStartButton;
    return run.columnUse == kColumnUsed && !run.hasColumnPower ? GoOn::ByStopAndStart : GoOn::AsItIs;
}

QString whyNotGoOn(const RunRecovery &run)
{
    switch (howToGoOn(run)) {
    case GoOn::AsItIs:
        break;
    case GoOn::ByStartButton:
        return Text::tr("The lift column was stopped; go on with the start button of the cell!");
    case GoOn::ByStopAndStart:
        return Text::tr(
            "The lift column has no power; press the stop and then the start button of the cell!");
    case GoOn::NotAtAll:
        return isMiscounted(run)
                   ? Text::tr("The pallet is not as counted; stop the program and confirm the piece!")
                   : Text::tr("The product was lost; stop the program and confirm the piece!");
    }
    return {};
}

// ---------------------------------------------------------------- the panel's own nodes

RunRecovery currentRunRecovery()
{
    return readRunRecovery(m("nexo.cell")->node(), m("quill.project.var._list")->node(),
                           stacksNode()->node());
}

QString clearGripper()
{
    Node payload;
    payload.ensure(u"action")->setString(QStringLiteral("clear"));
    return xservice()->set(nullptr, QStringLiteral("cell.gripper"), payload).error;
}

} // namespace palx
