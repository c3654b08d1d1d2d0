// The classifier over 126,000 shows of three texts, next to folding these texts alone, one table look-up a unit.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "content/TVListingsCategory.h"
#include "content/TextFolding.h"

namespace vidora::bench {
namespace {

void classifier(benchmark::State& state)
{
    struct Texts
    {
        TVEntry::Text title, details, description;
    };
    std::vector<Texts> shows;
    GuideTexts guide(3);
    for (int i = 0; i < 126'000; ++i) {
        GuideTexts::Show show = guide.show(state.range(0));
        shows.push_back({show.title, show.details, show.description});
    }

    const FoldingTable& table = foldingTable(Folding::CaseAndDiacritics);
    std::array<char16_t, 4096> folded;
    const auto fold = [&](const QString& text) {
        const char16_t* units = QStringView(text).utf16();
        for (qsizetype i = 0; i < text.size(); ++i)
            folded[std::size_t(i)] = table[units[i]];
        benchmark::DoNotOptimize(folded);
    };
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([&] {
            for (const Texts& show : shows) {
                fold(*show.details);
                fold(*show.title);
                fold(*show.description);
            }
        });
        ratio.work([&] {
            for (const Texts& show : shows)
                benchmark::DoNotOptimize(
                    categoryMaskForTexts(std::nullopt, show.details, show.title, show.description));
        });
    }
    ratio.report(state, 8);
}
BENCHMARK(classifier)->ArgName("units")->Arg(100)->Arg(700)->Iterations(7)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
