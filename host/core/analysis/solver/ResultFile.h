#pragma once

#include "ResultError.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

/// One field of results, such as the displacements of a mode.
struct ResultField
{
    QString name;      ///< "DISP" or "STRESS".
    double step = 0.0; ///< The frequency of a mode in Hz; the time of a static step.
    std::size_t components = 0;
    std::vector<int> nodes;     ///< Their numbers, in the file's order.
    std::vector<double> values; ///< Component by component, node by node.
};

/// An element, as the solver wrote it: shells have become solids.
struct ResultElement
{
    int id = 0;
    std::vector<int> nodes;
};

/// A ".frd" file.
struct ResultFile
{
    std::vector<ResultElement> elements;
    std::vector<ResultField> fields; ///< Displacements and stresses.
};

/// Reads the text of a ".frd" file. @throws ResultError if it is damaged or not complete
ResultFile ReadResultFile(const QByteArray& text);
