#include "core/GuideIcons.h"

#include "core/GuideImport.h"
#include "platform/AtomicFile.h"
#include "platform/DispatchQueue.h"
#include "platform/Log.h"

#include <atomic>
#include <mutex>

namespace vidora {

namespace {

constexpr qsizetype largestIcon = 2 * 1024 * 1024;
constexpr std::size_t sideBySide = 6;

QByteArray fetchIcon(URLSession& network, const QString& address)
{
    const auto url = URL::fromText(address);
    if (!url || (url->scheme() != QLatin1String("http") && url->scheme() != QLatin1String("https")))
        return {};
    URLRequest request(*url);
    request.timeoutIntervalForRequest = Seconds{5};
    request.timeoutIntervalForResource = Seconds{10};
    const URLResult result = network.perform(request);
    const bool good = result.response && result.response->statusCode == 200 && result.data;
    return good && result.data->size() <= largestIcon ? *result.data : QByteArray();
}

// Works off the channels from several threads; each takes the next one that nobody has taken.
class IconSaver
{
public:
    IconSaver(URLSession& network, const std::vector<GuideChannel>& channels, const QString& folder,
              QHash<QString, QString>& names, const IconProgress& progress)
        : m_network(network)
        , m_channels(channels)
        , m_folder(folder)
        , m_names(names)
        , m_progress(progress)
    {
    }

    std::optional<std::size_t> run()
    {
        DispatchGroup group;
        for (std::size_t i = 0; i < std::min(sideBySide, m_channels.size()); ++i)
            group.async(DispatchQueue::global(QualityOfService::UserInitiated), [this] { work(); });
        group.wait();
        return m_isEnded ? std::nullopt : std::optional<std::size_t>(m_fetched);
    }

private:
    void work()
    {
        for (std::size_t i = m_next++; i < m_channels.size() && !m_isEnded; i = m_next++) {
            save(m_channels[i]);
            if (!m_progress(++m_done, m_channels.size()))
                m_isEnded = true;
        }
    }

    void save(const GuideChannel& channel)
    {
        const QString title = channel.displayNames.isEmpty() ? channel.id : channel.displayNames.front();
        QByteArray bytes = channel.icon ? fetchIcon(m_network, *channel.icon) : QByteArray();
        const auto ending = pictureEnding(bytes);
        if (!ending)
            bytes = drawnIcon(title);
        else
            ++m_fetched;
        const QString name = GuideImport::idOfChannel(channel.id).hex() + ending.value_or(QStringLiteral(".svg"));
        if (AtomicFile::write(m_folder + QLatin1Char('/') + name, bytes, AtomicFile::Access::Everyone,
                              AtomicFile::Durability::Unsynced)
                .failed())
            Log::line(QStringLiteral("import: the icon of %1 can't be written").arg(title));
        const std::lock_guard lock(m_mutex);
        m_names.insert(channel.id, name);
    }

    URLSession& m_network;
    const std::vector<GuideChannel>& m_channels;
    const QString& m_folder;
    QHash<QString, QString>& m_names;
    const IconProgress& m_progress;
    std::mutex m_mutex;
    std::atomic<std::size_t> m_next = 0, m_done = 0, m_fetched = 0;
    std::atomic<bool> m_isEnded = false;
};

} // namespace

std::optional<std::size_t> saveGuideIcons(URLSession& network, const std::vector<GuideChannel>& channels,
                                          const QString& folder, QHash<QString, QString>& names,
                                          const IconProgress& progress)
{
    return IconSaver(network, channels, folder, names, progress).run();
}

QByteArray drawnIcon(const QString& title)
{
    QString initials;
    for (const QString& word : title.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.front().isLetterOrNumber() && initials.size() < 3)
            initials += word.front().toUpper();
    }
    if (initials.isEmpty())
        initials = QStringLiteral("TV");
    // The same title always has the same colour.
    std::uint32_t hue = 5381;
    for (const QChar character : title)
        hue = hue * 33 + character.unicode();
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"96\" height=\"96\" viewBox=\"0 0 96 96\">"
                          "<rect width=\"96\" height=\"96\" rx=\"18\" fill=\"hsl(%1,45%,38%)\"/>"
                          "<text x=\"48\" y=\"60\" font-family=\"sans-serif\" font-weight=\"bold\" font-size=\"34\" "
                          "fill=\"#fff\" text-anchor=\"middle\">%2</text></svg>\n")
        .arg(hue % 360)
        .arg(initials.toHtmlEscaped())
        .toUtf8();
}

std::optional<QString> pictureEnding(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return QStringLiteral(".png");
    if (bytes.startsWith("\xff\xd8\xff"))
        return QStringLiteral(".jpg");
    if (bytes.startsWith("GIF8"))
        return QStringLiteral(".gif");
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return QStringLiteral(".webp");
    if (bytes.startsWith("<svg") || (bytes.startsWith("<?xml") && bytes.left(1'000).contains("<svg")))
        return QStringLiteral(".svg");
    return std::nullopt;
}

} // namespace vidora
