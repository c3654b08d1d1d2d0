#include "inspect/Request.h"

#include <QJsonArray>

#include <cmath>

namespace vidora::inspect {

namespace {

[[noreturn]] void fail(const char* field, const char* what)
{
    throw UnusableRequest(QStringLiteral("field \"%1\": %2").arg(QLatin1String(field), QLatin1String(what)));
}

} // namespace

QJsonValue Request::value(const char* field) const
{
    return m_fields.value(QLatin1String(field));
}

bool Request::has(const char* field) const
{
    const QJsonValue present = value(field);
    return !present.isUndefined() && !present.isNull();
}

std::optional<QString> Request::optionalText(const char* field) const
{
    if (!has(field))
        return std::nullopt;
    if (!value(field).isString())
        fail(field, "a text is wanted");
    return value(field).toString();
}

QString Request::text(const char* field) const
{
    const auto present = optionalText(field);
    if (!present)
        fail(field, "is missing");
    return *present;
}

double Request::number(const char* field) const
{
    if (!value(field).isDouble())
        fail(field, has(field) ? "a number is wanted" : "is missing");
    return value(field).toDouble();
}

std::int64_t Request::wholeNumber(const char* field) const
{
    constexpr double limit = 9'007'199'254'740'992; // up to here a JSON number is exact
    const double number = this->number(field);
    if (!(std::abs(number) <= limit) || number != std::trunc(number))
        fail(field, "a whole number is wanted");
    return static_cast<std::int64_t>(number);
}

bool Request::flag(const char* field) const
{
    if (!has(field))
        return false;
    if (!value(field).isBool())
        fail(field, "true or false is wanted");
    return value(field).toBool();
}

Instant Request::instant(const char* field) const
{
    const auto instant = instantFromIsoText(text(field));
    if (!instant)
        fail(field, "a time such as 2026-11-22T19:00:00Z is wanted");
    return *instant;
}

ObjectId Request::id(const char* field) const
{
    return ObjectId::initWithHex(text(field));
}

QJsonArray Request::list(const char* field) const
{
    if (!has(field))
        return {};
    const QJsonValue present = value(field);
    return present.isArray() ? present.toArray() : QJsonArray{present};
}

QStringList Request::texts(const char* field) const
{
    QStringList result;
    for (const QJsonValue& item : list(field)) {
        if (!item.isString())
            fail(field, "a list of texts is wanted");
        result << item.toString();
    }
    return result;
}

} // namespace vidora::inspect
