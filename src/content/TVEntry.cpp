#include "content/TVEntry.h"

#include "content/BroadcastTime.h"
#include "content/LiteralSearch.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace vidora {

namespace {

using Weight = TextAttributes::Weight;
using Colour = TextAttributes::Colour;

// Member by member: a designated initialiser of some members only is a warning to one of the compilers.
TextAttributes attributes(double pointSize, Weight weight, double baselineOffset = 0)
{
    TextAttributes result;
    result.pointSize = pointSize;
    result.weight = weight;
    result.baselineOffset = baselineOffset;
    return result;
}

TextAttributes startTimeAttributes(const QString& color)
{
    TextAttributes result = attributes(23, Weight::Semibold);
    result.monospacedDigits = true;
    result.colour = Colour::Given;
    result.givenColour = color;
    return result;
}

TextAttributes endTimeAttributes()
{
    TextAttributes result = attributes(11, Weight::Regular, 11);
    result.monospacedDigits = true;
    result.colour = Colour::LightGrey;
    return result;
}

TextAttributes titleAttributes()
{
    return attributes(18, Weight::Bold);
}

TextAttributes heartAttributes()
{
    return attributes(11, Weight::Regular, 7);
}

/// The channel whose schedule writes its own name into the title and the show into the second line.
const ObjectId& channelWithTitlesInSubtitles()
{
    static const ObjectId id = ObjectId::initWithHex(u"58f4ded60befe78cb336a80b");
    return id;
}

// 2001-01-01T00:00:00Z, from which digests have always counted.
constexpr std::int64_t digestEpochMilliseconds = 978'307'200'000;

/// Whole seconds since the epoch of digests, halves away from zero.
std::int64_t digestSeconds(Instant date)
{
    const std::int64_t milliseconds = unixMilliseconds(date) - digestEpochMilliseconds;
    return (milliseconds + (milliseconds < 0 ? -500 : 500)) / 1000;
}

void appendPart(TVEntry::Text& line, const TVEntry::Text& part)
{
    if (!part || part->isEmpty())
        return;
    if (line && !line->isEmpty())
        line = *line + QLatin1String(", ") + *part;
    else
        line = *part;
}

} // namespace

TVEntry::TVEntry() = default;
TVEntry::TVEntry(const TVEntry&) = default;
TVEntry::~TVEntry() = default;

const TVEntry::Text& TVEntry::title() const
{
    return showsSubtitleAsTitle(m_channel) ? m_subtitle : m_title;
}

bool TVEntry::showsSubtitleAsTitle(const ObjectId& channel)
{
    return channel == channelWithTitlesInSubtitles();
}

void TVEntry::setIdentificator(const QString& text)
{
    const QString identificator = replacingLiterally(text, u"\\n", u"");
    if (m_identificator != identificator) {
        m_identificator = identificator;
        m_lowercasedIdentificator = identificator.toLower();
    }
    m_title = latin2Cyrillic(m_identificator, m_language);
}

void TVEntry::setInstantDetails1(Text text)
{
    m_instantDetails1 = std::move(text);
    m_instantDetails = latin2Cyrillic(m_instantDetails1, m_language);
}

void TVEntry::setSubtitle1(Text text)
{
    m_subtitle1 = std::move(text);
    m_subtitle = latin2Cyrillic(m_subtitle1, m_language);
}

void TVEntry::setInstantDescription1(Text text)
{
    m_instantDescription1 = std::move(text);
    m_instantDescription = latin2Cyrillic(m_instantDescription1, m_language);
}

void TVEntry::setLanguage(Text language)
{
    m_language = std::move(language);
    if (m_identificator)
        setIdentificator(QString(*m_identificator));
    setInstantDetails1(m_instantDetails1);
    setSubtitle1(m_subtitle1);
    setInstantDescription1(m_instantDescription1);
}

void TVEntry::setChannel(const ObjectId& channel)
{
    m_channel = channel;
    m_caches.urlDigest.reset();
}

void TVEntry::setDateTime(std::optional<Instant> dateTime)
{
    m_dateTime = dateTime;
    m_caches.urlDigest.reset();
}

TVEntry::Text TVEntry::fullInstantDetails() const
{
    if (const QString* cached = m_caches.fullInstantDetails.get())
        return *cached;
    Text line = m_instantDetails;
    appendPart(line, m_subtitle);
    appendPart(line, m_instantDescription);
    if (!line)
        return line;
    return m_caches.fullInstantDetails.set(*line);
}

void TVEntry::appendStartTime(AttributedText& text, const QString& color) const
{
    if (m_dateTime)
        text.append(broadcastTimeText(*m_dateTime), startTimeAttributes(color));
}

AttributedText TVEntry::humanWithColor(const QString& color, bool) const
{
    AttributedText text;
    appendStartTime(text, color);
    if (m_endDateTime)
        text.append(broadcastTimeText(*m_endDateTime), endTimeAttributes());
    text.append(title().value_or(QString()), titleAttributes());
    return text;
}

AttributedText TVEntry::humanCondensedWithColor(const QString& color, bool popular) const
{
    AttributedText text;
    appendStartTime(text, color);
    text.append(QLatin1Char(' ') + title().value_or(QString()), titleAttributes());
    if (popular)
        text.append(QStringLiteral("\u2764\ufe0f"), heartAttributes());
    return text;
}

std::optional<URL> TVEntry::urlDigestWithScheme(const QString& scheme) const
{
    if (const URL* cached = m_caches.urlDigest.get())
        return *cached;
    const Instant date = m_dateTime.value_or(instantFromUnixMilliseconds(digestEpochMilliseconds));
    const std::optional<URL> url = urlDigestFromChannel(m_channel, date, m_identificator, scheme);
    if (!url)
        return url;
    return m_caches.urlDigest.set(*url);
}

std::optional<URL> TVEntry::urlDigestFromChannel(const ObjectId& channel, Instant date, const Text& identificator,
                                                 const QString& scheme)
{
    if (!identificator)
        return std::nullopt;
    const quint32 start = qToBigEndian(static_cast<quint32>(digestSeconds(date)));
    QCryptographicHash md5(QCryptographicHash::Md5);
    md5.addData(channel.data());
    md5.addData(QByteArrayView(reinterpret_cast<const char*>(&start), sizeof start));
    md5.addData(identificator->toUtf8());
    QString digest = QString::fromLatin1(md5.result().toHex());
    if (digest.front().isDigit()) // the host of an address must not begin with one
        digest.prepend(QLatin1Char('c'));
    return URL::fromText(QString(scheme + QLatin1String("://") + digest));
}

} // namespace vidora
