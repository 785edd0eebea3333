#include "cell_operator.h"

namespace cli {

using controller::Runner;
using orba::Node;

namespace {

constexpr double kToRest = 1;   // [s] until a robot that was stopped stands, and a panel has seen it
constexpr double kPress = 0.5;  // [s] that a button is held
constexpr double kPowerOff = 2; // [s] that the column's drive is given to switch off

Node flag(const char *key, const QString &value, bool on)
{
    Node payload;
    payload.ensure(QString::fromLatin1(key))->setString(value);
    payload.ensure(u"on")->setBool(on);
    return payload;
}

} // namespace

CellOperator::CellOperator(controller::Station *station, QVector<int> sides)
    : station_(station), sides_(std::move(sides))
{
}

QString CellOperator::ask(const char *request, const Node &payload)
{
    Node copy = payload;
    return station_->request(QString::fromLatin1(request), copy).refusal;
}

/// The recipes as a panel has them; copied when one of them is another one.
const Node &CellOperator::stacks()
{
    std::vector<std::shared_ptr<const Node>> now;
    for (int i = 0; i < station_->pallets().count(); ++i)
        now.push_back(station_->pallets().shared(station_->pallets().at(i)->getString(u"name")));
    if (now != recipes_) {
        stacks_.reset(Node::Kind::List);
        for (const auto &recipe : now)
            stacks_.add()->assign(*recipe);
        recipes_ = std::move(now);
    }
    return stacks_;
}

/// What the panel would show now.
palx::RunRecovery CellOperator::look()
{
    station_->publishAll();
    return palx::readRunRecovery(*station_->tree().find(u"nexo.cell"),
                                 *station_->tree().find(u"quill.project.var._list"), stacks());
}

void CellOperator::mend()
{
    station_->publishAll();
    const Node faults = *station_->tree().find(u"nexo.cell.faults");
    for (int i = 0; i < faults.size(); ++i)
        if (faults.at(i)->getBool(u"on"))
            ask("cell.fault", flag("name", faults.at(i)->getString(u"name"), false));
    ask("program.reset");
}

void CellOperator::press(const char *input)
{
    Node payload;
    payload.ensure(u"signal")->setString(QString::fromLatin1(input));
    payload.ensure(u"seconds")->setDouble(kPress);
    ask("cell.input", payload);
}

/// A column that lost its power on its way gets it back by the buttons of the cell.
QString CellOperator::goOn(palx::GoOn how)
{
    if (how == palx::GoOn::AsItIs)
        return ask("program.run");
    if (how == palx::GoOn::ByStopAndStart) {
        press("DI2_1");
        station_->simulate(kPowerOff);
    }
    press("DI2_0");
    station_->simulate(kPress);
    return station_->desk().runner().why();
}

bool CellOperator::seesMiscount()
{
    return palx::isMiscounted(look());
}

QString CellOperator::enable(int side, bool on)
{
    Node values;
    values.ensure(side == 0 ? u"enableStackL" : u"enableStackR")->setBool(on);
    return ask("monitor.pers.modify", values);
}

/// A full pallet stays where it is, and its side is left out.
QString CellOperator::prepare(int side)
{
    palx::RunRecovery run = look();
    const palx::SideRun &at = run.sides[static_cast<std::size_t>(side)];
    if (at.isKnown && at.isFull)
        return enable(side, false);
    QString why;
    if (palx::needsConfirmation(run, side)) {
        why = palx::whyNotConfirm(run, side, at.proposed);
        if (why.isEmpty())
            why = ask("monitor.pers.modify", palx::confirmedVariables(run, side, at.proposed));
        run = look();
    }
    if (why.isEmpty())
        why = palx::whyNotEnable(run, side);
    return why.isEmpty() ? enable(side, true) : why;
}

QString CellOperator::startAnew()
{
    ask("program.stop");
    station_->simulate(kToRest);
    Node payload;
    payload.ensure(u"action")->setString(QStringLiteral("clear"));
    ask("cell.gripper", payload);
    for (const int side : sides_) {
        const QString why = prepare(side);
        if (!why.isEmpty())
            return why;
    }
    return ask("program.run");
}

QString CellOperator::recover()
{
    mend();
    const palx::RunRecovery run = look();
    const palx::GoOn how = palx::howToGoOn(run);
    if (run.isRunning && !palx::isMiscounted(run))
        return {};
    return run.isPaused && how != palx::GoOn::NotAtAll ? goOn(how) : startAnew();
}

} // namespace cli
