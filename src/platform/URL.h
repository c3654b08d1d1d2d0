#pragma once

#include <QHashFunctions>
#include <QString>

#include <compare>
#include <functional>
#include <optional>

namespace vidora {

/// An address (RFC 3986 reference) kept as text. A value type: copies share the text. Two are equal when their texts
/// are. It is cheap to make, since a guide holds hundreds of thousands; its parts are taken apart only when asked for.
class URL
{
public:
    /// The address of a text: nothing for an empty one. Characters that may not stand in an address (blanks, quotes,
    /// letters outside ASCII, a percent sign without two hexadecimal digits) are percent-encoded as UTF-8; everything
    /// else stays as it was given, without normalising.
    static std::optional<URL> fromText(QStringView text);

    const QString& text() const { return m_text; }
    /// Lower-case scheme without its colon; empty for a relative reference.
    QString scheme() const;
    /// Host as it stands, without user, port or brackets; empty where there is none.
    QString host() const;
    /// Scheme and authority as they stand ("http://127.0.0.1:8080"); empty without both.
    QString origin() const;

    friend bool operator==(const URL&, const URL&) = default;
    friend auto operator<=>(const URL& a, const URL& b) { return a.m_text.compare(b.m_text) <=> 0; }

private:
    explicit URL(QString text)
        : m_text(std::move(text))
    {
    }
    QString m_text;
};

} // namespace vidora

template<>
struct std::hash<vidora::URL>
{
    std::size_t operator()(const vidora::URL& url) const noexcept { return qHash(url.text()); }
};
