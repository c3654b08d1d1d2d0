#include "calendar/CalendarAccounts.h"

#include "platform/Log.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace vidora {

namespace {

constexpr qint64 maximalSize = 1024 * 1024;
constexpr std::size_t maximalAccounts = 50;

/// It becomes the name of a folder.
bool isIdentifier(const QString& text)
{
    static const QRegularExpression digits(QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-f]{16}")));
    return digits.match(text).hasMatch();
}

QString freshIdentifier(Random& random)
{
    QByteArray bytes;
    while (bytes.size() < 8)
        bytes.append(static_cast<char>(random.uniform(256)));
    return QString::fromLatin1(bytes.toHex());
}

QString hostOf(const QString& address)
{
    const QString host = DAVConnection::addressOf(address).host();
    return host.isEmpty() ? address : host;
}

/// What an address stands for, in one spelling.
QString placeOf(const QString& address)
{
    const QUrl url = DAVConnection::addressOf(address);
    QString path = url.adjusted(QUrl::NormalizePathSegments).path();
    if (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return url.isValid() ? DAVConnection::originOf(url) + path : address;
}

/// Under which the password is kept: what a keyring shows to the user.
QString secretOf(const CalendarAccount& account)
{
    return QStringLiteral("%1 (%2)").arg(account.name, account.identifier);
}

} // namespace

CalendarAccounts::CalendarAccounts(CalendarAccountSurroundings surroundings, CombinedEventStore& store)
    : m_surroundings(std::move(surroundings))
    , m_store(store)
{
    read();
    for (const CalendarAccount& account : m_accounts)
        open(account);
}

void CalendarAccounts::read()
{
    const auto bytes = AtomicFile::read(m_surroundings.file, maximalSize);
    if (!bytes)
        return;
    const QJsonDocument document = QJsonDocument::fromJson(*bytes);
    if (!document.isArray())
        Log::line(QStringLiteral("calendar accounts in %1 can't be understood").arg(m_surroundings.file));
    for (const QJsonValue& value : document.array()) {
        const QJsonObject object = value.toObject();
        CalendarAccount account{
            object.value(QLatin1String("id")).toString(), object.value(QLatin1String("name")).toString(),
            object.value(QLatin1String("address")).toString(), object.value(QLatin1String("user")).toString()};
        for (const QJsonValue& origin : object.value(QLatin1String("origins")).toArray())
            account.origins << origin.toString();
        const bool isKnown = std::any_of(m_accounts.begin(), m_accounts.end(), [&](const CalendarAccount& other) {
            return other.identifier == account.identifier || other.name == account.name;
        });
        if (isIdentifier(account.identifier) && !account.name.isEmpty() && !isKnown &&
            m_accounts.size() < maximalAccounts)
            m_accounts.push_back(std::move(account));
    }
}

bool CalendarAccounts::write() const
{
    QJsonArray array;
    for (const CalendarAccount& account : m_accounts)
        array.append(QJsonObject{{QStringLiteral("id"), account.identifier},
                                 {QStringLiteral("name"), account.name},
                                 {QStringLiteral("address"), account.address},
                                 {QStringLiteral("user"), account.user},
                                 {QStringLiteral("origins"), QJsonArray::fromStringList(account.origins)}});
    return !AtomicFile::write(m_surroundings.file, QJsonDocument(array).toJson(), AtomicFile::Access::OwnerOnly)
                .failed();
}

CalDAVAccount CalendarAccounts::login(const CalendarAccount& account, const QString& password) const
{
    return {account.address, account.user, password,
            [&secrets = m_surroundings.secrets, secret = secretOf(account)] { return secrets.secret(secret); },
            account.origins};
}

void CalendarAccounts::open(const CalendarAccount& account)
{
    m_store.removeSource(account.identifier);
    m_stores.erase(account.identifier); // two stores must not work on one mirror
    const auto store = std::make_shared<CalDAVEventStore>(
        m_surroundings.mirrors + QLatin1Char('/') + account.identifier, account.name, login(account, {}),
        m_surroundings.session, m_surroundings.clock, m_surroundings.random, m_surroundings.sleeper,
        FileLayer::system(),
        m_surroundings.isOffline ? CalDAVEventStore::Exchange::Never : CalDAVEventStore::Exchange::InBackground,
        m_surroundings.services);
    m_stores.emplace(account.identifier, store);
    m_store.addSource(account.identifier, store);
}

const CalendarAccount* CalendarAccounts::accountNamed(const QString& name) const
{
    const auto found = std::find_if(m_accounts.begin(), m_accounts.end(),
                                    [&](const CalendarAccount& account) { return account.name == name; });
    return found == m_accounts.end() ? nullptr : &*found;
}

CalendarAccount CalendarAccounts::accountFor(const QString& address, const QString& user) const
{
    for (const CalendarAccount& account : m_accounts) {
        if (placeOf(account.address) == placeOf(address) && account.user == user)
            return account;
    }
    const QString name = user + QLatin1Char('@') + hostOf(address);
    QString unique = name;
    for (int number = 2; accountNamed(unique); ++number)
        unique = QStringLiteral("%1 %2").arg(name).arg(number);
    return {freshIdentifier(m_surroundings.random), unique, address, user};
}

CalDAVClient::Findings CalendarAccounts::examine(const CalendarAccount& account, const QString& password) const
{
    return CalDAVClient(m_surroundings.session, m_surroundings.sleeper, login(account, password),
                        m_surroundings.services)
        .examine();
}

bool CalendarAccounts::keepPassword(const CalendarAccount& account, const QString& password) const
{
    return m_surroundings.secrets.setSecret(secretOf(account), password);
}

bool CalendarAccounts::forgetPassword(const CalendarAccount& account) const
{
    return m_surroundings.secrets.removeSecret(secretOf(account));
}

bool CalendarAccounts::add(const CalendarAccount& account)
{
    const std::vector<CalendarAccount> before = m_accounts;
    const auto present = std::find_if(m_accounts.begin(), m_accounts.end(),
                                      [&](const CalendarAccount& other) { return other.name == account.name; });
    if (present == m_accounts.end())
        m_accounts.push_back(account);
    else
        *present = account;
    if (m_accounts.size() > maximalAccounts || !write()) {
        m_accounts = before;
        return false;
    }
    open(account);
    return true;
}

bool CalendarAccounts::remove(const CalendarAccount& account)
{
    const CalendarAccount removed = account; // what was given may be an element of the list
    std::vector<CalendarAccount> before = m_accounts;
    std::erase_if(m_accounts, [&](const CalendarAccount& other) { return other.identifier == removed.identifier; });
    if (!write()) {
        m_accounts = std::move(before);
        return false;
    }
    m_store.removeSource(removed.identifier);
    m_stores.erase(removed.identifier);
    QDir(m_surroundings.mirrors + QLatin1Char('/') + removed.identifier).removeRecursively();
    return true;
}

std::shared_ptr<CalDAVEventStore> CalendarAccounts::storeOf(const CalendarAccount& account) const
{
    const auto found = m_stores.find(account.identifier);
    return found == m_stores.end() ? nullptr : found->second;
}

void CalendarAccounts::whenExchanged(const DispatchQueue::Block& block)
{
    DispatchGroup all;
    for (const auto& [identifier, store] : m_stores) {
        all.enter();
        store->whenExchanged([all]() mutable { all.leave(); });
    }
    all.notify(DispatchQueue::main(), block);
}

int CalendarAccounts::answerCount() const
{
    int count = 0;
    for (const auto& [identifier, store] : m_stores)
        count += store->answerCount();
    return count;
}

} // namespace vidora
