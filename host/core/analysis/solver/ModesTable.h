#pragma once

#include "ResultError.h"

#include <QByteArray>

#include <array>
#include <vector>

/// One mode of vibration.
struct Mode
{
    /// Along x, y, z in t, then about x, y, z in t mm2.
    using Masses = std::array<double, 6>;

    double frequency = 0.0; ///< In Hz; 0 for a rigid-body mode whose eigenvalue is below 0.
    Masses effectiveMass{};
};

/// The tables of modes that the solver prints.
struct ModesTable
{
    std::vector<Mode> modes; ///< In the solver's order.
    /// What the effective masses of all modes of the model add up to; zero if it is not printed.
    Mode::Masses totalMass{};
};

/// Reads the text of a ".dat" file. A file without the table of eigenvalues has no modes.
/// @throws ResultError if a table is damaged
ModesTable ReadModesTable(const QByteArray& text);
