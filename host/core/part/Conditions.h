#pragma once

#include <QJsonArray>
#include <QString>

#include <vector>

/// A requirement that the parameters of a part have to meet.
struct Condition
{
    QString expression; ///< Holds if it has a value other than 0.
    QString message;    ///< Shown if it does not hold.

    bool operator==(const Condition& other) const
    {
        return expression == other.expression && message == other.message;
    }
};

/// Evaluates the conditions in order. @throws BuildError with the message of the first one that
/// does not hold
void CheckConditions(const std::vector<Condition>& conditions);

/// Reads the entry "conditions" of a project. @throws JsonError
std::vector<Condition> ReadConditions(const QJsonArray& json);
QJsonArray ConditionsToJson(const std::vector<Condition>& conditions);
