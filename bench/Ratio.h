#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <limits>

namespace vidora::bench {

/// How much longer a piece of work takes than a bare pass over the same input. Both run in turn, in every iteration, so
/// that a machine that slows down slows both; the fastest run of each counts.
class Ratio
{
public:
    template<typename Pass>
    void bare(Pass&& pass)
    {
        m_bare = std::min(m_bare, seconds(pass));
    }
    template<typename Work>
    void work(Work&& work)
    {
        m_work = std::min(m_work, seconds(work));
    }

    double workSeconds() const { return m_work; }

    void report(benchmark::State& state, double atMost) const
    {
        state.counters["bare_ms"] = m_bare * 1e3;
        state.counters["work_ms"] = m_work * 1e3;
        state.counters["ratio"] = m_work / m_bare;
        state.counters["at_most"] = atMost;
    }

private:
    template<typename Function>
    static double seconds(Function&& function)
    {
        const auto start = std::chrono::steady_clock::now();
        function();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    double m_bare = std::numeric_limits<double>::infinity();
    double m_work = std::numeric_limits<double>::infinity();
};

} // namespace vidora::bench
