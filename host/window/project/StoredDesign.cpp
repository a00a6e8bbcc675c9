#include "StoredDesign.h"

#include "GlobalParaMeterMgr.h"
#include "NumberTexts.h"
#include "ProjectKeys.h"
#include "sParaArrayData.h"

#include <QJsonObject>
#include <QStringList>

#include <cmath>

using namespace ProjectKeys;

namespace {

// JSON has no word for what is no finite number.
QJsonValue Finite(double value)
{
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

QJsonValue ValueOf(const ParametersDef& record)
{
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        return record.m_strValue.toDouble() != 0.0;
    case ParametersDef::ScalarType:
        return Finite(GlobalParaMeterMgr::GetParameterRawValue(record.m_strName).toDouble());
    case ParametersDef::VectorType:
        return QJsonArray{record.m_dX, record.m_dY, record.m_dZ};
    default:
        return record.m_strValue;
    }
}

QJsonObject ToJson(const ParametersDef& record)
{
    QJsonObject json{{NameKey, record.m_strName}};
    if (record.m_nType >= 0 && record.m_nType < int(TypeWords.size()))
        json.insert(TypeKey, TypeWords[std::size_t(record.m_nType)]);
    const QJsonValue value = ValueOf(record);
    const QString expression = QString::fromLocal8Bit(record.m_strExpression.c_str());
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
    return json;
}

// Whether the sampling dialog fills its table with these samples when it is given their range.
bool MatchesRange(const sParaArrayData& samples)
{
    if (!(samples.dDelta > 0.0) || samples.nSampleType < 0 || samples.nSampleType > 2)
        return false;
    std::size_t count = 0;
    for (double x = samples.dMin; x <= samples.dMax; x += samples.dDelta) {
        const double sample = samples.nSampleType == 1   ? std::log10(x)
                              : samples.nSampleType == 2 ? std::log(x)
                                                         : x;
        if (count == samples.vecValues.size() ||
            ShortText(samples.vecValues[count]) != ShortText(sample))
            return false;
        ++count;
    }
    return count == samples.vecValues.size();
}

QJsonObject ToJson(const QString& name, const sParaArrayData& samples)
{
    QJsonObject json{{ParameterKey, name}, {TickedKey, samples.bChecked != 0}};
    if (MatchesRange(samples)) {
        json.insert(MinKey, samples.dMin);
        json.insert(MaxKey, samples.dMax);
        json.insert(DeltaKey, samples.dDelta);
        json.insert(SpacingKey, SpacingWords[std::size_t(samples.nSampleType)]);
        return json;
    }
    QJsonArray values;
    for (const double value : samples.vecValues)
        values.append(value);
    json.insert(ValuesKey, values);
    return json;
}

} // namespace

QJsonArray StoredParameters()
{
    QJsonArray json;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        ParametersDef named = record;
        named.m_strName = name;
        json.append(ToJson(named));
    }
    return json;
}

QJsonArray StoredSamples()
{
    const ParameterMap& parameters = GlobalParaMeterMgr::m_nameMapParameters;
    QJsonArray json;
    for (const auto& [name, samples] : g_mapParaArrays) {
        if (!samples.vecValues.empty() && parameters.count(name) != 0)
            json.append(ToJson(name, samples));
    }
    return json;
}
