#pragma once

#include <QString>

#include <string_view>

namespace vidora {

/// Whether a text holds letters that `foldedInLatin` spells anew.
bool holdsCyrillic(QStringView text);

/// The text folded by case, diacritics and alphabet, so that what is typed in one alphabet is found in what is shown in
/// the other: the Cyrillic letters of Serbian and Macedonian become the Latin ones that are written for them, two where
/// it takes two. A converted text still holds Latin letters where both alphabets look alike; nobody types those.
/// Letters of other Cyrillic alphabets stay themselves.
QString foldedInLatin(QStringView text);

/// The same of one unit that is folded by case and diacritics already; empty where that is all.
std::u16string_view latinOfFolded(char16_t unit);

} // namespace vidora
