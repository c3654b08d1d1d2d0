#include "core/GuideImport.h"

#include "core/GuideIcons.h"
#include "core/OwnGuideSession.h"
#include "core/PropertyList.h"
#include "core/SupportedChannelTypes.h"
#include "listings/PageFetcher.h"
#include "platform/AtomicFile.h"
#include "platform/Localized.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace vidora {

namespace {

constexpr qint64 maximumCatalogue = 16 * 1024 * 1024;
const QString region = QStringLiteral("Other");

std::optional<URL> addressOfSource(const QString& source)
{
    const QString scheme = URL::fromText(source) ? URL::fromText(source)->scheme() : QString();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https") || scheme == QLatin1String("file"))
        return URL::fromText(source);
    if (source.contains(QLatin1String("://")))
        return std::nullopt;
    const QUrl file = QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath());
    return URL::fromText(QString::fromLatin1(file.toEncoded()));
}

// Only some languages are offered in the region of imported channels; any other one is left open.
QString supportedLanguage(const QString& tag)
{
    const QString language = tag.section(QLatin1Char('-'), 0, 0).toLower();
    const auto& pairs = SupportedChannelTypes::sharedInstance().pairs();
    const bool supported = std::any_of(pairs.begin(), pairs.end(), [&](const SupportedChannelTypesPair& pair) {
        return pair.region == region && pair.language == language;
    });
    return supported ? language : QString();
}

QString titleOf(const GuideChannel& channel)
{
    return channel.displayNames.isEmpty() ? channel.id : channel.displayNames.front();
}

QVariantMap recordOf(const GuideChannel& channel)
{
    const ObjectId id = GuideImport::idOfChannel(channel.id);
    return {{QStringLiteral("Location"), id.hex()},
            {QStringLiteral("Title"), titleOf(channel)},
            {QStringLiteral("Icon"), QString(region + QLatin1Char('/') + GuideIcons::fileName(id))},
            {QStringLiteral("Language"), supportedLanguage(channel.language)},
            {QStringLiteral("Location1"), QString(QLatin1String("tvpc.") + channel.id)}};
}

} // namespace

GuideImport::GuideImport(URLSession& network, QString cataloguePath, GuideIcons& icons)
    : m_network(network)
    , m_cataloguePath(std::move(cataloguePath))
    , m_icons(icons)
{
}

ObjectId GuideImport::idOfChannel(const QString& guideId)
{
    const QByteArray name = "xmltv channel " + guideId.toUtf8();
    const QByteArray digest = QCryptographicHash::hash(name, QCryptographicHash::Sha256);
    return ObjectId::initWithData(digest.left(ObjectId::length));
}

std::optional<URL> GuideImport::addressOfCatalogue(const QString& cataloguePath)
{
    const auto bytes = AtomicFile::read(cataloguePath, maximumCatalogue);
    const auto root = bytes ? readPropertyList(*bytes) : std::nullopt;
    return root ? URL::fromText(root->toMap().value(QStringLiteral("Guide")).toString()) : std::nullopt;
}

std::variant<Page, QString> GuideImport::fetch(const URL& address) const
{
    OwnGuideSession session(m_network, address);
    const URLResult result = session.perform(URLRequest(address));
    if (result.error)
        return localized("%1 can't be reached: %2").arg(address.text(), result.error->description);
    const int status = result.response ? result.response->statusCode : 0;
    if (status < 200 || status >= 300)
        return localized("%1 answered with status %2.").arg(address.text(), QString::number(status));
    if (!result.data || result.data->isEmpty())
        return localized("%1 is empty.").arg(address.text());
    const auto page = PageFetcher::pageFromData(*result.data, *result.response);
    if (!page)
        return localized("%1 is in an encoding that is not known.").arg(address.text());
    return *page;
}

std::variant<ImportReport, QString> GuideImport::import(const QString& source,
                                                        const std::function<bool()>& isEnded) const
{
    const auto address = addressOfSource(source);
    if (!address)
        return localized("%1 is no address of a guide: it takes http, https or a file.").arg(source);
    const auto fetched = fetch(*address);
    if (const auto* message = std::get_if<QString>(&fetched))
        return *message;
    auto guide = readGuideSummary(std::get<Page>(fetched));
    if (!guide)
        return localized("%1 is no XMLTV guide.").arg(address->text());
    if (guide->channels.empty())
        return localized("The guide at %1 has no channels.").arg(address->text());

    if (isEnded())
        return localized("The import was ended; the guide of before stays.");

    ImportReport report{*address, std::move(*guide), {}};
    QVariantList records;
    for (const GuideChannel& channel : report.guide.channels) {
        report.channels.push_back(idOfChannel(channel.id));
        records.append(recordOf(channel));
    }
    const QVariantMap catalogue{{QStringLiteral("Guide"), address->text()}, {QStringLiteral("Channels"), records}};
    // Drawn ahead of the catalogue: a channel without an icon's file is left out.
    FileResult written = m_icons.draw(report.guide.channels);
    if (!written.failed())
        written = AtomicFile::write(m_cataloguePath, writePropertyList(catalogue), AtomicFile::Access::OwnerOnly);
    if (written.failed())
        return localized("The catalogue can't be written: %1").arg(written.text);
    m_icons.adopt(report.guide.channels);
    return report;
}

} // namespace vidora
