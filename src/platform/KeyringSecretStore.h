#pragma once

#include "platform/Instant.h"
#include "platform/SecretStore.h"

namespace vidora {

/// The user's keyring, by the Secret Service (the freedesktop.org interface that the keyrings of desktops offer on the
/// user's bus). Without one, or where it does not answer in time, nothing is found and nothing kept.
class KeyringSecretStore final : public SecretStore
{
public:
    /// `patience`: how long a call may take, the user's unlocking of the keyring included. A bus where nobody answers
    /// at all is given up earlier.
    explicit KeyringSecretStore(Milliseconds patience = Seconds(20));

    std::optional<QString> secret(const QString& account) override;
    bool setSecret(const QString& account, const QString& secret) override;
    bool removeSecret(const QString& account) override;

private:
    const Milliseconds m_patience;
};

} // namespace vidora
