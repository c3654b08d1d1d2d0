#include "store/ShowRecord.h"

#include "content/Utf8Text.h"
#include "store/ListFile.h"

#include <cmath>
#include <cstring>

namespace vidora {

namespace {

// More than any show has. A record may come from anyone, and small objects take far more memory than their bytes.
constexpr std::size_t maximumPictures = 1000, maximumRuns = 10'000;

/// The attributes of a run as they lie ahead of its texts.
struct RunHead
{
    double pointSize, baselineOffset;
    std::uint8_t weight, colour, monospacedDigits, givenColourSize;
};
constexpr std::size_t runHeadSize = 20;

RunHead headOf(std::string_view run)
{
    RunHead head{};
    std::memcpy(&head, run.data(), runHeadSize);
    return head;
}

double plausible(double number)
{
    return number >= -1000 && number <= 1000 ? number : 0;
}

std::optional<AttributedText::Run> runOf(std::string_view bytes)
{
    if (bytes.size() < runHeadSize)
        return std::nullopt;
    using Weight = TextAttributes::Weight;
    using Colour = TextAttributes::Colour;
    const RunHead head = headOf(bytes);
    AttributedText::Run run;
    run.text = textFromUtf8(ShowRecord::textOfRun(bytes));
    run.attributes.pointSize = plausible(head.pointSize);
    run.attributes.weight = static_cast<Weight>(std::min<std::uint8_t>(head.weight, 2));
    run.attributes.monospacedDigits = head.monospacedDigits != 0;
    run.attributes.colour = static_cast<Colour>(std::min<std::uint8_t>(head.colour, 4));
    run.attributes.givenColour = textFromUtf8(bytes.substr(runHeadSize, head.givenColourSize));
    run.attributes.baselineOffset = plausible(head.baselineOffset);
    return run;
}

std::uint32_t recordChecksum(std::string_view bytes)
{
    return static_cast<std::uint32_t>(listFileChecksum(bytes));
}

/// Remembers the last text of a field that is mostly the same in a whole list, so that its shows share it.
QString sharedText(std::string_view bytes)
{
    static thread_local std::string lastBytes;
    static thread_local QString last;
    if (last.isNull() || lastBytes != bytes) {
        lastBytes = bytes;
        last = textFromUtf8(bytes);
    }
    return last;
}

/// Puts the fields of a record into the objects of a show.
class ShowMaker
{
public:
    void take(ShowField key, std::string_view content);
    ShowElement make(const ShowRow& row);

private:
    void takeRun(std::optional<AttributedText>& text, std::string_view content);
    static void takePlain(std::optional<AttributedText>& text, std::string_view content);

    std::unique_ptr<TVEntry> m_entry = std::make_unique<TVEntry>();
    std::unique_ptr<TVEntrySupplementalData> m_extra;
    std::optional<Pictures> m_pictures;
    TVEntrySupplementalData& extra()
    {
        if (!m_extra)
            m_extra = std::make_unique<TVEntrySupplementalData>();
        return *m_extra;
    }
    TVEntry::Text m_language, m_title, m_details, m_subtitle, m_description;
    std::size_t m_runs = 0;
};

void ShowMaker::take(ShowField key, std::string_view content)
{
    const auto text = [content] { return textFromUtf8(content); };
    switch (key) {
    case ShowField::Channel:
        m_entry->setChannel(ObjectId::initWithData(QByteArray(content.data(), static_cast<qsizetype>(content.size()))));
        break;
    case ShowField::SourceId:
        m_entry->setSourceId(sharedText(content));
        break;
    case ShowField::Language:
        m_language = text();
        break;
    case ShowField::Title:
        m_title = text();
        break;
    case ShowField::Details:
        m_details = text();
        break;
    case ShowField::Subtitle:
        m_subtitle = text();
        break;
    case ShowField::Description:
        m_description = text();
        break;
    case ShowField::Url:
        m_entry->setUrl(URL::fromText(text()));
        break;
    case ShowField::Extra:
        extra();
        break;
    case ShowField::ExtraDescription:
        takePlain(extra().description, content);
        break;
    case ShowField::ExtraDescriptionRun:
        takeRun(extra().description, content);
        break;
    case ShowField::EpisodeDescription:
        extra().episodeDescription = text();
        break;
    case ShowField::ExtraDetails:
        extra().details = text();
        break;
    case ShowField::DirectedBy:
        extra().directedBy = text();
        break;
    case ShowField::Roles:
        takePlain(extra().roles, content);
        break;
    case ShowField::RolesRun:
        takeRun(extra().roles, content);
        break;
    case ShowField::ImdbUrl:
        extra().imdbURL = URL::fromText(text());
        break;
    case ShowField::TrailerUrl:
        extra().trailerURL = URL::fromText(text());
        break;
    case ShowField::ExtraLanguage:
        extra().language = text();
        break;
    case ShowField::PictureSet:
        m_pictures.emplace();
        break;
    case ShowField::Picture:
        if (auto url = URL::fromText(text()); url && m_pictures && m_pictures->size() < maximumPictures)
            m_pictures->insert(std::move(*url));
        break;
    case ShowField::FirstUnknown:
        break;
    }
}

void ShowMaker::takePlain(std::optional<AttributedText>& text, std::string_view content)
{
    text = AttributedText(textFromUtf8(content));
}

void ShowMaker::takeRun(std::optional<AttributedText>& text, std::string_view content)
{
    if (!text)
        text.emplace();
    auto run = ++m_runs <= maximumRuns ? runOf(content) : std::nullopt;
    if (run)
        text->append(std::move(run->text), std::move(run->attributes));
}

ShowElement ShowMaker::make(const ShowRow& row)
{
    m_entry->setDateTime(row.start);
    m_entry->setEndDateTime(row.end);
    m_entry->setPreviouslyShown(row.previouslyShown);
    // The language stands ahead of the texts that it converts, whatever the order of the fields.
    if (m_language)
        m_entry->setLanguage(std::move(m_language));
    if (m_title)
        m_entry->setIdentificator(*m_title);
    if (m_details)
        m_entry->setInstantDetails1(std::move(m_details));
    if (m_subtitle)
        m_entry->setSubtitle1(std::move(m_subtitle));
    if (m_description)
        m_entry->setInstantDescription1(std::move(m_description));
    // In memory of their own, so that what remembers them weakly keeps no more than their counters.
    ShowElement show{std::shared_ptr<const TVEntry>(std::move(m_entry)), row.categories, nullptr, std::nullopt};
    if (!show.categories)
        return show;
    show.extra = std::shared_ptr<const TVEntrySupplementalData>(std::move(m_extra));
    if (show.extra)
        show.pictures = std::move(m_pictures);
    return show;
}

} // namespace

void ShowRecordWriter::append(const ShowElement& show, std::string_view formerRecord)
{
    const qsizetype began = m_records.size();
    m_records.append(static_cast<qsizetype>(ShowRecord::checksumSize), '\0');
    const TVEntry& entry = *show.entry;
    const QByteArray channel = entry.channel().data();
    append(ShowField::Channel, viewOf(channel));
    append(ShowField::SourceId, entry.sourceId());
    append(ShowField::Language, entry.language());
    append(ShowField::Title, entry.identificator());
    append(ShowField::Details, entry.instantDetails1());
    append(ShowField::Subtitle, entry.subtitle1());
    append(ShowField::Description, entry.instantDescription1());
    append(ShowField::Url, entry.url());
    const int count = show.count();
    if (count > 2)
        append(show.extra ? *show.extra : TVEntrySupplementalData());
    if (count > 3) {
        append(ShowField::PictureSet, std::string_view());
        for (const URL& picture : *show.pictures)
            append(ShowField::Picture, QStringView(picture.text()));
    }
    ShowRecord(formerRecord).forEachField([this](ShowField key, std::string_view content) {
        if (key >= ShowField::FirstUnknown)
            append(key, content);
    });
    const auto fields = viewOf(m_records).substr(static_cast<std::size_t>(began) + ShowRecord::checksumSize);
    const std::uint32_t checksum = recordChecksum(fields);
    std::memcpy(m_records.data() + began, &checksum, sizeof checksum);
}

void ShowRecordWriter::append(const TVEntrySupplementalData& extra)
{
    append(ShowField::Extra, std::string_view());
    append(ShowField::ExtraDescription, ShowField::ExtraDescriptionRun, extra.description);
    append(ShowField::EpisodeDescription, extra.episodeDescription);
    append(ShowField::ExtraDetails, extra.details);
    append(ShowField::DirectedBy, extra.directedBy);
    append(ShowField::Roles, ShowField::RolesRun, extra.roles);
    append(ShowField::ImdbUrl, extra.imdbURL);
    append(ShowField::TrailerUrl, extra.trailerURL);
    append(ShowField::ExtraLanguage, extra.language);
}

void ShowRecordWriter::append(ShowField plain, ShowField run, const std::optional<AttributedText>& text)
{
    if (!text)
        return;
    if (text->isPlain()) {
        append(plain, text->isEmpty() ? QStringView(u"") : QStringView(text->runs().front().text));
        return;
    }
    for (const AttributedText::Run& each : text->runs())
        append(run, each);
}

void ShowRecordWriter::append(ShowField field, const AttributedText::Run& run)
{
    const QByteArray given = run.attributes.givenColour.toUtf8().left(255);
    const RunHead head{run.attributes.pointSize,
                       run.attributes.baselineOffset,
                       static_cast<std::uint8_t>(run.attributes.weight),
                       static_cast<std::uint8_t>(run.attributes.colour),
                       static_cast<std::uint8_t>(run.attributes.monospacedDigits),
                       static_cast<std::uint8_t>(given.size())};
    const qsizetype began = begin(field);
    m_records.append(reinterpret_cast<const char*>(&head), runHeadSize);
    m_records.append(given);
    appendUtf8(run.text);
    end(began);
}

void ShowRecordWriter::append(ShowField field, std::string_view bytes)
{
    const qsizetype began = begin(field);
    m_records.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
    end(began);
}

void ShowRecordWriter::append(ShowField field, QStringView text)
{
    const qsizetype began = begin(field);
    appendUtf8(text);
    end(began);
}

void ShowRecordWriter::append(ShowField field, const std::optional<QString>& text)
{
    if (text)
        append(field, QStringView(*text));
}

void ShowRecordWriter::append(ShowField field, const std::optional<URL>& url)
{
    if (url)
        append(field, QStringView(url->text()));
}

/// The place behind the field's size, which is known at its end.
qsizetype ShowRecordWriter::begin(ShowField field)
{
    m_records.append(static_cast<char>(field));
    m_records.append(static_cast<qsizetype>(sizeof(std::uint32_t)), '\0');
    return m_records.size();
}

void ShowRecordWriter::end(qsizetype began)
{
    const auto size = static_cast<std::uint32_t>(m_records.size() - began);
    std::memcpy(m_records.data() + began - qsizetype(sizeof size), &size, sizeof size);
}

void ShowRecordWriter::appendUtf8(QStringView text)
{
    const qsizetype began = m_records.size();
    m_records.resize(began + m_encoder.requiredSpace(text.size()));
    const char* const end = m_encoder.appendToBuffer(m_records.data() + began, text);
    m_records.truncate(end - m_records.constData());
}

bool ShowRecord::isWhole() const
{
    if (m_bytes.size() < checksumSize)
        return false;
    std::uint32_t checksum = 0;
    std::memcpy(&checksum, m_bytes.data(), sizeof checksum);
    return checksum == recordChecksum(m_bytes.substr(checksumSize));
}

ShowElement ShowRecord::show(const ShowRow& row) const
{
    ShowMaker maker;
    forEachField([&maker](ShowField key, std::string_view content) { maker.take(key, content); });
    return maker.make(row);
}

std::optional<std::string_view> ShowRecord::field(ShowField key) const
{
    std::optional<std::string_view> found;
    forEachField([&](ShowField each, std::string_view content) {
        if (each == key && !found)
            found = content;
    });
    return found;
}

std::string_view ShowRecord::textOfRun(std::string_view run)
{
    if (run.size() < runHeadSize)
        return {};
    const std::size_t behind = runHeadSize + headOf(run).givenColourSize;
    return behind > run.size() ? std::string_view() : run.substr(behind);
}

} // namespace vidora
