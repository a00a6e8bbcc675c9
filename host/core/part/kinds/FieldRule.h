#pragma once

#include <QCoreApplication>
#include <QString>

/// Which values a field accepts.
struct FieldRule
{
    enum Unit
    {
        Millimetres,
        Degrees,
        Number,
        WholeNumber
    };

    double minimum;
    double maximum;
    Unit unit = Millimetres;
    bool exclusiveMinimum = false; ///< The minimum itself is not allowed.
    bool exclusiveMaximum = false; ///< The maximum itself is not allowed.
    bool isZeroAllowed = false;    ///< Zero is allowed although it is below the minimum.

    bool Allows(double value) const;
    /// "from 1 to 10000", "above 0 and at most 360 degrees": what follows "has to be".
    QString Text() const;
    /// A value with its unit, such as "12.5 mm"; with six digits.
    QString ValueText(double value) const;

    Q_DECLARE_TR_FUNCTIONS(FieldRule)
};
