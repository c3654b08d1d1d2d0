#include "listings/GuideSummary.h"

#include "content/Utf8Text.h"
#include "listings/PageStream.h"
#include "listings/XMLTVToEntries.h"
#include "platform/XMLEventStream.h"

#include <cstring>
#include <set>
#include <unordered_map>

namespace vidora {

namespace {

// No guide has more; a document that claims to is not worth the memory.
constexpr std::size_t mostChannels = 100'000;
constexpr std::size_t longestName = 1'000;

std::string_view attribute(const char* const* attributes, const char* name)
{
    for (; *attributes; attributes += 2) {
        if (std::strcmp(*attributes, name) == 0)
            return attributes[1];
    }
    return {};
}

class SummaryReader final : private XMLEventReceiver
{
public:
    SummaryReader()
        : m_stream(*this)
    {
    }

    void feed(std::string_view bytes) { m_stream.feed(bytes); }

    std::optional<GuideSummary> finish()
    {
        m_stream.finish();
        if (!m_isGuide)
            return std::nullopt;
        m_summary.days = m_days.size();
        for (const auto& [id, count] : m_unclaimed)
            claim(id, count);
        return std::move(m_summary);
    }

private:
    void startElement(std::string_view name, const char* const* attributes) override
    {
        if (m_depth++ == 0)
            m_isGuide = name == "tv";
        else if (name == "channel")
            startChannel(attributes);
        else if (name == "programme")
            startProgramme(attributes);
        else if (m_channel && name == "display-name")
            startName(attributes);
        else if (m_channel && name == "icon" && !m_channel->icon && !attribute(attributes, "src").empty())
            m_channel->icon = textFromUtf8(attribute(attributes, "src"));
        m_stream.setTextWanted(m_insideName);
    }

    void text(std::string_view piece) override
    {
        if (m_insideName && m_name.size() + piece.size() <= longestName)
            m_name += piece;
    }

    void endElement(std::string_view name) override
    {
        --m_depth;
        if (m_insideName && name == "display-name") {
            const QString title = textFromUtf8(m_name).simplified();
            if (!title.isEmpty())
                m_channel->displayNames << title;
            m_insideName = false;
        } else if (m_channel && name == "channel") {
            m_byId.emplace(m_channel->id, m_summary.channels.size());
            m_summary.channels.push_back(std::move(*m_channel));
            m_channel.reset();
            m_insideName = false; // a channel may end inside its own name in a document of another kind
        }
        m_stream.setTextWanted(m_insideName);
    }

    void startChannel(const char* const* attributes)
    {
        const QString id = textFromUtf8(attribute(attributes, "id"));
        if (id.isEmpty())
            ++m_summary.channelsWithoutId;
        else if (m_byId.contains(id))
            ++m_summary.channelsTwice;
        else if (m_summary.channels.size() < mostChannels)
            m_channel = GuideChannel{id, {}, {}, {}, 0};
    }

    void startName(const char* const* attributes)
    {
        if (m_channel->displayNames.isEmpty())
            m_channel->language = textFromUtf8(attribute(attributes, "lang"));
        m_name.clear();
        m_insideName = true;
    }

    void startProgramme(const char* const* attributes)
    {
        const auto start = xmltvDate(textFromUtf8(attribute(attributes, "start")));
        const auto stop = xmltvDate(textFromUtf8(attribute(attributes, "stop")));
        if (!start || !stop) {
            ++m_summary.programmesWithoutTimes;
            return;
        }
        const QString id = textFromUtf8(attribute(attributes, "channel"));
        const auto channel = m_byId.find(id);
        m_days.insert(std::chrono::floor<std::chrono::days>(*start));
        if (channel != m_byId.end()) {
            ++m_summary.channels[channel->second].programmes;
            ++m_summary.programmes;
        } else {
            ++m_unclaimed[id]; // its channel may still come
        }
    }

    void claim(const QString& id, std::size_t count)
    {
        const auto channel = m_byId.find(id);
        if (channel == m_byId.end()) {
            m_summary.programmesOfUnknownChannels += count;
            return;
        }
        m_summary.channels[channel->second].programmes += count;
        m_summary.programmes += count;
    }

    XMLEventStream m_stream;
    GuideSummary m_summary;
    std::unordered_map<QString, std::size_t> m_byId;
    std::unordered_map<QString, std::size_t> m_unclaimed;
    std::set<std::chrono::sys_days> m_days;
    std::optional<GuideChannel> m_channel;
    std::string m_name;
    int m_depth = 0;
    bool m_isGuide = false;
    bool m_insideName = false;
};

} // namespace

std::optional<GuideSummary> readGuideSummary(const Page& page)
{
    SummaryReader reader;
    const auto feed = [&](std::string_view bytes) {
        reader.feed(bytes);
        return true;
    };
    // The user is waiting for it.
    const Page::Outcome outcome = readUtf8Ahead(page, feed, QualityOfService::UserInitiated);
    if (outcome != Page::Outcome::Complete)
        return std::nullopt;
    return reader.finish();
}

} // namespace vidora
