#include "core/GuideIcons.h"

#include "core/GuideImport.h"
#include "core/IconFetch.h"
#include "platform/Log.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

namespace vidora {

namespace {

constexpr qint64 largestRecords = 64LL * 1024 * 1024;
constexpr auto patience = std::chrono::hours(24);
const QString recordsFile = QStringLiteral("fetched.json");
const QString addressKey = QStringLiteral("address");
const QString triedKey = QStringLiteral("tried");
const QString fetchedKey = QStringLiteral("fetched");

QString titleOf(const GuideChannel& channel)
{
    return channel.displayNames.isEmpty() ? channel.id : channel.displayNames.front();
}

QString fileNameOf(const GuideChannel& channel)
{
    return GuideIcons::fileName(GuideImport::idOfChannel(channel.id));
}

} // namespace

GuideIcons::GuideIcons(QString folder, const Clock& clock)
    : m_folder(std::move(folder))
    , m_clock(clock)
{
    read();
}

QString GuideIcons::fileName(const ObjectId& channel)
{
    return channel.hex() + QLatin1String(".icon");
}

QString GuideIcons::path(const QString& name) const
{
    return m_folder + QLatin1Char('/') + name;
}

FileResult GuideIcons::draw(const std::vector<GuideChannel>& channels)
{
    for (const GuideChannel& channel : channels) {
        const QString name = fileNameOf(channel);
        const auto record = m_records.find(name);
        if (record != m_records.end() && record->fetched) {
            if (QFile::exists(path(name)))
                continue;
            *record = {}; // to be fetched anew
        }
        FileResult written = AtomicFile::write(path(name), drawnIcon(titleOf(channel)), AtomicFile::Access::Everyone,
                                               AtomicFile::Durability::Unsynced);
        if (written.failed())
            return written;
    }
    return {};
}

void GuideIcons::adopt(const std::vector<GuideChannel>& channels)
{
    Records kept;
    for (const GuideChannel& channel : channels) {
        const QString name = fileNameOf(channel);
        const QString address = channel.icon.value_or(QString());
        const Record before = m_records.value(name);
        // The picture of another address stands until the one of this has come.
        kept.insert(name, {address, before.address == address ? before.tried : std::nullopt, before.fetched});
    }
    m_records = std::move(kept);
    for (const QString& name : QDir(m_folder).entryList(QDir::Files | QDir::Hidden)) {
        if (name != recordsFile && !m_records.contains(name))
            QFile::remove(path(name));
    }
    write();
}

bool GuideIcons::isDue(const Record& record, Which which) const
{
    if (record.address.isEmpty() || (record.fetched && record.tried && which == Which::Missing))
        return false;
    const Instant now = m_clock.now();
    return !record.tried || *record.tried > now || now - *record.tried >= patience;
}

void GuideIcons::fetch(URLSession& network, Which which, std::shared_ptr<const std::atomic<bool>> ended,
                       const IconProgress& progress)
{
    IconFetch fetching(network, m_folder, std::move(ended), progress);
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        if (isDue(*record, which))
            fetching.add(record.key(), record->address);
    }
    const QHash<QString, bool> came = fetching.run();
    for (auto picture = came.cbegin(); picture != came.cend(); ++picture) {
        Record& record = m_records[picture.key()];
        record.tried = m_clock.now();
        record.fetched = record.fetched || *picture;
    }
    if (!came.isEmpty())
        write();
}

GuideIcons::Counts GuideIcons::counts() const
{
    Counts counts;
    for (const Record& record : m_records) {
        ++(record.fetched ? counts.fetched : counts.drawn);
        if (!record.fetched && isDue(record, Which::Missing))
            ++counts.waiting;
    }
    return counts;
}

void GuideIcons::read()
{
    const auto bytes = AtomicFile::read(path(recordsFile), largestRecords);
    const QJsonObject objects = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        const QJsonValue value = *object;
        m_records.insert(object.key(), {value[addressKey].toString(), instantFromIsoText(value[triedKey].toString()),
                                        value[fetchedKey].toBool()});
    }
}

void GuideIcons::write() const
{
    QJsonObject objects;
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        objects.insert(record.key(),
                       QJsonObject{{addressKey, record->address},
                                   {triedKey, record->tried ? QJsonValue(isoText(*record->tried)) : QJsonValue()},
                                   {fetchedKey, record->fetched}});
    }
    const FileResult written =
        AtomicFile::write(path(recordsFile), QJsonDocument(objects).toJson(), AtomicFile::Access::OwnerOnly);
    if (written.failed())
        Log::line(QStringLiteral("icons: what was fetched can't be kept: %1").arg(written.text));
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

bool isPicture(const QByteArray& bytes)
{
    return bytes.startsWith("\x89PNG\r\n\x1a\n") || bytes.startsWith("\xff\xd8\xff") || bytes.startsWith("GIF8") ||
           (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP") || bytes.startsWith("<svg") ||
           (bytes.startsWith("<?xml") && bytes.left(1'000).contains("<svg"));
}

} // namespace vidora
