#include "controller/program_variables.h"

#include "controller/pose.h"
#include "controller/variables.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace controller {

using orba::Node;
using script::Type;
using script::Value;

namespace {

/// The value of a variable's record, as its type has it; what cannot be read is the first value of the type.
Value valueOf(const Node &list, const script::VariableInfo &info)
{
    Value value = script::firstValue(info.type);
    const Node *node = Variables::value(list, QString::fromStdString(info.name));
    if (!node)
        return value;
    switch (info.type) {
    case Type::Bool:
        value = node->toBool();
        break;
    case Type::Int:
        value = static_cast<std::int64_t>(node->toInt());
        break;
    case Type::Double:
        value = node->toDouble();
        break;
    case Type::String:
        value = node->toString().toStdString();
        break;
    case Type::Target:
        value = targetOfText(node->toString());
        break;
    case Type::Clock:
        break; // runs by itself and is never written down
    }
    return value;
}

Node nodeOf(const Value &value)
{
    Node node;
    switch (script::typeOf(value)) {
    case Type::Bool:
        node.setBool(std::get<bool>(value));
        break;
    case Type::Int:
        node.setInt(std::get<std::int64_t>(value));
        break;
    case Type::Double:
        node.setDouble(std::get<double>(value));
        break;
    case Type::String:
        node.setString(QString::fromStdString(std::get<std::string>(value)));
        break;
    case Type::Target:
        node.setString(QString::fromStdString(targetText(std::get<script::Target>(value))));
        break;
    case Type::Clock:
        break;
    }
    return node;
}

const Node *recordOf(const Node &list, const std::string &name)
{
    for (int i = 0; i < list.size(); ++i)
        if (list.at(i) && list.at(i)->getString(u"name") == QString::fromStdString(name))
            return list.at(i);
    return nullptr;
}

} // namespace

std::string targetText(const script::Target &target)
{
    const Vector abc(radians(target.a), radians(target.b), radians(target.c));
    const Eigen::Quaterniond turn(rotationOf(abc));
    const auto number = [](double value) {
        return QString::number(value == 0 ? 0 : value, 'g', QLocale::FloatingPointShortest);
    };
    return QStringLiteral("p:{{%1,%2,%3},{%4,%5,%6,%7},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}")
        .arg(number(target.x), number(target.y), number(target.z), number(turn.w()), number(turn.x()),
             number(turn.y()), number(turn.z()))
        .toStdString();
}

script::Target targetOfText(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("-?\\d+(\\.\\d*)?([eE][-+]?\\d+)?"));
    script::Target target;
    if (!isTargetText(text))
        return target;
    double numbers[7] = {};
    auto found = number.globalMatch(text);
    for (double &value : numbers)
        value = found.next().captured().toDouble();
    const Eigen::Quaterniond turn(numbers[3], numbers[4], numbers[5], numbers[6]);
    const Vector abc = turn.norm() > 0 ? anglesOf(turn.normalized().toRotationMatrix()) : Vector::Zero();
    target = {numbers[0], numbers[1], numbers[2], degrees(abc.x()), degrees(abc.y()), degrees(abc.z())};
    return target;
}

ProgramVariables::ProgramVariables(const Node &list)
{
    for (int i = 0; !list.isPacked() && i < list.size(); ++i) {
        script::VariableInfo info{list.at(i)->getString(u"name").toStdString(), Type::Bool};
        const bool isKnown = script::typeOfName(list.at(i)->getString(u"type").toStdString(), &info.type);
        if (!isKnown || idOf(info.name) >= 0)
            continue;
        values_.push_back(valueOf(list, info));
        infos_.push_back(std::move(info));
    }
    changed_.assign(infos_.size(), false);
}

int ProgramVariables::idOf(const std::string &name) const
{
    const auto found =
        std::find_if(infos_.begin(), infos_.end(), [&name](const auto &info) { return info.name == name; });
    return found == infos_.end() ? -1 : static_cast<int>(found - infos_.begin());
}

bool ProgramVariables::set(int id, const Value &value)
{
    const auto place = static_cast<std::size_t>(id);
    if (values_[place] == value)
        return false;
    values_[place] = value;
    changed_[place] = true;
    isAnyChanged_ = true;
    return true;
}

bool ProgramVariables::flush(Node *list)
{
    if (!isAnyChanged_)
        return false;
    bool isPersistent = false;
    for (std::size_t i = 0; i < infos_.size(); ++i) {
        if (!changed_[i] || infos_[i].type == Type::Clock)
            continue;
        Variables::assign(*list, QString::fromStdString(infos_[i].name),
                          nodeOf(values_[i])); // gone: nobody asks for it
        const Node *record = recordOf(*list, infos_[i].name);
        isPersistent = isPersistent || (record && record->getBool(u"pers"));
    }
    changed_.assign(infos_.size(), false);
    isAnyChanged_ = false;
    return isPersistent;
}

bool ProgramVariables::reload(const Node &list)
{
    bool isChanged = false;
    for (std::size_t i = 0; i < infos_.size(); ++i) {
        if (infos_[i].type == Type::Clock || !recordOf(list, infos_[i].name))
            continue;
        Value value = valueOf(list, infos_[i]);
        if (value == values_[i])
            continue;
        values_[i] = std::move(value);
        isChanged = true;
    }
    return isChanged;
}

} // namespace controller
