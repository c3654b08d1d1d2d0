#include "listings/BarrandovPopUps.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace vidora {

namespace {

constexpr QStringView popUpMarker = u"<div class=\"remodal\" data-remodal-id=\"modal";
constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

} // namespace

BarrandovPopUps::BarrandovPopUps(const PageScanner& page)
{
    for (const PageScanner::Match& marker : page.findAll(popUpMarker, 0, page.size())) {
        const auto quote = page.find(u"\"", marker.end);
        m_sorted.push_back({page.slice(marker.end, quote ? quote->at : page.size()), marker.at});
    }
    std::sort(m_sorted.begin(), m_sorted.end(), [](const PopUp& a, const PopUp& b) {
        const int order = a.code.compare(b.code);
        return order != 0 ? order < 0 : a.at < b.at;
    });
    m_inPage.resize(m_sorted.size());
    std::iota(m_inPage.begin(), m_inPage.end(), std::size_t(0));
    std::sort(m_inPage.begin(), m_inPage.end(),
              [this](std::size_t a, std::size_t b) { return m_sorted[a].at < m_sorted[b].at; });
    restart();
}

void BarrandovPopUps::restart()
{
    const std::size_t count = m_sorted.size();
    m_passed = 0;
    m_tournament.resize(2 * count);
    for (std::size_t i = 0; i < count; ++i)
        m_tournament[count + i] = i;
    for (std::size_t node = count; node-- > 1;)
        m_tournament[node] = earlier(m_tournament[2 * node], m_tournament[2 * node + 1]);
}

std::size_t BarrandovPopUps::earlier(std::size_t a, std::size_t b) const
{
    if (a == none || b == none)
        return std::min(a, b);
    return m_sorted[a].at < m_sorted[b].at ? a : b;
}

void BarrandovPopUps::pass(qsizetype position)
{
    for (; m_passed < m_inPage.size() && m_sorted[m_inPage[m_passed]].at < position; ++m_passed) {
        std::size_t node = m_sorted.size() + m_inPage[m_passed];
        m_tournament[node] = none;
        while ((node /= 2) >= 1)
            m_tournament[node] = earlier(m_tournament[2 * node], m_tournament[2 * node + 1]);
    }
}

std::optional<qsizetype> BarrandovPopUps::find(QStringView code) const
{
    const auto first = std::partition_point(m_sorted.begin(), m_sorted.end(),
                                            [code](const PopUp& popUp) { return popUp.code < code; });
    const auto last =
        std::partition_point(first, m_sorted.end(), [code](const PopUp& popUp) { return popUp.code.startsWith(code); });
    std::size_t found = none;
    std::size_t low = m_sorted.size() + std::size_t(first - m_sorted.begin());
    std::size_t high = m_sorted.size() + std::size_t(last - m_sorted.begin());
    for (; low < high; low /= 2, high /= 2) {
        if (low % 2 == 1)
            found = earlier(found, m_tournament[low++]);
        if (high % 2 == 1)
            found = earlier(found, m_tournament[--high]);
    }
    if (found == none)
        return std::nullopt;
    return m_sorted[found].at + popUpMarker.size() + code.size();
}

} // namespace vidora
