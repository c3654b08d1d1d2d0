// Search over 126,000 shows of 700 units of text each, next to a bare vectorised scan over the same text folded
// beforehand.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "content/TextFolding.h"
#include "store/SearchIndex.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vidora::bench {
namespace {

constexpr std::size_t limit = 2000;

struct Guide
{
    std::shared_ptr<const ShowList> shows;
    std::vector<char16_t> folded; ///< all texts, one behind the other
};

const Guide& guide()
{
    static const Guide made = [] {
        GuideTexts texts(5);
        ShowList shows;
        std::vector<char16_t> folded;
        for (int i = 0; i < 126'000; ++i) {
            const GuideTexts::Show show = texts.show(700);
            ShowDraft draft;
            draft.entry->setIdentificator(show.title);
            draft.entry->setInstantDetails1(show.details);
            draft.categories = 0;
            draft.extra = std::make_shared<TVEntrySupplementalData>();
            draft.extra->description = AttributedText(show.description);
            for (const QString& text : {show.title, show.details, show.description})
                for (const QChar unit : FoldedText(text).units())
                    folded.push_back(unit.unicode());
            shows.push_back(std::move(draft).publish());
        }
        return Guide{std::make_shared<const ShowList>(std::move(shows)), std::move(folded)};
    }();
    return made;
}

/// Counts the places where the pattern's first and last unit fit.
std::size_t bareScan(const std::vector<char16_t>& text, const QString& pattern)
{
    const auto length = std::size_t(pattern.size());
    const auto* units = reinterpret_cast<const std::uint16_t*>(text.data());
    const std::uint16_t first = pattern.front().unicode();
    const std::uint16_t last = pattern.back().unicode();
    std::size_t count = 0;
    std::size_t i = 0;
#if defined(__SSE2__)
    const auto load = [](const std::uint16_t* from) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)); };
    const __m128i firsts = _mm_set1_epi16(short(first));
    const __m128i lasts = _mm_set1_epi16(short(last));
    for (; i + length + 8 <= text.size(); i += 8) {
        const __m128i fits = _mm_and_si128(_mm_cmpeq_epi16(load(units + i), firsts),
                                           _mm_cmpeq_epi16(load(units + i + length - 1), lasts));
        count += _mm_movemask_epi8(fits) != 0;
    }
#endif
    for (; i + length <= text.size(); ++i)
        count += units[i] == first && units[i + length - 1] == last;
    return count;
}

void measure(benchmark::State& state, const QString& typed, bool first, double atMost)
{
    const Guide& input = guide();
    const auto wanted = [](const ShowElement&) { return true; };
    SearchIndex index;
    std::size_t found = 0;
    Ratio ratio;
    for (auto _ : state) {
        if (first)
            index.clear();
        else // the keystroke ahead of the last one
            index.showsContainingPattern(input.shows, QStringView(typed).chopped(1), limit, wanted);
        ratio.bare([&] { benchmark::DoNotOptimize(bareScan(input.folded, typed)); });
        ratio.work([&] { found = index.showsContainingPattern(input.shows, typed, limit, wanted).size(); });
    }
    state.counters["found"] = double(found);
    ratio.report(state, atMost);
}

void firstQuery(benchmark::State& state, const char16_t* typed)
{
    measure(state, QString::fromUtf16(typed), true, 3);
}

void keystroke(benchmark::State& state, const char16_t* typed)
{
    measure(state, QString::fromUtf16(typed), false, 1.5);
}

BENCHMARK_CAPTURE(firstQuery, nowhere, u"kxq")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstQuery, often, u"ljubav")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, nowhere, u"sezonax")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, seldom, u"sezona sezo")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, diacritics, u"između đak")->Iterations(15)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
