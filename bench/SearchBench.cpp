// Search over the files of 300 lists, 126,000 shows of 700 units of text each, next to a bare vectorised scan over the
// same text folded beforehand, in one piece of memory and one thread.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "store/SearchIndex.h"
#include "store/ShowArchive.h"

#include <QTemporaryDir>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vidora::bench {
namespace {

constexpr std::size_t limit = 2000;

struct Guide
{
    QTemporaryDir folder;
    std::vector<std::uint8_t> folded; ///< all texts, one behind the other
    std::vector<SharedShowTable> tables;
    std::unique_ptr<const MergedList> merged;

    Guide()
    {
        GuideTexts texts(5);
        for (int channel = 0; channel < 300; ++channel) {
            ShowList shows;
            for (int i = 0; i < 420; ++i)
                shows.push_back(makeShow(texts.show(700), i));
            const QString file = folder.filePath(QString::number(channel));
            ShowArchive::archiveRootObject(shows, file);
            tables.push_back(ShowTable::openFile(file));
            QByteArray scratch;
            const auto all = FoldedTexts(*tables.back()).all(scratch);
            folded.insert(folded.end(), all->begin(), all->end());
        }
        merged = std::make_unique<const MergedList>(tables, Instant::min(), nullptr);
    }
    static Show makeShow(const GuideTexts::Show& texts, int index)
    {
        ShowDraft draft;
        draft.entry->setIdentificator(texts.title);
        draft.entry->setInstantDetails1(texts.details);
        draft.entry->setDateTime(instantFromUnixMilliseconds(index * 60'000));
        draft.entry->setEndDateTime(instantFromUnixMilliseconds((index + 1) * 60'000));
        draft.categories = 0;
        draft.extra = std::make_shared<TVEntrySupplementalData>();
        draft.extra->description = AttributedText(texts.description);
        return std::move(draft).publish();
    }
};

const Guide& guide()
{
    static const Guide made;
    return made;
}

/// Counts the places where the pattern's first and last unit fit.
std::size_t bareScan(const std::vector<std::uint8_t>& text, const SearchPattern& pattern)
{
    const std::size_t length = pattern.bytes().size();
    const std::uint8_t first = pattern.bytes().front();
    const std::uint8_t last = pattern.bytes().back();
    std::size_t count = 0;
    std::size_t i = 0;
#if defined(__SSE2__)
    const auto load = [](const std::uint8_t* from) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)); };
    const __m128i firsts = _mm_set1_epi8(char(first));
    const __m128i lasts = _mm_set1_epi8(char(last));
    for (; i + length + 16 <= text.size(); i += 16) {
        const __m128i fits = _mm_and_si128(_mm_cmpeq_epi8(load(text.data() + i), firsts),
                                           _mm_cmpeq_epi8(load(text.data() + i + length - 1), lasts));
        count += _mm_movemask_epi8(fits) != 0;
    }
#endif
    for (; i + length <= text.size(); ++i)
        count += text[i] == first && text[i + length - 1] == last;
    return count;
}

void measure(benchmark::State& state, const QString& typed, bool first, double atMost)
{
    const Guide& input = guide();
    const auto wanted = [](const ShowTable&, ShowTable::Row) { return true; };
    const MergedShows& shows = input.merged->shows();
    SearchIndex index;
    std::size_t found = 0;
    Ratio ratio;
    for (auto _ : state) {
        if (first)
            index.clear();
        else // the keystroke ahead of the last one
            index.showsContainingPattern(shows, QStringView(typed).chopped(1), limit, wanted);
        ratio.bare([&] { benchmark::DoNotOptimize(bareScan(input.folded, SearchPattern(typed))); });
        ratio.work([&] { found = index.showsContainingPattern(shows, typed, limit, wanted).size(); });
    }
    state.counters["found"] = double(found);
    ratio.report(state, atMost);
}

void firstQuery(benchmark::State& state, const char16_t* typed)
{
    measure(state, QString::fromUtf16(typed), true, 1.5);
}

void keystroke(benchmark::State& state, const char16_t* typed)
{
    measure(state, QString::fromUtf16(typed), false, 0.2);
}

BENCHMARK_CAPTURE(firstQuery, nowhere, u"kxq")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstQuery, often, u"ljubav")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, nowhere, u"sezonax")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, seldom, u"sezona sezo")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, diacritics, u"između đak")->Iterations(15)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
