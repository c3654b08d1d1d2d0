#include "store/ShowArchiveReader.h"

#include "content/Utf8Text.h"
#include "store/ShowArchive.h"

namespace vidora {

namespace {

constexpr int maximumDepth = 16;
// From the year 1 to the year 9999: calculations with such moments cannot overflow.
constexpr qint64 earliestInstant = -62'135'596'800'000, latestInstant = 253'402'300'799'999;

constexpr quint64 largestInteger = 0x7fff'ffff'ffff'ffff;

void require(bool condition)
{
    if (!condition)
        throw ShowArchiveReader::Malformed();
}

} // namespace

ShowArchiveReader::ShowArchiveReader(const QByteArray& bytes)
    : m_bytes(bytes)
    , m_reader(bytes)
{
}

ShowList ShowArchiveReader::readList()
{
    ShowList list;
    if (m_reader.isLengthKnown())
        list.reserve(std::min<quint64>(m_reader.length(), ShowArchive::maximumShows));
    const bool isList = readArray([&] {
        require(list.size() < ShowArchive::maximumShows);
        if (Show show = readElement())
            list.push_back(std::move(show));
    });
    require(isList && m_reader.currentOffset() == m_bytes.size());
    return list;
}

ShowList ShowArchiveReader::readFirst(std::size_t count, const std::function<bool(const TVEntry&)>& takes)
{
    ShowList list;
    try {
        require(m_reader.isArray() && m_reader.enterContainer());
        while (list.size() < count && m_reader.hasNext()) {
            Show show = readElement();
            if (show && takes(*show->entry))
                list.push_back(std::move(show));
        }
    } catch (const Malformed&) {
    }
    return list;
}

Show ShowArchiveReader::readElement()
{
    ShowElement element;
    int index = 0;
    bool whole = true; // false once a part is missing: those behind it have no place then
    readArray([&] {
        switch (whole ? index++ : -1) {
        case 0:
            element.entry = readEntry();
            whole = element.entry != nullptr;
            break;
        case 1: {
            const std::optional<qint64> bits = readInteger();
            whole = bits.has_value();
            if (bits)
                element.categories = static_cast<std::uint32_t>(*bits);
            break;
        }
        case 2:
            element.extra = readSupplementalData();
            whole = element.extra != nullptr;
            break;
        case 3:
            element.pictures = readPictures();
            break;
        default:
            skip();
        }
    });
    return element.entry ? std::make_shared<const ShowElement>(std::move(element)) : nullptr;
}

std::shared_ptr<const TVEntry> ShowArchiveReader::readEntry()
{
    if (!m_reader.isMap()) {
        skip();
        return nullptr;
    }
    auto entry = std::make_shared<TVEntry>();
    TVEntry::Text title, language, details, subtitle, description;
    readMap([&](std::string_view key) {
        if (key == "channel")
            entry->setChannel(readObjectId());
        else if (key == "realChannelId")
            entry->setSourceId(readRepeatedText(m_sourceId));
        else if (key == "lang")
            language = readRepeatedText(m_language);
        else if (key == "dateTime")
            entry->setDateTime(readInstant());
        else if (key == "endDateTime")
            entry->setEndDateTime(readInstant());
        else if (key == "title")
            title = readText();
        else if (key == "instantDetails")
            details = readText();
        else if (key == "subtitle")
            subtitle = readText();
        else if (key == "instantDescription")
            description = readText();
        else if (key == "url")
            entry->setUrl(readUrl());
        else if (key == "previouslyShown")
            entry->setPreviouslyShown(readBool());
        else
            skip();
    });
    if (!title)
        return nullptr;
    // The language stands ahead of the texts that it converts, whatever the order of the fields in the file.
    entry->setIdentificator(*title);
    if (language)
        entry->setLanguage(std::move(language));
    if (details)
        entry->setInstantDetails1(std::move(details));
    if (subtitle)
        entry->setSubtitle1(std::move(subtitle));
    if (description)
        entry->setInstantDescription1(std::move(description));
    return entry;
}

std::shared_ptr<const TVEntrySupplementalData> ShowArchiveReader::readSupplementalData()
{
    if (!m_reader.isMap()) {
        skip();
        return nullptr;
    }
    auto extra = std::make_shared<TVEntrySupplementalData>();
    readMap([&](std::string_view key) {
        if (key == "description")
            extra->description = readAttributedText();
        else if (key == "episodeDescription")
            extra->episodeDescription = readText();
        else if (key == "details")
            extra->details = readText();
        else if (key == "directedBy")
            extra->directedBy = readText();
        else if (key == "roles")
            extra->roles = readAttributedText();
        else if (key == "imdbURL")
            extra->imdbURL = readUrl();
        else if (key == "trailerURL")
            extra->trailerURL = readUrl();
        else if (key == "lang")
            extra->language = readRepeatedText(m_language);
        else
            skip();
    });
    return extra;
}

std::optional<Pictures> ShowArchiveReader::readPictures()
{
    Pictures pictures;
    const bool isArray = readArray([&] {
        spend();
        if (std::optional<URL> url = readUrl())
            pictures.insert(std::move(*url));
    });
    return isArray ? std::optional(std::move(pictures)) : std::nullopt;
}

std::optional<AttributedText> ShowArchiveReader::readAttributedText()
{
    if (!m_reader.isArray()) {
        std::optional<QString> text = readText();
        return text ? std::optional<AttributedText>(std::move(*text)) : std::nullopt;
    }
    AttributedText text;
    readArray([&] {
        spend();
        if (std::optional<AttributedText::Run> run = readRun())
            text.append(std::move(run->text), std::move(run->attributes));
    });
    return text;
}

std::optional<AttributedText::Run> ShowArchiveReader::readRun()
{
    if (!m_reader.isMap()) {
        skip();
        return std::nullopt;
    }
    using Weight = TextAttributes::Weight;
    using Colour = TextAttributes::Colour;
    AttributedText::Run run;
    readMap([&](std::string_view key) {
        if (key == "text")
            run.text = readText().value_or(QString());
        else if (key == "pointSize")
            run.attributes.pointSize = readNumber();
        else if (key == "weight")
            run.attributes.weight = static_cast<Weight>(std::clamp<qint64>(readInteger().value_or(0), 0, 2));
        else if (key == "monospacedDigits")
            run.attributes.monospacedDigits = readBool();
        else if (key == "colour")
            run.attributes.colour = static_cast<Colour>(std::clamp<qint64>(readInteger().value_or(0), 0, 4));
        else if (key == "givenColour")
            run.attributes.givenColour = readText().value_or(QString());
        else if (key == "baselineOffset")
            run.attributes.baselineOffset = readNumber();
        else
            skip();
    });
    return run;
}

template<typename Field>
void ShowArchiveReader::readMap(Field field)
{
    require(m_reader.enterContainer());
    while (m_reader.hasNext()) {
        const std::string_view key = readKey();
        require(m_reader.hasNext());
        field(key);
    }
    require(m_reader.lastError() == QCborError::NoError && m_reader.leaveContainer());
}

template<typename Item>
bool ShowArchiveReader::readArray(Item item)
{
    if (!m_reader.isArray()) {
        skip();
        return false;
    }
    require(m_reader.enterContainer());
    while (m_reader.hasNext())
        item();
    require(m_reader.lastError() == QCborError::NoError && m_reader.leaveContainer());
    return true;
}

std::optional<QString> ShowArchiveReader::readText()
{
    if (!m_reader.isString()) {
        skip();
        return std::nullopt;
    }
    const std::string_view bytes = readStringBytes();
    return textFromUtf8(bytes);
}

std::optional<QString> ShowArchiveReader::readRepeatedText(RepeatedText& last)
{
    if (!m_reader.isString()) {
        skip();
        return std::nullopt;
    }
    const std::string_view bytes = readStringBytes();
    const auto size = static_cast<qsizetype>(bytes.size());
    if (last.text.isNull() || last.bytes != QByteArray::fromRawData(bytes.data(), size)) {
        last.bytes = QByteArray(bytes.data(), size);
        last.text = textFromUtf8(bytes);
    }
    return last.text;
}

std::optional<URL> ShowArchiveReader::readUrl()
{
    const std::optional<QString> text = readText();
    return text ? URL::fromText(*text) : std::nullopt;
}

std::optional<Instant> ShowArchiveReader::readInstant()
{
    const std::optional<qint64> milliseconds = readInteger();
    if (!milliseconds || *milliseconds < earliestInstant || *milliseconds > latestInstant)
        return std::nullopt;
    return instantFromUnixMilliseconds(*milliseconds);
}

std::optional<qint64> ShowArchiveReader::readInteger()
{
    std::optional<qint64> value;
    if (m_reader.isUnsignedInteger() && m_reader.toUnsignedInteger() <= largestInteger)
        value = static_cast<qint64>(m_reader.toUnsignedInteger());
    else if (m_reader.isNegativeInteger() && quint64(m_reader.toNegativeInteger()) - 1 < largestInteger)
        value = -static_cast<qint64>(quint64(m_reader.toNegativeInteger()));
    skip();
    return value;
}

double ShowArchiveReader::readNumber()
{
    const double value = m_reader.isDouble() ? m_reader.toDouble() : 0;
    skip();
    return value >= -1000 && value <= 1000 ? value : 0;
}

bool ShowArchiveReader::readBool()
{
    const bool value = m_reader.isBool() && m_reader.toBool();
    skip();
    return value;
}

ObjectId ShowArchiveReader::readObjectId()
{
    if (m_reader.isByteArray()) {
        const std::string_view bytes = readStringBytes();
        return ObjectId::initWithData(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    }
    const std::optional<QString> hex = readText(); // the form of older archives
    return hex ? ObjectId::initWithHex(*hex) : ObjectId();
}

std::string_view ShowArchiveReader::readKey()
{
    if (!m_reader.isString()) {
        skip();
        return {};
    }
    const std::string_view bytes = readStringBytes();
    if (bytes.size() > sizeof m_key)
        return {};
    std::copy(bytes.begin(), bytes.end(), m_key); // the value's text takes the place of the key's
    return {m_key, bytes.size()};
}

std::string_view ShowArchiveReader::readStringBytes()
{
    qsizetype filled = 0;
    for (;;) {
        const qsizetype size = m_reader.currentStringChunkSize();
        require(size >= 0 && size <= m_bytes.size() - m_reader.currentOffset());
        m_string.resize(filled + size);
        const auto chunk = m_reader.readStringChunk(m_string.data() + filled, size);
        require(chunk.status != QCborStreamReader::Error);
        if (chunk.status == QCborStreamReader::EndOfString)
            return {m_string.data(), static_cast<std::size_t>(filled)};
        filled += chunk.data;
    }
}

void ShowArchiveReader::skip()
{
    while (m_reader.isTag())
        require(m_reader.next());
    require(m_reader.next(maximumDepth));
}

void ShowArchiveReader::spend()
{
    require(--m_smallObjects >= 0);
}

} // namespace vidora
