#pragma once

#include <QByteArray>
#include <QList>

#include <optional>
#include <utility>

namespace vidora {

/// Header fields of a request or a response, in order. Names are compared without regard to case (RFC 9110, 5.1).
class HeaderFields
{
public:
    /// Replaces the field's value, or adds the field. A value or a name with a line end or a zero in it, which would
    /// become a field of its own, is refused: nothing happens then (RFC 9110, 5.5).
    void set(const QByteArray& name, const QByteArray& value);
    /// Adds to a field that is there already, behind a comma (RFC 9110, 5.3).
    void add(const QByteArray& name, const QByteArray& value);
    std::optional<QByteArray> value(QByteArrayView name) const;
    const QList<std::pair<QByteArray, QByteArray>>& all() const { return m_fields; }

private:
    QList<std::pair<QByteArray, QByteArray>> m_fields;
};

} // namespace vidora
