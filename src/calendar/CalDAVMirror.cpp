#include "calendar/CalDAVMirror.h"

#include "calendar/EventMerge.h"
#include "calendar/ICalendarEvent.h"
#include "platform/Log.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace vidora {

namespace {

constexpr qint64 maximalSize = 64LL * 1024 * 1024;

QString stateIn(const QString& folder)
{
    return folder + QStringLiteral("/.sync");
}

QString pathOf(const QUrl& event)
{
    return event.path(QUrl::FullyDecoded);
}

bool isPlainName(const QString& name)
{
    static const QRegularExpression plain(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_@-][A-Za-z0-9._@-]{0,180}\\.ics")));
    return plain.match(name).hasMatch();
}

/// A path that would be taken for a host where it is resolved leads nowhere.
bool isPath(const QString& href)
{
    return href.startsWith(QLatin1Char('/')) && !href.startsWith(QLatin1String("//"));
}

QJsonObject written(const Event& event)
{
    QJsonArray alarms;
    for (const EventAlarm& alarm : event.alarms)
        alarms.append(static_cast<qint64>(alarm.relativeOffset.count()));
    return {{QStringLiteral("title"), event.title},
            {QStringLiteral("location"), event.location},
            {QStringLiteral("url"), event.url ? event.url->text() : QString()},
            {QStringLiteral("device"), event.device},
            {QStringLiteral("start"), qint64(unixMilliseconds(event.startDate))},
            {QStringLiteral("end"), qint64(unixMilliseconds(event.endDate))},
            {QStringLiteral("allDay"), event.allDay},
            {QStringLiteral("alarms"), alarms}};
}

Event readEvent(const QJsonObject& object)
{
    Event event;
    event.title = object.value(QLatin1String("title")).toString();
    event.location = object.value(QLatin1String("location")).toString();
    event.url = URL::fromText(object.value(QLatin1String("url")).toString());
    event.device = object.value(QLatin1String("device")).toString();
    event.startDate = instantFromUnixMilliseconds(object.value(QLatin1String("start")).toInteger());
    event.endDate = instantFromUnixMilliseconds(object.value(QLatin1String("end")).toInteger());
    event.allDay = object.value(QLatin1String("allDay")).toBool();
    for (const QJsonValue& alarm : object.value(QLatin1String("alarms")).toArray())
        event.alarms.push_back({Seconds(alarm.toInteger())});
    return event;
}

QJsonObject written(const CalDAVMirror::Order& order)
{
    QJsonObject object{{QStringLiteral("change"), order.change == CalDAVMirror::Change::Remove
                                                      ? QStringLiteral("remove")
                                                      : QStringLiteral("put")},
                       {QStringLiteral("tries"), order.tries}};
    if (order.base)
        object.insert(QStringLiteral("base"), written(*order.base));
    if (order.refused)
        object.insert(QStringLiteral("refused"), qint64(unixMilliseconds(*order.refused)));
    return object;
}

CalDAVMirror::Order readOrder(const QJsonValue& value)
{
    const QJsonObject object = value.toObject();
    const QString change = value.isString() ? value.toString() : object.value(QLatin1String("change")).toString();
    CalDAVMirror::Order order;
    order.change = change == QLatin1String("remove") ? CalDAVMirror::Change::Remove : CalDAVMirror::Change::Put;
    order.tries = object.value(QLatin1String("tries")).toInt();
    if (object.contains(QLatin1String("refused")))
        order.refused = instantFromUnixMilliseconds(object.value(QLatin1String("refused")).toInteger());
    if (object.contains(QLatin1String("base")))
        order.base = readEvent(object.value(QLatin1String("base")).toObject());
    return order;
}

} // namespace

CalDAVMirror::CalDAVMirror(QString folder, FileLayer& layer)
    : m_folder(std::move(folder))
    , m_layer(layer)
{
    const auto bytes = AtomicFile::read(stateIn(m_folder), maximalSize);
    const QJsonObject object = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    if (bytes && object.isEmpty())
        Log::line(QStringLiteral("calendar state %1 can't be understood; all is fetched anew").arg(stateIn(m_folder)));
    address = object.value(QLatin1String("address")).toString();
    token = object.value(QLatin1String("token")).toString();
    if (const QJsonValue since = object.value(QLatin1String("missingSince")); since.isDouble())
        missingSince = instantFromUnixMilliseconds(since.toInteger());
    const QJsonObject outbox = object.value(QLatin1String("outbox")).toObject();
    for (auto order = outbox.begin(); order != outbox.end(); ++order) {
        if (isPlainName(order.key()))
            m_outbox[order.key()] = readOrder(order.value());
    }
    const QJsonObject refusals = object.value(QLatin1String("refusals")).toObject();
    for (auto refusal = refusals.begin(); refusal != refusals.end(); ++refusal) {
        const QJsonObject details = refusal.value().toObject();
        if (isPlainName(refusal.key()))
            m_refusals[refusal.key()] = {readOrder(details.value(QLatin1String("order"))),
                                         details.value(QLatin1String("title")).toString(),
                                         details.value(QLatin1String("reason")).toString()};
    }
    const QJsonObject items = object.value(QLatin1String("items")).toObject();
    for (auto item = items.begin(); item != items.end(); ++item) {
        const QString href = item.value().toArray().at(0).toString();
        QString tag = item.value().toArray().at(1).toString();
        if (!isPlainName(item.key()) || !isPath(href))
            continue;
        if (QFileInfo(fileOf(item.key())).size() == 0 && !m_outbox.contains(item.key()) &&
            !m_refusals.contains(item.key())) {
            tag.clear();
            token.clear();
        }
        m_items[item.key()] = {href, tag};
        m_names[pathOf(QUrl(href))] = item.key();
    }
}

bool CalDAVMirror::write() const
{
    QJsonObject items, outbox, refusals;
    for (const auto& [name, item] : m_items)
        items.insert(name, QJsonArray{item.href, item.tag});
    for (const auto& [name, order] : m_outbox)
        outbox.insert(name, written(order));
    for (const auto& [name, refusal] : m_refusals)
        refusals.insert(name, QJsonObject{{QStringLiteral("order"), written(refusal.order)},
                                          {QStringLiteral("title"), refusal.title},
                                          {QStringLiteral("reason"), refusal.reason}});
    QJsonObject object{{QStringLiteral("address"), address},
                       {QStringLiteral("token"), token},
                       {QStringLiteral("items"), items},
                       {QStringLiteral("outbox"), outbox},
                       {QStringLiteral("refusals"), refusals}};
    if (missingSince)
        object.insert(QStringLiteral("missingSince"), qint64(unixMilliseconds(*missingSince)));
    return !AtomicFile::write(stateIn(m_folder), QJsonDocument(object).toJson(QJsonDocument::Compact),
                              AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Synced, m_layer)
                .failed();
}

QString CalDAVMirror::fileOf(const QString& name) const
{
    return m_folder + QLatin1Char('/') + name;
}

std::optional<QByteArray> CalDAVMirror::copyOf(const QString& name) const
{
    return AtomicFile::read(fileOf(name), ICalendarEvent::maximumSize);
}

/// The last part of an event's address where that can be a file's name.
QString CalDAVMirror::nameFor(const QUrl& event) const
{
    const QString name = event.fileName(QUrl::FullyDecoded);
    if (isPlainName(name) && !m_items.contains(name))
        return name;
    const QByteArray path = pathOf(event).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex()) +
           QStringLiteral(".ics");
}

std::optional<QString> CalDAVMirror::nameOf(const QUrl& event) const
{
    const auto found = m_names.find(pathOf(event));
    return found == m_names.end() ? std::nullopt : std::optional(found->second);
}

QUrl CalDAVMirror::addressOf(const QString& name) const
{
    const auto item = m_items.find(name);
    return QUrl(address).resolved(QUrl(item == m_items.end() ? name : item->second.href));
}

std::optional<QString> CalDAVMirror::tagOf(const QString& name) const
{
    const auto item = m_items.find(name);
    return item == m_items.end() ? std::nullopt : std::optional(item->second.tag);
}

std::vector<QString> CalDAVMirror::names() const
{
    std::vector<QString> result;
    for (const auto& [name, item] : m_items)
        result.push_back(name);
    return result;
}

bool CalDAVMirror::isLatest(const QString& name, const Order& order) const
{
    const auto present = m_outbox.find(name);
    return present != m_outbox.end() && present->second.number == order.number;
}

void CalDAVMirror::keep(const QString& name, const QUrl& event, const QString& tag)
{
    drop(name);
    m_items[name] = {event.path(QUrl::FullyEncoded), tag};
    m_names[pathOf(event)] = name;
}

void CalDAVMirror::drop(const QString& name)
{
    const auto item = m_items.find(name);
    if (item == m_items.end())
        return;
    m_names.erase(pathOf(QUrl(item->second.href)));
    m_items.erase(item);
}

bool CalDAVMirror::replaceCopy(const QString& name, const QByteArray& document)
{
    return !AtomicFile::write(fileOf(name), document, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced,
                              m_layer)
                .failed();
}

void CalDAVMirror::order(const QString& name, Change change, std::uint64_t number)
{
    m_refusals.erase(name);
    const auto earlier = m_outbox.find(name);
    Order order{change, number};
    if (earlier != m_outbox.end())
        order.base = earlier->second.base;
    // What was never sent may meet an event of that name that another device has made.
    if (!order.base && (change == Change::Remove || (earlier == m_outbox.end() && m_items.contains(name)))) {
        const auto copy = copyOf(name);
        const auto present = copy ? ICalendarEvent::read(*copy) : std::nullopt;
        if (present)
            order.base = present->event;
    }
    m_outbox[name] = std::move(order);
}

bool CalDAVMirror::isWanted(const CalDAVClient::RemoteEvent& event) const
{
    if (event.size > ICalendarEvent::maximumSize)
        return false;
    const auto name = nameOf(event.address);
    if (!name || event.tag.isEmpty() || m_items.at(*name).tag != event.tag)
        return true;
    // A copy that was lost here is no reason to lose the event there; one that we removed is not lost.
    return !m_outbox.contains(*name) && !m_refusals.contains(*name) && !QFile::exists(fileOf(*name));
}

bool CalDAVMirror::take(const CalDAVClient::RemoteEvent& event, Instant now)
{
    if (event.document.size() > ICalendarEvent::maximumSize)
        return false;
    const auto known = nameOf(event.address);
    const QString own = event.address.fileName(QUrl::FullyDecoded); // of an event that we are about to make there
    const QString name = known ? *known : m_outbox.contains(own) ? own : nameFor(event.address);
    if (m_outbox.contains(name))
        return putOnTop(name, event, now);
    m_refusals.erase(name);
    const bool differs = copyOf(name) != event.document;
    if (differs && !replaceCopy(name, event.document))
        return false;
    keep(name, event.address, event.tag);
    return differs;
}

bool CalDAVMirror::putOnTop(const QString& name, const CalDAVClient::RemoteEvent& theirs, Instant now)
{
    Order& order = m_outbox.at(name);
    const auto copy = copyOf(name);
    const auto ours = copy ? ICalendarEvent::read(*copy) : std::nullopt;
    const auto there = ICalendarEvent::read(theirs.document);
    const bool isOthers =
        !there || !there->single || // it has become something that is not ours to change
        (ours && !order.base && !there->event.device.isEmpty() && there->event.device != ours->event.device) ||
        (order.change == Change::Remove && order.base && !there->event.device.isEmpty() &&
         there->event.device != order.base->device);
    if (order.change == Change::Remove && !isOthers) {
        order.base = there->event;
        keep(name, theirs.address, theirs.tag);
        return false;
    }
    std::optional<QByteArray> both;
    if (!isOthers && ours)
        both = ICalendarEvent::change(
            theirs.document,
            order.base ? merged(*order.base, ours->event, there->event) : laidOver(ours->event, there->event), now);
    if (!replaceCopy(name, both ? *both : theirs.document))
        return false;
    keep(name, theirs.address, theirs.tag);
    if (both) {
        order.base = there->event;
        return true;
    }
    if (isOthers)
        Log::line(QStringLiteral("calendar event %1 is another's by now; that stays").arg(name));
    m_outbox.erase(name);
    return copy != theirs.document;
}

bool CalDAVMirror::forget(const QString& name)
{
    const bool wasSeen = QFile::exists(fileOf(name));
    m_layer.remove(fileOf(name));
    drop(name);
    m_outbox.erase(name);
    m_refusals.erase(name);
    return wasSeen;
}

void CalDAVMirror::noteSent(const QString& name, const Order& order, const QByteArray& document, const QString& tag)
{
    keep(name, addressOf(name), tag);
    if (isLatest(name, order)) {
        m_outbox.erase(name);
    } else if (const auto later = m_outbox.find(name); later != m_outbox.end()) {
        const auto sent = ICalendarEvent::read(document);
        later->second.base = sent ? std::optional(sent->event) : std::nullopt;
    }
}

void CalDAVMirror::noteRemoved(const QString& name, const Order& order)
{
    if (isLatest(name, order)) {
        forget(name);
    } else { // made anew meanwhile
        drop(name);
        if (const auto later = m_outbox.find(name); later != m_outbox.end())
            later->second.base.reset();
    }
}

void CalDAVMirror::cancel(const QString& name, const Order& order)
{
    if (isLatest(name, order))
        m_outbox.erase(name);
}

void CalDAVMirror::noteRefused(const QString& name, const Order& order, const QString& reason, Instant now)
{
    if (!isLatest(name, order))
        return;
    Order& present = m_outbox.at(name);
    present.refused = now;
    if (++present.tries < mostTries)
        return;
    const auto copy = copyOf(name);
    const auto ours = copy ? ICalendarEvent::read(*copy) : std::nullopt;
    const QString title = ours ? ours->event.title : present.base ? present.base->title : name;
    m_refusals[name] = {present, title, reason};
    m_outbox.erase(name);
}

void CalDAVMirror::retryRefused()
{
    for (auto& [name, refusal] : m_refusals) {
        refusal.order.tries = mostTries - 1;
        m_outbox.emplace(name, refusal.order);
    }
    m_refusals.clear();
    for (auto& [name, order] : m_outbox)
        order.refused.reset();
}

} // namespace vidora
