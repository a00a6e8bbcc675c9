#include "DialogChecks.h"
#include "OutsideRun.h"
#include "ProgramFormTest.h"
#include "ResultSetting.h"

#include <QLineEdit>

class tst_ResultSetting : public ProgramFormTest<ResultSetting>
{
    Q_OBJECT

public:
    tst_ResultSetting();

private Q_SLOTS:
    void TheKeyboardRunsAndLeaves();
    void CancellingTheFileDialogEmptiesThePath();
    void APathWithBlanksRuns();
    void NoEndIsReported_data();
    void NoEndIsReported();
    void AProgramThatCannotStartIsNotReported();
    void TheRunLastsUntilTheProgramEnds();
};

tst_ResultSetting::tst_ResultSetting()
    : ProgramFormTest({"ResultSetting", "HyperView Result Viewer", "HyperView",
                       "SelectExecuteHyper", "Open HyperView.exe"})
{
}

void tst_ResultSetting::TheKeyboardRunsAndLeaves()
{
    EnterTemporaryDirectory();
    ResultSetting dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_Run*"}));
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QTest::keyClick(&Find<QLineEdit>(dialog, "lineEdit_Path"), Qt::Key_Return);
    QVERIFY(RunRecord().endsWith("ended\n"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void tst_ResultSetting::CancellingTheFileDialogEmptiesThePath()
{
    EnterTemporaryDirectory();
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    Browse(dialog, QString());
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").text(), QString());
    QCOMPARE(PressRun(dialog), QVector<ShownBox>());
    QCOMPARE(RunRecord(), QString());
}

void tst_ResultSetting::APathWithBlanksRuns()
{
    const QString directory = QFileInfo(EnterTemporaryDirectory()).canonicalFilePath();
    const QString viewer = directory + "/my own viewer";
    QVERIFY(QFile::copy(OUTSIDE_PROGRAM, viewer));
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, viewer);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>());
    QCOMPARE(RunRecord(), QString("in %1\nargument Model_Active.op2\nended\n").arg(directory));
}

void tst_ResultSetting::NoEndIsReported_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("exit code 0") << QByteArray();
    QTest::newRow("exit code 3") << QByteArray("exit 3");
    QTest::newRow("crash") << QByteArray("crash");
    QTest::newRow("much output") << QByteArray("write");
}

void tst_ResultSetting::NoEndIsReported()
{
    QFETCH(QByteArray, action);
    EnterTemporaryDirectory();
    const OutsideAction playing(action);
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>());
    QVERIFY(RunRecord().contains("argument Model_Active.op2"));
    QVERIFY(dialog.isVisible());
}

void tst_ResultSetting::AProgramThatCannotStartIsNotReported()
{
    EnterTemporaryDirectory();
    ResultSetting dialog(nullptr);
    dialog.show();
    QCOMPARE(PressRun(dialog), QVector<ShownBox>());
}

void tst_ResultSetting::TheRunLastsUntilTheProgramEnds()
{
    EnterTemporaryDirectory();
    const OutsideAction playing("wait");
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    PressRun(dialog);
    QVERIFY(RunRecord().endsWith("ended\n"));
}

TARN_TEST_MAIN(tst_ResultSetting)
#include "tst_ResultSetting.moc"
