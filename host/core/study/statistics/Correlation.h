#pragma once

#include "Column.h"

/// How closely two columns of equal length follow a straight line: Pearson's coefficient, from -1
/// to 1, over the runs that have both values. NaN if one of them does not vary.
double Correlation(const Column& first, const Column& second);

/// The same for the ranks of the values, equal values sharing their mean rank: Spearman's
/// coefficient. It is 1 or -1 for any relation that only rises or only falls.
double RankCorrelation(const Column& first, const Column& second);
