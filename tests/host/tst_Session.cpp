#include "DialogTables.h"
#include "DisplayUser.h"
#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "ParameterEditor.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "ShapeMeasures.h"
#include "StepFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <TopoDS_Shape.hxx>

// The built program with real keys and a real mouse, from opening a project to quitting.
class tst_Session : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AUserEditsBuildsSavesAndQuits();
};

namespace {

constexpr int Patience = 30000; // Milliseconds; each step usually takes less than one second.

/// The program with its sample project, in the working directory.
class RunningHost
{
public:
    RunningHost()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Leaks are found by the other tests; here, graphics drivers would report their own.
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(TARN_HOST_PROGRAM, {"--lang", "en"});
    }
    ~RunningHost()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(RunningHost)

    /// Waits until the window with this title is shown, and gives it the focus.
    void EnterWindow(const QString& title)
    {
        window = 0;
        if (QTest::currentTestFailed())
            return;
        QTRY_VERIFY2_WITH_TIMEOUT((window = user.FindWindow(m_process.processId(), title)) != 0,
                                  qPrintable(title), Patience);
        user.Focus(window);
    }

    /// Enters a name into the file dialog with this title, and waits until it is closed.
    void ChooseFile(const QString& title, const QString& name)
    {
        EnterWindow(title);
        user.Type(name);
        user.Press({"Return"});
        WaitForEnd(title);
    }

    void WaitForEnd(const QString& title)
    {
        if (QTest::currentTestFailed())
            return;
        QTRY_VERIFY2_WITH_TIMEOUT(user.FindWindow(m_process.processId(), title) == 0,
                                  qPrintable(title), Patience);
    }

    bool HasQuit() const { return m_process.state() == QProcess::NotRunning; }
    int ExitCode() const { return m_process.exitCode(); }

    DisplayUser user;
    DisplayUser::WindowId window = 0; ///< That was entered last.

private:
    QProcess m_process;
};

/// The parameter editor as the program shows it for the same project, with the same positions of
/// its widgets.
class TwinEditor
{
public:
    explicit TwinEditor(const Project& project)
    {
        project.FillParameterStore();
        ParameterEvaluator::Evaluate();
        m_editor.m_Slot_RefreshGUI();
        FitTables(m_editor);
        m_editor.setAttribute(Qt::WA_DontShowOnScreen);
        m_editor.show();
    }

    QPoint PlaceOfValue(const QString& parameter) const
    {
        constexpr int ValueColumn = 1;
        const auto& table = Find<QTableWidget>(m_editor, "tableWidget");
        const QList<QTableWidgetItem*> names = table.findItems(parameter, Qt::MatchExactly);
        const QTableWidgetItem* const value = table.item(names.value(0)->row(), ValueColumn);
        return table.viewport()->mapTo(&m_editor, table.visualItemRect(value).center());
    }

    QPoint PlaceOfButton(const char* name) const
    {
        const auto& button = Find<QPushButton>(m_editor, name);
        return button.mapTo(&m_editor, button.rect().center());
    }

private:
    const EmptyDesignStores m_stores;
    ParameterEditor m_editor{nullptr};
};

double StoredThickness(const Project& project)
{
    for (const ParametersDef& record : project.Parameters()) {
        if (record.m_strName == "thickness")
            return record.m_dValue;
    }
    return 0.0;
}

} // namespace

void tst_Session::AUserEditsBuildsSavesAndQuits()
{
    const QString directory = EnterTemporaryDirectory();
    QByteArray project = ContentOf(SourcePath("host/samples/flange.json"));
    Put("mine.json", project.replace("Bolted flange", "My flange"));
    const TwinEditor twin(Project::Load("mine.json"));

    RunningHost host;
    host.EnterWindow("Bolted flange - Tarn host");
    host.user.Press({"Control_L", "o"});
    host.ChooseFile("Open project", directory + "/mine.json");
    host.EnterWindow("My flange - mine.json - Tarn host");

    host.user.Press({"Alt_L", "d"});
    host.user.Press({"p"});
    host.EnterWindow("ParameterEditor");
    host.user.Click(host.window, twin.PlaceOfValue("thickness"), 2);
    host.user.Type("33");
    host.user.Press({"Return"});
    host.user.Click(host.window, twin.PlaceOfButton("pushButton_OK"));
    host.WaitForEnd("ParameterEditor");
    host.EnterWindow("My flange - mine.json* - Tarn host");

    host.user.Press({"Alt_L", "m"});
    host.user.Press({"x"});
    host.ChooseFile("Export STEP", "part.step");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("part.step"), Patience);
    const ShapeMeasures measures = Measure(ReadStepFile("part.step"));
    QVERIFY2(qAbs(measures.boundingBox[5] - (33.0 + 30.0)) < 1e-6,
             qPrintable(QString::number(measures.boundingBox[5])));

    host.EnterWindow("My flange - mine.json* - Tarn host");
    host.user.Press({"Control_L", "s"});
    host.EnterWindow("My flange - mine.json - Tarn host");
    const Project saved = Project::Load("mine.json");
    QCOMPARE(StoredThickness(saved), 33.0);
    QVERIFY(saved.Features() == Project::Load(SourcePath("host/samples/flange.json")).Features());

    host.user.Press({"Control_L", "q"});
    QTRY_VERIFY_WITH_TIMEOUT(host.HasQuit(), Patience);
    QCOMPARE(host.ExitCode(), 0);
}

TARN_TEST_MAIN(tst_Session, HostApplication)
#include "tst_Session.moc"
