#include "SampleListJson.h"

#include "JsonSection.h"
#include "ProjectKeys.h"

#include <QJsonObject>

using namespace ProjectKeys;

namespace {

SampleRange ReadRange(const JsonSection& section)
{
    SampleRange range;
    range.min = section.Number(MinKey);
    range.max = section.Number(MaxKey);
    range.step = section.Number(DeltaKey);
    const QString fault = FaultText(range.FindFault());
    if (!fault.isEmpty())
        section.Fail(fault);

    const QString word = section.Text(SpacingKey, SpacingWords[SampleSpacing::Linear]);
    range.spacing = CodeOf(word, SpacingWords);
    if (range.spacing < 0)
        section.Fail(JsonError::tr("has the unknown spacing %1").arg(Quoted(word)));
    return range;
}

QJsonObject ToJson(const SampleList& list)
{
    QJsonObject json{{ParameterKey, list.parameter}, {TickedKey, list.ticked}};
    if (list.values.empty()) {
        json.insert(MinKey, list.range.min);
        json.insert(MaxKey, list.range.max);
        json.insert(DeltaKey, list.range.step);
        json.insert(SpacingKey, SpacingWords[std::size_t(list.range.spacing)]);
        return json;
    }
    QJsonArray values;
    for (const double value : list.values)
        values.append(value);
    json.insert(ValuesKey, values);
    return json;
}

} // namespace

SampleList ReadSampleList(const QJsonValue& value, int number)
{
    const std::initializer_list<QLatin1String> keys = {ParameterKey, MinKey,    MaxKey,   DeltaKey,
                                                       SpacingKey,   ValuesKey, TickedKey};
    const QString place = JsonError::tr("sample list %1").arg(number);
    const QString name = JsonSection(place, value, keys).GivenText(ParameterKey);
    const JsonSection section(JsonError::tr("%1, %2,").arg(place, Quoted(name)), value, keys);

    SampleList list;
    list.parameter = name;
    list.ticked = section.Flag(TickedKey, true);
    if (!section.Has(ValuesKey)) {
        list.range = ReadRange(section);
        return list;
    }
    for (const QLatin1String key : {MinKey, MaxKey, DeltaKey, SpacingKey}) {
        if (section.Has(key))
            section.Fail(JsonError::tr("has both \"values\" and \"%1\"").arg(key));
    }
    list.values = section.Numbers(ValuesKey);
    if (list.values.empty())
        section.Fail(JsonError::tr("has no values"));
    return list;
}

QJsonArray ToJson(const std::vector<SampleList>& lists)
{
    QJsonArray json;
    for (const SampleList& list : lists)
        json.append(ToJson(list));
    return json;
}
