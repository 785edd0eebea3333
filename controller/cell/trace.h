#pragma once

#include <string>

namespace controller::cell {

/// Where the course of things is written down, one event a line: "12.340 task0 main.mod:17 move 1350.000 ...".
class TraceSink
{
public:
    virtual ~TraceSink() = default;
    /// Without the line's end.
    virtual void line(const std::string &text) = 0;
};

} // namespace controller::cell
