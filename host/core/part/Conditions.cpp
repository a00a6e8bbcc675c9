#include "Conditions.h"

#include "BuildError.h"
#include "ExpressionEngine.h"
#include "FieldValues.h"
#include "JsonSection.h"
#include "NumberTexts.h"

#include <QRegularExpression>

#include <cmath>

namespace {

const QLatin1String ExpressionKey("expression");
const QLatin1String MessageKey("message");

// Replaces "{hub / 2}" in a message by its value.
QString WithValues(const QString& message, FieldValues& values)
{
    static const QRegularExpression placeholder(QStringLiteral("\\{([^{}]*)\\}"));
    QString text;
    int end = 0;
    QRegularExpressionMatchIterator matches = placeholder.globalMatch(message);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        text += message.midRef(end, match.capturedStart() - end);
        text += ShortText(values.Evaluate(match.captured(1)));
        end = match.capturedEnd();
    }
    return text + message.midRef(end);
}

} // namespace

void CheckConditions(const std::vector<Condition>& conditions)
{
    FieldValues values;
    for (const Condition& condition : conditions) {
        const double value = values.Evaluate(condition.expression);
        if (std::isnan(value)) {
            const QString cause = ExpressionEngine::LastError();
            throw BuildError(BuildError::tr("%1 (%2 has no value: %3.)")
                                 .arg(WithValues(condition.message, values),
                                      Quoted(condition.expression), cause));
        }
        if (value == 0.0)
            throw BuildError(WithValues(condition.message, values));
    }
}

std::vector<Condition> ReadConditions(const QJsonArray& json)
{
    std::vector<Condition> conditions;
    for (const QJsonValue& value : json) {
        const JsonSection section(JsonError::tr("condition %1").arg(conditions.size() + 1), value,
                                  {ExpressionKey, MessageKey});
        conditions.push_back({section.NeededText(ExpressionKey), section.NeededText(MessageKey)});
    }
    return conditions;
}

QJsonArray ConditionsToJson(const std::vector<Condition>& conditions)
{
    QJsonArray json;
    for (const Condition& condition : conditions)
        json.append(
            QJsonObject{{ExpressionKey, condition.expression}, {MessageKey, condition.message}});
    return json;
}
