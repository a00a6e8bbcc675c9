#pragma once

#include "Feature.h"

#include <QCoreApplication>
#include <QHash>
#include <QLatin1String>
#include <QMap>

class QDialog;
class gp_Dir;
class gp_Pnt;

/// A line edit of a dialog, and the field that it edits.
struct FieldEdit
{
    const char* key;  ///< Of the field, in files.
    const char* name; ///< Of the line edit.
};

/// The fields of a feature on their way into a dialog and back.
///
/// Show() puts the value of a field into its line edit. The other functions take what the getters
/// of the dialog return; a field whose value was shown and is unchanged keeps its text, so that
/// expressions survive.
class DialogFields
{
    Q_DECLARE_TR_FUNCTIONS(FeatureDialogs)

public:
    explicit DialogFields(const Feature& feature)
        : m_feature(feature)
    {
    }

    const Feature& Result() const { return m_feature; }
    /// Which value the kind does not allow; empty if it allows all.
    QString Problem() const { return m_problems.isEmpty() ? QString() : m_problems.first(); }

    /// Makes the feature one of @p kind with the default texts, unless it is one already.
    void SetKind(const FeatureKind& kind);

    void Show(const QDialog& dialog, const FieldEdit& edit);

    void Take(const char* key, double number);
    void TakeCount(const char* key, int number);
    void TakeDegrees(const char* key, double radians);
    /// The fields x, y and z.
    void TakePoint(const gp_Pnt& point);
    /// The fields dx, dy and dz. They change together, because the dialogs normalise directions.
    void TakeDirection(const gp_Dir& direction);
    /// What the line edit shows, for dialogs whose getters do not return it.
    void TakeText(const QDialog& dialog, const FieldEdit& edit);

    /// Takes the text of the line edit if it is not a number: the dialogs count it as 0 without a
    /// word. It becomes a problem unless it is an expression with a value that the kind allows.
    void TakeExpression(const QDialog& dialog, const FieldEdit& edit);

private:
    void Replace(const char* key, double number, const QString& text);
    QString& Text(const char* key);
    bool IsShown(const char* key) const { return m_shown.contains(QLatin1String(key)); }
    double Shown(const char* key) const { return m_shown.value(QLatin1String(key)).toDouble(); }

    Feature m_feature;
    QHash<QLatin1String, QString> m_shown;   // By key.
    QMap<QLatin1String, QString> m_problems; // By key.
};
