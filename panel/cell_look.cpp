#include "panel/cell_look.h"

#include <QCoreApplication>

namespace panel {

using ix::xtheme::State;
using orba::Node;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(panel::CellPage)
};

QString projectText(const Node &cell)
{
    const QString project = cell.getString(u"program.project").section(QLatin1Char('/'), -1);
    return project.isEmpty() ? Text::tr("No project is in use.") : Text::tr("Project %1").arg(project);
}

} // namespace

ProgramLook programLook(const Node &cell, bool isConnected)
{
    if (!isConnected)
        return {Text::tr("No controller"), State::Stopped, QString()};
    const QString state = cell.getString(u"program.state");
    const QString problem = cell.getString(u"program.problems.#0");
    QString why = cell.getString(u"program.why");
    if (why.isEmpty())
        why = problem.isEmpty() ? projectText(cell) : problem;
    if (state == QLatin1String("running"))
        return {Text::tr("Running"), State::Running, why};
    if (cell.getBool(u"program.fault"))
        return {Text::tr("Fault"), State::Fault, why};
    if (state == QLatin1String("paused"))
        return {Text::tr("Paused"), State::Attention, why};
    return {Text::tr("Stopped"), problem.isEmpty() ? State::Stopped : State::Fault, why};
}

PalletLook palletLook(const Node &cell, int side)
{
    static const Node none;
    const Node *found = cell.find(QStringLiteral("pallets.#%1").arg(side));
    const Node &pallet = found ? *found : none;
    const QString name = side == 0 ? Text::tr("Left") : Text::tr("Right");
    const auto look = [&name](const QString &text, State state) {
        return PalletLook{name + QStringLiteral(": ") + text, state};
    };
    if (!pallet.getBool(u"in_place"))
        return look(Text::tr("no pallet"), State::Attention);
    if (pallet.getString(u"recipe").isEmpty())
        return look(Text::tr("empty"), State::None);
    const QString count =
        Text::tr("%1 of %2 boxes").arg(pallet.getInt(u"count")).arg(pallet.getInt(u"expected"));
    return look(count, pallet.getBool(u"full") ? State::Attention : State::None);
}

const QVector<DeskButton> &deskButtons()
{
    static const QVector<DeskButton> buttons{{"DI2_0", "DO2_0", State::Running, false},
                                             {"DI2_1", "DO2_1", State::Fault, false},
                                             {"DI2_2", "DO2_2", State::Attention, false},
                                             {"DI2_3", "DO2_3", State::Running, true},
                                             {"DI2_4", "DO2_4", State::Running, true}};
    return buttons;
}

namespace {

/// A word of the controller and what the operator reads for it.
struct ShownWord
{
    const char *word;
    const char *text;
};

QString shownWord(const QVector<ShownWord> &known, const QString &word)
{
    for (const ShownWord &each : known)
        if (word == QLatin1String(each.word))
            return Text::tr(each.text);
    return word;
}

/// The states of CiA 402.
QString driveStateText(const QString &state)
{
    static const QVector<ShownWord> known{
        {"switch on disabled", QT_TRANSLATE_NOOP("panel::CellPage", "switch on disabled")},
        {"ready to switch on", QT_TRANSLATE_NOOP("panel::CellPage", "ready to switch on")},
        {"switched on", QT_TRANSLATE_NOOP("panel::CellPage", "switched on")},
        {"operation enabled", QT_TRANSLATE_NOOP("panel::CellPage", "operation enabled")},
        {"fault", QT_TRANSLATE_NOOP("panel::CellPage", "fault")}};
    return shownWord(known, state);
}

} // namespace

QStringList machineTexts(const Node &cell)
{
    const double ahead = cell.getDouble(u"conveyor.ahead");
    QString conveyor = cell.getBool(u"conveyor.product") ? Text::tr("product at the stop")
                                                         : Text::tr("product in %1 mm").arg(qRound(ahead));
    if (cell.getBool(u"conveyor.jammed"))
        conveyor = Text::tr("jammed");
    QString gripper = cell.getBool(u"gripper.vacuum") ? Text::tr("vacuum") : Text::tr("no vacuum");
    if (cell.getBool(u"gripper.carries"))
        gripper = Text::tr("carries a product");
    return {Text::tr("Conveyor: %1").arg(conveyor), Text::tr("Gripper: %1").arg(gripper),
            Text::tr("Lift column: %1 mm, %2")
                .arg(qRound(cell.getDouble(u"column.height")))
                .arg(driveStateText(cell.getString(u"column.state")))};
}

QString faultText(const QString &name)
{
    static const QVector<ShownWord> known{
        {"no-vacuum", QT_TRANSLATE_NOOP("panel::CellPage", "No vacuum")},
        {"lost-box", QT_TRANSLATE_NOOP("panel::CellPage", "Lost box")},
        {"conveyor-jam", QT_TRANSLATE_NOOP("panel::CellPage", "Conveyor jam")},
        {"pallet-pulled", QT_TRANSLATE_NOOP("panel::CellPage", "Pallet pulled")},
        {"e-stop", QT_TRANSLATE_NOOP("panel::CellPage", "Emergency stop")},
        {"collision", QT_TRANSLATE_NOOP("panel::CellPage", "Collision")},
        {"power-cut", QT_TRANSLATE_NOOP("panel::CellPage", "Power cut")}};
    return shownWord(known, name);
}

QString clockText(double seconds)
{
    const auto whole = static_cast<qint64>(seconds);
    return QStringLiteral("%1:%2:%3")
        .arg(whole / 3600)
        .arg(whole / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(whole % 60, 2, 10, QLatin1Char('0'));
}

} // namespace panel
