#pragma once

#include "orba/node.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What one run of the program `palx` gave.
struct PalxRun
{
    int code = -1; ///< -1: it did not start, crashed or did not end within the bound
    QByteArray out;
    QByteArray err;
};

/// Runs the real program in `folder` (a temporary one when empty), with a home folder of its own.
PalxRun runPalx(const QStringList &arguments, const QString &folder = QString());

QString examplePath(const QString &name);
/// Every recipe file of the examples folder.
QStringList exampleFiles();
/// The recipes that an example holds, read without `palx`; of each only so many layers when a number is given.
orba::Node exampleContent(const QString &name, int layers = -1);
void writeRecipes(const QString &file, const orba::Node &recipes);

/// What `palx` printed as JSON; a fault in it fails the test.
orba::Node parsed(const QByteArray &json);
QStringList childNames(const orba::Node &node);
/// The texts of a list.
QStringList texts(const orba::Node &list);
QByteArray fileContent(const QString &file);
void writeFile(const QString &file, const QByteArray &content);
