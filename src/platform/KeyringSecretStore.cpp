#include "platform/KeyringSecretStore.h"

#include "platform/DispatchQueue.h"
#include "platform/Log.h"

#include <libsecret/secret.h>

namespace vidora {

namespace {

constexpr Milliseconds patienceForAnyAnswer = Seconds(3);
constexpr const char* attribute = "account";

const SecretSchema* schema()
{
    static const SecretSchema* const only = secret_schema_new("tv.ostrel.vidora.CalendarAccount", SECRET_SCHEMA_NONE,
                                                              attribute, SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr);
    return only;
}

/// Breaks a call off when its time is over.
class Deadline
{
public:
    explicit Deadline(Milliseconds patience)
        : m_cancellable(g_cancellable_new(), &g_object_unref)
    {
        DispatchQueue::global(QualityOfService::Utility).after(patience, [cancellable = m_cancellable] {
            g_cancellable_cancel(cancellable.get());
        });
    }
    GCancellable* get() const { return m_cancellable.get(); }

private:
    std::shared_ptr<GCancellable> m_cancellable;
};

/// What a call says of its failure.
class Failure
{
public:
    Failure() = default;
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;
    ~Failure() { g_clear_error(&m_error); }
    GError** operator&() { return &m_error; }
    bool happened() const
    {
        if (m_error)
            Log::line(QStringLiteral("secret service: %1").arg(QString::fromUtf8(m_error->message)));
        return m_error;
    }

private:
    GError* m_error = nullptr;
};

bool answers()
{
    const Deadline deadline(patienceForAnyAnswer);
    Failure failure;
    ::SecretService* const service = secret_service_get_sync(SECRET_SERVICE_OPEN_SESSION, deadline.get(), &failure);
    if (service)
        g_object_unref(service);
    return !failure.happened() && service;
}

} // namespace

KeyringSecretStore::KeyringSecretStore(Milliseconds patience)
    : m_patience(patience)
{
}

std::optional<QString> KeyringSecretStore::secret(const QString& account)
{
    if (!answers())
        return std::nullopt;
    const Deadline deadline(m_patience);
    Failure failure;
    gchar* const found = secret_password_lookup_sync(schema(), deadline.get(), &failure, attribute,
                                                     account.toUtf8().constData(), nullptr);
    failure.happened();
    const auto secret = found ? std::optional(QString::fromUtf8(found)) : std::nullopt;
    secret_password_free(found);
    return secret;
}

bool KeyringSecretStore::setSecret(const QString& account, const QString& secret)
{
    if (!answers())
        return false;
    const Deadline deadline(m_patience);
    Failure failure;
    const QByteArray label = "Vidora: " + account.toUtf8();
    const bool stored =
        secret_password_store_sync(schema(), SECRET_COLLECTION_DEFAULT, label.constData(), secret.toUtf8().constData(),
                                   deadline.get(), &failure, attribute, account.toUtf8().constData(), nullptr);
    return !failure.happened() && stored;
}

bool KeyringSecretStore::removeSecret(const QString& account)
{
    if (!answers())
        return false;
    const Deadline deadline(m_patience);
    Failure failure;
    secret_password_clear_sync(schema(), deadline.get(), &failure, attribute, account.toUtf8().constData(), nullptr);
    return !failure.happened();
}

} // namespace vidora
