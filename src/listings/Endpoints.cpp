#include "listings/Endpoints.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vidora {

namespace {

/// The values of one family; each read leaves its target alone where the value is missing or no text.
class Family
{
public:
    Family(const QJsonObject& document, const QString& key)
        : m_object(document.value(key).toObject())
    {
    }

    void read(const char* key, QString& target) const
    {
        if (const QJsonValue value = at(key); value.isString())
            target = value.toString();
    }

    void read(const char* key, std::optional<QString>& target) const
    {
        if (const QJsonValue value = at(key); value.isString())
            target = value.toString();
    }

    void read(const char* key, QStringList& target) const
    {
        const QJsonArray values = at(key).toArray();
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (i == target.size())
                target.append(QString());
            if (values[i].isString())
                target[i] = values[i].toString();
        }
    }

    void read(const char* key, QHash<QString, QString>& target) const
    {
        const QJsonObject values = at(key).toObject();
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (value->isString())
                target.insert(value.key(), value->toString());
        }
    }

private:
    QJsonValue at(const char* key) const { return m_object.value(QLatin1String(key)); }

    QJsonObject m_object;
};

} // namespace

Endpoints Endpoints::fromJson(const QByteArray& json, const Endpoints& fallback)
{
    const QJsonObject document = QJsonDocument::fromJson(json).object();
    const auto family = [&document](const char* key) { return Family(document, QLatin1String(key)); };

    Endpoints endpoints = fallback;
    family("r").read("bases", endpoints.rytecBases);
    for (const char* key : {"n", "s", "dolce-sport", "barrandov", "dsk", "joj", "cz.nova", "port"})
        family(key).read("host", endpoints.hosts[QLatin1String(key)]);
    family("tvpc").read("address", endpoints.tvpcAddress);
    family("_").read("hosts", endpoints.italianHosts);
    family("-hbo").read("hosts", endpoints.hboHosts);
    family("primaMax").read("sourceId", endpoints.primaMax.sourceId);
    family("primaMax").read("host", endpoints.primaMax.host);
    family(".tv").read("host", endpoints.tv.host);
    family(".tv").read("word", endpoints.tv.word);
    family(".tv").read("pictures", endpoints.tv.pictures);
    family("cc.romania").read("base", endpoints.romania.base);
    family("cc.romania").read("host", endpoints.romania.host);
    family("cinestar").read("host", endpoints.cinestar.host);
    family("cinestar").read("schedulePage", endpoints.cinestar.schedulePage);
    family("=").read("hosts", endpoints.equalsHosts);
    family("weekly").read("host", endpoints.weekly.host);
    family("weekly").read("word", endpoints.weekly.word);
    family("archive").read("host", endpoints.archiveHost);
    family("credits").read("host", endpoints.creditsHost);
    family("imdb").read("host", endpoints.imdbHost);
    return endpoints;
}

QString Endpoints::origin(const QString& host, QLatin1String scheme)
{
    if (host.contains(QLatin1String("://")))
        return host;
    return scheme + QLatin1String("://") + host;
}

} // namespace vidora
