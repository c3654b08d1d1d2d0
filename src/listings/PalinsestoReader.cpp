#include "listings/PalinsestoReader.h"

#include "content/TVListingsCategory.h"
#include "content/TitleCase.h"
#include "content/Utf8Text.h"
#include "listings/PageScanner.h"

#include <algorithm>
#include <iterator>

namespace vidora {

namespace {

std::optional<QString> attribute(const char* const* attributes, std::string_view name)
{
    for (; *attributes; attributes += 2) {
        if (name == attributes[0])
            return textFromUtf8(attributes[1]);
    }
    return std::nullopt;
}

/// The attribute if it has exactly so many characters.
std::optional<QString> attributeOfSize(const char* const* attributes, std::string_view name, qsizetype size)
{
    auto value = attribute(attributes, name);
    return value && value->size() == size ? value : std::nullopt;
}

QString sourceIdFor(const std::optional<QString>& code)
{
    return QLatin1Char('_') + code.value_or(QStringLiteral("(null)"));
}

constexpr qsizetype timeAt = 11, timeSize = 5;

/// Between midnight and six: shows that belong to the day before.
bool isNight(QStringView time)
{
    return time[0] == QLatin1Char('0') && time[1] <= QLatin1Char('5');
}

/// What a clock shows, "yyyyMMddHHmm", in seconds since 1970 as if it were UTC. Fields out of their range count on.
std::int64_t wallClockSeconds(QStringView timestamp)
{
    const auto field = [timestamp](qsizetype at, qsizetype size) { return leadingNumber(timestamp.mid(at, size)); };
    constexpr int months = 12;
    const std::int64_t month = field(0, 4) * months + field(4, 2) - 1;
    const std::int64_t year = floorDivide(month, months);
    const std::chrono::sys_days first{std::chrono::year(static_cast<int>(year)) /
                                      static_cast<unsigned>(month - year * months + 1) / 1};
    const std::int64_t day = first.time_since_epoch().count() + field(6, 2) - 1;
    return day * daySeconds + field(8, 2) * 3600 + field(10, 2) * 60;
}

TVListingsCategory maskOf(const QString& genre, const TVEntry::Text& sourceId)
{
    using namespace category;
    static const struct
    {
        QLatin1String genre;
        TVListingsCategory mask;
    } rows[] = {
        {QLatin1String("CINEMA"), movies},
        {QLatin1String("INTRATTENIMENTO"), entertainment},
        {QLatin1String("CULTURA"), documentaries},
        {QLatin1String("FICTION/SERIE TV"), series},
        {QLatin1String("SPORT"), sports},
        {QLatin1String("INFORMAZIONE"), news},
        {QLatin1String("CARTONI ANIMATI"), children},
    };
    for (const auto& row : rows) {
        if (genre == row.genre)
            return row.mask;
    }
    // The channels for children, whose feed names genres of its own.
    const bool isForChildren =
        sourceId == QLatin1String("_KN") || sourceId == QLatin1String("_KP") || sourceId == QLatin1String("_DY");
    return isForChildren ? children : 0;
}

bool isField(std::string_view name)
{
    constexpr std::string_view fields[] = {"titolo", "descrizione", "linkScheda", "anno", "paese", "tipologia"};
    return std::find(std::begin(fields), std::end(fields), name) != std::end(fields);
}

void addToDetails(TVEntry& entry, const QString& text)
{
    const auto& details = entry.instantDetails();
    entry.setInstantDetails1(details ? QString(*details + QLatin1String(", ") + text) : text);
}

void setDescription(TVEntry& entry, const QString& text, const QLocale& locale)
{
    const QLatin1String openEnd(" - ");
    entry.setInstantDescription1(text);
    if (const QString shown = entry.instantDescription().value_or(QString()); shown.endsWith(openEnd))
        entry.setInstantDescription1(shown.chopped(openEnd.size()));
    if (const QString shown = entry.instantDescription().value_or(QString()); !shown.isEmpty())
        entry.setInstantDescription1(capitalized(shown, locale));
}

} // namespace

DraftList PalinsestoReader::takeShows()
{
    std::erase_if(m_rows,
                  [this](const ShowDraft& row) { return !row.entry->identificator() || !isWanted(*row.entry); });
    return std::move(m_rows);
}

void PalinsestoReader::append(ShowDraft row)
{
    // A row of another channel is only there for the one behind it.
    if (!m_rows.empty() && !isWanted(*m_rows.back().entry))
        m_rows.pop_back();
    m_rows.push_back(std::move(row));
}

void PalinsestoReader::startElement(std::string_view name, const char* const* attributes)
{
    if (name == "programma")
        return startProgramma(attributes);
    if (name == "giorno")
        return startGiorno(attributes);
    if (name == "canale")
        return startCanale(attributes);
    if (name == "prg")
        return startPrg(attributes);
    if (!isField(name))
        return;
    if (m_rows.empty())
        append({});
    m_field = name;
}

void PalinsestoReader::startProgramma(const char* const* attributes)
{
    constexpr qsizetype leastSize = 2, timestampSize = 12;
    const QString sourceId = sourceIdFor(attribute(attributes, "idref"));
    const auto timestamp = attributeOfSize(attributes, "timestamp", timestampSize);
    if (sourceId.size() < leastSize || !timestamp)
        return;
    ShowDraft row;
    TVEntry& entry = *row.entry;
    entry.setSourceId(sourceId);
    const std::int64_t seconds = wallClockSeconds(*timestamp);
    entry.setDateTime(Instant(Seconds(seconds - m_clock.offsetAt(seconds))));
    if (isWanted(entry)) {
        if (const auto title = attribute(attributes, "titolo"))
            entry.setIdentificator(*title);
        if (const QString title = entry.identificator().value_or(QString()); !title.isEmpty())
            entry.setIdentificator(m_locale.toUpper(title.left(1)) + m_locale.toLower(title.mid(1)));
        row.categories = categoryMaskForEntry(entry);
    }
    append(std::move(row));
}

void PalinsestoReader::startGiorno(const char* const* attributes)
{
    constexpr qsizetype dateSize = 10;
    auto date = attributeOfSize(attributes, "data", dateSize);
    if (!date)
        return;
    ShowDraft row;
    // Noon, so that the first show of a night is known to follow the day.
    row.entry->setDateTime(
        m_form.date(QString(date->replace(QLatin1Char('/'), QLatin1Char('-')) + QLatin1String("T12:00:00"))));
    append(std::move(row));
}

void PalinsestoReader::startCanale(const char* const* attributes)
{
    const TVEntry* last = lastEntry();
    if (!last)
        return;
    ShowDraft row;
    row.entry->setDateTime(last->dateTime());
    row.entry->setSourceId(sourceIdFor(attribute(attributes, "id")));
    append(std::move(row));
}

void PalinsestoReader::startPrg(const char* const* attributes)
{
    const TVEntry* last = lastEntry();
    const auto start = attributeOfSize(attributes, "orainizio", timeSize);
    if (!start || !last || !last->dateTime())
        return;
    ShowDraft row;
    TVEntry& entry = *row.entry;
    entry.setSourceId(last->sourceId());
    QString date = m_form.text(*last->dateTime());
    if (isNight(*start) && !isNight(QStringView(date).mid(timeAt)))
        date = m_form.text(*last->dateTime() + dayStep);
    entry.setDateTime(m_form.date(date.replace(timeAt, timeSize, *start)));
    if (const auto end = attributeOfSize(attributes, "orafine", timeSize))
        entry.setEndDateTime(m_form.date(date.replace(timeAt, timeSize, *end)));
    entry.setPreviouslyShown(attribute(attributes, "primaTv") == QLatin1String("No"));
    append(std::move(row));
}

void PalinsestoReader::text(std::string_view piece)
{
    if (!m_text)
        m_text.emplace();
    m_text->append(piece);
}

void PalinsestoReader::endElement(std::string_view name)
{
    if (m_text && name == m_field && *m_text != "--")
        endField(name, textFromUtf8(*m_text));
    m_text.reset();
}

void PalinsestoReader::endField(std::string_view name, const QString& text)
{
    if (m_rows.empty())
        append({});
    TVEntry& entry = *lastEntry();
    if (!isWanted(entry))
        return;
    if (name == "titolo") {
        entry.setIdentificator(text);
        if (const QString title = entry.identificator().value_or(QString()); !title.isEmpty())
            entry.setIdentificator(capitalized(title, m_locale));
    } else if (name == "linkScheda") {
        entry.setUrl(URL::fromText(text));
    } else if (name == "descrizione") {
        setDescription(entry, text, m_locale);
    } else if (name == "paese") {
        addToDetails(entry, capitalized(text, m_locale));
    } else if (name == "anno") {
        addToDetails(entry, text);
    } else {
        m_rows.back() = {m_rows.back().entry, maskOf(text, entry.sourceId()), nullptr, std::nullopt};
    }
}

} // namespace vidora
