#pragma once

#include <QCoreApplication>

namespace controller {

/// What the controller says to the operator.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(controller::Texts)
};

} // namespace controller
