#pragma once

#include <QtGlobal>

#include <random>

/// The random numbers of a long run: the same seed gives the same run.
class Dice
{
public:
    explicit Dice(quint64 seed)
        : m_engine(seed)
    {
    }

    /// A number from 0 to @p count - 1.
    int Below(int count) { return int(m_engine() % quint64(count)); }

    /// True once in @p count calls on average.
    bool OneIn(int count) { return Below(count) == 0; }

    template<class List>
    auto Pick(const List& list)
    {
        return list[decltype(list.size())(Below(int(list.size())))];
    }

private:
    std::mt19937_64 m_engine;
};
