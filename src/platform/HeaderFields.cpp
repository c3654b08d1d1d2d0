#include "platform/HeaderFields.h"

namespace vidora {

namespace {

bool isWhole(const QByteArray& text)
{
    return !text.contains('\r') && !text.contains('\n') && !text.contains('\0');
}

} // namespace

void HeaderFields::set(const QByteArray& name, const QByteArray& value)
{
    if (!isWhole(name) || !isWhole(value))
        return;
    for (auto& [key, present] : m_fields) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            present = value;
            return;
        }
    }
    m_fields.append({name, value});
}

void HeaderFields::add(const QByteArray& name, const QByteArray& value)
{
    const auto present = this->value(name);
    set(name, present ? *present + ", " + value : value);
}

std::optional<QByteArray> HeaderFields::value(QByteArrayView name) const
{
    for (const auto& [key, present] : m_fields) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return present;
    }
    return std::nullopt;
}

} // namespace vidora
