#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace vidora {

/// Where the providers stand: the hosts, words and addresses out of which URLs are built. Read from `endpoints.json`; a
/// user's own file overrides the application's key by key. Immutable once read; any thread.
///
/// A host is a name with an optional port, and then the scheme of the family's template holds, or an origin
/// ("http://127.0.0.1:8080"), and then its scheme replaces the template's.
class Endpoints
{
public:
    struct Weekly
    {
        QString host, word;
    };
    struct Tv
    {
        QString host, word, pictures;
    };
    struct Romania
    {
        QString base, host;
    };
    struct Cinestar
    {
        QString host, schedulePage;
    };
    struct PrimaMax
    {
        QString sourceId;
        std::optional<QString> host;
    };

    QStringList rytecBases;        ///< "r": two origins
    QHash<QString, QString> hosts; ///< by family: "n", "s", "dolce-sport", "barrandov", "dsk", "joj", "cz.nova", "port"
    QString tvpcAddress;           ///< "tvpc"
    QStringList italianHosts;      ///< "_": of "/dati/palinsesto", of "/export"
    QHash<QString, QString> hboHosts; ///< "-hbo": by country code
    PrimaMax primaMax;
    Tv tv;
    Romania romania;
    Cinestar cinestar;
    QStringList equalsHosts; ///< "=": for "rs", for "hr"
    Weekly weekly;
    QString archiveHost, creditsHost, imdbHost;

    /// Reads the configuration; a value that is missing or of the wrong type falls back to `fallback`'s. A document
    /// that is no JSON object gives `fallback` itself.
    static Endpoints fromJson(const QByteArray& json, const Endpoints& fallback);

    /// "scheme://host", or the origin itself where `host` is one. `scheme` is the template's.
    static QString origin(const QString& host, QLatin1String scheme);
};

} // namespace vidora
