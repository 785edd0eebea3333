#pragma once

#include "orba/node.h"

#include <QString>

#include <cstdint>

/// What a palletizing line is like.
struct LineSetup
{
    int scheme = 0; ///< 0 left, 1 right, 2 both
    bool hasLift = false;
    int towards = 0; ///< of both work objects; 1: the whole cell is turned about the robot's foot
    int layers = 2;
    std::uint64_t seed = 1;
    int products =
        0; ///< of the lowest layer, the next has one less, so that it stands well; 0: as in the recipe
};

/// What a panel leaves behind when an operator has set up a line: recipes with points on the controller, the tool, a project
/// with its tasks, programs and variables.
struct MadeProject
{
    QString dataFolder;      ///< of the controller; to be copied, because a controller changes it
    QString workspaceFolder; ///< with the project "SIM-0001/Line"; only read
    orba::Node home;         ///< point record where the robot waits
};

/// Made once for each kind of line, in a session of the plug-in that is linked to a simulated controller. Recipes are those of
/// the cell with shared tool and work objects in the examples.
const MadeProject &madeProject(const LineSetup &setup);
