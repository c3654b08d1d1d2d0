// The door of all documents: the first byte names the listing type ("0" to "9", ":" for 10, ";" for 11), the pages
// follow. Whatever they hold, the lists that reach the store are in order.
#include "ScannedPages.h"

#include <cstdlib>

using namespace vidora;

namespace {

constexpr const char* sourceIds[][2] = {
    {"12", "10058"},
    {"one", "two"},
    {"_D1", "_C5"},
    {"barrandov.Barrandov Krimi", "barrandov.Barrandov"},
    {"dsk.film", "dsk.doku"},
    {"joj.cinema", "joj.other"},
    {"max.prima.example", "x"},
    {"-hbo.hr.1", "-hbo.hr.2"},
    {"cz.nova.nova", "cz.nova.cinema"},
    {"dolce-sport.1", "dolce-sport.2"},
    {"cinestar.hr.11", "cinestar.rs.3"},
    {"cc.romania", "cc.romania"},
    {"", ""},
};

class OrderedLists final : public ListingReceiver
{
public:
    explicit OrderedLists(Instant now)
        : m_now(now)
    {
    }

    void storeList(const ObjectId& channel, std::shared_ptr<const ShowList> list) override
    {
        if (list->empty() || list->front()->entry->endDateTime() <= m_now)
            std::abort();
        for (std::size_t i = 0; i < list->size(); ++i) {
            const TVEntry& entry = *(*list)[i]->entry;
            if (entry.channel() != channel || !entry.dateTime())
                std::abort();
            if (i > 0 && (*list)[i - 1]->entry->dateTime() >= entry.dateTime())
                std::abort();
        }
    }
    void addToSaveSchedule(const ObjectId&) override {}
    void listingsStored() override {}

private:
    Instant m_now;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::size_t type = std::min<std::size_t>(data[0] - std::size_t('0'), std::size(sourceIds) - 1);
    const ScannedPages scanned(data + 1, size - 1);
    Pages pages;
    for (const QString& text : scanned.pages())
        pages.push_back(Page::fromText(text));
    const Endpoints endpoints;
    for (const Instant now : ScannedPages::moments()) {
        const FixedClock clock(now);
        OrderedLists receiver(now);
        try {
            ListingParser(clock, endpoints, receiver)
                .netList(ScannedPages::items(sourceIds[type][0], sourceIds[type][1]), pages, now,
                         static_cast<std::uint32_t>(type));
        } catch (const std::exception&) {
        }
    }
    return 0;
}
