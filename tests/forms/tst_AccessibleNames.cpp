#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "Language.h"
#include "Project.h"
#include "Screenshots.h"
#include "TestCase.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

// The name that a screen reader reads for a field: its label or its accessible name.
class tst_AccessibleNames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldWithoutANameIsFound();
    void EveryFieldOfEveryWindowHasAUniqueName_data();
    void EveryFieldOfEveryWindowHasAUniqueName();
};

namespace {

bool IsField(QAccessible::Role role)
{
    return role == QAccessible::EditableText || role == QAccessible::ComboBox ||
           role == QAccessible::SpinBox || role == QAccessible::Slider ||
           role == QAccessible::Table || role == QAccessible::Tree || role == QAccessible::List ||
           role == QAccessible::CheckBox || role == QAccessible::RadioButton;
}

template<class Type>
bool IsWithin(const QWidget& widget)
{
    for (const QWidget* outer = widget.parentWidget(); outer != nullptr;
         outer = outer->parentWidget()) {
        if (qobject_cast<const Type*>(outer) != nullptr)
            return true;
    }
    return false;
}

// Widgets that Qt creates inside a field are part of that field.
bool IsInside(const QWidget& widget)
{
    return widget.objectName().startsWith("qt_") || qobject_cast<const QHeaderView*>(&widget) ||
           IsWithin<QComboBox>(widget) || IsWithin<QAbstractSpinBox>(widget);
}

// On Linux the name of a combo box is its text; a screen reader reads its label before.
QString NameOf(const QAccessibleInterface& field, const QWidget& widget)
{
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) {
        if (!widget.accessibleName().isEmpty())
            return widget.accessibleName();
        const auto labels = field.relations(QAccessible::Label);
        if (!labels.isEmpty())
            return labels.first().first->text(QAccessible::Name);
    }
    return field.text(QAccessible::Name);
}

/// The fields without a name, and those with the same name as another field.
QStringList BadFields(const QWidget& window, int* count = nullptr)
{
    QStringList bad;
    QMap<QString, QString> named;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        QAccessibleInterface* const field = QAccessible::queryAccessibleInterface(widget);
        if (field == nullptr || !IsField(field->role()) || IsInside(*widget))
            continue;
        if (count != nullptr)
            ++*count;
        const QString place = QString("%1 %2").arg(
            QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
        const QString name = NameOf(*field, *widget);
        if (name.trimmed().isEmpty())
            bad << place + " has no name";
        else if (named.contains(name))
            bad << QString("%1 and %2 are both named \"%3\"").arg(named[name], place, name);
        // In a table, the row distinguishes the fields of a column.
        if (!IsWithin<QAbstractItemView>(*widget))
            named[name] = place;
    }
    return bad;
}

} // namespace

void tst_AccessibleNames::AFieldWithoutANameIsFound()
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    const auto add = [layout](QWidget* field, const char* name) {
        field->setObjectName(name);
        layout->addWidget(field);
        return field;
    };
    add(new QLineEdit, "edit");
    add(new QComboBox, "combo");
    add(new QSpinBox, "spin");
    add(new QTreeWidget, "tree");
    auto* const label = new QLabel("Length");
    layout->addWidget(label);
    label->setBuddy(add(new QLineEdit, "labelled"));
    add(new QLineEdit, "named")->setAccessibleName("Width");
    add(new QLineEdit, "again")->setAccessibleName("Width");
    auto* const chosen = new QComboBox;
    chosen->addItem("Width");
    add(chosen, "chosen")->setAccessibleName("Choice");
    QCOMPARE(BadFields(window),
             QStringList({"QLineEdit edit has no name", "QComboBox combo has no name",
                          "QSpinBox spin has no name", "QTreeWidget tree has no name",
                          "QLineEdit named and QLineEdit again are both named \"Width\""}));
}

void tst_AccessibleNames::EveryFieldOfEveryWindowHasAUniqueName_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Language::Known();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_AccessibleNames::EveryFieldOfEveryWindowHasAUniqueName()
{
    QFETCH(QString, language);
    const EmptyDesignStores stores;
    const Language spoken(language);
    QStringList bad;
    int count = 0;
    VisitWindows(Project::Load(Project::SamplePath()),
                 [&bad, &count](const QString& name, QWidget& window) {
                     const QStringList fields = BadFields(window, &count);
                     for (const QString& field : fields)
                         bad << name + ": " + field;
                 });
    QVERIFY2(bad.isEmpty(), qPrintable("Give each a label as its buddy, or an accessible name:\n" +
                                       bad.join('\n')));
    QVERIFY2(count > 100, qPrintable(QString::number(count)));
}

TARN_TEST_MAIN(tst_AccessibleNames, HostApplication)
#include "tst_AccessibleNames.moc"
