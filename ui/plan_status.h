#pragma once

#include "ui/pattern_problems.h"

class PatternView;
class QLabel;

/// Two lines under a plan: what is chosen, or how far it has been dragged; and what is wrong, coloured.
void showPlanStatus(QLabel *label, const PatternView &view, const QVector<palx::PatternProblem> &problems);
