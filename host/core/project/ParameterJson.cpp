#include "ParameterJson.h"

#include "JsonSection.h"
#include "NumberTexts.h"
#include "ProjectKeys.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <cmath>

using namespace ProjectKeys;

namespace {

// Value texts are exact, so that what an editor reads back is the number that stood in the file.
void ReadValue(const JsonSection& section, ParametersDef& record)
{
    if (!section.Has(ValueKey)) {
        if (record.m_strExpression.empty())
            section.Fail(JsonError::tr("has neither \"value\" nor \"expression\""));
        return;
    }
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        record.m_dValue = section.Flag(ValueKey, false) ? 1.0 : 0.0;
        record.m_strValue = ExactText(record.m_dValue);
        break;
    case ParametersDef::ScalarType:
        record.m_dValue = section.Number(ValueKey);
        record.m_strValue = ExactText(record.m_dValue);
        break;
    case ParametersDef::VectorType: {
        const std::vector<double> components = section.Numbers(ValueKey);
        if (components.size() != 3)
            section.FailAt(ValueKey, JsonError::tr("a list of three numbers"));
        record.m_dX = components[0];
        record.m_dY = components[1];
        record.m_dZ = components[2];
        record.m_strValue =
            QStringLiteral("%1,%2,%3")
                .arg(ExactText(record.m_dX), ExactText(record.m_dY), ExactText(record.m_dZ));
        break;
    }
    default:
        record.m_strValue = section.Text(ValueKey);
        break;
    }
}

// JSON cannot represent non-finite numbers.
QJsonValue Finite(double value)
{
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

QJsonValue ValueOf(const ParameterEntry& entry)
{
    const ParametersDef& record = entry.record;
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        return entry.Number() != 0.0;
    case ParametersDef::ScalarType:
        return Finite(entry.Number());
    case ParametersDef::VectorType:
        return QJsonArray{record.m_dX, record.m_dY, record.m_dZ};
    default:
        return record.m_strValue;
    }
}

} // namespace

ParameterEntry ReadParameter(const QJsonValue& value, int number)
{
    const std::initializer_list<QLatin1String> keys = {
        NameKey, TypeKey, ValueKey, UnitKey, ExpressionKey, UsesKey, DescriptionKey};
    const QString place = JsonError::tr("parameter %1").arg(number);
    const QString name = JsonSection(place, value, keys).GivenText(NameKey);
    const JsonSection section(JsonError::tr("%1, %2,").arg(place, Quoted(name)), value, keys);

    ParameterEntry entry;
    entry.unit = section.Text(UnitKey);
    ParametersDef& record = entry.record;
    record.m_strName = name;
    const QString type = section.Text(TypeKey, TypeWords[ParametersDef::ScalarType]);
    record.m_nType = CodeOf(type, TypeWords);
    if (record.m_nType < 0)
        section.Fail(JsonError::tr("has the unknown type %1").arg(Quoted(type)));
    record.m_strExpression = section.Text(ExpressionKey).toLocal8Bit().toStdString();
    record.m_strExpressPara = section.Texts(UsesKey).join(QLatin1Char(','));
    record.m_strDescription = section.Text(DescriptionKey);
    ReadValue(section, record);
    return entry;
}

QJsonObject ToJson(const ParameterEntry& entry)
{
    const ParametersDef& record = entry.record;
    QJsonObject json{{NameKey, record.m_strName}};
    if (record.m_nType >= 0 && record.m_nType < int(TypeWords.size()))
        json.insert(TypeKey, TypeWords[std::size_t(record.m_nType)]);
    const QJsonValue value = ValueOf(entry);
    const QString expression = entry.Expression();
    // An expression that has no value now may have one when it is read.
    if (expression.isEmpty() || !value.isNull())
        json.insert(ValueKey, value);
    if (!expression.isEmpty())
        json.insert(ExpressionKey, expression);
    const QStringList uses = record.m_strExpressPara.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (!uses.isEmpty())
        json.insert(UsesKey, QJsonArray::fromStringList(uses));
    if (!record.m_strDescription.isEmpty())
        json.insert(DescriptionKey, record.m_strDescription);
    if (!entry.unit.isEmpty())
        json.insert(UnitKey, entry.unit);
    return json;
}
