#pragma once

#include <atomic>
#include <memory>

namespace vidora {

/// A value that is computed at its first use and stays: the cache of an otherwise immutable object. Any number of
/// threads may read and set; the first value set wins. `reset` is for the time when only one thread knows the object.
template<typename Value>
class SetOnce
{
public:
    SetOnce() = default;
    SetOnce(const SetOnce&) = delete;
    SetOnce& operator=(const SetOnce&) = delete;
    ~SetOnce() { reset(); }

    const Value* get() const { return m_value.load(std::memory_order_acquire); }

    const Value& set(Value value) const
    {
        auto fresh = std::make_unique<const Value>(std::move(value));
        const Value* expected = nullptr;
        if (m_value.compare_exchange_strong(expected, fresh.get(), std::memory_order_acq_rel))
            return *fresh.release();
        return *expected;
    }

    void reset() { delete m_value.exchange(nullptr); }

private:
    mutable std::atomic<const Value*> m_value = nullptr;
};

} // namespace vidora
