#include "HostApplication.h"
#include "HostTestMain.h"
#include "OptimumTable.h"
#include "StudyProcess.h"
#include "StudyWindow.h"

#include <QComboBox>
#include <QTabWidget>

// The optimum of a study in the window, verified by a run and made the design.

class tst_MainWindowOptimum : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnOptimumIsVerifiedAndBecomesTheDesign();
    void AnOptimumOfAnotherPartIsNotVerified();

protected:
    void SetUp() override { StudyProcess::SetProgram(TARN_HOST_PROGRAM); }
};

namespace {

/// The results of three thicknesses and three bores, and the page of their optimum.
struct OptimumWindow : StudyWindow
{
    explicit OptimumWindow(const QString& folder)
        : StudyWindow(folder, "p.json",
                      Flange("[60, 65, 70]").replace("\"delta\": 4", "\"delta\": 2"))
    {
        RunToTheEnd();
        [this] {
            QTRY_COMPARE_WITH_TIMEOUT(Count(), 9, Patience);
        }();
        auto& tabs = Find<QTabWidget>(window, "tabWidget");
        tabs.setCurrentWidget(window.findChild<QWidget*>("optimumPage"));
        DeliverEvents();
    }

    OptimumTable& Rows() const { return Find<OptimumTable>(window, "optimumTable"); }
    double Cell(const QString& name, int column) const
    {
        return Rows().item(RowOf(Rows(), name), column)->text().toDouble();
    }
    // The lightest flange with at least this volume in mm3: as thin as it may be.
    void FindLightest(const QString& volume) const
    {
        auto& goal = Find<QComboBox>(window, "comboBox_Goal");
        QTest::keyClicks(&goal, "mass_kg");
        QCOMPARE(goal.currentText(), QString("mass_kg"));
        TypeIntoCell(Rows(), RowOf(Rows(), "volume_mm3"), OptimumTable::LeastColumn, volume);
        TypeIntoCell(Rows(), RowOf(Rows(), "bore_diameter"), OptimumTable::GreatestColumn, "62.5");
        Click(window, "pushButton_FindOptimum");
    }
};

} // namespace

void tst_MainWindowOptimum::AnOptimumIsVerifiedAndBecomesTheDesign()
{
    OptimumWindow open(EnterTemporaryDirectory());
    const PostedMessages posted;
    // The height of the hub follows the thickness; it is not a parameter of its own.
    QCOMPARE(RowOf(open.Rows(), "hub_height"), -1);
    open.FindLightest("660000");
    const double thickness = open.Cell("thickness", OptimumTable::PredictedColumn);
    QVERIFY(thickness > 16.0 && thickness < 20.0);
    const double mass = open.Cell("mass_kg", OptimumTable::PredictedColumn);
    QCOMPARE(qRound(mass * 1000.0), 5181); // 660000 mm3 of 7850 kg/m3.

    Click(open.window, "pushButton_VerifyOptimum");
    QVERIFY(!open.Start().isEnabled());
    QTRY_COMPARE_WITH_TIMEOUT(open.Count(), 10, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(open.Start().isEnabled(), Patience);
    QCOMPARE(open.Rows().horizontalHeaderItem(OptimumTable::RunColumn)->text(), QString("Run 10"));
    const double real = open.Cell("mass_kg", OptimumTable::RunColumn);
    QVERIFY2(std::abs(real - mass) < 1e-3, qPrintable(QString::number(real, 'g', 12)));
    QVERIFY(open.Shown("label_Optimum").endsWith("Run 10 verifies it: compare the last columns."));
    QVERIFY(QFile::exists("p_study/run_0010.step"));

    QCOMPARE(Stored("thickness"), 20.0);
    Click(open.window, "pushButton_MakeOptimumTheDesign");
    QVERIFY(std::abs(Stored("thickness") - thickness) < 1e-4);
    open.Trigger("action_Undo");
    QCOMPARE(Stored("thickness"), 20.0);
    QCOMPARE(posted.At(ErrorLevel), QStringList());
}

void tst_MainWindowOptimum::AnOptimumOfAnotherPartIsNotVerified()
{
    OptimumWindow open(EnterTemporaryDirectory());
    open.FindLightest("660000");
    open.window.Part().SetSuppressed({"flange"}, true);
    open.window.Part().WaitUntilIdle();
    const PostedMessages posted;
    Click(open.window, "pushButton_VerifyOptimum");
    QTRY_VERIFY_WITH_TIMEOUT(open.Start().isEnabled(), Patience);
    QTRY_COMPARE(posted.At(ErrorLevel).size(), 1);
    QVERIFY2(posted.At(ErrorLevel)[0].contains("its part differs"),
             qPrintable(posted.At(ErrorLevel)[0]));
    QCOMPARE(open.Count(), 9);
}

TARN_HOST_TEST_MAIN(tst_MainWindowOptimum, HostApplication)
#include "tst_MainWindowOptimum.moc"
