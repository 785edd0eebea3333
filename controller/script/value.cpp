#include "controller/script/value.h"

#include <array>

namespace controller::script {

namespace {

constexpr std::array<const char *, 6> kNames{"bool", "int", "double", "string", "clock", "robtarget"};

} // namespace

Value firstValue(Type type)
{
    switch (type) {
    case Type::Bool:
        return false;
    case Type::Int:
        return std::int64_t{0};
    case Type::Double:
        return 0.0;
    case Type::String:
        return std::string();
    case Type::Clock:
        return Clock();
    case Type::Target:
        return Target();
    }
    return false;
}

const char *typeName(Type type)
{
    return kNames[static_cast<std::size_t>(type)];
}

bool typeOfName(const std::string &name, Type *type)
{
    for (std::size_t i = 0; i < kNames.size(); ++i)
        if (name == kNames[i]) {
            *type = static_cast<Type>(i);
            return true;
        }
    return false;
}

} // namespace controller::script
