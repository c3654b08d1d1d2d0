#pragma once

#include <QString>

namespace vidora {

/// Thrown where a command can't do what was asked; says why.
struct Refusal
{
    QString message;
};

} // namespace vidora
