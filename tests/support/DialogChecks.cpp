#include "DialogChecks.h"

#include "ModalDriver.h"
#include "TestCase.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPushButton>

#include <limits>

QStringList DescribeForm(const QWidget& form, bool withGeometry)
{
    QStringList lines;
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QString line = QStringLiteral("%1 %2 in %3")
                           .arg(QString::fromLatin1(widget->metaObject()->className()),
                                widget->objectName(), widget->parentWidget()->objectName());
        if (withGeometry) {
            const QRect place = widget->geometry();
            line += QStringLiteral(" at %1,%2 %3x%4")
                        .arg(place.x())
                        .arg(place.y())
                        .arg(place.width())
                        .arg(place.height());
        }
        line += QStringLiteral(": ") + ShownText(*widget);
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        if (button != nullptr && button->isChecked())
            line += QStringLiteral(", checked");
        lines << line;
    }
    lines.sort();
    return lines;
}

void CompareForm(const QWidget& form, const QString& name, const QWidget& plain,
                 const QStringList& translated)
{
    QCOMPARE(form.objectName(), name);
    QStringList texts = {form.windowTitle()};
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets)
        texts << ShownText(*widget) << widget->accessibleName();
    texts.removeAll(QString());
    texts.removeDuplicates();
    texts.sort();
    QCOMPARE(translated, texts);

    QCOMPARE(form.windowFlags(), plain.windowFlags());
    QCOMPARE(form.windowModality(), plain.windowModality());
    QVERIFY(!form.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(form.windowIcon().isNull());
}

QStringList EnterButtons(const QDialog& dialog)
{
    QStringList names;
    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons) {
        if (button->isDefault())
            names.prepend(button->objectName() + QLatin1Char('*'));
        else if (button->autoDefault())
            names.append(button->objectName());
    }
    return names;
}

int FillAndPress(QDialog& dialog, const FieldTexts& fields, const char* button)
{
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        for (const auto& field : fields)
            Type(shown, field.first, field.second);
        Click(shown, button);
    });
    return dialog.exec();
}

int PressKey(QDialog& dialog, const char* field, Qt::Key key)
{
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        auto& edit = Find<QLineEdit>(shown, field);
        edit.setFocus();
        QTest::keyClick(&edit, key);
    });
    return dialog.exec();
}

void AddConversionRows()
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    struct Row
    {
        const char* text;
        double number;
        int integer;
    };
    const Row rows[] = {
        {"", 0.0, 0},
        {"abc", 0.0, 0},
        {"12", 12.0, 12},
        {"-7", -7.0, -7},
        {"+3", 3.0, 3},
        {"007", 7.0, 7},
        {" 5 ", 5.0, 5},
        {"5 6", 0.0, 0},
        {"5mm", 0.0, 0},
        {"6.5", 6.5, 0},
        {".5", 0.5, 0},
        {"0.1", 0.1, 0},
        {"1e3", 1000.0, 0},
        {"1e-3", 0.001, 0},
        {"1,5", 0.0, 0},
        {"1.234,5", 0.0, 0},
        {"1,234.5", 0.0, 0},
        {"0x10", 0.0, 0},
        {"2147483647", 2147483647.0, 2147483647},
        {"2147483648", 2147483648.0, 0},
        {"inf", Infinity, 0},
        {"-inf", -Infinity, 0},
        {"nan", NaN, 0},
        {"1e400", Infinity, 0},
        {"-1e400", -Infinity, 0},
        {"1e-400", 0.0, 0},
    };
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("integer");
    for (const char* const locale : {"C", "de_DE.UTF-8"}) {
        for (const Row& row : rows)
            QTest::addRow("\"%s\" under %s", row.text, locale)
                << QByteArray(locale) << QString::fromLatin1(row.text) << row.number << row.integer;
    }
}

QString AllDigits(double value)
{
    return QString::number(value, 'g', 17);
}
