#include "DialogChecks.h"
#include "Heap.h"
#include "OutsideRun.h"
#include "ProgramFormTest.h"
#include "SolverSetting.h"

#include <QLineEdit>

class tst_SolverSetting : public ProgramFormTest<SolverSetting>
{
    Q_OBJECT

public:
    tst_SolverSetting();

private Q_SLOTS:
    void TheKeyboardRunsAndLeaves();
    void CancellingTheFileDialogEmptiesThePath();
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

tst_SolverSetting::tst_SolverSetting()
    : ProgramFormTest(
          {"SolverSetting", "Nastran Solver", "Nastran", "SelectExecuteNas", "Open Nastran.exe"})
{
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
