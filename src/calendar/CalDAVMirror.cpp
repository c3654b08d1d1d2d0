#include "calendar/CalDAVMirror.h"

#include "platform/Log.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace vidora {

namespace {

constexpr qint64 maximalSize = 64LL * 1024 * 1024;

QString fileIn(const QString& folder)
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

} // namespace

CalDAVMirror CalDAVMirror::read(const QString& folder)
{
    CalDAVMirror mirror;
    const auto bytes = AtomicFile::read(fileIn(folder), maximalSize);
    const QJsonObject object = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    if (bytes && object.isEmpty())
        Log::line(QStringLiteral("calendar state %1 can't be understood; all is fetched anew").arg(fileIn(folder)));
    mirror.address = object.value(QLatin1String("address")).toString();
    mirror.token = object.value(QLatin1String("token")).toString();
    const QJsonObject items = object.value(QLatin1String("items")).toObject();
    for (auto item = items.begin(); item != items.end(); ++item) {
        const QJsonArray pair = item.value().toArray();
        if (isPlainName(item.key()))
            mirror.items[item.key()] = {pair.at(0).toString(), pair.at(1).toString()};
    }
    const QJsonObject outbox = object.value(QLatin1String("outbox")).toObject();
    for (auto change = outbox.begin(); change != outbox.end(); ++change) {
        if (isPlainName(change.key()))
            mirror.outbox[change.key()].change =
                change.value().toString() == QLatin1String("remove") ? Change::Remove : Change::Put;
    }
    for (auto& [name, item] : mirror.items) {
        mirror.m_names[pathOf(QUrl(item.href))] = name;
        if (QFileInfo(folder + QLatin1Char('/') + name).size() > 0 || mirror.outbox.contains(name))
            continue;
        item.tag.clear();
        mirror.token.clear();
    }
    return mirror;
}

bool CalDAVMirror::write(const QString& folder, FileLayer& layer) const
{
    QJsonObject itemObject;
    for (const auto& [name, item] : items)
        itemObject.insert(name, QJsonArray{item.href, item.tag});
    QJsonObject outboxObject;
    for (const auto& [name, order] : outbox)
        outboxObject.insert(name, order.change == Change::Remove ? QStringLiteral("remove") : QStringLiteral("put"));
    const QJsonObject object{{QStringLiteral("address"), address},
                             {QStringLiteral("token"), token},
                             {QStringLiteral("items"), itemObject},
                             {QStringLiteral("outbox"), outboxObject}};
    return !AtomicFile::write(fileIn(folder), QJsonDocument(object).toJson(QJsonDocument::Compact),
                              AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Synced, layer)
                .failed();
}

QString CalDAVMirror::nameFor(const QUrl& event) const
{
    const QString name = event.fileName(QUrl::FullyDecoded);
    if (isPlainName(name) && !items.contains(name))
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
    const auto item = items.find(name);
    const QUrl calendar(address);
    return calendar.resolved(QUrl(item == items.end() || item->second.href.isEmpty() ? name : item->second.href));
}

void CalDAVMirror::keep(const QString& name, const QUrl& event, const QString& tag)
{
    forget(name);
    items[name] = {event.path(QUrl::FullyEncoded), tag};
    m_names[pathOf(event)] = name;
}

void CalDAVMirror::forget(const QString& name)
{
    const auto item = items.find(name);
    if (item == items.end())
        return;
    m_names.erase(pathOf(QUrl(item->second.href)));
    items.erase(item);
}

} // namespace vidora
