#pragma once

#include "controller/script/program.h"

namespace controller::script {

/// Where something stands in a file; both count from 1, columns in characters.
struct Place
{
    int line = 1;
    int column = 1;
    bool operator<(const Place &o) const { return line != o.line ? line < o.line : column < o.column; }
};

/// Gathers the problems of one file, up to kMaxProblems.
class Problems
{
public:
    explicit Problems(std::string file) : file_(std::move(file)) {}

    void add(Place place, std::string what);
    bool isEmpty() const { return list_.empty(); }
    /// By place.
    std::vector<Problem> sorted() const;
    const std::string &file() const { return file_; }

private:
    std::string file_;
    std::vector<Problem> list_;
};

/// A name or piece of a program between quotes, cut when it is long.
std::string quoted(std::string_view text);

} // namespace controller::script
