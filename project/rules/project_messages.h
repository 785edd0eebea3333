#pragma once

#include "orba/export.h"

#include <QCoreApplication>

namespace palx {

/// What the rules of projects say to the operator.
struct ProjectText
{
    Q_DECLARE_TR_FUNCTIONS(palx::ProjectText)
};

/// Reports through the host's message service; `level` is "error", "warning" or "info". Returns false, so that a rule that
/// gives up can say so in one line.
bool reportProject(const char *level, const QString &text, QObject *sender = nullptr);

/// Asks a question that may be refused; true for the accepting answer.
bool askAboutProject(const QString &question);

} // namespace palx
