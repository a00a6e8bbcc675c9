#include "DialogText.h"

#include "ExpressionEngine.h"
#include "FieldValues.h"
#include "HostError.h"
#include "JsonSection.h"

#include <QCoreApplication>
#include <QLineEdit>

#include <cmath>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DialogText)
};

QLineEdit& Field(const QWidget& dialog, const char* name)
{
    auto* const field = dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
    Q_ASSERT(field != nullptr);
    return *field;
}

} // namespace

QString NumberOrExpression(const QWidget& dialog, const char* field, const QString& label)
{
    QString text = Field(dialog, field).text().trimmed();
    const double value = FieldValues().Evaluate(text);
    if (!std::isfinite(value))
        throw HostError(Texts::tr("%1: %2 is neither a number nor an expression with a value: %3")
                            .arg(label, Quoted(text), ExpressionEngine::LastError()));
    return text;
}

void SetFieldText(const QWidget& dialog, const char* field, const QString& text)
{
    Field(dialog, field).setText(text);
}
