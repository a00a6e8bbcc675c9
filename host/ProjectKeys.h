#pragma once

#include <QLatin1String>

#include <array>

/// The words of project files.
namespace ProjectKeys {

inline constexpr QLatin1String VersionKey("version");
inline constexpr QLatin1String TitleKey("title");
inline constexpr QLatin1String DensityKey("density");
inline constexpr QLatin1String ParametersKey("parameters");
inline constexpr QLatin1String SamplesKey("samples");
inline constexpr QLatin1String FeaturesKey("features");
inline constexpr QLatin1String ConditionsKey("conditions");
inline constexpr QLatin1String NameKey("name");
inline constexpr QLatin1String TypeKey("type");
inline constexpr QLatin1String ValueKey("value");
inline constexpr QLatin1String ExpressionKey("expression");
inline constexpr QLatin1String UsesKey("expressionParameters");
inline constexpr QLatin1String DescriptionKey("description");
inline constexpr QLatin1String ParameterKey("parameter");
inline constexpr QLatin1String MinKey("min");
inline constexpr QLatin1String MaxKey("max");
inline constexpr QLatin1String DeltaKey("delta");
inline constexpr QLatin1String SpacingKey("spacing");
inline constexpr QLatin1String ValuesKey("values");
inline constexpr QLatin1String TickedKey("ticked");

/// In the order of ParameterType.
inline constexpr std::array<QLatin1String, 4> TypeWords = {
    QLatin1String("Bool"), QLatin1String("Scalar"), QLatin1String("Vector"),
    QLatin1String("Tensor")};

/// In the order of sParaArrayData::nSampleType.
inline constexpr std::array<QLatin1String, 4> SpacingWords = {
    QLatin1String("Linear"), QLatin1String("Log10"), QLatin1String("Ln"), QLatin1String("Gauss")};

} // namespace ProjectKeys
