#pragma once

#include "listings/ListingParser.h"
#include "listings/Scanner.h"

#include <QByteArrayView>
#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace vidora {

/// A guide to parse the fuzzer's bytes with: fixed moments, on which the pages of the corpus have their days, and two
/// channels.
class ScannedPages
{
public:
    /// Pages stand one behind the other, with a form feed in between.
    ScannedPages(const std::uint8_t* data, std::size_t size)
        : m_pages(QString::fromUtf8(QByteArrayView(data, qsizetype(size))).split(QLatin1Char('\f')))
    {
    }

    const QStringList& pages() const { return m_pages; }

    static ChannelItems items(const char* one, const char* other)
    {
        return {{ObjectId::initWithHex(u"0102030405060708090a0b0c"), QString::fromUtf8(one), QStringLiteral("sr")},
                {ObjectId::initWithHex(u"ff02030405060708090a0b0c"), QString::fromUtf8(other), std::nullopt}};
    }

    /// Runs one scanner at both moments. Exceptions are an answer like any other.
    void scan(void (*scanner)(const ScanInput&, Drafts&), const char* one, const char* other) const
    {
        const Endpoints endpoints;
        const ChannelItems channels = items(one, other);
        for (const Instant now : moments()) {
            const FixedClock clock(now);
            Drafts drafts;
            try {
                scanner(ScanInput{m_pages, channels, now, clock, endpoints}, drafts);
            } catch (const std::exception&) {
            }
        }
    }

    static std::vector<Instant> moments()
    {
        return {*instantFromIsoText(u"2026-11-22T17:00:00Z"), *instantFromIsoText(u"2026-03-28T20:30:00Z")};
    }

private:
    QStringList m_pages;
};

} // namespace vidora
