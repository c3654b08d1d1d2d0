#pragma once

#include "calendar/CalDAVEventStore.h"
#include "calendar/CombinedEventStore.h"
#include "platform/SecretStore.h"

namespace vidora {

/// An account on a calendar server. Its name is the source of its calendars.
struct CalendarAccount
{
    QString identifier; ///< hexadecimal digits, made up when it was added
    QString name;
    QString address; ///< a host or an address: see CalDAVAccount
    QString user;
    QStringList origins = {}; ///< to which the user lets the password go as well: see CalDAVAccount
};

/// What accounts need of the machine; everything outlives them.
struct CalendarAccountSurroundings
{
    QString file;    ///< in which the accounts stand, without their passwords
    QString mirrors; ///< folder with a folder for each account, in which its calendars are mirrored
    SecretStore& secrets;
    URLSession& session; ///< should bound its bodies
    const Clock& clock;
    Random& random;
    Sleeper& sleeper;
    ServiceLookup* services = nullptr; ///< null: servers are found by their address alone
    bool isOffline = false;            ///< no server is asked: what changes waits in the mirrors
};

/// The user's accounts on calendar servers, each a source of a combined store that exchanges in the background. Main
/// thread, unless an operation says otherwise.
class CalendarAccounts
{
public:
    /// Reads the file and adds its accounts to the store; nobody is asked yet. What can't be understood is passed over.
    CalendarAccounts(CalendarAccountSurroundings surroundings, CombinedEventStore& store);

    const std::vector<CalendarAccount>& accounts() const { return m_accounts; }
    const CalendarAccount* accountNamed(const QString& name) const;
    /// The account for this address and user: the one there is, however the address is spelt, else one that is not
    /// added yet, with a name that no other has.
    CalendarAccount accountFor(const QString& address, const QString& user) const;

    /// What the server says to the account, added or not. `password` null: the one that is kept. Asks, and waits for
    /// it: off the main thread.
    CalDAVClient::Findings examine(const CalendarAccount& account, const QString& password = {}) const;
    /// False when it can't be kept. Off the main thread.
    bool keepPassword(const CalendarAccount& account, const QString& password) const;
    /// False when it is still there. Off the main thread.
    bool forgetPassword(const CalendarAccount& account) const;

    /// Adds the account, or takes over what changed about it, and makes its calendars appear. False when it can't be
    /// kept.
    bool add(const CalendarAccount& account);
    /// Takes the account and its mirror away; what was not sent is lost. False when that can't be kept.
    bool remove(const CalendarAccount& account);

    /// The store of an account, for as long as it is one of ours; null without one.
    std::shared_ptr<CalDAVEventStore> storeOf(const CalendarAccount& account) const;
    /// Queues the block on the main queue once nothing is going on with any server.
    void whenExchanged(const DispatchQueue::Block& block);
    int answerCount() const;

private:
    void read();
    bool write() const;
    void open(const CalendarAccount& account);
    CalDAVAccount login(const CalendarAccount& account, const QString& password) const;

    const CalendarAccountSurroundings m_surroundings;
    CombinedEventStore& m_store;
    std::vector<CalendarAccount> m_accounts;
    std::map<QString, std::shared_ptr<CalDAVEventStore>> m_stores;
};

} // namespace vidora
