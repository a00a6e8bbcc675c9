#include "ParetoFront.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

std::vector<int> ParetoFront(const Column& first, Aim firstAim, const Column& second, Aim secondAim)
{
    // What is to be made as small as possible.
    const auto x = [&](int i) {
        return firstAim == Aim::Least ? first[std::size_t(i)] : -first[std::size_t(i)];
    };
    const auto y = [&](int i) {
        return secondAim == Aim::Least ? second[std::size_t(i)] : -second[std::size_t(i)];
    };
    std::vector<int> order;
    for (int i = 0; i < int(first.size()); ++i)
        if (std::isfinite(x(i)) && std::isfinite(y(i)))
            order.push_back(i);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return x(a) < x(b) || (x(a) == x(b) && y(a) < y(b)); });
    std::vector<int> front;
    double best = std::numeric_limits<double>::infinity();
    for (int i : order) {
        const bool isEqual = !front.empty() && x(i) == x(front.back()) && y(i) == y(front.back());
        if (y(i) < best || isEqual)
            front.push_back(i);
        best = std::min(best, y(i));
    }
    return front;
}
