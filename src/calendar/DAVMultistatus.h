#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace vidora {

/// What a server says about one resource in a multistatus answer (RFC 4918, 13). Elements are known by their local
/// names, since each server has prefixes of its own.
struct DAVResponse
{
    QString href;
    int status = 0; ///< of the resource as a whole; 0 when the answer gives properties
    /// The properties that the server has: their text, that of elements in them included.
    std::map<QByteArray, QByteArray> texts;
    /// For each property the elements in it, and the names that these give in an attribute "name".
    std::map<QByteArray, std::set<QByteArray>> elements;

    /// For each property the links in it.
    std::map<QByteArray, std::vector<QString>> links;

    QByteArray text(const QByteArray& property) const;
    std::vector<QString> linksOf(const QByteArray& property) const;
    bool has(const QByteArray& property, const QByteArray& element) const;
};

struct DAVMultistatus
{
    std::vector<DAVResponse> responses;
    QString syncToken; ///< RFC 6578; empty without one

    /// The document that asks for properties, whose names begin with "d:" for WebDAV, "c:" for calendars.
    static QByteArray propfind(const QByteArray& properties);
    /// Nothing for what is no whole multistatus document, or one of more resources than any calendar has.
    static std::optional<DAVMultistatus> read(const QByteArray& body);
};

} // namespace vidora
