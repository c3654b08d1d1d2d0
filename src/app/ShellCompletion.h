#pragma once

#include <QString>

namespace vidora {

/// What completes the words of vidora's command line in a shell: commands, options, files and folders.
QString bashCompletion();
QString zshCompletion();
QString fishCompletion();

} // namespace vidora
