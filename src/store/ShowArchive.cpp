#include "store/ShowArchive.h"

#include "platform/Log.h"
#include "store/ShowArchiveReader.h"

#include <QCborStreamWriter>

#include <zlib.h>

namespace vidora {

namespace {

using Writer = QCborStreamWriter;

void write(Writer& writer, const char* key, const std::optional<QString>& text)
{
    if (!text)
        return;
    writer.append(QLatin1String(key));
    writer.append(QStringView(*text));
}

void write(Writer& writer, const char* key, const std::optional<URL>& url)
{
    if (!url)
        return;
    writer.append(QLatin1String(key));
    writer.append(QStringView(url->text()));
}

void write(Writer& writer, const char* key, std::optional<Instant> instant)
{
    if (!instant)
        return;
    writer.append(QLatin1String(key));
    writer.append(static_cast<qint64>(unixMilliseconds(*instant)));
}

void write(Writer& writer, const AttributedText::Run& run)
{
    writer.startMap();
    write(writer, "text", std::optional(run.text));
    writer.append(QLatin1String("pointSize"));
    writer.append(run.attributes.pointSize);
    writer.append(QLatin1String("weight"));
    writer.append(static_cast<int>(run.attributes.weight));
    writer.append(QLatin1String("monospacedDigits"));
    writer.append(run.attributes.monospacedDigits);
    writer.append(QLatin1String("colour"));
    writer.append(static_cast<int>(run.attributes.colour));
    write(writer, "givenColour", std::optional(run.attributes.givenColour));
    writer.append(QLatin1String("baselineOffset"));
    writer.append(run.attributes.baselineOffset);
    writer.endMap();
}

void write(Writer& writer, const char* key, const std::optional<AttributedText>& text)
{
    if (!text)
        return;
    writer.append(QLatin1String(key));
    if (text->isPlain()) {
        writer.append(text->isEmpty() ? QStringView(u"") : QStringView(text->runs().front().text));
        return;
    }
    writer.startArray(text->runs().size());
    for (const AttributedText::Run& run : text->runs())
        write(writer, run);
    writer.endArray();
}

void write(Writer& writer, const TVEntry& entry)
{
    writer.startMap();
    writer.append(QLatin1String("channel"));
    writer.append(entry.channel().data());
    write(writer, "realChannelId", entry.sourceId());
    write(writer, "lang", entry.language());
    write(writer, "dateTime", entry.dateTime());
    write(writer, "endDateTime", entry.endDateTime());
    write(writer, "title", entry.identificator());
    write(writer, "instantDetails", entry.instantDetails1());
    write(writer, "subtitle", entry.subtitle1());
    write(writer, "instantDescription", entry.instantDescription1());
    write(writer, "url", entry.url());
    writer.append(QLatin1String("previouslyShown"));
    writer.append(entry.previouslyShown());
    writer.endMap();
}

void write(Writer& writer, const TVEntrySupplementalData& extra)
{
    writer.startMap();
    write(writer, "description", extra.description);
    write(writer, "episodeDescription", extra.episodeDescription);
    write(writer, "details", extra.details);
    write(writer, "directedBy", extra.directedBy);
    write(writer, "roles", extra.roles);
    write(writer, "imdbURL", extra.imdbURL);
    write(writer, "trailerURL", extra.trailerURL);
    write(writer, "lang", extra.language);
    writer.endMap();
}

void write(Writer& writer, const ShowElement& element)
{
    const int count = element.count();
    writer.startArray(static_cast<quint64>(count));
    write(writer, *element.entry);
    if (count > 1)
        writer.append(static_cast<quint64>(element.categories.value_or(0)));
    if (count > 2)
        write(writer, element.extra ? *element.extra : TVEntrySupplementalData());
    if (count > 3) {
        writer.startArray(element.pictures->size());
        for (const URL& picture : *element.pictures)
            writer.append(QStringView(picture.text()));
        writer.endArray();
    }
    writer.endArray();
}

// The checksum as an item of the sequence: a byte string of four bytes, the most significant first.
constexpr qsizetype checksumSize = 5;
constexpr qsizetype usualShowSize = 1536;

QByteArray checksum(QByteArrayView bytes)
{
    const auto sum = static_cast<quint32>(
        adler32_z(1, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<z_size_t>(bytes.size())));
    QByteArray item(1, '\x44');
    for (int shift = 24; shift >= 0; shift -= 8)
        item += static_cast<char>(sum >> shift);
    return item;
}

} // namespace

QByteArray ShowArchive::archivedData(const ShowList& list)
{
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(list.size()) * usualShowSize);
    Writer writer(&bytes);
    writer.startArray(list.size());
    for (const Show& show : list)
        write(writer, *show);
    writer.endArray();
    bytes += checksum(bytes);
    return bytes;
}

ShowList ShowArchive::unarchivedList(const QByteArray& bytes)
{
    const qsizetype size = bytes.size() - checksumSize;
    if (size <= 0 || size > maximumFileSize || bytes.last(checksumSize) != checksum(QByteArrayView(bytes).first(size)))
        return {};
    try {
        return ShowArchiveReader(bytes.first(size)).readList();
    } catch (const ShowArchiveReader::Malformed&) {
        return {};
    }
}

bool ShowArchive::archiveRootObject(const ShowList& list, const QString& toFile, FileLayer& files)
{
    // A list lost with the power is fetched again, so nobody waits for the disk here.
    return !AtomicFile::write(toFile, archivedData(list), AtomicFile::Access::OwnerOnly,
                              AtomicFile::Durability::Unsynced, files)
                .failed();
}

ShowList ShowArchive::unarchiveObjectWithFile(const QString& file)
{
    const std::optional<QByteArray> bytes = AtomicFile::read(file, maximumFileSize);
    if (!bytes)
        return {};
    ShowList list = unarchivedList(*bytes);
    if (list.empty())
        Log::line(QStringLiteral("ShowArchive: ") + file + QStringLiteral(": no readable list"));
    return list;
}

ShowList ShowArchive::firstShowsOfFile(const QString& file, std::size_t count,
                                       const std::function<bool(const TVEntry&)>& takes)
{
    constexpr qint64 usual = 16 * 1024, growth = 8;
    for (qint64 size = usual; size <= maximumFileSize; size *= growth) {
        const std::optional<QByteArray> bytes = AtomicFile::readStart(file, size);
        if (!bytes)
            break;
        ShowList list = ShowArchiveReader(*bytes).readFirst(count, takes);
        if (list.size() == count || bytes->size() < size)
            return list;
    }
    return {};
}

} // namespace vidora
