#pragma once

/// An analysis is known by a pair of codes, which CAnalysisTypeGUI asks for.
///
///     dialog.InitData(AnalysisType::MechanicsFamily, AnalysisType::VibrationKind);
namespace AnalysisType {

/// The first code of the pair.
enum Family
{
    MechanicsFamily = 1,
    /// OK of the dialog gives it; InitData() takes MechanicsFamily only.
    ComplexEigenvalueFamily = 7
};

/// The second code of the pair. There is no kind 5.
enum Kind
{
    StaticKind = 1,
    VibrationKind = 2,
    BucklingKind = 3,
    TransientKind = 4,
    FrequencyResponseKind = 6,
    ComplexEigenvalueKind = 7
};

} // namespace AnalysisType
