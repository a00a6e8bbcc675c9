#pragma once

#include "SolveReport.h"

#include <memory>

/// The modes of a flange, on the mesh of a triangle.
std::shared_ptr<const SolveReport> SampleResults();
