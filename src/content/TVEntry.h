#pragma once

#include "content/AttributedText.h"
#include "content/ObjectId.h"
#include "platform/Instant.h"
#include "platform/SetOnce.h"
#include "platform/URL.h"

#include <QString>

#include <memory>
#include <optional>

namespace vidora {

/// One broadcast: one show at one time on one channel.
///
/// Free text is kept in two forms: as the source gave it (`identificator` and the fields whose names end in 1) and as
/// it is shown (`title`, `instantDetails`, `subtitle`, `instantDescription`), which is the first in the reader's
/// alphabet. Only the raw form is archived. A parser fills a new record through the setters on its own thread; from the
/// moment it is published as `std::shared_ptr<const TVEntry>` it never changes, and any thread may read it. The two
/// caches fill at first use and are safe then.
///
/// An absent text is an empty std::optional; an empty text is a text.
class TVEntry
{
public:
    using Text = std::optional<QString>;

    TVEntry();
    /// A copy starts with empty caches and is a record of its own.
    TVEntry(const TVEntry&);
    TVEntry& operator=(const TVEntry&) = delete;
    ~TVEntry();

    /// Shown title. For the one channel whose schedule carries its titles in the second line, the shown subtitle.
    const Text& title() const;
    /// Whether this is that channel.
    static bool showsSubtitleAsTitle(const ObjectId& channel);
    const Text& instantDetails() const { return m_instantDetails; }
    const Text& subtitle() const { return m_subtitle; }
    const Text& instantDescription() const { return m_instantDescription; }

    /// The raw title: the show's identity for favourites, alarms, digests and the classifier.
    const Text& identificator() const { return m_identificator; }
    const Text& lowercasedIdentificator() const { return m_lowercasedIdentificator; }
    const Text& instantDetails1() const { return m_instantDetails1; }
    const Text& subtitle1() const { return m_subtitle1; }
    const Text& instantDescription1() const { return m_instantDescription1; }
    const Text& language() const { return m_language; }
    const Text& sourceId() const { return m_sourceId; }
    const ObjectId& channel() const { return m_channel; }
    std::optional<Instant> dateTime() const { return m_dateTime; }
    std::optional<Instant> endDateTime() const { return m_endDateTime; }
    const std::optional<URL>& url() const { return m_url; }
    bool previouslyShown() const { return m_previouslyShown; }

    /// Removes every two-character sequence of a backslash and "n", then sets title and lower-case form with it.
    void setIdentificator(const QString& text);
    void setInstantDetails1(Text text);
    void setSubtitle1(Text text);
    void setInstantDescription1(Text text);
    /// Passes the four raw texts through their setters again, so that the shown forms follow the language.
    void setLanguage(Text language);
    void setSourceId(Text sourceId) { m_sourceId = std::move(sourceId); }
    /// Both drop the cached digest.
    void setChannel(const ObjectId& channel);
    void setDateTime(std::optional<Instant> dateTime);
    void setEndDateTime(std::optional<Instant> endDateTime) { m_endDateTime = endDateTime; }
    void setUrl(std::optional<URL> url) { m_url = std::move(url); }
    void setPreviouslyShown(bool previouslyShown) { m_previouslyShown = previouslyShown; }

    /// Details, subtitle and description in one line, joined by ", ", without those that are empty. Nothing when there
    /// is none of them; empty details alone give an empty line. Kept after the first call, also when a raw field
    /// changes later.
    Text fullInstantDetails() const;

    /// Start time, end time as a small raised figure, title, with no separators. `color` names the role of the start
    /// time's colour. `popular` is accepted and not used in this form.
    AttributedText humanWithColor(const QString& color, bool popular) const;
    /// Start time, blank, title, and a heart where the show is popular.
    AttributedText humanCondensedWithColor(const QString& color, bool popular) const;

    /// The stable address of this broadcast in the application's own scheme; nothing without a title. Kept after the
    /// first call, whatever scheme later calls pass.
    std::optional<URL> urlDigestWithScheme(const QString& scheme) const;
    static std::optional<URL> urlDigestFromChannel(const ObjectId& channel, Instant date, const Text& identificator,
                                                   const QString& scheme);

    /// Sets the Cyrillic flag of the process when the device writes dates in Cyrillic; never clears it.
    static void detectAlphabet(Instant now);
    static bool cyrillicDevice();
    /// For tests and the inspection tool.
    static void setCyrillicDevice(bool cyrillic);
    /// The text in Cyrillic where language and device ask for it, else the text itself.
    static Text latin2Cyrillic(const Text& text, const Text& language);
    static std::optional<AttributedText> latin2Cyrillic(const std::optional<AttributedText>& text,
                                                        const Text& language);

private:
    /// What is computed at first use; a copy of the record computes its own.
    struct Caches
    {
        Caches() = default;
        Caches(const Caches&) {}
        SetOnce<URL> urlDigest;
        SetOnce<QString> fullInstantDetails;
    };

    /// The start time in the user's format, as the large figure that opens a row.
    void appendStartTime(AttributedText& text, const QString& color) const;

    Text m_title, m_instantDetails, m_subtitle, m_instantDescription;
    Text m_identificator, m_lowercasedIdentificator, m_instantDetails1, m_subtitle1, m_instantDescription1;
    Text m_language, m_sourceId;
    std::optional<URL> m_url;
    std::optional<Instant> m_dateTime, m_endDateTime;
    ObjectId m_channel;
    bool m_previouslyShown = false;
    Caches m_caches;
};

} // namespace vidora
