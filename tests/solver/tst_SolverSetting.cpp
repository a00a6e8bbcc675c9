#include "DialogChecks.h"
#include "DialogFacts.h"
#include "Heap.h"
#include "ModalDriver.h"
#include "OutsideRun.h"
#include "SolverSetting.h"
#include "TestCase.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

class tst_SolverSetting : public TestCase
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
    void TheChosenPathIsShown();
    void CancellingTheFileDialogEmptiesThePath();
    void TheHostMayDestroyTheDialogBehindTheFileDialog();
    void TheProgramRunsOnTheModelInTheWorkingDirectory();
    void BlanksSplitThePath();
    void EveryNormalEndIsReported_data();
    void EveryNormalEndIsReported();
    void ACrashIsNotReported();
    void AProgramThatCannotStartIsReported_data();
    void AProgramThatCannotStartIsReported();
    void TheRunLastsUntilTheProgramEnds_data();
    void TheRunLastsUntilTheProgramEnds();
    void MuchOutputDoesNotBlockTheProgram();
    void TheOutputIsNotKept();
    void TheNoticeIsNotTranslated();
};

namespace {

const ShownBox Done = ShownBox::Notice("Title", "Solver is Done");

} // namespace

void tst_SolverSetting::TheFormHasAPathAndThreeButtons()
{
    CompareForm<SolverSetting>("SolverSetting");
    const SolverSetting dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Nastran Solver"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QLabel label in SolverSetting: Nastran",
                 "QLineEdit lineEdit_Path in SolverSetting: ",
                 "QPushButton pushButton_Browse in SolverSetting: Browse",
                 "QPushButton pushButton_Close in SolverSetting: Close",
                 "QPushButton pushButton_Run in SolverSetting: Run",
             }));
    QCOMPARE(dialog.font(), QApplication::font());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_Path").isReadOnly());
}

void tst_SolverSetting::TabFollowsTheReadingOrder()
{
    SolverSetting dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_Path", "pushButton_Browse", "pushButton_Run",
                                            "pushButton_Close"}));
}

void tst_SolverSetting::TheKeyboardRunsAndLeaves()
{
    EnterTemporaryDirectory();
    SolverSetting dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_Run*"}));
    ModalDriver user;
    user.Then([](QDialog& shown) {
        QTest::keyClick(&Find<QLineEdit>(shown, "lineEdit_Path"), Qt::Key_Return);
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Done}));
}

void tst_SolverSetting::CloseRejects()
{
    SolverSetting dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_Close"), int(QDialog::Rejected));
}

void tst_SolverSetting::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(SolverSetting::staticMetaObject),
             QStringList({"public slot SelectExecuteNas()", "public slot RunCommand()"}));
    QCOMPARE(SolverSetting::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_SolverSetting::TheFileDialogIsPlain()
{
    EnterTemporaryDirectory();
    SolverSetting dialog(nullptr);
    dialog.show();
    ModalDriver user;
    user.Then([](QDialog& shown) {
        auto* const picker = qobject_cast<QFileDialog*>(&shown);
        QVERIFY(picker != nullptr);
        QVERIFY(picker->parentWidget() == nullptr);
        QVERIFY(picker->windowTitle() != QString("Open Nastran.exe"));
        QCOMPARE(picker->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(picker->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(picker->directory().canonicalPath(), QDir().canonicalPath());
        QCOMPARE(picker->nameFilters(), QFileDialog().nameFilters());
        QCOMPARE(picker->options(), QFileDialog().options());
        picker->reject();
    });
    Click(dialog, "pushButton_Browse");
    QVERIFY(user.IsDone());
}

void tst_SolverSetting::TheCaptionReachesAHiddenDialogOnly()
{
    SolverSetting dialog(nullptr);
    dialog.show();
    for (int selections = 1; selections <= 2; ++selections) {
        Browse(dialog, QString());
        const auto kept = dialog.findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(kept.size(), selections);
        for (const QFileDialog* const hidden : kept) {
            QCOMPARE(hidden->windowTitle(), QString("Open Nastran.exe"));
            QVERIFY(!hidden->isVisible());
            QVERIFY(!hidden->testAttribute(Qt::WA_WState_ExplicitShowHide));
        }
    }
}

void tst_SolverSetting::TheChosenPathIsShown()
{
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    const auto& path = Find<QLineEdit>(dialog, "lineEdit_Path");
    QCOMPARE(path.text(), QString(OUTSIDE_PROGRAM));
    QCOMPARE(path.toolTip(), QString(OUTSIDE_PROGRAM));
}

void tst_SolverSetting::CancellingTheFileDialogEmptiesThePath()
{
    EnterTemporaryDirectory();
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    Browse(dialog, QString());
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").text(), QString());
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").toolTip(), QString());
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(RunRecord(), QString());
}

void tst_SolverSetting::TheHostMayDestroyTheDialogBehindTheFileDialog()
{
    auto* const dialog = new SolverSetting(nullptr);
    ModalDriver user;
    user.Then([dialog](QDialog& picker) {
        delete dialog;
        picker.reject();
    });
    QMetaObject::invokeMethod(dialog, "SelectExecuteNas");
    QVERIFY(user.IsDone());
}

void tst_SolverSetting::TheProgramRunsOnTheModelInTheWorkingDirectory()
{
    const QString directory = QFileInfo(EnterTemporaryDirectory()).canonicalFilePath();
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(RunRecord(), QString("in %1\nargument Model_Active.bdf\nended\n").arg(directory));
    QVERIFY(dialog.isVisible());
}

void tst_SolverSetting::BlanksSplitThePath()
{
    const QString directory = QFileInfo(EnterTemporaryDirectory()).canonicalFilePath();
    const QString link = directory + "/my solver";
    QVERIFY(QFile::link(OUTSIDE_PROGRAM, directory + "/my"));
    QVERIFY(QFile::copy(OUTSIDE_PROGRAM, link));
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, link);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").text(), link);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(RunRecord(),
             QString("in %1\nargument solver\nargument Model_Active.bdf\nended\n").arg(directory));
}

void tst_SolverSetting::EveryNormalEndIsReported_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("exit code 0") << QByteArray();
    QTest::newRow("exit code 3") << QByteArray("exit 3");
}

void tst_SolverSetting::EveryNormalEndIsReported()
{
    QFETCH(QByteArray, action);
    EnterTemporaryDirectory();
    const OutsideAction playing(action);
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(RunRecord().count("argument Model_Active.bdf"), 2);
}

void tst_SolverSetting::ACrashIsNotReported()
{
    EnterTemporaryDirectory();
    const OutsideAction playing("crash");
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>());
    QVERIFY(RunRecord().contains("argument Model_Active.bdf"));
}

void tst_SolverSetting::AProgramThatCannotStartIsReported_data()
{
    QTest::addColumn<bool>("pickFile");
    QTest::newRow("no path") << false;
    QTest::newRow("no program") << true;
}

void tst_SolverSetting::AProgramThatCannotStartIsReported()
{
    QFETCH(bool, pickFile);
    const QString directory = EnterTemporaryDirectory();
    SolverSetting dialog(nullptr);
    dialog.show();
    if (pickFile) {
        QFile file(directory + "/text");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        Browse(dialog, file.fileName());
    }
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
}

void tst_SolverSetting::TheRunLastsUntilTheProgramEnds_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("half a second") << QByteArray("wait");
    // Longer than the time limit that a process has by default.
    QTest::newRow("half a minute") << QByteArray("wait long");
}

void tst_SolverSetting::TheRunLastsUntilTheProgramEnds()
{
    QFETCH(QByteArray, action);
    EnterTemporaryDirectory();
    const OutsideAction playing(action);
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    ModalDriver user;
    QString record;
    user.WhileBoxOpen([&record](QMessageBox&) { record = RunRecord(); });
    Click(dialog, "pushButton_Run");
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Done}));
    QVERIFY2(record.endsWith("ended\n"), qPrintable(record));
}

void tst_SolverSetting::MuchOutputDoesNotBlockTheProgram()
{
    EnterTemporaryDirectory();
    const OutsideAction playing("write");
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QVERIFY(RunRecord().endsWith("ended\n"));
}

void tst_SolverSetting::TheOutputIsNotKept()
{
    EnterTemporaryDirectory();
    const OutsideAction playing("write"); // 20 MB each
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, OUTSIDE_PROGRAM);
    PressRun(dialog); // makes what the toolkit makes once
    const std::size_t before = HeapInUse();
    PressRun(dialog);
    QCOMPARE(RunRecord().count("ended"), 2);
    const auto growth = std::ptrdiff_t(HeapInUse()) - std::ptrdiff_t(before);
    QVERIFY2(growth < (1 << 20), qPrintable(QString::number(growth)));
}

void tst_SolverSetting::TheNoticeIsNotTranslated()
{
    EnterTemporaryDirectory();
    SolverSetting dialog(nullptr);
    dialog.show();
    const TextRecorder recorder;
    QCOMPARE(PressRun(dialog), QVector<ShownBox>({Done}));
    QCOMPARE(recorder.TextsOf("SolverSetting"), QStringList());
}

TARN_TEST_MAIN(tst_SolverSetting)
#include "tst_SolverSetting.moc"
