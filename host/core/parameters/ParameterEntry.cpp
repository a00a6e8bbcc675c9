#include "ParameterEntry.h"

#include "ExpressionNames.h"
#include "JsonSection.h"
#include "NumberTexts.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

const QLatin1String TrueWord("true");
const QLatin1String FalseWord("false");

std::optional<double> NumberIn(const QString& text)
{
    bool isNumber = false;
    const double value = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !std::isfinite(value))
        return {};
    return value;
}

double NeededNumber(const QString& text)
{
    const std::optional<double> number = NumberIn(text);
    if (!number)
        throw ParameterError(ParameterError::tr("%1 is not a number").arg(Quoted(text)));
    return *number;
}

bool FlagIn(const QString& text)
{
    const QString word = text.trimmed().toLower();
    if (word == TrueWord)
        return true;
    if (word == FalseWord)
        return false;
    if (const std::optional<double> number = NumberIn(word))
        return *number != 0.0;
    throw ParameterError(
        ParameterError::tr("%1 is neither \"true\" nor \"false\"").arg(Quoted(text)));
}

bool IsSameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

QString ParameterEntry::Expression() const
{
    return QString::fromLocal8Bit(record.m_strExpression.c_str());
}

double ParameterEntry::Number() const
{
    return record.m_varRawValue.isValid() ? record.m_varRawValue.toDouble() : record.m_dValue;
}

std::array<double, 3> ParameterEntry::Vector() const
{
    return {record.m_dX, record.m_dY, record.m_dZ};
}

QString ParameterEntry::ValueText() const
{
    if (!record.m_strExpression.empty())
        return Expression();
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        return Number() != 0.0 ? TrueWord : FalseWord;
    case ParametersDef::ScalarType:
        return ExactText(Number());
    case ParametersDef::VectorType:
        return QStringLiteral("%1, %2, %3")
            .arg(ExactText(record.m_dX), ExactText(record.m_dY), ExactText(record.m_dZ));
    default:
        return record.m_strValue;
    }
}

void ParameterEntry::SetNumber(double value)
{
    record.m_strExpression.clear();
    record.m_strExpressPara.clear();
    record.m_varRawValue = QVariant();
    record.m_dValue = value;
    record.m_strValue = ExactText(value);
}

void ParameterEntry::SetVector(const std::array<double, 3>& components)
{
    SetNumber(0.0);
    record.m_dX = components[0];
    record.m_dY = components[1];
    record.m_dZ = components[2];
    // Without blanks: the parameter editor takes a component only in digits.
    record.m_strValue =
        QStringLiteral("%1,%2,%3")
            .arg(ExactText(record.m_dX), ExactText(record.m_dY), ExactText(record.m_dZ));
}

void ParameterEntry::SetComponent(int index, const QString& text)
{
    std::array<double, 3> components = Vector();
    components.at(std::size_t(index)) = NeededNumber(text);
    SetVector(components);
}

void ParameterEntry::SetValueText(const QString& text)
{
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        SetNumber(FlagIn(text) ? 1.0 : 0.0);
        break;
    case ParametersDef::VectorType: {
        const QStringList parts = text.split(QLatin1Char(','));
        if (parts.size() != 3)
            throw ParameterError(ParameterError::tr("%1 is not a vector: type three numbers with "
                                                    "commas between them")
                                     .arg(Quoted(text)));
        SetVector({NeededNumber(parts[0]), NeededNumber(parts[1]), NeededNumber(parts[2])});
        break;
    }
    case ParametersDef::ScalarType:
        if (text.trimmed().isEmpty())
            throw ParameterError(ParameterError::tr("a value is missing: type a number or an "
                                                    "expression"));
        if (const std::optional<double> number = NumberIn(text)) {
            SetNumber(*number);
        } else {
            record.m_strExpression = text.trimmed().toLocal8Bit().toStdString();
            record.m_varRawValue = QVariant();
        }
        break;
    default:
        SetNumber(0.0);
        record.m_strValue = text;
        break;
    }
}

void ParameterEntry::SetType(int type)
{
    if (type == record.m_nType)
        return;
    const QString text = ValueText();
    const bool wasVector = record.m_nType == ParametersDef::VectorType;
    const double number = wasVector ? record.m_dX : Number();
    const double value = std::isfinite(number) ? number : 0.0;
    record.m_nType = type;
    switch (type) {
    case ParametersDef::BoolType:
        SetNumber(value != 0.0 ? 1.0 : 0.0);
        break;
    case ParametersDef::ScalarType:
        SetNumber(value);
        break;
    case ParametersDef::VectorType:
        SetVector({value, 0.0, 0.0});
        break;
    default:
        SetValueText(text);
        break;
    }
}

bool ParameterEntry::operator==(const ParameterEntry& other) const
{
    const ParametersDef& a = record;
    const ParametersDef& b = other.record;
    return a.m_strName == b.m_strName && a.m_nType == b.m_nType &&
           a.m_strExpression == b.m_strExpression && a.m_strExpressPara == b.m_strExpressPara &&
           IsSameNumber(Number(), other.Number()) && IsSameNumber(a.m_dX, b.m_dX) &&
           IsSameNumber(a.m_dY, b.m_dY) && IsSameNumber(a.m_dZ, b.m_dZ) &&
           a.m_strValue == b.m_strValue && a.m_strDescription == b.m_strDescription &&
           unit == other.unit;
}

ParameterEntry NewParameter(const QString& name)
{
    ParameterEntry entry;
    entry.record.m_strName = name;
    entry.record.m_nType = ParametersDef::ScalarType;
    entry.SetNumber(0.0);
    return entry;
}

int FindParameter(const ParameterEntries& entries, const QString& name)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(),
                     [&name](const ParameterEntry& entry) { return entry.Name() == name; });
    return found == entries.end() ? -1 : int(found - entries.begin());
}

void CheckParameterName(const QString& name)
{
    if (!tarn::IsExpressionName(name))
        throw ParameterError(ParameterError::tr("%1 is not a name: it has to begin with a letter, "
                                                "and letters, digits and underscores may follow")
                                 .arg(Quoted(name)));
}

void RenameParameter(ParameterEntries& entries, int index, const QString& name)
{
    ParametersDef& renamed = entries.at(std::size_t(index)).record;
    const QString before = renamed.m_strName;
    if (name == before)
        return;
    CheckParameterName(name);
    if (FindParameter(entries, name) >= 0)
        throw ParameterError(
            ParameterError::tr("there is already a parameter %1").arg(Quoted(name)));
    renamed.m_strName = name;
    if (!tarn::IsExpressionName(before))
        return;
    for (ParameterEntry& entry : entries)
        entry.record.m_strExpression =
            tarn::WithRenamed(entry.Expression(), before, name).toLocal8Bit().toStdString();
}
