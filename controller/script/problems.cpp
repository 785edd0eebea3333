#include "controller/script/problems.h"

#include "controller/script/limits.h"

#include <algorithm>

namespace controller::script {

void Problems::add(Place place, std::string what)
{
    if (list_.size() < kMaxProblems)
        list_.push_back({file_, place.line, place.column, std::move(what)});
}

std::vector<Problem> Problems::sorted() const
{
    std::vector<Problem> list = list_;
    std::stable_sort(list.begin(), list.end(), [](const Problem &a, const Problem &b) {
        return Place{a.line, a.column} < Place{b.line, b.column};
    });
    return list;
}

std::string quoted(std::string_view text)
{
    const bool isLong = text.size() > kMaxName;
    std::string shown(text.substr(0, kMaxName));
    while (isLong && !shown.empty() && (shown.back() & 0x80)) // cut no character in two
        shown.pop_back();
    return '"' + shown + (isLong ? "...\"" : "\"");
}

std::string toText(const Problem &problem)
{
    return problem.file + ':' + std::to_string(problem.line) + ':' + std::to_string(problem.column) + ": " +
           problem.what;
}

} // namespace controller::script
