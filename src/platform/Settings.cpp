#include "platform/Settings.h"

namespace vidora {

namespace {

const QString on = QStringLiteral("on");
const QString off = QStringLiteral("off");

} // namespace

bool Setting::flag(const UserDefaults& defaults) const
{
    return defaults.objectForKey(name()) ? defaults.boolForKey(name()) : usualText() == on;
}

double Setting::number(const UserDefaults& defaults) const
{
    return defaults.objectForKey(name()) ? defaults.doubleForKey(name()) : usualText().toDouble();
}

QString Setting::text(const UserDefaults& defaults) const
{
    if (kind == Kind::Flag)
        return flag(defaults) ? on : off;
    const QString text = defaults.stringForKey(name()).value_or(usualText());
    return kind == Kind::Choice && !words().contains(text) ? usualText() : text;
}

std::optional<QJsonValue> Setting::valueOf(const QString& text) const
{
    bool isNumber = false;
    const std::int64_t number = text.toLongLong(&isNumber);
    switch (kind) {
    case Kind::Flag:
        return text == on || text == off ? std::optional<QJsonValue>(text == on) : std::nullopt;
    case Kind::Number:
        return isNumber && number >= least && number <= most ? std::optional<QJsonValue>(qint64(number)) : std::nullopt;
    case Kind::Choice:
        return words().contains(text) ? std::optional<QJsonValue>(text) : std::nullopt;
    case Kind::Time:
    case Kind::Text:
        return text;
    }
    return std::nullopt;
}

QString Setting::range() const
{
    if (kind == Kind::Number)
        return QStringLiteral("%1-%2").arg(least).arg(most);
    const QStringList all = kind == Kind::Flag ? QStringList{on, off} : words();
    return all.join(QLatin1String(", "));
}

} // namespace vidora
