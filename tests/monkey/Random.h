#pragma once

#include <QtGlobal>

#include <initializer_list>
#include <random>

/// Numbers that follow from their seeds alone, on every system.
class Random
{
public:
    explicit Random(std::initializer_list<quint32> seeds)
    {
        std::seed_seq sequence(seeds);
        m_engine.seed(sequence);
    }

    quint64 any() { return m_engine(); }
    /// 0 to `end` - 1.
    int below(int end) { return end > 0 ? int(m_engine() % quint64(end)) : 0; }
    bool oneIn(int count) { return below(count) == 0; }
    template <class Container>
    const auto& oneOf(const Container& choices)
    {
        return *(std::begin(choices) + below(int(std::size(choices))));
    }

private:
    std::mt19937_64 m_engine;
};
