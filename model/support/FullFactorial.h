#pragma once

/// @file
/// The runs of a full-factorial design: the rule of the DOE dialog, without the dialog.

#include <cstddef>
#include <vector>

/// Every combination of the samples of several parameters, a list of samples for each.
///
/// Runs are counted from 0. They are in the order of an odometer: the last list turns fastest.
class FullFactorial
{
public:
    static constexpr std::size_t MaximumRuns = 1000000;
    static constexpr std::size_t MaximumValues = 20 * MaximumRuns; ///< Runs times lists.

    explicit FullFactorial(std::vector<std::vector<double>> lists = {});

    std::size_t ListCount() const { return m_lists.size(); }

    /// The product of the lists' lengths; 0 without lists. A product that does not fit the type
    /// gives its greatest number.
    std::size_t RunCount() const { return m_runCount; }

    /// Whether MaximumRuns or MaximumValues is exceeded.
    bool IsTooLarge() const;

    /// The values of a run below RunCount(), one of each list.
    std::vector<double> Run(std::size_t index) const;

private:
    std::vector<std::vector<double>> m_lists;
    std::size_t m_runCount = 0;
};
