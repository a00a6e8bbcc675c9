#pragma once

#include <QJsonArray>
#include <QString>

#include <vector>

/// What has to hold among the parameters, so that a part makes sense.
struct Condition
{
    QString expression; ///< Holds when its value is neither 0 nor undefined.
    QString message;    ///< What to tell when it does not hold.

    bool operator==(const Condition& other) const
    {
        return expression == other.expression && message == other.message;
    }
};

/// Evaluates the conditions in their order. @throws BuildError with the message of the first one
/// that does not hold.
void CheckConditions(const std::vector<Condition>& conditions);

/// Reads the entry "conditions" of a project. @throws JsonError
std::vector<Condition> ReadConditions(const QJsonArray& json);
QJsonArray ConditionsToJson(const std::vector<Condition>& conditions);
