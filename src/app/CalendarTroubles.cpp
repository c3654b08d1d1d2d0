#include "app/CalendarTroubles.h"

#include "platform/Localized.h"

namespace vidora {

namespace {

const char* keyOf(CalDAVClient::Trouble trouble)
{
    using Trouble = CalDAVClient::Trouble;
    switch (trouble) {
    case Trouble::BadAddress:
        return QT_TRANSLATE_NOOP("vidora", "This is no address of a server.");
    case Trouble::NoSuchHost:
        return QT_TRANSLATE_NOOP("vidora", "There is no server of this name.");
    case Trouble::NoConnection:
        return QT_TRANSLATE_NOOP("vidora", "The server can't be reached.");
    case Trouble::NoEncryption:
        return QT_TRANSLATE_NOOP("vidora", "The server can't be reached by HTTPS.");
    case Trouble::Certificate:
        return QT_TRANSLATE_NOOP(
            "vidora",
            "The server's certificate is not trusted: it may be self-made, have expired, or be another server's. An "
            "authority of your own has to be among those of the system.");
    case Trouble::TimedOut:
        return QT_TRANSLATE_NOOP("vidora", "The server does not answer.");
    case Trouble::NoPassword:
        return QT_TRANSLATE_NOOP(
            "vidora",
            "The password can't be had: the keyring is locked, or it is kept no more. Add the account again to give "
            "it.");
    case Trouble::Password:
        return QT_TRANSLATE_NOOP("vidora", "The server does not accept this user with this password.");
    case Trouble::OpenLine:
        return QT_TRANSLATE_NOOP(
            "vidora",
            "The server wants the password as it stands over a line without encryption. It was not sent; use an "
            "https address.");
    case Trouble::Forbidden:
        return QT_TRANSLATE_NOOP("vidora", "The server does not let this user see the calendars there.");
    case Trouble::Elsewhere:
        return QT_TRANSLATE_NOOP(
            "vidora", "The server sends us to another one, to which the password does not go. Give that address.");
    case Trouble::NoCalendars:
        return QT_TRANSLATE_NOOP(
            "vidora",
            "There is a server, but no CalDAV calendars at this address. Give the one that your provider names.");
    case Trouble::Server:
        return QT_TRANSLATE_NOOP("vidora", "The server has trouble of its own; try again later.");
    case Trouble::None:
    case Trouble::Other:
        break;
    }
    return QT_TRANSLATE_NOOP("vidora", "The server gave no answer that can be understood.");
}

} // namespace

QString textOf(CalDAVClient::Trouble trouble)
{
    return localized(keyOf(trouble));
}

} // namespace vidora
