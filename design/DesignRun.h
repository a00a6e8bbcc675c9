#pragma once

#include "ParameterEvaluator.h"
#include "ParameterMap.h"
#include "tarnguicommon_export.h"

#include <QSet>
#include <QString>

/// Completes the runs of DOEDlg, whose "Generate" sets every parameter outside the run to 0.
///
///     const ParameterMap design = GlobalParaMeterMgr::m_nameMapParameters;
///     DOEDlg dialog(window);
///     connect(&dialog, &DOEDlg::m_Signal_RegenerateGeo, this, [this, design] {
///         Show(DesignRun::Complete(design, DesignRun::Ticked()).faults.messages);
///         Rebuild();
///     });
///     dialog.exec();
///
/// To go back to the design, assign the copy to the store.
class TARNGUICOMMON_EXPORT DesignRun
{
public:
    DesignRun() = delete;

    /// A run that was completed.
    struct Completion
    {
        int restored = 0; ///< How many parameters have their records of the design again.
        ParameterEvaluator::Faults faults; ///< What could not be evaluated.
    };

    /// The names that are ticked in g_mapParaArrays: those that take part in the runs.
    static QSet<QString> Ticked();

    /// Gives every parameter of the store that is not @p ticked its record of @p design, and
    /// evaluates the expressions. A ticked parameter keeps the value of the run, also if it has an
    /// expression. A parameter that @p design does not have stays as it is.
    static Completion Complete(const ParameterMap& design, const QSet<QString>& ticked);
};
