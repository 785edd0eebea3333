#pragma once

#include "ix/xtheme.h"
#include "orba/node.h"

#include <QStringList>
#include <QVector>

namespace panel {

/// How the programs of the controller look: text and colour together, and the reason or the project.
struct ProgramLook
{
    QString text;
    ix::xtheme::State state = ix::xtheme::State::Stopped;
    QString why;
};
ProgramLook programLook(const orba::Node &cell, bool isConnected);

/// What lies at one side: "12 of 45 boxes", amber when full or away.
struct PalletLook
{
    QString text;
    ix::xtheme::State state = ix::xtheme::State::None;
};
PalletLook palletLook(const orba::Node &cell, int side);

/// A button of the cell's desk with its lamp.
struct DeskButton
{
    const char *input;
    const char *lamp;
    ix::xtheme::State lit;
    bool isHeld; ///< it is pressed until its lamp lights
};
/// Start, stop, reset, left arrow, right arrow.
const QVector<DeskButton> &deskButtons();

/// Conveyor, gripper and lift column, a line each.
QStringList machineTexts(const orba::Node &cell);
/// "no-vacuum" in the operator's language.
QString faultText(const QString &name);
/// Simulated seconds as "0:12:05".
QString clockText(double seconds);

} // namespace panel
