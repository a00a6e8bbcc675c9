#pragma once

#include "ParameterMap.h"
#include "tarndesign_export.h"

#include <QString>
#include <QVariant>

#include <vector>

/// The process-wide store of the global design parameters.
///
/// Host and dialogs read and change the records in place; there is no lock, everything runs on the
/// GUI thread. Nothing is loaded or saved here.
class TARNDESIGN_EXPORT GlobalParaMeterMgr
{
public:
    GlobalParaMeterMgr() = delete;

    /// Enters @p record under @p name; a record of that name is replaced and keeps its place.
    static void AddParameter(QString name, ParametersDef record);

    /// What expressions see of @p name: the raw value, or the numeric value of a record whose raw
    /// value is not set. An unknown name gives 0.0 and is not entered.
    static QVariant GetParameterRawValue(QString name);

    /// All names, in the order in which they were first added.
    static std::vector<QString> GetAllParametersName();

    static ParameterMap m_nameMapParameters; ///< The records, open to in-place changes.
};
