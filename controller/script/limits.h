#pragma once

#include <cstddef>

/// Limits of the language. Programs of a cell stay far below them; they keep a damaged or malicious file from using up the
/// memory or the time of whoever reads or runs it.
namespace controller::script {

/// Bytes of a program file: several thousand lines, and read within milliseconds.
constexpr std::size_t kMaxSource = 256 * 1024;
/// Files of a task, which has up to six.
constexpr std::size_t kMaxFiles = 32;
/// Procedures of a task.
constexpr std::size_t kMaxProcedures = 256;
/// IF, WHILE and FOR inside each other: reading them needs stack, and nobody follows more.
constexpr int kMaxNesting = 32;
/// Operations inside each other in one expression; a chain of sums is as deep as it is long.
constexpr int kMaxDepth = 100;
/// Characters of a name, so that messages stay readable.
constexpr std::size_t kMaxName = 64;
/// Bytes of a text in quotes.
constexpr std::size_t kMaxText = 1000;
constexpr std::size_t kMaxParameters = 16;
/// Parameters, variables and loop counters of a procedure; with the depth of calls they bound a task's memory.
constexpr std::size_t kMaxLocals = 128;
/// Calls inside each other. A program that calls itself without an end stops here.
constexpr std::size_t kMaxCalls = 64;
/// Problems told at once: a file of another kind would bring thousands.
constexpr std::size_t kMaxProblems = 100;
/// Steps of a task in one turn. One pass of a monitoring loop takes about 100, so it ends within its turn; a loop that
/// never waits costs no more than some 10 microseconds of a turn.
constexpr int kStepsPerTurn = 1000;
/// Where a turn ends in the middle of a statement; else it ends between two, so that "count := count + 1" is done at once.
constexpr int kMaxStepsPerTurn = 10 * kStepsPerTurn;
/// Seconds of Wait and PulseDO: a day. More is a slip of the pen.
constexpr double kMaxSeconds = 24 * 3600;

} // namespace controller::script
