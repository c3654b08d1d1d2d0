#pragma once

#include "content/AttributedText.h"

#include <QLocale>
#include <QString>

#include <optional>
#include <string>

namespace vidora::test {

/// UTF-8 of a text, for readable failures; "nil" where there is none.
inline std::string utf8(const std::optional<QString>& text)
{
    return text ? text->toStdString() : "nil";
}
inline QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// Some attributes other than none.
inline TextAttributes smallPrint()
{
    TextAttributes attributes;
    attributes.pointSize = 11;
    return attributes;
}

/// Gives the process a locale until the end of the scope.
class LocaleScope
{
public:
    explicit LocaleScope(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~LocaleScope() { QLocale::setDefault(m_before); }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    QLocale m_before;
};

} // namespace vidora::test
