#pragma once

#include "AnalysisDefinition.h"
#include "sConstrainData.h"
#include "sLoadForceData.h"

// Between the set-up of a project and the records that the dialogs edit. The names in records are
// in the local 8-bit code page.

sConstrainData ToRecord(const ConstraintDefinition& constraint);
/// The targets are those of @p former.
ConstraintDefinition FromRecord(const sConstrainData& record,
                                const ConstraintDefinition& former = {});

/// Expressions become their values, or 0 if they have none.
sLoadForceData ToRecord(const LoadDefinition& load);
/// The targets are those of @p former, and so is each component whose value is still that of its
/// expression.
LoadDefinition FromRecord(const sLoadForceData& record, const LoadDefinition& former = {});

/// The properties in KVPropertyData in the order of @p former, then the others. Their faces are
/// those of @p former, and so is each thickness whose value is still that of its expression.
std::vector<PropertyDefinition> StoredProperties(const std::vector<PropertyDefinition>& former);

/// Puts @p properties into KVPropertyData. Records of the same name stay and are changed in place.
void StoreProperties(const std::vector<PropertyDefinition>& properties);

/// Removes all other properties from KVPropertyData, and from the file of the working directory, so
/// that reading it does not bring them back.
void RemoveOtherProperties(const std::vector<PropertyDefinition>& properties);
