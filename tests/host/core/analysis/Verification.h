#pragma once

#include <QFile>
#include <QTest>

#include <cmath>

/// Compares a computed value with that of the theory: fails where it is off by more than
/// @p allowed, as a part of the theory's value.
///
/// Appends a row of the table in docs/verification.md to the file that the environment variable
/// TARN_VERIFICATION_TABLE names.
inline void Verify(const QString& model, const QString& quantity, double theory, double computed,
                   double allowed)
{
    const double error = computed / theory - 1.0;
    const QString row =
        QString("| %1 | %2 | %3 | %4 | %5 |")
            .arg(model, quantity, QString::number(theory, 'g', 6),
                 QString::number(computed, 'g', 6), QString::asprintf("%+.2f %%", 100.0 * error));
    const QString path = qEnvironmentVariable("TARN_VERIFICATION_TABLE");
    if (!path.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append));
        file.write(row.toUtf8() + '\n');
    }
    QVERIFY2(std::abs(error) <= allowed, qPrintable(row));
}
