#pragma once

#include <QString>

namespace vidora {

/// Thrown where a command can't do what was asked; says why.
struct Refusal
{
    QString message;
};

/// Thrown where it was asked wrongly: nothing was tried.
struct UsageError
{
    QString message;
};

} // namespace vidora
