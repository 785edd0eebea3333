#include "controller/script/vocabulary.h"

#include "controller/script/program.h"

#include <array>
#include <charconv>

namespace controller::script {

namespace {

struct FixedName
{
    std::string_view name;
    Symbol symbol;
};

constexpr Symbol state(State state)
{
    return {Meaning::State, static_cast<int>(state), Kind::Bool};
}

constexpr Symbol point(PalletPoint point)
{
    return {Meaning::Point, static_cast<int>(point), Kind::Target};
}

constexpr FixedName kFixed[] = {
    {"estop0", state(State::EStop)},
    {"collision", state(State::Collision)},
    {"relax", state(State::Relax)},
    {"move", state(State::Move)},
    {"PalletHomePoint", point(PalletPoint::Home)},
    {"PalletGetApproachPoint", point(PalletPoint::GetApproach)},
    {"PalletGetWobjPoint", point(PalletPoint::GetWobj)},
    {"PalletEnterPoint", point(PalletPoint::Enter)},
    {"PalletReadyPoint", point(PalletPoint::Ready)},
    {"PalletApproachPoint", point(PalletPoint::Approach)},
    {"PalletWobjPoint", point(PalletPoint::Wobj)},
    {"PalletExitPoint", point(PalletPoint::Exit)},
    {"fine", {Meaning::Fine, 0, Kind::Zone}},
    {"PalletTool", {Meaning::Tool, 0, Kind::Tool}},
    {"Wobj0", {Meaning::Wobj, 0, Kind::Wobj}},
};

/// In the order of Function.
constexpr Signature kSignatures[] = {
    {"MoveL", 4, 4, {Kind::Target, Kind::Speed, Kind::Zone, Kind::Tool}, Kind::Nothing, true},
    {"Offs", 4, 4, {Kind::Target, Kind::Double, Kind::Double, Kind::Double}, Kind::Target, true},
    {"CurrentTarget", 2, 2, {Kind::Tool, Kind::Wobj}, Kind::Target},
    {"SetDO", 2, 2, {Kind::Bool, Kind::Bool}, Kind::Nothing},
    {"PulseDO", 2, 2, {Kind::Bool, Kind::Double}, Kind::Nothing},
    {"Wait", 1, 1, {Kind::Double}, Kind::Nothing},
    {"WaitUntil", 1, 1, {Kind::Bool}, Kind::Nothing},
    {"ClockStart", 1, 1, {Kind::Clock}, Kind::Nothing},
    {"ClockStop", 1, 1, {Kind::Clock}, Kind::Nothing},
    {"ClockReset", 1, 1, {Kind::Clock}, Kind::Nothing},
    {"ClockRead", 1, 1, {Kind::Clock}, Kind::Double},
    {"ReadRegister", 1, 1, {Kind::Text}, Kind::Int},
    {"WriteRegister", 2, 2, {Kind::Text, Kind::Int}, Kind::Nothing},
    {"Abs", 1, 1, {Kind::Double}, Kind::Double, true},
    {"GetPalletName", 1, 2, {Kind::Int, Kind::Int}, Kind::Text},
    {"PalletUpdate", 3, 3, {Kind::Text, Kind::Int, Kind::Int}, Kind::Nothing},
    {"PalletLayerCount", 1, 1, {Kind::Text}, Kind::Int},
    {"PalletWobjCount", 2, 2, {Kind::Text, Kind::Int}, Kind::Int},
};

constexpr std::array<const char *, 12> kKindTexts{
    "a bool",   "an int",          "a double",           "a string",
    "a clock",  "a robtarget",     "a speed like v1000", "a zone like z50 or fine",
    "the tool", "the work object", "no value",           "nothing"};

/// The digits behind `prefix`, up to six of them, or -1.
int numbered(std::string_view name, std::string_view prefix)
{
    int number = -1;
    if (name.size() <= prefix.size() || name.size() > prefix.size() + 6 ||
        name.substr(0, prefix.size()) != prefix)
        return -1;
    name.remove_prefix(prefix.size());
    const auto end = std::from_chars(name.data(), name.data() + name.size(), number);
    const bool hasZeroInFront = name.size() > 1 && name[0] == '0';
    return end.ec == std::errc() && end.ptr == name.data() + name.size() && !hasZeroInFront && number >= 0
               ? number
               : -1;
}

Symbol signal(std::string_view name)
{
    const bool isOutput = name.substr(0, 2) == "DO";
    for (int card = kFirstCard; card < kFirstCard + kCards; ++card) {
        const int channel = numbered(name, (isOutput ? "DO" : "DI") + std::to_string(card) + '_');
        if (channel >= 0 && channel < kChannels)
            return {isOutput ? Meaning::Output : Meaning::Input, signalIndex(card, channel), Kind::Bool};
    }
    return {};
}

} // namespace

std::string signalName(bool isOutput, int index)
{
    return (isOutput ? "DO" : "DI") + std::to_string(index / kChannels + kFirstCard) + '_' +
           std::to_string(index % kChannels);
}

bool taskKindOfName(const std::string &name, TaskKind *kind)
{
    constexpr std::array<const char *, 3> names{"motion", "semi_static", "normal"};
    for (std::size_t i = 0; i < names.size(); ++i)
        if (name == names[i]) {
            *kind = static_cast<TaskKind>(i);
            return true;
        }
    return false;
}

const char *kindText(Kind kind)
{
    return kKindTexts[static_cast<std::size_t>(kind)];
}

bool isTaken(Kind given, Kind wanted)
{
    return given == wanted || (isNumber(given) && isNumber(wanted));
}

Symbol fixedName(std::string_view name)
{
    for (const FixedName &fixed : kFixed)
        if (fixed.name == name)
            return fixed.symbol;
    if (const int speed = numbered(name, "v"); speed > 0)
        return {Meaning::Speed, speed, Kind::Speed};
    if (const int zone = numbered(name, "z"); zone >= 0)
        return {Meaning::Zone, zone, Kind::Zone};
    return name.substr(0, 1) == "D" ? signal(name) : Symbol();
}

const Signature &signatureOf(Function function)
{
    return kSignatures[static_cast<std::size_t>(function)];
}

bool findFunction(std::string_view name, Function *function)
{
    for (std::size_t i = 0; i < std::size(kSignatures); ++i)
        if (name == kSignatures[i].name) {
            *function = static_cast<Function>(i);
            return true;
        }
    return false;
}

int memberIndex(std::string_view name)
{
    const std::size_t index =
        name.size() == 1 ? std::string_view("xyzabc").find(name) : std::string_view::npos;
    return index == std::string_view::npos ? -1 : static_cast<int>(index);
}

} // namespace controller::script
