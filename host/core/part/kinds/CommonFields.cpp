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

std::vector<FieldDefinition> Joined(std::vector<FieldDefinition> fields,
                                    const std::vector<FieldDefinition>& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}
