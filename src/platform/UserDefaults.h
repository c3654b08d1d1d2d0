#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

namespace vidora {

/// The settings of this device: a JSON object (RFC 8259) in one file, which its user may also edit by hand. A value is
/// read in the kind that is asked for, whatever kind was written: the text "3600" is also the number 3600. Any thread.
class UserDefaults
{
public:
    /// Reads the file. A missing one is an empty one; one that is no JSON object is moved aside at the first
    /// `synchronize` that writes. Nothing is written yet.
    explicit UserDefaults(QString path);

    /// Called after each change, on the thread that made it. Once, ahead of the first change.
    void onChange(std::function<void()> changed) { m_changed = std::move(changed); }

    /// Nothing when the key is absent or null.
    std::optional<QJsonValue> objectForKey(const QString& key) const;
    /// A text, or a number as text; nothing for anything else.
    std::optional<QString> stringForKey(const QString& key) const;
    /// A number cut off towards zero, a bool as 0 or 1, the number that a text begins with; else 0.
    std::int64_t integerForKey(const QString& key) const;
    /// The same, with its fraction.
    double doubleForKey(const QString& key) const;
    /// A bool, whether a number is not zero, whether a text begins with Y, y, T, t or a number that is not zero; else
    /// false.
    bool boolForKey(const QString& key) const;
    /// Nothing unless it is an array of texts.
    std::optional<QStringList> stringArrayForKey(const QString& key) const;

    /// Takes effect for readers at once, reaches the disk with `synchronize`. A number that is not finite removes.
    void setObject(const QJsonValue& value, const QString& forKey);
    void setInteger(std::int64_t value, const QString& forKey);
    void setDouble(double value, const QString& forKey);
    void setBool(bool value, const QString& forKey);
    void removeObjectForKey(const QString& key);

    /// Reads what others wrote to the file meanwhile, applies the changes made here since the last call on top, and
    /// writes when there were any. False when writing failed: the changes wait for the next call.
    bool synchronize();

private:
    void read();

    const QString m_path;
    std::function<void()> m_changed;
    mutable std::mutex m_mutex;
    QJsonObject m_values;
    QHash<QString, QJsonValue> m_changes; ///< not on disk yet; an undefined value removes
    bool m_unreadable = false;
};

} // namespace vidora
