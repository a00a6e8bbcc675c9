#include "DialogTest.h"
#include "Tables.h"

#include <QProcess>

#include <stdexcept>

/// Its functions fail in every way in which a check can fail. A program of its own runs it.
class Victim : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void AMissingWidget();
    void AMissingCell();
    void AnException();
    void AnUnknownException();
    void AMissingWidgetInAStep();
    void AMissingWidgetWhileABoxIsOpen();
    void AStepThatIsNotTaken();
    void ADialogWithoutAStep();
    void ABoxThatNobodyExpects();
    void AWarningThatNobodyExpects();
    void Nothing() {}
};

void Victim::AMissingWidget()
{
    Click(QWidget(), "button");
}

void Victim::AMissingCell()
{
    Cell(QTableWidget(1, 1), 0, 0).setText("text");
}

void Victim::AnException()
{
    throw std::runtime_error("the reason");
}

void Victim::AnUnknownException()
{
    throw 1;
}

void Victim::AMissingWidgetInAStep()
{
    QDialog dialog;
    Then([this](QDialog&) {
        QDialog inner;
        Then([](QDialog& shown) { Click(shown, "button"); });
        inner.exec();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void Victim::AMissingWidgetWhileABoxIsOpen()
{
    User().WhileBoxOpen([](QMessageBox& box) { Click(box, "button"); });
    QMessageBox::information(nullptr, "title", "text");
    QCOMPARE(Boxes().size(), 1);
}

void Victim::AStepThatIsNotTaken()
{
    Then([](QDialog&) {});
}

void Victim::ADialogWithoutAStep()
{
    QDialog dialog;
    dialog.exec();
}

void Victim::ABoxThatNobodyExpects()
{
    QMessageBox::information(nullptr, "title", "text");
}

void Victim::AWarningThatNobodyExpects()
{
    qWarning("a warning");
}

class tst_GuardedTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFailingCheckFailsItsFunctionOnly();
    void TheReasonIsReported_data();
    void TheReasonIsReported();

private:
    static QString OutputOf(const QString& function);
};

QString tst_GuardedTest::OutputOf(const QString& function)
{
    QProcess victim;
    victim.setProcessChannelMode(QProcess::MergedChannels);
    QStringList arguments = {"--victim"};
    if (!function.isEmpty())
        arguments << function;
    victim.start(QCoreApplication::applicationFilePath(), arguments);
    victim.waitForFinished();
    const QString output = QString::fromLocal8Bit(victim.readAll());
    if (victim.exitStatus() != QProcess::NormalExit)
        FailTest("the program has crashed:\n" + output);
    return output;
}

void tst_GuardedTest::AFailingCheckFailsItsFunctionOnly()
{
    const QString output = OutputOf(QString());
    // initTestCase, cleanupTestCase and the function without a check.
    QVERIFY2(output.contains("Totals: 3 passed, 10 failed"), qPrintable(output));
    QVERIFY2(output.contains("PASS   : Victim::Nothing()"), qPrintable(output));
}

void tst_GuardedTest::TheReasonIsReported_data()
{
    QTest::addColumn<QString>("reason");
    NewRow("AMissingWidget", "There is no QAbstractButton \"button\"");
    NewRow("AMissingCell", "has no cell 0, 0");
    NewRow("AnException", "the reason");
    NewRow("AnUnknownException", "An exception of unknown type");
    NewRow("AMissingWidgetInAStep", "There is no QAbstractButton \"button\"");
    NewRow("AMissingWidgetWhileABoxIsOpen", "There is no QAbstractButton \"button\"");
    NewRow("AStepThatIsNotTaken", "a step or an answer is left");
    NewRow("ADialogWithoutAStep", "no step is left for the dialog");
    NewRow("ABoxThatNobodyExpects", "unexpected box: text");
    NewRow("AWarningThatNobodyExpects", "unexpected warning: a warning");
}

void tst_GuardedTest::TheReasonIsReported()
{
    QFETCH(QString, reason);
    const QString output = OutputOf(QTest::currentDataTag());
    QVERIFY2(output.contains(reason), qPrintable(output));
    QVERIFY2(output.contains("Totals: 2 passed, 1 failed"), qPrintable(output));
}

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--victim") == 0)
        return RunTest<Victim>(argc - 1, argv + 1);
    return RunTest<tst_GuardedTest>(argc, argv);
}

#include "tst_GuardedTest.moc"
