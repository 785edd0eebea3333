#pragma once

#include "controller/script/machine.h"

/// The variables of a project that the program templates rely on, in the order of their list.
inline std::vector<controller::script::VariableInfo> cellVariables()
{
    using controller::script::Type;
    std::vector<controller::script::VariableInfo> all{{"enableStackL", Type::Bool},
                                                      {"enableStackR", Type::Bool}};
    for (const char *side : {"L", "R"}) {
        for (const char *name : {"palletIndex", "palletCount", "palletTotalCount", "currentLayer",
                                 "layerCount", "totalPallets", "totalPiledCount"})
            all.push_back({std::string(name) + side, Type::Int});
        all.push_back({std::string("cycleTime") + side, Type::Double});
        all.push_back({std::string("boxHeight") + side, Type::Int});
    }
    for (const char *name :
         {"palletStatus", "flagL", "flagR", "flagL1", "flagR1", "rise", "use_rise", "SetZ", "MaxZ"})
        all.push_back({name, Type::Int});
    all.push_back({"grabbing", Type::Bool});
    all.push_back({"Margin", Type::Int});
    all.push_back({"liftHeight", Type::Int});
    all.push_back({"clock0", Type::Clock});
    all.push_back({"boxheight", Type::Int});
    for (const char *name : {"flagLL", "flagRR", "flag"})
        all.push_back({name, Type::Bool});
    all.push_back({"BHOME", Type::Target});
    return all;
}
