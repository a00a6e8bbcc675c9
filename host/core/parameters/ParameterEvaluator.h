#pragma once

#include <QSet>
#include <QString>

#include <vector>

/// Evaluates all expressions of GlobalParaMeterMgr, each after the parameters that it declares to
/// use, and writes value, raw value and value text into the records as the parameter editor does.
///
/// What cannot be settled is told in one message per bad record, or per cycle: a name that is no
/// parameter, expressions that need each other ("a -> b -> a") - these records keep their values -
/// and an expression without a finite value, whose record then holds NaN. Parameters named in
/// @p held keep their values even where they have an expression. Takes time proportional to the
/// number of parameters and declared names.
std::vector<QString> EvaluateParameters(const QSet<QString>& held = {});
