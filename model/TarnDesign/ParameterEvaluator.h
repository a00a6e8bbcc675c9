#pragma once

#include "tarndesign_export.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

/// Evaluates the expressions of all parameters in GlobalParaMeterMgr, for the host: each after the
/// parameters that it uses, whatever their order.
///
///     for (const QString& message : ParameterEvaluator::Evaluate().messages)
///         Show(message);
class TARNDESIGN_EXPORT ParameterEvaluator
{
    Q_DECLARE_TR_FUNCTIONS(ParameterEvaluator)

public:
    ParameterEvaluator() = delete;

    /// What could not be evaluated.
    struct Faults
    {
        /// One line for each record that cannot be evaluated, or for each cycle ("a -> b -> a"). A
        /// value that is missing only because of another one has no line of its own.
        std::vector<QString> messages;
        /// Why a parameter has no value, by its name; also where that is a consequence.
        QHash<QString, QString> reasons;
    };

    /// Evaluates all expressions and writes value, raw value and value text into the records, as
    /// the parameter editor does.
    ///
    /// An expression may use every parameter; m_strExpressPara is not read. A record whose
    /// expression has no finite value then holds NaN: in a cycle, or with a name that is not a
    /// parameter. The parameters named in @p held keep their values even if they have an
    /// expression. Takes time proportional to the number of parameters and used names.
    static Faults Evaluate(const QSet<QString>& held = {});

    /// Writes the names of the parameters that each expression uses into its record, where the
    /// parameter editor shows them.
    static void NoteUsedParameters();
};
