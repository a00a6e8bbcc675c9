#pragma once

#include "ParametersDef.h"
#include "SampleSpacing.h"

#include <QString>

#include <algorithm>
#include <array>

/// The words of project files.
namespace ProjectKeys {

inline const QLatin1String VersionKey("version");
inline const QLatin1String TitleKey("title");
inline const QLatin1String DensityKey("density");
inline const QLatin1String ParametersKey("parameters");
inline const QLatin1String SamplesKey("samples");
inline const QLatin1String FeaturesKey("features");
inline const QLatin1String ConditionsKey("conditions");
inline const QLatin1String MaterialKey("material");
inline const QLatin1String AnalysisKey("analysis");
inline const QLatin1String StudyKey("study");
inline const QLatin1String NameKey("name");
inline const QLatin1String TypeKey("type");
inline const QLatin1String ValueKey("value");
inline const QLatin1String UnitKey("unit");
inline const QLatin1String ExpressionKey("expression");
inline const QLatin1String UsesKey("expressionParameters");
inline const QLatin1String DescriptionKey("description");
inline const QLatin1String ParameterKey("parameter");
inline const QLatin1String MinKey("min");
inline const QLatin1String MaxKey("max");
inline const QLatin1String DeltaKey("delta");
inline const QLatin1String SpacingKey("spacing");
inline const QLatin1String ValuesKey("values");
inline const QLatin1String TickedKey("ticked");

/// In the order of ParametersDef::Type.
inline const std::array<QLatin1String, 4> TypeWords = {
    QLatin1String("Bool"), QLatin1String("Scalar"), QLatin1String("Vector"),
    QLatin1String("Tensor")};

/// In the order of SampleSpacing::Code.
inline const std::array<QLatin1String, 4> SpacingWords = {
    QLatin1String("Linear"), QLatin1String("Log10"), QLatin1String("Ln"), QLatin1String("Gauss")};

/// The place of @p word in the list, or -1.
template<std::size_t Size>
int CodeOf(const QString& word, const std::array<QLatin1String, Size>& words)
{
    const auto place = std::find(words.begin(), words.end(), word);
    return place == words.end() ? -1 : int(place - words.begin());
}

} // namespace ProjectKeys
