#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// An error in a JSON file: one line.
class JsonError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(JsonError)

public:
    using HostError::HostError;
};

/// A text from a file for use in a message: quoted, on one line, shortened if it is long.
QString Quoted(const QString& text);

/// An object of a JSON file; reading it checks the types.
///
/// Every error is a JsonError that begins with the section's place. A missing entry yields the
/// default, except for GivenText(), NeededText() and Number(), which require it.
class JsonSection
{
public:
    /// @p value must be an object without entries other than @p keys: an entry that nobody reads is
    /// a misspelling.
    JsonSection(QString place, const QJsonValue& value, const std::vector<QLatin1String>& keys);

    bool Has(QLatin1String key) const { return m_object.contains(key); }
    /// Of any type; undefined if it is missing.
    QJsonValue Value(QLatin1String key) const { return m_object.value(key); }
    QString Text(QLatin1String key, const QString& byDefault = QString()) const;
    QString GivenText(QLatin1String key) const;  ///< May be empty.
    QString NeededText(QLatin1String key) const; ///< Not empty.
    double Number(QLatin1String key) const;
    bool Flag(QLatin1String key, bool byDefault) const;
    QJsonArray Array(QLatin1String key) const;
    std::vector<double> Numbers(QLatin1String key) const;
    QStringList Texts(QLatin1String key) const;
    /// A number or an expression, as its text.
    QString Expression(QLatin1String key, const QString& byDefault = QString()) const;
    /// Three numbers or expressions.
    std::array<QString, 3> Expressions(QLatin1String key) const;

    /// Throws a JsonError; @p what continues the sentence after the place: "is ...", "has ...".
    [[noreturn]] void Fail(const QString& what) const;
    [[noreturn]] void FailAt(QLatin1String key, const QString& wanted) const;

private:
    QString m_place;
    QJsonObject m_object;
};

/// The JSON value of a number or an expression: a number if that preserves the text.
QJsonValue ExpressionToJson(const QString& text);
QJsonArray ExpressionsToJson(const std::array<QString, 3>& texts);
