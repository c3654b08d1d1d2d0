#pragma once

#include "listings/XMLTVEntryFinishing.h"
#include "platform/XMLEventStream.h"

#include <QStringList>

#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace vidora {

/// Which programmes of a document are wanted, and what their pictures are appended to.
class XMLTVSelection
{
public:
    /// `channels`: feed ids, empty for all. Without `pictureAddress` the text of `image` elements is not used.
    XMLTVSelection(const QStringList& channels, Instant now, std::optional<QString> pictureAddress);

    bool isWanted(std::string_view channel) const;
    Instant now() const { return m_now; }
    const std::optional<QString>& pictureAddress() const { return m_pictureAddress; }

private:
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    std::unordered_set<std::string, Hash, std::equal_to<>> m_channels;
    Instant m_now;
    std::optional<QString> m_pictureAddress;
};

/// Reads one XMLTV document as its bytes come in, and hands each wanted programme over when its element ends. Text
/// becomes UTF-16 only then. One thread at a time.
class XMLTVDocument final : private XMLEventReceiver
{
public:
    using Receiver = std::function<void(XMLTVProgramme&&)>;

    /// The selection outlives the document.
    XMLTVDocument(const XMLTVSelection& selection, Receiver receiver);

    void feed(std::string_view utf8) { m_stream.feed(utf8); }
    void finish() { m_stream.finish(); }

private:
    enum class Inside
    {
        Nothing,
        Programme,
        Title,
        Subtitle,
        Description,
        Actor,
        Director,
        Category,
        Image,
        Other
    };
    /// A text that grows piece by piece; the memory of the last programme's serves for the next.
    struct Text
    {
        std::string utf8;
        bool isSet = false;

        void append(std::string_view piece);
        void clear();
        std::optional<QString> toString() const;
    };

    void startElement(std::string_view name, const char* const* attributes) override;
    void text(std::string_view piece) override;
    void endElement(std::string_view name) override;

    void startProgramme(const char* const* attributes);
    void startChild(std::string_view name, const char* const* attributes);
    void addToTitle(std::string_view piece);
    void addToDescription(std::string_view piece);
    void finishProgramme();
    void dropProgramme();
    static Inside insideOf(std::string_view name);

    const XMLTVSelection& m_selection;
    Receiver m_receiver;
    Inside m_inside = Inside::Nothing;
    bool m_ignoreTitle = false;
    bool m_hasEntry = false;
    Text m_title, m_subtitle, m_description, m_actors, m_directors, m_category;
    std::string m_channel;
    QString m_sourceId; ///< `m_channel` as shared text: programmes of a channel mostly follow each other
    XMLTVProgramme m_programme;
    std::string m_folded;
    XMLEventStream m_stream;
};

} // namespace vidora
