#pragma once

#include <QString>

#include <cstddef>

namespace vidora {

/// A text for the user in the language of the installed translation; the English text is the key and stands in where
/// there is no translation. tools/update-translations finds the keys that stand in such a call; a key that reaches it
/// in a variable is marked with QT_TRANSLATE_NOOP("vidora", ...) where it is written. Any thread.
QString localized(const char* key);

/// The same for a text with "%n", which becomes the number; the translation chooses the form that goes with it.
QString localized(const char* key, std::size_t count);

} // namespace vidora
