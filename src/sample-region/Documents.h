#pragma once

#include "sample-region/Schedule.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

namespace vidora::region {

/// The host that some feeds name behind their descriptions.
inline constexpr std::string_view creditsHost = "www.credits.example";

/// What a document is made for.
struct DocumentRequest
{
    const Schedule& schedule;
    Instant now;          ///< the moment that its days are counted from, `dayShift` included
    int dayShift = 0;     ///< fault: days by which every date that is asked for is missed
    std::string path;     ///< decoded, without the query
    std::string date;     ///< the query's date or page, empty where there is none
    std::string key;      ///< the query's channel, empty where there is none
    std::string self;     ///< the provider's own origin
    bool sixDays = false; ///< fault: a day of the week is left out
};

/// A document as a provider sends it: bytes in the charset or container that the type names.
struct Document
{
    std::string body;
    std::string contentType;
};

/// Each makes the document of one family; nothing for a path that its provider does not have.
std::optional<Document> xmltvFeed(const DocumentRequest& request, std::string_view family);
std::optional<Document> xmltvWeek(const DocumentRequest& request);
std::optional<Document> xmltvDayFile(const DocumentRequest& request);
std::optional<Document> xmltvService(const DocumentRequest& request);
std::optional<Document> xmltvPage(const DocumentRequest& request);
std::optional<Document> portNetworkJson(const DocumentRequest& request);
std::optional<Document> palinsestoXml(const DocumentRequest& request);
std::optional<Document> barrandovPage(const DocumentRequest& request);
std::optional<Document> dskPage(const DocumentRequest& request);
std::optional<Document> jojPage(const DocumentRequest& request);
std::optional<Document> primaMaxPage(const DocumentRequest& request);
std::optional<Document> hboPage(const DocumentRequest& request, std::string_view country);
std::optional<Document> novaPage(const DocumentRequest& request);
std::optional<Document> dolceSportPage(const DocumentRequest& request);
std::optional<Document> cinestarPage(const DocumentRequest& request);
std::optional<Document> romanianPage(const DocumentRequest& request);

/// A channel together with the part of its source id that stands behind the family's prefix.
struct SourcedChannel
{
    const RegionChannel* channel;
    std::string key;
};
/// The channels that have a source of this prefix, in the order of the catalogue.
std::vector<SourcedChannel> channelsWithPrefix(std::string_view prefix);
/// The channel that has exactly this source; null for none.
const RegionChannel* channelWithSource(std::string_view sourceId);

/// The template with each "{name}" replaced by its value. Values are not looked through again.
std::string filled(std::string_view text, std::initializer_list<std::pair<std::string_view, std::string_view>> values);
/// Text with the characters that mean something in XML written as entities.
std::string escaped(std::string_view text);
std::string joined(const std::vector<std::string>& parts, std::string_view separator);
/// UTF-8 text in a charset of the C library's converter; a character that it lacks becomes "?".
std::string encoded(std::string_view text, const char* charset);

} // namespace vidora::region
