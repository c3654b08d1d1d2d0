#pragma once

#include "content/ObjectId.h"
#include "platform/Instant.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

namespace vidora::inspect {

/// A request that can't be used: what is wrong with it.
class UnusableRequest : public std::runtime_error
{
public:
    explicit UnusableRequest(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
};

/// The fields of one request. Every access that does not fit throws UnusableRequest. A field that is null counts as
/// absent.
class Request
{
public:
    explicit Request(QJsonObject fields)
        : m_fields(std::move(fields))
    {
    }

    QString command() const { return text("command"); }
    QString text(const char* field) const;
    std::optional<QString> optionalText(const char* field) const;
    double number(const char* field) const;
    std::int64_t wholeNumber(const char* field) const;
    bool flag(const char* field) const;
    Instant instant(const char* field) const;
    ObjectId id(const char* field) const;
    /// A list, or a single value as a list of one; empty when it is absent.
    QJsonArray list(const char* field) const;
    QStringList texts(const char* field) const;
    bool has(const char* field) const;

private:
    QJsonValue value(const char* field) const;

    QJsonObject m_fields;
};

} // namespace vidora::inspect
