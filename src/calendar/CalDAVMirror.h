#pragma once

#include "platform/AtomicFile.h"

#include <QUrl>

#include <map>
#include <optional>

namespace vidora {

/// What is known about one calendar of a server, beside the copies of its events: kept in the hidden file ".sync" of
/// the folder that mirrors it, so that the two come and go together. A value.
struct CalDAVMirror
{
    struct Item
    {
        QString href; ///< path on the server
        QString tag;  ///< of the version that the copy is of; empty when that isn't known
    };
    enum class Change
    {
        Put,
        Remove
    };

    /// A change that the server doesn't have. Its number, of no meaning after a restart, tells it from a later change
    /// of the same event.
    struct Order
    {
        Change change = Change::Put;
        std::uint64_t number = 0;
    };

    QString address;
    QString token;                   ///< up to which the server's changes are known
    std::map<QString, Item> items;   ///< by the name of the copy
    std::map<QString, Order> outbox; ///< our changes that the server doesn't have, by the name of the copy

    /// A missing or unreadable file is an empty mirror, all of which has to be fetched. So has the copy of an event
    /// that is missing or empty, as a loss of power may leave it.
    static CalDAVMirror read(const QString& folder);
    /// True when it is on the disk.
    [[nodiscard]] bool write(const QString& folder, FileLayer& layer) const;

    bool isLatest(const QString& name, const Order& order) const
    {
        const auto present = outbox.find(name);
        return present != outbox.end() && present->second.number == order.number;
    }

    /// The name of the copy of an event on the server: the last part of its address where that can be a file's name.
    QString nameFor(const QUrl& event) const;
    std::optional<QString> nameOf(const QUrl& event) const;
    QUrl addressOf(const QString& name) const;
    void keep(const QString& name, const QUrl& event, const QString& tag);
    void forget(const QString& name);

private:
    std::map<QString, QString> m_names; ///< of items, by decoded path
};

} // namespace vidora
