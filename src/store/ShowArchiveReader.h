#pragma once

#include "content/ShowElement.h"

#include <QByteArray>
#include <QCborStreamReader>
#include <QString>
#include <QVarLengthArray>

#include <functional>
#include <string_view>

namespace vidora {

/// One pass over an archived list without its checksum. Throws `Malformed` for bytes that are no list; nothing read
/// until then is used. Memory stays in proportion to the bytes, whatever they are.
class ShowArchiveReader
{
public:
    struct Malformed
    {
    };

    explicit ShowArchiveReader(const QByteArray& bytes);
    /// The list that the bytes are. Once, and not after the other one.
    ShowList readList();
    /// Of a list of which the bytes are the start: the first shows that `takes` accepts, up to `count`. Fewer where the
    /// bytes end ahead of them, which is no fault here. Once.
    ShowList readFirst(std::size_t count, const std::function<bool(const TVEntry&)>& takes);

private:
    /// Remembers the last text of a field that is mostly the same in a whole list, so that all records share it.
    struct RepeatedText
    {
        QByteArray bytes;
        QString text;
    };

    Show readElement();
    std::shared_ptr<const TVEntry> readEntry();
    std::shared_ptr<const TVEntrySupplementalData> readSupplementalData();
    std::optional<Pictures> readPictures();
    std::optional<AttributedText> readAttributedText();
    std::optional<AttributedText::Run> readRun();

    /// Calls `field` with each key; it must consume the value.
    template<typename Field>
    void readMap(Field field);
    /// Calls `item` for each item; it must consume it. For anything but an array: skips it, false.
    template<typename Item>
    bool readArray(Item item);

    std::optional<QString> readText();
    std::optional<QString> readRepeatedText(RepeatedText& last);
    std::optional<URL> readUrl();
    std::optional<Instant> readInstant();
    std::optional<qint64> readInteger();
    double readNumber();
    bool readBool();
    ObjectId readObjectId();
    std::string_view readKey();
    std::string_view readStringBytes();
    void skip();
    /// Takes one from the number of small objects that a file may make.
    void spend();

    QByteArray m_bytes;
    QCborStreamReader m_reader;
    QVarLengthArray<char, 4096> m_string;
    char m_key[24];
    RepeatedText m_sourceId, m_language;
    int m_smallObjects = 200'000;
};

} // namespace vidora
