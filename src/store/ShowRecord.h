#pragma once

#include "content/ShowElement.h"

#include <QByteArray>
#include <QStringConverter>

#include <cstdint>
#include <string_view>

namespace vidora {

/// The part of a show that has no fixed width, as bytes: fields in any order, each a key (one byte), a size (four) and
/// as many bytes; texts are UTF-8. A field of an unknown key is passed over. A record begins with its own checksum
/// (four bytes), since of a list only the few that are looked at are read.
enum class ShowField : std::uint8_t
{
    Channel = 1,
    SourceId,
    Language,
    Title,
    Details,
    Subtitle,
    Description,
    Url,
    Extra = 16, ///< without content: supplemental data is there, if only as an empty object
    ExtraDescription,
    ExtraDescriptionRun, ///< a piece with attributes, in order, in place of the field ahead
    EpisodeDescription,
    ExtraDetails,
    DirectedBy,
    Roles,
    RolesRun,
    ImdbUrl,
    TrailerUrl,
    ExtraLanguage,
    PictureSet = 32, ///< without content: there is a set of pictures
    Picture,
    FirstUnknown
};

/// What a show's columns say of it beside its record.
struct ShowRow
{
    std::optional<Instant> start, end;
    std::optional<std::uint32_t> categories;
    bool previouslyShown = false;
};

/// Writes records one behind the other. For one thread.
class ShowRecordWriter
{
public:
    explicit ShowRecordWriter(QByteArray& records)
        : m_records(records)
    {
    }
    /// Takes over, of the record that the show had, the fields that this version doesn't know.
    void append(const ShowElement& show, std::string_view formerRecord = {});

private:
    void append(ShowField field, std::string_view bytes);
    void append(ShowField field, QStringView text);
    void append(ShowField field, const std::optional<QString>& text);
    void append(ShowField field, const std::optional<URL>& url);
    void append(ShowField plain, ShowField run, const std::optional<AttributedText>& text);
    void append(ShowField field, const AttributedText::Run& run);
    void append(const TVEntrySupplementalData& extra);
    qsizetype begin(ShowField field);
    void end(qsizetype began);
    void appendUtf8(QStringView text);

    QByteArray& m_records;
    QStringEncoder m_encoder{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
};

/// One record. Reads any bytes: a field that leads out of the record ends it there, whatever is wrong in a field leaves
/// it unset.
class ShowRecord
{
public:
    explicit ShowRecord(std::string_view bytes)
        : m_bytes(bytes)
    {
    }
    /// Whether the checksum fits the bytes.
    bool isWhole() const;
    /// The show, its parts present from the front. The shown texts are derived anew.
    ShowElement show(const ShowRow& row) const;
    /// Content of the first field of this key.
    std::optional<std::string_view> field(ShowField key) const;
    /// Calls `visit(key, content)` for each field.
    template<typename Visit>
    void forEachField(Visit&& visit) const;
    /// The text of a run, without its attributes.
    static std::string_view textOfRun(std::string_view run);

    static constexpr std::size_t checksumSize = 4;

private:
    std::string_view m_bytes;
};

template<typename Visit>
void ShowRecord::forEachField(Visit&& visit) const
{
    constexpr std::size_t headSize = 5;
    std::string_view rest = m_bytes.substr(std::min(checksumSize, m_bytes.size()));
    while (rest.size() >= headSize) {
        std::uint32_t size = 0;
        std::memcpy(&size, rest.data() + 1, sizeof size);
        if (size > rest.size() - headSize)
            return;
        visit(static_cast<ShowField>(rest.front()), rest.substr(headSize, size));
        rest.remove_prefix(headSize + size);
    }
}

} // namespace vidora
