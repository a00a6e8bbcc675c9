#pragma once

#include "HostError.h"
#include "ParametersDef.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <vector>

/// Why a parameter cannot be as it was asked for: one line.
class ParameterError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(ParameterError)

public:
    using HostError::HostError;
};

/// A parameter: the record that the dialogs share, and its unit, for which that has no place.
struct ParameterEntry
{
    ParametersDef record;
    QString unit; ///< For display; never calculated with.

    const QString& Name() const { return record.m_strName; }
    /// Empty if the parameter is a plain value.
    QString Expression() const;
    /// The expression, or the exact value: "12.5", "true", "1, 2, 3".
    QString ValueText() const;
    /// The value of a Bool or Scalar that expressions use.
    double Number() const;

    /// Takes a text as the user types it: any number or expression for a Scalar, "true" or "false"
    /// for a Bool, three numbers for a Vector. @throws ParameterError
    void SetValueText(const QString& text);
    /// The component of a Vector. @throws ParameterError
    void SetComponent(int index, const QString& text);
    void SetNumber(double value);
    void SetVector(const std::array<double, 3>& components);
    std::array<double, 3> Vector() const;
    /// Converts the value as far as possible.
    void SetType(int type);

    bool operator==(const ParameterEntry& other) const;
    bool operator!=(const ParameterEntry& other) const { return !(*this == other); }
};

/// The parameters of a project, in their order.
using ParameterEntries = std::vector<ParameterEntry>;

/// A new Scalar of value 0.
ParameterEntry NewParameter(const QString& name);

/// The place of the parameter called @p name, or -1.
int FindParameter(const ParameterEntries& entries, const QString& name);

/// @throws ParameterError if no expression could use a parameter called @p name
void CheckParameterName(const QString& name);

/// Renames the parameter at @p index, also in the expressions of the others. @throws ParameterError
/// if the name is taken or cannot be used
void RenameParameter(ParameterEntries& entries, int index, const QString& name);
