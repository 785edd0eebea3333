#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// What long work tells about how far it has come, and where it hears that it is no longer wanted. Work that finds itself
/// cancelled ends early and leaves everything as it was before; nobody else puts anything back.
class PALX_API Progress
{
public:
    virtual ~Progress();

    /// `done` of `total` parts are ready and `text` says what is done next; a `total` of 0 is an unknown one. Call it often
    /// (a few times a second) and between steps that belong together: the panel may answer the operator inside.
    virtual void step(int done, int total, const QString &text) = 0;
    /// Work that was told so is taken to have ended early.
    virtual bool isCancelled() = 0;
    /// From here on the work runs to its end, because half of it would be worse. False when it was cancelled before.
    virtual bool enterLastPart() = 0;
    /// Whether it has to be told and asked even while a single long call runs, because a window must not stand still.
    virtual bool mustAnswer() const { return true; }
};

/// For whoever does not want to know.
class PALX_API NoProgress : public Progress
{
public:
    void step(int, int, const QString &) override {}
    bool isCancelled() override { return false; }
    bool enterLastPart() override { return true; }
    bool mustAnswer() const override { return false; }
};

} // namespace palx
