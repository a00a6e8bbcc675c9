#pragma once

#include <QSet>
#include <QString>

#include <vector>

/// Evaluates all expressions of GlobalParaMeterMgr, each after the parameters that it declares to
/// use, and writes value, raw value and value text into the records as the parameter editor does.
///
/// Returns one message for each record that cannot be evaluated, or for each cycle ("a -> b -> a").
/// The records of a cycle keep their values, and so does one that uses a name that is not a
/// parameter. A record whose expression has no finite value then holds NaN. The parameters named in
/// @p held keep their values even if they have an expression. Takes time proportional to the number
/// of parameters and declared names.
std::vector<QString> EvaluateParameters(const QSet<QString>& held = {});
