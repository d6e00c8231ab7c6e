#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Numbers that only look random (SplitMix64): the same seed gives the same numbers everywhere,
/// which the standard library's distributions do not promise.
class HRFCorpusRandom
{
public:
    explicit HRFCorpusRandom(std::uint64_t seed) : m_state(seed) { }

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t bits = m_state;
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
        return bits ^ (bits >> 31U);
    }

    std::size_t below(std::size_t limit) { return std::size_t(next() % limit); }
    std::size_t between(std::size_t first, std::size_t last)
    {
        return first + below(last - first + 1);
    }
    template <class Item, std::size_t Count> const Item &pick(std::span<const Item, Count> items)
    {
        return items[below(items.size())];
    }

private:
    std::uint64_t m_state;
};
