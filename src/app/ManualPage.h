#pragma once

#include <QString>

namespace vidora {

/// The page vidora(1) in the language of man(7), in English: every command and option of the tables, every setting.
QString manualPage(const QString& version);

} // namespace vidora
