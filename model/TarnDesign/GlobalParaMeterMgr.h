#pragma once

#include "ParameterMap.h"
#include "tarndesign_export.h"

#include <QString>
#include <QVariant>

#include <vector>

/// The process-wide store of the global design parameters.
///
/// Host and dialogs read and change the records in place. There is no lock: everything runs on the
/// GUI thread. The store does not load or save anything.
class TARNDESIGN_EXPORT GlobalParaMeterMgr
{
public:
    GlobalParaMeterMgr() = delete;

    /// Adds @p record under @p name. If there is one already, replaces it in its place.
    static void AddParameter(QString name, ParametersDef record);

    /// The value that expressions use for @p name: the raw value, or the numeric value if the raw
    /// value is not set. Returns 0.0 for an unknown name, without adding it.
    static QVariant GetParameterRawValue(QString name);

    /// All names, in the order in which they were first added.
    static std::vector<QString> GetAllParametersName();

    static ParameterMap m_nameMapParameters; ///< The records, open to in-place changes.
};
