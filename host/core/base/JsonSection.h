#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <vector>

/// What is wrong with a JSON file: one line.
class JsonError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(JsonError)

public:
    using HostError::HostError;
};

/// A text from a file as it stands in a message: quoted, in one line, not too long.
QString Quoted(const QString& text);

/// An object of a JSON file, read with its types checked.
///
/// Whatever is not as it should be ends in a JsonError that begins with the section's place. An
/// entry that is not there gives the default; NeededText() and Number() need theirs.
class JsonSection
{
public:
    /// @p value has to be an object that has none but these @p keys: an entry that nobody reads is
    /// a misspelling.
    JsonSection(QString place, const QJsonValue& value, const std::vector<QLatin1String>& keys);

    bool Has(QLatin1String key) const { return m_object.contains(key); }
    /// Of any type; undefined when it is not there.
    QJsonValue Value(QLatin1String key) const { return m_object.value(key); }
    QString Text(QLatin1String key, const QString& byDefault = QString()) const;
    QString NeededText(QLatin1String key) const;
    double Number(QLatin1String key) const;
    bool Flag(QLatin1String key, bool byDefault) const;
    QJsonArray Array(QLatin1String key) const;
    std::vector<double> Numbers(QLatin1String key) const;
    QStringList Texts(QLatin1String key) const;

    /// @p what goes on from the place: "is ...", "has ...".
    [[noreturn]] void Fail(const QString& what) const;
    [[noreturn]] void FailAt(QLatin1String key, const QString& wanted) const;

private:
    QString m_place;
    QJsonObject m_object;
};
