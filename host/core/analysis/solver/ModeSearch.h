#pragma once

#include "AnalysisDefinition.h"
#include "FiniteElementModel.h"
#include "ModesTable.h"

#include <vector>

/// Finds the modes of a frequency range.
///
/// The solver knows only how many of the lowest modes to compute, so rigid-body modes and those
/// below the range come on top; where it is not clear how many these are, the search goes on.
class ModeSearch
{
public:
    ModeSearch(const FiniteElementModel& model, const FrequencyRange& range);

    /// How many of the lowest modes the solver is to compute.
    int Asked() const { return m_asked; }
    /// Goes on where an earlier search asked for @p number modes, if it had come further.
    void GoOnFrom(int number);

    /// Takes what the solver found. Returns whether the search is over; otherwise Asked() has
    /// grown. @throws ResultError if these are not as many modes as asked for
    bool Take(const ModesTable& table);

    /// The places of the modes in the range, ascending by frequency.
    const std::vector<std::size_t>& Found() const { return m_found; }

private:
    FrequencyRange m_range;
    int m_rigid;
    int m_most; // The solver needs four freedoms for each mode, and one more.
    int m_asked;
    std::vector<std::size_t> m_found;
};
