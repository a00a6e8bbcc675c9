#include "FileChoice.h"
#include "ReportSamples.h"
#include "ResultsDock.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QTableWidget>

class tst_ResultsDock : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void AtFirstThereIsNothing();
    void ModesAreShown();
    void OtherResultsReplaceThem();
    void OldResultsAreMarked();
    void TheTableIsExported();
};

namespace {

struct ShownDock
{
    ShownDock()
    {
        window.resize(500, 500);
        window.addDockWidget(Qt::RightDockWidgetArea, &dock);
        window.show();
    }

    QString Text(const char* label) const { return Find<QLabel>(dock, label).text(); }
    const QTableWidget& Table() const { return Find<QTableWidget>(dock, "table"); }

    QMainWindow window;
    ResultsDock& dock = *new ResultsDock(nullptr, &window);
};

} // namespace

void tst_ResultsDock::AtFirstThereIsNothing()
{
    const ShownDock shown;
    QCOMPARE(shown.Text("titleLabel"), QString("No results yet"));
    QCOMPARE(shown.Table().rowCount(), 0);
    QVERIFY(!Find<QWidget>(shown.dock, "exportButton").isEnabled());
    QVERIFY(!Find<QWidget>(shown.dock, "oldLabel").isVisible());
}

void tst_ResultsDock::ModesAreShown()
{
    ShownDock shown;
    shown.dock.hide();
    shown.dock.ShowReport(Shared(ModesReport()));
    QVERIFY(shown.dock.isVisible());
    QCOMPARE(shown.Text("titleLabel"), QString("Natural frequencies"));
    QVERIFY(shown.Text("meshLabel").startsWith("Mesh: 6 nodes"));
    QCOMPARE(shown.Table().rowCount(), 2);
    QCOMPARE(shown.Table().item(0, 1)->text(), QString("1234.57"));
}

void tst_ResultsDock::OtherResultsReplaceThem()
{
    ShownDock shown;
    shown.dock.ShowReport(Shared(ModesReport()));
    shown.dock.ShowReport(Shared(StaticReport()));
    QCOMPARE(shown.Table().rowCount(), 5);
    QCOMPARE(shown.Table().columnCount(), 3);
    shown.dock.ShowReport(Shared(MeshReport()));
    QCOMPARE(shown.Text("titleLabel"), QString("Mesh"));
    SolveReport none = ModesReport();
    none.modes.clear();
    none.moves.clear();
    shown.dock.ShowReport(Shared(none));
    QCOMPARE(shown.Text("titleLabel"),
             QString("Natural frequencies: none in the range of frequencies"));
    shown.dock.Clear();
    QCOMPARE(shown.Table().columnCount(), 0);
}

void tst_ResultsDock::OldResultsAreMarked()
{
    ShownDock shown;
    const auto& old = Find<QLabel>(shown.dock, "oldLabel");
    shown.dock.SetOld(true);
    QVERIFY(!old.isVisible());
    shown.dock.ShowReport(Shared(ModesReport()));
    shown.dock.SetOld(true);
    QVERIFY(old.isVisible());
    shown.dock.SetOld(false);
    QVERIFY(!old.isVisible());
}

void tst_ResultsDock::TheTableIsExported()
{
    ShownDock shown;
    shown.dock.ShowReport(Shared(ModesReport()));
    ModalDriver user;
    ChooseFile(user, QDir::current().filePath("modes.csv"));
    Click(shown.dock, "exportButton");
    QVERIFY(user.IsDone());
    QVERIFY(ContentOf("modes.csv").contains("\n1,1234.56789,1,0,12.5\n"));
}

TARN_TEST_MAIN(tst_ResultsDock)
#include "tst_ResultsDock.moc"
