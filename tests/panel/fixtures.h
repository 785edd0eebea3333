#pragma once

#include <QString>
#include <QStringList>

/// The libraries that the tests load.
QString fixtureFile(const char *name);
/// What the sample plug-in noted since the last call.
QStringList takeSampleNotes();
