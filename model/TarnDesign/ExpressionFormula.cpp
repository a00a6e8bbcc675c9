#include "ExpressionFormula.h"

// Capitals only, which no function uses: A to Z, AA to ZZ, AAA and so on.
std::string ExpressionFormula::NameInText(std::size_t index)
{
    constexpr std::size_t Letters = 26;
    std::string name;
    for (std::size_t rest = index + 1; rest > 0; rest = (rest - 1) / Letters)
        name.insert(name.begin(), char('A' + (rest - 1) % Letters));
    return name;
}
