#pragma once

#include "AnalysisDefinition.h"

#include <QString>

#include <optional>

class QWidget;

// Run the dialogs of the library for one entry of the set-up. Each shows @p former and returns the
// entry as it was changed, or nothing if the user cancelled. Expressions are kept, and may be typed
// where the dialogs expect numbers. @throws HostError if a text is neither a number nor an
// expression with a value

std::optional<ConstraintDefinition> AskConstraint(QWidget* parent,
                                                  const ConstraintDefinition& former);
std::optional<LoadDefinition> AskLoad(QWidget* parent, const LoadDefinition& former);

/// The material library reads its files again, so materials that were not written are lost.
std::optional<PropertyDefinition> AskProperty(QWidget* parent, const PropertyDefinition& former);

/// @p former is also what the shared store holds again if the numbers are refused.
std::optional<FrequencyRange> AskFrequencies(QWidget* parent, const FrequencyRange& former);

/// The text of the mesh size; that of @p former may be empty.
std::optional<QString> AskMeshSize(QWidget* parent, const QString& former);
std::optional<LocalMeshDefinition> AskLocalMesh(QWidget* parent, const LocalMeshDefinition& former);
