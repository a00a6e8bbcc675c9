#pragma once

#include <QString>

/// Adds the columns "locale", "text", "number" and "integer": the values that typed texts convert
/// to, under a locale with a decimal point and under one with a comma.
void AddConversionRows();

/// A number as text with all its digits. Unlike QCOMPARE of numbers, QCOMPARE of these texts treats
/// nan as equal to nan.
QString AllDigits(double value);
