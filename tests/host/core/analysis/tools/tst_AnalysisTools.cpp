#include "AnalysisTools.h"
#include "HostError.h"
#include "Script.h"
#include "TestCase.h"

#include <QSettings>

class tst_AnalysisTools : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ProgramsAreFoundInPath();
    void AMissingProgramNamesItsPackage();
    void APathOfTheUserIsUsed();
    void APathThatIsNotAProgramIsRefused();
    void SettingsAreKept();
    void ValuesOutOfRangeAreBroughtIntoIt();
    void AGreaterLimitOfMemoryHoldsForPrograms();
};

namespace {

QString Refusal(const AnalysisTool& tool)
{
    try {
        return "found " + tool.Executable();
    } catch (const HostError& error) {
        return error.Reason();
    }
}

} // namespace

void tst_AnalysisTools::init()
{
    TestCase::init();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, EnterTemporaryDirectory());
}

void tst_AnalysisTools::ProgramsAreFoundInPath()
{
    const AnalysisTools tools = AnalysisTools::Stored();
    QVERIFY(tools.mesher.Executable().endsWith("/gmsh"));
    QVERIFY(tools.solver.Executable().endsWith("/ccx"));
}

void tst_AnalysisTools::AMissingProgramNamesItsPackage()
{
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    const QString refusal = Refusal(AnalysisTools::Stored().solver);
    qputenv("PATH", before);
    QCOMPARE(refusal, QString("The program ccx is missing: install the Debian package "
                              "calculix-ccx, or set the path of the program."));
}

void tst_AnalysisTools::APathOfTheUserIsUsed()
{
    AnalysisTools tools;
    tools.solver.path = PutScript("mine", "exit 0\n");
    QCOMPARE(tools.solver.Executable(), tools.solver.path);
}

void tst_AnalysisTools::APathThatIsNotAProgramIsRefused()
{
    AnalysisTools tools;
    tools.mesher.path = "/etc/passwd";
    QCOMPARE(Refusal(tools.mesher),
             QString("/etc/passwd is not a program; choose the path of gmsh, or leave it empty to "
                     "look in PATH."));
}

void tst_AnalysisTools::SettingsAreKept()
{
    AnalysisTools tools;
    tools.mesher.path = "/a/网格";
    tools.solver.path = "/b";
    tools.seconds = 7;
    tools.maximumFreedoms = 5000;
    tools.Store();
    const AnalysisTools stored = AnalysisTools::Stored();
    QCOMPARE(stored.mesher.path, tools.mesher.path);
    QCOMPARE(stored.solver.path, tools.solver.path);
    QCOMPARE(stored.seconds, 7);
    QCOMPARE(stored.maximumFreedoms, 5000);
}

void tst_AnalysisTools::ValuesOutOfRangeAreBroughtIntoIt()
{
    AnalysisTools tools;
    tools.seconds = 0;
    tools.maximumFreedoms = -1;
    tools.Store();
    QCOMPARE(AnalysisTools::Stored().seconds, 1);
    QCOMPARE(AnalysisTools::Stored().maximumFreedoms, 1000);
}

void tst_AnalysisTools::AGreaterLimitOfMemoryHoldsForPrograms()
{
    const int usual = AnalysisTools::Stored().megabytes;
    QVERIFY(usual >= BuildLimits().megabytes);
    BuildLimits limits;
    limits.megabytes = BuildLimits::MinimumMegabytes;
    limits.Store();
    QVERIFY(AnalysisTools::Stored().megabytes > limits.megabytes);
    limits.megabytes = BuildLimits::MaximumMegabytes;
    limits.Store();
    QCOMPARE(AnalysisTools::Stored().megabytes, limits.megabytes);
}

TARN_TEST_MAIN(tst_AnalysisTools)
#include "tst_AnalysisTools.moc"
