#pragma once

#include "content/ShowElement.h"
#include "listings/DateFormatter.h"
#include "platform/DeviceSettings.h"
#include "platform/XMLEventStream.h"

#include <optional>
#include <string>

namespace vidora {

/// Reads the Italian schedules in both of their dialects, for one channel: a flat one, where an element's attributes
/// are a show, and a nested one of days, channels and shows with a text element for each field.
///
/// Every element that stands for a show, a channel or a day makes a row, and inherits from the row ahead of it. Texts
/// count from the last end of an element on, so white space in front of a field's element belongs to the field.
class PalinsestoReader final : public XMLEventReceiver
{
public:
    /// `sourceId`: the channel that is wanted; outlives the reader.
    explicit PalinsestoReader(const QString& sourceId)
        : m_sourceId(sourceId)
    {
    }

    /// The rows of the wanted channel that have a title, in the order of the document. To be called once.
    DraftList takeShows();

    void startElement(std::string_view name, const char* const* attributes) override;
    void text(std::string_view piece) override;
    void endElement(std::string_view name) override;

private:
    void startProgramma(const char* const* attributes);
    void startGiorno(const char* const* attributes);
    void startCanale(const char* const* attributes);
    void startPrg(const char* const* attributes);
    void endField(std::string_view name, const QString& text);

    bool isWanted(const TVEntry& entry) const { return entry.sourceId() == m_sourceId; }
    /// Nothing when there is no row.
    TVEntry* lastEntry() { return m_rows.empty() ? nullptr : m_rows.back().entry.get(); }
    void append(ShowDraft row);

    const QString& m_sourceId;
    const QLocale m_locale = DeviceSettings::locale();
    DateFormatter m_form{QStringLiteral("yyyy-MM-dd'T'HH:mm:ss"), QTimeZone("Europe/Rome")};
    WallClock m_clock{QTimeZone("Europe/Rome")};
    DraftList m_rows; ///< those of the wanted channel, and the last row
    std::string m_field;
    std::optional<std::string> m_text;
};

} // namespace vidora
