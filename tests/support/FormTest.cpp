#include "FormTest.h"

#include "FormDescription.h"
#include "Heap.h"
#include "TextRecorder.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace {

/// The name of the widget, layout or place that a line of DescribeForm() is about.
QString Subject(const QString& line)
{
    return line.section(QLatin1Char(' '), 0, 1).section(QLatin1Char(':'), 0, 0);
}

QStringList List(const QVector<QString>& texts)
{
    return QStringList::fromVector(texts);
}

} // namespace

FormChecks::FormChecks(FormFacts facts)
    : m_facts(std::move(facts))
{
}

void FormChecks::TheFormHasItsWidgets_data()
{
    QTest::addColumn<QString>("line");
    for (const QString& line : m_facts.lines)
        QTest::newRow(qPrintable(line.section(QLatin1String(": "), 0, 0))) << line;
}

void FormChecks::TheFormHasItsWidgets()
{
    QFETCH(QString, line);
    const QStringList lines = DescribeForm(*NewDialog(nullptr));
    const QString others = lines.filter(Subject(line)).join(QLatin1Char('\n'));
    QVERIFY2(lines.contains(line), qPrintable(line + QStringLiteral("\nbut found\n") + others));
}

void FormChecks::TheFormHasNoOtherWidgets()
{
    QStringList names;
    for (const QString& line : m_facts.lines) {
        if (line.contains(QLatin1String(" in ")))
            names << line.section(QLatin1Char(' '), 1, 1);
    }
    names.sort();
    QCOMPARE(WidgetNames(*NewDialog(nullptr)), names);
}

void FormChecks::TheWindowIsAsDesigned()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    const QDialog plain;
    QCOMPARE(dialog->objectName(), QString::fromLatin1(m_facts.name));
    QCOMPARE(dialog->windowTitle(), m_facts.title);
    if (m_facts.size.isValid())
        QCOMPARE(dialog->size(), m_facts.size);
    QCOMPARE(dialog->windowFlags(), plain.windowFlags());
    QCOMPARE(dialog->windowModality(), plain.windowModality());
    for (const Qt::WidgetAttribute attribute :
         {Qt::WA_DeleteOnClose, Qt::WA_SetPalette, Qt::WA_QuitOnClose})
        QCOMPARE(dialog->testAttribute(attribute), plain.testAttribute(attribute));
    QCOMPARE(dialog->windowIcon().isNull(), !m_facts.hasIcon);
}

void FormChecks::TheFontIsTheOneOfTheForm()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    QCOMPARE(dialog->testAttribute(Qt::WA_SetFont), m_facts.hasFont);
    const QFont usual = QApplication::font();
    QCOMPARE(dialog->font().family(),
             m_facts.hasFont ? QStringLiteral("微软雅黑") : usual.family());
    QCOMPARE(dialog->font().pointSize(), usual.pointSize());
}

void FormChecks::TheTextsAreTranslatedInTheContextOfTheForm()
{
    const TextRecorder recorder;
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    QStringList texts = ShownTexts(*dialog) + List(m_facts.unshown);
    for (const QString& text : m_facts.untranslated)
        texts.removeAll(text);
    texts.sort();
    QCOMPARE(recorder.TextsOf(m_facts.name), texts);
}

void FormChecks::TheClassDeclaresItsSignalsAndSlots()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    QCOMPARE(OwnMethods(*dialog->metaObject()), List(m_facts.methods));
    QCOMPARE(dialog->metaObject()->superClass(), &QDialog::staticMetaObject);
}

void FormChecks::TheParentIsOptional()
{
    QVERIFY(NewDialog(nullptr)->parentWidget() == nullptr);
    QDialog window;
    const std::unique_ptr<QDialog> dialog = NewDialog(&window);
    QCOMPARE(dialog->parentWidget(), &window);
    QVERIFY(dialog->isWindow());
}

void FormChecks::TabFollowsTheReadingOrder()
{
    QCOMPARE(TabOrder(*NewDialog(nullptr)), List(m_facts.tabOrder));
}

void FormChecks::EnterPressesTheDefaultButton_data()
{
    QTest::addColumn<QString>("focus");
    for (const QString& widget : m_facts.tabOrder)
        QTest::newRow(qPrintable(widget)) << widget;
}

void FormChecks::EnterPressesTheDefaultButton()
{
    QFETCH(QString, focus);
    const std::unique_ptr<QDialog> dialog = NewFilledDialog();
    QStringList pressed;
    const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons)
        connect(button, &QPushButton::clicked, this,
                [&pressed, button] { pressed << button->objectName(); });
    Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, qPrintable(focus));
        widget.setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            if (shown.isVisible())
                QTest::keyClick(&widget, key);
        }
        CompareAfterEnter(shown);
        shown.hide();
    });
    dialog->exec();
    pressed.removeDuplicates();
    QCOMPARE(pressed, m_facts.enter.isEmpty() ? QStringList() : QStringList(m_facts.enter));
}

void FormChecks::CompareAfterEnter(QDialog& dialog)
{
    if (m_facts.enter.isEmpty())
        QVERIFY(dialog.isVisible());
    else
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void FormChecks::EscapeRejects()
{
    const std::unique_ptr<QDialog> dialog = NewFilledDialog();
    Then([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog->isVisible());
}

void FormChecks::OpeningAndClosingLeaksNoMemory()
{
    DismissUser();
    const double growth = HeapGrowth([this] {
        const std::unique_ptr<QDialog> dialog = NewFilledDialog();
        QTimer::singleShot(0, dialog.get(), &QDialog::reject);
        dialog->exec();
    });
    QVERIFY2(growth < SmallestLeak, qPrintable(QString::number(growth)));
}
