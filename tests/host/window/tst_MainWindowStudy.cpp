#include "FileChoice.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "ResponseTable.h"
#include "SampleTable.h"
#include "StudyPlot.h"
#include "StudyProcess.h"
#include "StudyWindow.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QProcess>
#include <QProgressBar>
#include <QSpinBox>
#include <QTabWidget>

// A study in the window, from the set-up to a run that becomes the design.

class tst_MainWindowStudy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AStudyIsRunAndUsed();
    void PlotsAndTableShareTheSelection();
    void PlotsAreExported();
    void AStudyIsPausedAndContinued();
    void AStudyIsStoppedAndStartedAgain();
    void TheFolderOfAnotherProgramIsOpened();
    void TicksAndSamplesAreThoseOfTheExperiments();
    void TheSetUpIsUndoneAndSaved();
    void AnotherStudyGetsANewFolder();
    void ClosingTheWindowEndsTheStudy();

protected:
    void SetUp() override { StudyProcess::SetProgram(TARN_HOST_PROGRAM); }
};

namespace {

// In another program, to the end.
void RunElsewhere()
{
    QProcess other;
    other.start(TARN_HOST_PROGRAM, {"--study", "p.json", "--out", "elsewhere", "--step", "none"});
    QVERIFY(other.waitForFinished(Patience));
    QCOMPARE(other.exitCode(), 0);
}

} // namespace

void tst_MainWindowStudy::AStudyIsRunAndUsed()
{
    StudyWindow open(EnterTemporaryDirectory());
    const PostedMessages posted;
    QTRY_VERIFY(open.Shown("label_Expected").startsWith("4 runs, about "));
    open.RunToTheEnd();
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 4, Patience);
    QTRY_COMPARE(open.Shown("label_Progress"), QString("4 of 4 runs have ended"));
    QVERIFY(QFile::exists("p_study/run_0004.step"));

    // The heaviest first.
    const int mass = ColumnOf(open.Table(), "mass_kg");
    open.View().sortByColumn(mass, Qt::DescendingOrder);
    QVERIFY(open.Cell(0, mass).toDouble() > open.Cell(3, mass).toDouble());
    QTest::keyClicks(&Find<QLineEdit>(open.window, "lineEdit_Filter"), "thickness < 18");
    QTest::keyClick(&Find<QLineEdit>(open.window, "lineEdit_Filter"), Qt::Key_Return);
    QCOMPARE(open.Table().rowCount(), 2);
    QCOMPARE(open.Shown("label_Count"), QString("2 of 4 runs"));

    open.ClickCell(0, 0);
    const int bore = ColumnOf(open.Table(), "bore_diameter");
    QCOMPARE(open.Cell(0, bore), QString("60"));
    open.Trigger("action_ShowRun");
    QCOMPARE(Stored("thickness"), 16.0);
    QCOMPARE(Stored("bore_diameter"), 60.0);
    QCOMPARE(Stored("hub_height"), 24.0);
    Click(open.window, "pushButton_BackToDesign");
    QCOMPARE(Stored("thickness"), 20.0);

    open.ClickCell(0, 0);
    open.Trigger("action_MakeRunTheDesign");
    QCOMPARE(Stored("thickness"), 16.0);
    QVERIFY(open.window.isWindowModified());
    open.Trigger("action_Undo");
    QCOMPARE(Stored("thickness"), 20.0);
    QCOMPARE(Stored("bore_diameter"), 70.0);
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QCOMPARE(QDir().entryList({"*.study"}, QDir::Files | QDir::Hidden), QStringList());
}

void tst_MainWindowStudy::PlotsAndTableShareTheSelection()
{
    StudyWindow open(EnterTemporaryDirectory());
    open.RunToTheEnd();
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 4, Patience);
    auto& tabs = Find<QTabWidget>(open.window, "tabWidget");
    tabs.setCurrentIndex(1);
    DeliverEvents();
    auto& plot = *open.window.findChild<StudyPlot*>("scatterPlot");
    QWidget& canvas = *plot.findChild<QWidget*>("QwtPlotCanvas");
    // All of it.
    QTest::mousePress(&canvas, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseMove(&canvas, canvas.rect().bottomRight());
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, canvas.rect().bottomRight());
    QCOMPARE(open.Shown("label_Count"), QString("4 of 4 runs, 4 selected"));
    QVERIFY(open.View().model()->index(3, 0).data(Qt::BackgroundRole).isValid());
    tabs.setCurrentIndex(0);
    open.ClickCell(2, 0);
    QCOMPARE(open.Shown("label_Count"), QString("4 of 4 runs, 1 selected"));
}

void tst_MainWindowStudy::PlotsAreExported()
{
    const QString folder = EnterTemporaryDirectory();
    StudyWindow open(folder);
    open.RunToTheEnd();
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 4, Patience);
    auto& tabs = Find<QTabWidget>(open.window, "tabWidget");
    QVERIFY(!FindAction(open.window, "action_ExportPlot").isEnabled()); // Of the table.
    for (int tab = 1; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        DeliverEvents();
        const QString path = QDir(folder).filePath(QString("plot%1").arg(tab));
        ChooseFile(open.user, path + ".svg");
        open.Trigger("action_ExportPlot");
        QVERIFY(ContentOf(path + ".svg").contains("<svg"));
        ChooseFile(open.user, path + ".png");
        open.Trigger("action_ExportPlot");
        QVERIFY(!QImage(path + ".png").isNull());
        open.Trigger("action_CopyPlot");
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QImage(path + ".png").size());
    }
    ChooseFile(open.user, QDir(folder).filePath("runs.csv"));
    open.Trigger("action_ExportStudy");
    QCOMPARE(ContentOf("runs.csv").count('\n'), 5);
    QVERIFY(open.user.IsDone());
}

void tst_MainWindowStudy::AStudyIsPausedAndContinued()
{
    StudyWindow open(EnterTemporaryDirectory(), "[60, 62, 64, 66, 68, 70]");
    Find<QSpinBox>(open.window, "spinBox_Jobs").setValue(1);
    Click(open.window, "pushButton_Start");
    QTRY_VERIFY_WITH_TIMEOUT(open.Count() > 0, Patience);
    auto& pause = Find<QPushButton>(open.window, "pushButton_Pause");
    Click(open.window, "pushButton_Pause");
    QTRY_COMPARE_WITH_TIMEOUT(pause.text(), QString("Continue"), Patience);
    QVERIFY(!open.Start().isEnabled());
    QVERIFY(open.Count() <= 12);
    Click(open.window, "pushButton_Pause");
    QCOMPARE(pause.text(), QString("Pause"));
    QTRY_VERIFY_WITH_TIMEOUT(open.Start().isEnabled(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 12, Patience);
}

void tst_MainWindowStudy::AStudyIsStoppedAndStartedAgain()
{
    StudyWindow open(EnterTemporaryDirectory(), "[60, 62, 64, 66, 68, 70]");
    Find<QSpinBox>(open.window, "spinBox_Jobs").setValue(1);
    Click(open.window, "pushButton_Start");
    QTRY_VERIFY_WITH_TIMEOUT(open.Count() > 0, Patience);
    Click(open.window, "pushButton_Stop");
    QTRY_VERIFY_WITH_TIMEOUT(open.Start().isEnabled(), Patience);
    QVERIFY(!Find<QPushButton>(open.window, "pushButton_Pause").isEnabled());
    open.RunToTheEnd();
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 12, Patience);
}

void tst_MainWindowStudy::TheFolderOfAnotherProgramIsOpened()
{
    StudyWindow open(EnterTemporaryDirectory());
    RunElsewhere();
    open.user.Then([](QDialog& dialog) {
        Find<QLineEdit>(dialog, "fileNameEdit").setText(QDir::current().filePath("elsewhere"));
        dialog.findChild<QPushButton*>()->setFocus();
        static_cast<QFileDialog&>(dialog).selectFile(QDir::current().filePath("elsewhere"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    open.Trigger("action_OpenStudy");
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 4, Patience);
    QVERIFY(open.Start().isEnabled());
    QTRY_COMPARE(open.Shown("label_Progress"), QString("4 of 4 runs have ended"));
}

void tst_MainWindowStudy::TicksAndSamplesAreThoseOfTheExperiments()
{
    StudyWindow open(EnterTemporaryDirectory());
    auto& samples = Find<SampleTable>(open.window, "sampleTable");
    QTRY_VERIFY(RowOf(samples, "thickness") >= 0);
    TypeIntoCell(samples, RowOf(samples, "bore_diameter"), SampleTable::ValuesColumn, "60, 65, 70");
    QTRY_VERIFY(open.Shown("label_Expected").startsWith("6 runs"));
    open.user.Then([](QDialog& dialog) {
        QCOMPARE(Find<QTableWidget>(dialog, "tableWidget_Final").rowCount(), 6);
        auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
        auto* const check =
            qobject_cast<QCheckBox*>(table.cellWidget(RowOf(table, "bore_diameter"), 1));
        check->click();
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QVERIFY(open.user.IsDone());
    QTRY_VERIFY(open.Shown("label_Expected").startsWith("2 runs"));
    QCOMPARE(samples.item(RowOf(samples, "bore_diameter"), 0)->checkState(), Qt::Unchecked);
}

void tst_MainWindowStudy::TheSetUpIsUndoneAndSaved()
{
    StudyWindow open(EnterTemporaryDirectory());
    auto& design = Find<QComboBox>(open.window, "comboBox_Design");
    QTest::keyClick(&design, Qt::Key_Down);
    QTRY_VERIFY(open.Shown("label_Expected").startsWith("100 runs"));
    QVERIFY(open.window.isWindowModified());
    Type(open.window, "lineEdit_Seed", "7");
    open.Trigger("action_SaveProject");
    const StudyDefinition saved = Project::Load("p.json").Study();
    QCOMPARE(saved.design, StudyDefinition::LatinHypercube);
    QCOMPARE(saved.runs, 100);
    QCOMPARE(saved.seed.value_or(0), 7U);
    open.Trigger("action_Undo");
    open.Trigger("action_Undo");
    QTRY_COMPARE(design.currentIndex(), int(StudyDefinition::FullFactorial));
    QVERIFY(open.Shown("label_Expected").startsWith("4 runs"));
}

void tst_MainWindowStudy::AnotherStudyGetsANewFolder()
{
    StudyWindow open(EnterTemporaryDirectory());
    RunElsewhere();
    Type(open.window, "lineEdit_Folder", "elsewhere");
    auto& responses = Find<ResponseTable>(open.window, "responseTable");
    responses.Show({{"ratio", "mass_kg / volume_mm3"}});
    Q_EMIT responses.Edited("Responses");
    const PostedMessages posted;
    open.user.Answer(QMessageBox::Cancel);
    Click(open.window, "pushButton_Start");
    QVERIFY(open.Start().isEnabled());
    QCOMPARE(open.user.Boxes().last().text,
             QString("The folder elsewhere holds the results of another study: its analyses or "
                     "responses differ."));
    QCOMPARE(Find<QLineEdit>(open.window, "lineEdit_Folder").text(), QString("elsewhere"));

    QVERIFY(QDir().mkdir("elsewhere_2"));
    open.user.Answer(QMessageBox::Yes);
    open.RunToTheEnd();
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 4, Patience);
    QCOMPARE(Find<QLineEdit>(open.window, "lineEdit_Folder").text(), QString("elsewhere_3"));
    QVERIFY(QFile::exists("elsewhere_3/results.csv"));
    QCOMPARE(posted.At(ErrorLevel), QStringList());
}

void tst_MainWindowStudy::ClosingTheWindowEndsTheStudy()
{
    const QString folder = EnterTemporaryDirectory();
    {
        StudyWindow open(folder, "[60, 61, 62, 63, 64, 65, 66, 67, 68, 69, 70]");
        Click(open.window, "pushButton_Start");
        QTRY_VERIFY_WITH_TIMEOUT(open.Count() > 0, Patience);
    }
    QDir::setCurrent(folder);
    QProcess status;
    status.start(TARN_HOST_PROGRAM, {"--status", "p_study"});
    QVERIFY(status.waitForFinished(Patience));
    const QByteArray text = status.readAllStandardOutput();
    QVERIFY2(text.contains(" 0 running, "), text.constData());
}

TARN_HOST_TEST_MAIN(tst_MainWindowStudy, HostApplication)
#include "tst_MainWindowStudy.moc"
