#include "platform/UserDefaults.h"

#include "platform/AtomicFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace vidora {

namespace {

constexpr qint64 maximumFileSize = 4 * 1024 * 1024;

/// The number that a text begins with, blanks skipped; 0 without one.
double leadingNumber(const QString& text)
{
    const QByteArray bytes = text.trimmed().toLatin1();
    qsizetype length = 0;
    while (length < bytes.size() && QByteArrayView("+-.0123456789eE").contains(bytes[length]))
        ++length;
    for (; length > 0; --length) {
        bool ok = false;
        const double number = bytes.left(length).toDouble(&ok);
        if (ok)
            return number;
    }
    return 0;
}

std::int64_t cutOff(double number)
{
    constexpr double limit = 9223372036854775808.0;
    if (number >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (number < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(number);
}

} // namespace

UserDefaults::UserDefaults(QString path)
    : m_path(std::move(path))
{
    read();
}

void UserDefaults::read()
{
    const auto bytes = AtomicFile::read(m_path, maximumFileSize);
    const QJsonDocument document = bytes ? QJsonDocument::fromJson(*bytes) : QJsonDocument();
    m_values = document.object();
    m_unreadable = !document.isObject() && QFileInfo(m_path).size() > 0;
}

std::optional<QJsonValue> UserDefaults::objectForKey(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_values.constFind(key);
    if (found == m_values.constEnd() || found->isNull())
        return std::nullopt;
    return *found;
}

std::optional<QString> UserDefaults::stringForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    if (value && value->isString())
        return value->toString();
    if (value && value->isDouble())
        return value->toVariant().toString();
    return std::nullopt;
}

double UserDefaults::doubleForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    if (!value)
        return 0;
    if (value->isBool())
        return value->toBool() ? 1 : 0;
    return value->isString() ? leadingNumber(value->toString()) : value->toDouble();
}

std::int64_t UserDefaults::integerForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    if (value && value->isDouble())
        return value->toInteger(cutOff(value->toDouble())); // whole numbers keep all their 64 bits
    return cutOff(doubleForKey(key));
}

bool UserDefaults::boolForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    const QString text = value ? value->toString().trimmed() : QString();
    if (!text.isEmpty() && QLatin1String("YyTt").contains(text.front()))
        return true;
    return doubleForKey(key) != 0;
}

std::optional<QStringList> UserDefaults::stringArrayForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    if (!value || !value->isArray())
        return std::nullopt;
    QStringList texts;
    for (const QJsonValue& item : value->toArray()) {
        if (!item.isString())
            return std::nullopt;
        texts.append(item.toString());
    }
    return texts;
}

void UserDefaults::setObject(const QJsonValue& value, const QString& forKey)
{
    {
        const std::lock_guard lock(m_mutex);
        m_changes.insert(forKey, value);
        m_values.insert(forKey, value); // which removes it when the value is undefined
    }
    if (m_changed)
        m_changed();
}

void UserDefaults::setInteger(std::int64_t value, const QString& forKey)
{
    setObject(QJsonValue(static_cast<qint64>(value)), forKey);
}

void UserDefaults::setDouble(double value, const QString& forKey)
{
    setObject(std::isfinite(value) ? QJsonValue(value) : QJsonValue(QJsonValue::Undefined), forKey);
}

void UserDefaults::setBool(bool value, const QString& forKey)
{
    setObject(QJsonValue(value), forKey);
}

void UserDefaults::removeObjectForKey(const QString& key)
{
    setObject(QJsonValue(QJsonValue::Undefined), key);
}

bool UserDefaults::synchronize()
{
    const std::lock_guard lock(m_mutex);
    read();
    for (auto change = m_changes.cbegin(); change != m_changes.cend(); ++change)
        m_values.insert(change.key(), change.value());
    if (m_changes.isEmpty())
        return true;
    if (m_unreadable && !AtomicFile::setAside(m_path))
        return false;
    const QByteArray bytes = QJsonDocument(m_values).toJson(QJsonDocument::Indented);
    if (AtomicFile::write(m_path, bytes, AtomicFile::Access::OwnerOnly).failed())
        return false;
    m_changes.clear();
    return true;
}

} // namespace vidora
