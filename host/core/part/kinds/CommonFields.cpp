#include "CommonFields.h"

std::vector<FieldDefinition> PointFields(const char* x, const char* y, const char* z)
{
    return {{"x", x, "0", FieldRules::Coordinate},
            {"y", y, "0", FieldRules::Coordinate},
            {"z", z, "0", FieldRules::Coordinate}};
}

std::vector<FieldDefinition> DirectionFields()
{
    return {
        {"dx", QT_TRANSLATE_NOOP("FeatureKinds", "Direction x"), "0", FieldRules::Component},
        {"dy", QT_TRANSLATE_NOOP("FeatureKinds", "Direction y"), "0", FieldRules::Component},
        {"dz", QT_TRANSLATE_NOOP("FeatureKinds", "Direction z"), "1", FieldRules::Component},
    };
}

std::vector<FieldDefinition> AxisFields()
{
    return Joined(PointFields(QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis x"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis y"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis z")),
                  DirectionFields());
}

void MakePlaced(FeatureKind& kind)
{
    std::vector<FieldDefinition> fields = {
        {"moveX", QT_TRANSLATE_NOOP("FeatureKinds", "Move x"), "0", FieldRules::Coordinate},
        {"moveY", QT_TRANSLATE_NOOP("FeatureKinds", "Move y"), "0", FieldRules::Coordinate},
        {"moveZ", QT_TRANSLATE_NOOP("FeatureKinds", "Move z"), "0", FieldRules::Coordinate},
        {"turnX", QT_TRANSLATE_NOOP("FeatureKinds", "Turn about x"), "0", FieldRules::Turn},
        {"turnY", QT_TRANSLATE_NOOP("FeatureKinds", "Turn about y"), "0", FieldRules::Turn},
        {"turnZ", QT_TRANSLATE_NOOP("FeatureKinds", "Turn about z"), "0", FieldRules::Turn}};
    for (FieldDefinition& field : fields)
        field.isOptional = true;
    kind.fields = Joined(kind.fields, fields);
    kind.isPlaced = true;
}

std::vector<FieldDefinition> Joined(std::vector<FieldDefinition> fields,
                                    const std::vector<FieldDefinition>& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}
