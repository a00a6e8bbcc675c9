#include "HostTestMain.h"
#include "SolveDock.h"
#include "Solving.h"

#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>

class tst_SolveDock
    : public With<TestCase, TemporaryDirectory, EmptyDesignStores, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AnAnalysisIsFollowed();
    void ItCanBeCancelled();
    void AProblemIsShown();
};

namespace {

struct ShownDock
{
    ShownDock()
    {
        window.resize(700, 300);
        window.addDockWidget(Qt::BottomDockWidgetArea, &dock);
        window.show();
    }

    void Start(const Project& project, SolveKind kind)
    {
        process.Start(project, kind, QDir::currentPath());
        dock.Begin("Mesh");
    }
    QString Text(const char* label) const { return Find<QLabel>(dock, label).text(); }
    bool CanCancel() const { return Find<QWidget>(dock, "cancelButton").isEnabled(); }

    QMainWindow window;
    SolveProcess process;
    SolveDock& dock = *new SolveDock(process, &window);
};

} // namespace

void tst_SolveDock::AnAnalysisIsFollowed()
{
    ShownDock shown;
    QVERIFY(!shown.CanCancel());
    const auto& bar = Find<QProgressBar>(shown.dock, "stageBar");
    shown.Start(BeamFrom(), SolveKind::Mesh);
    QVERIFY(shown.CanCancel());
    QCOMPARE(shown.Text("titleLabel"), QString("Mesh"));
    QCOMPARE(shown.Text("timeLabel"), QString("0 min 0 s"));
    QTRY_COMPARE_WITH_TIMEOUT(shown.Text("stageLabel"), QString("Meshing"), 60000);
    QVERIFY(bar.value() > 0 && bar.value() < bar.maximum());
    QTRY_COMPARE_WITH_TIMEOUT(shown.Text("stageLabel"), QString("Done"), 60000);
    QCOMPARE(bar.value(), bar.maximum());
    QVERIFY(!shown.CanCancel());
    QVERIFY(Find<QPlainTextEdit>(shown.dock, "log").toPlainText().contains("degrees of freedom"));
}

void tst_SolveDock::ItCanBeCancelled()
{
    const EndlessSolver endless;
    ShownDock shown;
    shown.Start(BeamFrom(), SolveKind::Vibration);
    QTRY_VERIFY_WITH_TIMEOUT(endless.HasStarted(), 60000);
    QTRY_COMPARE(shown.Text("stageLabel"), QString("Solving"));
    Click(shown.dock, "cancelButton");
    QCOMPARE(shown.Text("stageLabel"), QString("The analysis was cancelled."));
    QVERIFY(!shown.process.IsBusy());
    QTRY_VERIFY(!endless.IsRunning());
}

void tst_SolveDock::AProblemIsShown()
{
    ShownDock shown;
    shown.Start(BeamFrom(Beam("beam.xmin", "hole.side")), SolveKind::Mesh);
    QTRY_VERIFY_WITH_TIMEOUT(!shown.process.IsBusy(), 60000);
    QVERIFY(shown.Text("stageLabel").startsWith("The boundary condition"));
    QVERIFY(Find<QPlainTextEdit>(shown.dock, "log").toPlainText().contains("boundary condition"));
}

TARN_HOST_TEST_MAIN(tst_SolveDock)
#include "tst_SolveDock.moc"
