#pragma once

#include <vector>

/// The values of a column of a results table, one for each run. A run without a value has NaN.
using Column = std::vector<double>;
using Columns = std::vector<Column>;
