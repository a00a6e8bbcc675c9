#include "DialogFields.h"

#include "Angles.h"
#include "FeatureKind.h"
#include "FieldValues.h"
#include "JsonSection.h"
#include "Limits.h"
#include "NumberTexts.h"

#include <QDialog>
#include <QLineEdit>
#include <gp.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>

#include <cmath>

namespace {

// Without the last digits of a double, which a conversion there and back does not preserve.
QString ConvertedText(double number)
{
    constexpr int Digits = 15;
    return QString::number(number, 'g', Digits);
}

// Forms are private: their line edits can only be found by name.
QLineEdit& Edit(const QDialog& dialog, const char* name)
{
    return *dialog.findChild<QLineEdit*>(QLatin1String(name));
}

} // namespace

void DialogFields::SetKind(const FeatureKind& kind)
{
    if (m_feature.kind == &kind)
        return;
    m_feature.kind = &kind;
    m_feature.fields = Feature(kind).fields;
    m_shown.clear();
}

QString& DialogFields::Text(const char* key)
{
    return m_feature.fields[int(m_feature.kind->IndexOf(key))];
}

void DialogFields::Show(const QDialog& dialog, const FieldEdit& edit)
{
    const QString& text = Text(edit.key);
    const double value = FieldValues().Evaluate(text);
    const QString shown = std::isnan(value) ? text : ExactText(value);
    Edit(dialog, edit.name).setText(shown);
    m_shown.insert(QLatin1String(edit.key), shown);
}

void DialogFields::Replace(const char* key, double number, const QString& text)
{
    Text(key) = text;
    const FieldDefinition& field = m_feature.kind->fields[m_feature.kind->IndexOf(key)];
    if (field.rule.Allows(number))
        m_problems.remove(field.key);
    else
        m_problems[field.key] =
            tr("%1 has to be %2; %3 was entered").arg(field.Label(), field.rule.Text(), text);
}

void DialogFields::Take(const char* key, double number)
{
    if (!IsShown(key) || number != Shown(key))
        Replace(key, number, ExactText(number));
}

void DialogFields::TakeCount(const char* key, int number)
{
    if (!IsShown(key) || number != m_shown.value(QLatin1String(key)).toInt())
        Replace(key, number, QString::number(number));
}

void DialogFields::TakeDegrees(const char* key, double radians)
{
    const QString text = ConvertedText(radians / tarn::RadiansPerDegree);
    if (!IsShown(key) || text != ConvertedText(Shown(key)))
        Replace(key, text.toDouble(), text);
}

void DialogFields::TakePoint(const gp_Pnt& point)
{
    Take("x", point.X());
    Take("y", point.Y());
    Take("z", point.Z());
}

void DialogFields::TakeDirection(const gp_Dir& direction)
{
    if (IsShown("dx")) {
        const gp_Vec shown(Shown("dx"), Shown("dy"), Shown("dz"));
        // Normalised as the dialog does it: the same components, to the last digit.
        if (shown.Magnitude() > gp::Resolution() && gp_Dir(shown).XYZ().IsEqual(direction.XYZ(), 0))
            return;
    }
    Replace("dx", direction.X(), ConvertedText(direction.X()));
    Replace("dy", direction.Y(), ConvertedText(direction.Y()));
    Replace("dz", direction.Z(), ConvertedText(direction.Z()));
}

void DialogFields::TakeText(const QDialog& dialog, const FieldEdit& edit)
{
    Take(edit.key, Edit(dialog, edit.name).text().toDouble());
}

void DialogFields::TakeExpression(const QDialog& dialog, const FieldEdit& edit)
{
    const std::size_t index = m_feature.kind->IndexOf(edit.key);
    const QLineEdit& line = Edit(dialog, edit.name);
    if (index >= m_feature.kind->fields.size() || !line.isVisibleTo(&dialog))
        return;
    const QString text = line.text().trimmed();
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if ((isNumber && std::isfinite(number)) ||
        (IsShown(edit.key) && text == m_shown.value(QLatin1String(edit.key))))
        return;
    const double value = FieldValues().Evaluate(text);
    if (std::isfinite(value))
        Replace(edit.key, value, text);
    else
        m_problems[QLatin1String(edit.key)] =
            tr("%1: %2 is neither a number nor an expression with a value")
                .arg(m_feature.kind->fields[index].Label(), Quoted(text));
}
