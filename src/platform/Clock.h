#pragma once

#include "platform/Instant.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace vidora {

/// The present moment. The only way in which any folder but platform/ learns what time it is.
/// May be asked on any thread.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual Instant now() const = 0;
};

/// The machine's clock.
class SystemClock final : public Clock
{
public:
    Instant now() const override;
};

/// A clock that stands where it was set, for `--clock` and for tests.
class FixedClock final : public Clock
{
public:
    explicit FixedClock(Instant instant);
    Instant now() const override;
    void set(Instant instant);
    void advance(Milliseconds step);

private:
    std::atomic<std::int64_t> m_milliseconds;
};

/// Chance. The only source of random numbers outside platform/. May be asked on any thread.
class Random
{
public:
    virtual ~Random() = default;
    /// A number from 0 to bound - 1, all alike likely; bound is above 0.
    virtual std::uint32_t uniform(std::uint32_t bound) = 0;
};

class SystemRandom final : public Random
{
public:
    std::uint32_t uniform(std::uint32_t bound) override;
};

/// Waiting. Blocks the calling thread; never called on the main thread.
class Sleeper
{
public:
    virtual ~Sleeper() = default;
    virtual void sleep(Milliseconds duration) = 0;
};

class SystemSleeper final : public Sleeper
{
public:
    void sleep(Milliseconds duration) override;
    /// Ends the running sleeps, and all later ones at once. For the end of the process; any thread.
    void invalidateAndWake();

private:
    std::mutex m_mutex;
    std::condition_variable m_over;
    bool m_isOver = false;
};

} // namespace vidora
