// A feed into stored lists, from its xz bytes, next to a bare pass over the same bytes: xz decoding that feeds expat
// with empty callbacks, in one thread. Also how far the memory rises above what the kept shows hold, and the time a
// programme.
#include "bench/GuideGenerator.h"
#include "bench/Ratio.h"
#include "listings/ListingParser.h"

#include <array>
#include <expat.h>
#include <fstream>
#include <lzma.h>
#include <malloc.h>
#include <map>

namespace vidora::bench {
namespace {

const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");
constexpr int guideDays = 14;

const QByteArray& guide(int channels)
{
    static std::map<int, QByteArray> guides;
    QByteArray& xz = guides[channels];
    if (xz.isEmpty())
        xz = guideAsXz({.channels = channels, .days = guideDays, .seed = 1, .now = now});
    return xz;
}

std::size_t barePass(const QByteArray& xz)
{
    lzma_stream stream = LZMA_STREAM_INIT;
    XML_Parser parser = XML_ParserCreate("UTF-8");
    XML_SetElementHandler(
        parser, [](void*, const char*, const char**) {}, [](void*, const char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const char*, int) {});
    std::array<std::uint8_t, 65536> output;
    std::size_t size = 0;
    lzma_ret outcome = lzma_stream_decoder(&stream, UINT64_MAX, 0);
    stream.next_in = reinterpret_cast<const std::uint8_t*>(xz.constData());
    stream.avail_in = static_cast<std::size_t>(xz.size());
    while (outcome == LZMA_OK) {
        stream.next_out = output.data();
        stream.avail_out = output.size();
        outcome = lzma_code(&stream, LZMA_FINISH);
        const std::size_t length = output.size() - stream.avail_out;
        size += length;
        XML_Parse(parser, reinterpret_cast<const char*>(output.data()), static_cast<int>(length),
                  outcome == LZMA_STREAM_END);
    }
    XML_ParserFree(parser);
    lzma_end(&stream);
    return size;
}

/// Keeps lists as the store does.
class KeptLists final : public ListingReceiver
{
public:
    void storeList(const ObjectId& channel, std::shared_ptr<const ShowList> list) override
    {
        m_shows += list->size();
        m_lists[channel] = std::move(list);
    }
    void addToSaveSchedule(const ObjectId&) override {}
    void listingsStored() override {}
    std::size_t shows() const { return m_shows; }

private:
    std::map<ObjectId, std::shared_ptr<const ShowList>> m_lists;
    std::size_t m_shows = 0;
};

ChannelItems items(int guideChannels, int wanted)
{
    ChannelItems result;
    for (int i = 0; i < wanted; ++i) {
        const int channel = i * guideChannels / wanted;
        result.push_back({ObjectId::initWithHex(QStringLiteral("%1").arg(channel + 1, 24, 16, QLatin1Char('0'))),
                          QStringLiteral("tvpc.") + QString::fromLatin1(guideChannelId(channel)),
                          QStringLiteral("hr")});
    }
    return result;
}

std::size_t readFeed(const QByteArray& xz, const ChannelItems& channels, KeptLists& lists)
{
    const FixedClock clock{now};
    const Endpoints endpoints;
    ListingParser parser{clock, endpoints, lists};
    parser.netList(channels, {Page::fromBytes(xz, Page::Container::Xz, "UTF-8")}, now, 1);
    return lists.shows();
}

double statusMiB(const char* key)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(key, 0) == 0)
            return std::stod(line.substr(std::char_traits<char>::length(key))) / 1024;
    }
    return 0;
}

/// How far the memory rises during the work above what it leaves behind.
double riseAboveKeptMiB(const QByteArray& xz, const ChannelItems& channels)
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
    KeptLists lists;
    readFeed(xz, channels, lists);
    const double peak = statusMiB("VmHWM:");
    malloc_trim(0);
    return peak - statusMiB("VmRSS:");
}

void feed(benchmark::State& state)
{
    const int channels = static_cast<int>(state.range(0));
    const int wanted = static_cast<int>(state.range(1));
    const QByteArray& xz = guide(channels);
    const ChannelItems wantedItems = items(channels, wanted);
    Ratio ratio;
    std::size_t shows = 0, size = 0;
    for (auto _ : state) {
        ratio.bare([&] { size = barePass(xz); });
        KeptLists lists;
        ratio.work([&] { shows = readFeed(xz, wantedItems, lists); });
    }
    ratio.report(state, wanted == channels ? 1.3 : 1.1);
    state.counters["shows"] = static_cast<double>(shows);
    state.counters["xml_MB"] = static_cast<double>(size) / 1e6;
    state.counters["xz_MB"] = static_cast<double>(xz.size()) / 1e6;
    state.counters["rise_MiB"] = riseAboveKeptMiB(xz, wantedItems);
    state.counters["us_a_programme"] = ratio.workSeconds() * 1e6 / (channels * guideDays * 30.0);
}
BENCHMARK(feed)
    ->ArgNames({"channels", "wanted"})
    ->Args({300, 300})
    ->Args({300, 10})
    ->Args({75, 75})
    ->Args({150, 150})
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
