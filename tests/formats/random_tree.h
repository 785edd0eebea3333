#pragma once

#include "orba/node.h"

#include <random>

/// Seeded trees of everything a node can hold: all kinds, packed and loose lists of numbers, names that are missing,
/// empty, equal or odd, texts that formats find hard.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : random_(seed) {}
    orba::Node make();
    // One value of its kind, ordinary or odd.
    double number();
    qint64 integer();
    QString text();

private:
    int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    orba::Name name();
    void fill(orba::Node *node, int depth);
    void fillNumbers(orba::Node *node);

    std::mt19937_64 random_;
};
