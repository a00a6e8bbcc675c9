#include "DialogChecks.h"
#include "DialogFacts.h"
#include "ModalDriver.h"
#include "OutsideRun.h"
#include "ResultSetting.h"
#include "TestCase.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

class tst_ResultSetting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormHasAPathAndThreeButtons();
    void TabFollowsTheReadingOrder();
    void TheKeyboardRunsAndLeaves();
    void CloseRejects();
    void TheSlotsAreAsGiven();
    void TheFileDialogIsPlain();
    void TheCaptionReachesAHiddenDialogOnly();
    void ThePathIsShownWithoutQuotes();
    void CancellingTheFileDialogEmptiesThePath();
    void TheHostMayDestroyTheDialogBehindTheFileDialog();
    void APathWithBlanksRuns();
    void NoEndIsReported_data();
    void NoEndIsReported();
    void AProgramThatCannotStartIsNotReported();
    void TheRunLastsUntilTheProgramEnds();
};

void tst_ResultSetting::TheFormHasAPathAndThreeButtons()
{
    CompareForm<ResultSetting>("ResultSetting");
    const ResultSetting dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("HyperView Result Viewer"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QLabel label in ResultSetting: HyperView",
                 "QLineEdit lineEdit_Path in ResultSetting: ",
                 "QPushButton pushButton_Browse in ResultSetting: Browse",
                 "QPushButton pushButton_Close in ResultSetting: Close",
                 "QPushButton pushButton_Run in ResultSetting: Run",
             }));
    QCOMPARE(dialog.font(), QApplication::font());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_Path").isReadOnly());
}

void tst_ResultSetting::TabFollowsTheReadingOrder()
{
    ResultSetting dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_Path", "pushButton_Browse", "pushButton_Run",
                                            "pushButton_Close"}));
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

void tst_ResultSetting::CloseRejects()
{
    ResultSetting dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_Close"), int(QDialog::Rejected));
}

void tst_ResultSetting::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(ResultSetting::staticMetaObject),
             QStringList({"public slot SelectExecuteHyper()", "public slot RunCommand()"}));
    QCOMPARE(ResultSetting::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_ResultSetting::TheFileDialogIsPlain()
{
    ResultSetting dialog(nullptr);
    dialog.show();
    ModalDriver user;
    user.Then([](QDialog& shown) {
        auto* const picker = qobject_cast<QFileDialog*>(&shown);
        QVERIFY(picker != nullptr);
        QVERIFY(picker->parentWidget() == nullptr);
        QVERIFY(picker->windowTitle() != QString("Open HyperView.exe"));
        QCOMPARE(picker->nameFilters(), QFileDialog().nameFilters());
        picker->reject();
    });
    Click(dialog, "pushButton_Browse");
    QVERIFY(user.IsDone());
}

void tst_ResultSetting::TheCaptionReachesAHiddenDialogOnly()
{
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, QString());
    const auto kept = dialog.findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(kept[0]->windowTitle(), QString("Open HyperView.exe"));
    QVERIFY(!kept[0]->isVisible());
}

void tst_ResultSetting::ThePathIsShownWithoutQuotes()
{
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").text(), QString(OUTSIDE_PROGRAM));
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").toolTip(), QString(OUTSIDE_PROGRAM));
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

void tst_ResultSetting::TheHostMayDestroyTheDialogBehindTheFileDialog()
{
    auto* const dialog = new ResultSetting(nullptr);
    ModalDriver user;
    user.Then([dialog](QDialog& picker) {
        delete dialog;
        picker.reject();
    });
    QMetaObject::invokeMethod(dialog, "SelectExecuteHyper");
    QVERIFY(user.IsDone());
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
