#include "FieldValues.h"

#include "BuildError.h"
#include "CommonFields.h"
#include "ExpressionEngine.h"
#include "FeatureKind.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "NumberTexts.h"

#include <cmath>

namespace {

// Shows the text of an expression beside the label.
QString Shown(const QString& label, const QString& text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber ? label : QStringLiteral("%1 (%2)").arg(label, Quoted(text));
}

} // namespace

FieldValues::FieldValues()
{
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        if (record.m_nType == ParametersDef::BoolType ||
            record.m_nType == ParametersDef::ScalarType)
            m_variables[name.toLocal8Bit().toStdString()] =
                GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
    }
}

double FieldValues::Evaluate(const QString& text)
{
    return ExpressionEngine::CalculateExpress(text.toLocal8Bit().toStdString(), m_variables);
}

std::vector<double> FieldValues::Of(const Feature& feature)
{
    std::vector<double> values;
    const std::vector<FieldDefinition>& fields = feature.kind->fields;
    values.reserve(fields.size());
    for (const FieldDefinition& field : fields) {
        const QString& text = feature.fields.at(int(values.size()));
        if (feature.HasReferences() && feature.kind->IsPosition(field)) {
            values.push_back(0.0);
            continue;
        }
        const QString label = field.Label();
        const double value = Evaluate(text);
        if (std::isnan(value))
            throw FeatureError(feature.name,
                               BuildError::tr("%1 (%2) has no value: %3.")
                                   .arg(label, Quoted(text), ExpressionEngine::LastError()));
        if (!field.rule.Allows(value))
            throw FeatureError(feature.name,
                               BuildError::tr("%1 is %2, but has to be %3.")
                                   .arg(Shown(label, text), ShortText(value), field.rule.Text()));
        values.push_back(value);
    }
    return values;
}

FaceTarget FieldValues::Of(const FaceReference& reference)
{
    FaceTarget target;
    target.name = reference.name;
    if (reference.IsPoint())
        target.at = Point(reference.at);
    return target;
}

EdgeTarget FieldValues::Of(const EdgeReference& reference)
{
    EdgeTarget target;
    for (const FaceReference& face : reference.between)
        target.between.push_back(Of(face));
    if (reference.IsPoint())
        target.at = Point(reference.at);
    return target;
}

Outline FieldValues::Of(const Profile& profile)
{
    Outline outline;
    for (const ProfileCorner& corner : profile) {
        OutlineCorner place;
        place.point = gp_Pnt2d(Coordinate(corner.x), Coordinate(corner.y));
        if (corner.IsArc())
            place.via = gp_Pnt2d(Coordinate(corner.viaX), Coordinate(corner.viaY));
        outline.push_back(place);
    }
    return outline;
}

std::array<double, 3> FieldValues::Point(const PointTexts& texts)
{
    return {Coordinate(texts[0]), Coordinate(texts[1]), Coordinate(texts[2])};
}

double FieldValues::Coordinate(const QString& text)
{
    const double value = Evaluate(text);
    if (std::isnan(value))
        throw BuildError(BuildError::tr("the coordinate %1 of a point has no value: %2.")
                             .arg(Quoted(text), ExpressionEngine::LastError()));
    if (!FieldRules::Coordinate.Allows(value))
        throw BuildError(BuildError::tr("the coordinate %1 of a point is %2, but has to be %3.")
                             .arg(Quoted(text), ShortText(value), FieldRules::Coordinate.Text()));
    return value;
}
