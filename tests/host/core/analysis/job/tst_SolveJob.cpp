#include "HostTestMain.h"
#include "SolvedProject.h"

#include <QTimer>

class tst_SolveJob : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void VibrationGivesModesAndShapes();
    void AFreeBodyHasItsRigidBodyModesOnlyIfAskedFor();
    void ModesBelowTheRangeDoNotCount();
    void AStaticAnalysisGivesDisplacementStressAndReaction();
    void ShellsAreSolved();
    void WithoutARunTheDecksAreWritten();
    void TheSameProjectGivesTheSameBytes();
    void StagesAreReportedInTheirOrder();
    void TheEventLoopGoesOn();
    void WhatIsWrongIsSaidByName_data();
    void WhatIsWrongIsSaidByName();
};

namespace {

const QByteArray Range = R"({"number": 3})";
const QByteArray Clamp =
    R"({"name": "clamp", "held": ["X_D", "Y_D", "Z_D"], "faces": ["beam.xmin"]})";

// A strip of 2 mm, clamped at its edge.
const QByteArray Strip = R"({
    "version": 2,
    "features": [{"name": "beam", "kind": "box", "fields": {"x": 100, "y": 10, "z": 10}}],
    "analysis": {
        "meshSize": 5, "frequencies": {"number": 3},
        "properties": [{"name": "web", "material": "Steel S355", "thickness": 2,
                        "faces": ["beam.zmax"]}],
        "constraints": [{"name": "clamp", "held": ["X_D", "Y_D", "Z_D", "X_R", "Y_R", "Z_R"],
                         "edges": [{"between": ["beam.zmax", "beam.xmin"]}]}]}})";

} // namespace

void tst_SolveJob::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolveJob::VibrationGivesModesAndShapes()
{
    SolvedProject solved;
    const SolveResultPointer result = solved.Solve(BeamProject);
    QCOMPARE(result->problem, QString());
    QCOMPARE(result->modes.size(), std::size_t(3));
    // The first two bend the beam: 1.8751^2 / 2 pi l^2 * sqrt(E I / rho A), less for shear.
    QVERIFY2(std::abs(result->modes[0].frequency / 835.5 - 1.0) < 0.02,
             qPrintable(QString::number(result->modes[0].frequency)));
    QVERIFY(std::abs(result->modes[1].frequency / result->modes[0].frequency - 1.0) < 0.01);
    QVERIFY(result->totalMass[0] > 0.0);
    QCOMPARE(result->shapes.size(), std::size_t(3));
    QCOMPARE(result->shapes[0].size(), result->model.mesh.nodes.size());
    QVERIFY(result->quality.isUsable);
    QVERIFY(!solved.job.IsBusy());
}

void tst_SolveJob::AFreeBodyHasItsRigidBodyModesOnlyIfAskedFor()
{
    SolvedProject solved;
    QByteArray free = Beam(Clamp, "");
    const SolveResultPointer elastic = solved.Solve(free);
    QCOMPARE(elastic->problem, QString());
    QCOMPARE(elastic->modes.size(), std::size_t(3));
    QVERIFY(elastic->modes[0].frequency > 4000.0);
    const auto all = solved.Solve(free.replace(Range, R"({"min": 0, "number": 8})"))->modes;
    QCOMPARE(all.size(), std::size_t(8));
    QVERIFY(all[5].frequency < 10.0);
    QVERIFY(std::abs(all[6].frequency / elastic->modes[0].frequency - 1.0) < 1e-5);
}

void tst_SolveJob::ModesBelowTheRangeDoNotCount()
{
    SolvedProject solved;
    const auto modes = solved.Solve(Beam(Range, R"({"number": 12})"))->modes;
    QCOMPARE(modes.size(), std::size_t(12));
    // The eighth is the first of this range, so three modes do not reach it.
    const double min = (modes[6].frequency + modes[7].frequency) / 2.0;
    const double max = (modes[9].frequency + modes[10].frequency) / 2.0;
    const auto range = [&](int number) {
        const QString text = R"({"min": %1, "max": %2, "number": %3})";
        return solved
            .Solve(Beam(Range, text.arg(min, 0, 'f', 3).arg(max, 0, 'f', 3).arg(number).toLatin1()))
            ->modes;
    };
    const auto two = range(2);
    QCOMPARE(two.size(), std::size_t(2));
    QVERIFY(std::abs(two[0].frequency / modes[7].frequency - 1.0) < 1e-5);
    QCOMPARE(range(5).size(), std::size_t(3));
}

void tst_SolveJob::AStaticAnalysisGivesDisplacementStressAndReaction()
{
    SolvedProject solved;
    const SolveResultPointer result = solved.Solve(Beam(R"([2000, 0, "l"])", "[2000, 0, 0]"), true);
    QCOMPARE(result->problem, QString());
    // F l / E A
    QVERIFY(std::abs(result->statics.maximumDisplacement / (2000.0 * 100 / 21e6) - 1.0) < 0.02);
    QVERIFY(result->statics.maximumStress >= 20.0);
    QVERIFY(Length(result->reaction - Vector3{-2000, 0, 0}) < 1e-9 * 2000);
}

void tst_SolveJob::ShellsAreSolved()
{
    SolvedProject solved;
    const SolveResultPointer result = solved.Solve(Strip);
    QCOMPARE(result->problem, QString());
    QVERIFY(!result->model.mesh.IsSolid());
    // 1.8751^2 / 2 pi l^2 * sqrt(E I / rho A)
    QVERIFY2(std::abs(result->modes[0].frequency / 167.1 - 1.0) < 0.03,
             qPrintable(QString::number(result->modes[0].frequency)));
}

void tst_SolveJob::WithoutARunTheDecksAreWritten()
{
    SolvedProject solved;
    SolveInput input = solved.Input(BeamProject);
    input.isWithoutRun = true;
    const SolveResultPointer result = solved.job.Run(input);
    QCOMPARE(result->outcome, SolveResult::Done);
    QVERIFY(result->modes.empty());
    QVERIFY(QFile::exists("out/Model_Active.inp") && QFile::exists("out/Model_Active.bdf"));
    QVERIFY(!QFile::exists("out/solver.log"));
}

void tst_SolveJob::TheSameProjectGivesTheSameBytes()
{
    const QStringList names = {"out/Model_Active.inp", "out/Model_Active.bdf",
                               "out/Model_Active.dat"};
    const auto contents = [&names] {
        SolvedProject().Solve(BeamProject);
        QList<QByteArray> list;
        for (const QString& name : names)
            list << ContentOf(name);
        return list;
    };
    const QList<QByteArray> first = contents();
    QVERIFY(contents() == first);
}

void tst_SolveJob::StagesAreReportedInTheirOrder()
{
    SolvedProject solved;
    QList<SolveStage> stages;
    QStringList lines;
    connect(&solved.job, &SolveJob::StageChanged, this, [&](SolveStage stage) { stages << stage; });
    connect(&solved.job, &SolveJob::Progressed, this, [&](const QString& line) { lines << line; });
    solved.Solve(BeamProject);
    QVERIFY((stages == QList<SolveStage>{SolveStage::Building, SolveStage::Meshing,
                                         SolveStage::Modelling, SolveStage::Solving,
                                         SolveStage::Reading}));
    QCOMPARE(lines.first(), QString("building the part"));
    QCOMPARE(lines.filter("degrees of freedom").size(), 1);
}

void tst_SolveJob::TheEventLoopGoesOn()
{
    SolvedProject solved;
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(10);
    solved.Solve(BeamProject);
    QVERIFY(ticks > 3);
}

void tst_SolveJob::WhatIsWrongIsSaidByName_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<bool>("isStatic");
    QTest::addColumn<QString>("problem");
    NewRow("too fine a mesh", Beam(R"("l / 10")", "0.1"), false,
           QString("The mesh of size 0.1 mm would have about 2.8e+08 degrees of freedom; the limit "
                   "is 2000000. A mesh size of 0.52 mm would fit."));
    NewRow("free to move", Beam(R"("X_D", "Y_D", "Z_D")", R"("X_D", "Z_D")"), true,
           QString("The part is free to move along y: add supports."));
    NewRow("no load", Beam(R"([2000, 0, "l"])", "[0, 0, 0]"), true,
           QString("The set-up has no load, so nothing moves. Add a load first."));
    NewRow("no material", Beam(R"("material": "Steel S355",)", ""), false,
           QString("The part has no material."));
    NewRow("a face that is missing", Beam("beam.xmin", "hole.side"), false,
           QString("The boundary condition \"clamp\": "));
    NewRow(
        "too fine a mesh of shells",
        QByteArray(Strip).replace("\"meshSize\": 5", "\"meshSize\": 0.05"), false,
        QString("The mesh of size 0.05 mm would have about 9.1e+06 degrees of freedom; the limit "
                "is 2000000. A mesh size of 0.11 mm would fit."));
    NewRow("two bodies that touch",
           Beam(R"("z": 10}}])", R"("z": 10}}, {"name": "other", "kind": "box"},
                                  {"name": "beside", "kind": "move", "inputs": ["other"],
                                   "fields": {"dy": 10}}])"),
           false,
           QString("The bodies touch without being joined: body 1 (beam) and body 2 (beside). Fuse "
                   "them, or leave a gap."));
    NewRow("two bodies that overlap",
           Beam(R"("z": 10}}])", R"("z": 10}}, {"name": "other", "kind": "box"}])"), false,
           QString());
}

void tst_SolveJob::WhatIsWrongIsSaidByName()
{
    QFETCH(QByteArray, project);
    QFETCH(bool, isStatic);
    QFETCH(QString, problem);
    SolvedProject solved;
    const SolveResultPointer result = solved.Solve(project, isStatic);
    QCOMPARE(result->outcome, SolveResult::Failed);
    QVERIFY2(result->problem.startsWith(problem), qPrintable(result->problem));
    QVERIFY(!result->problem.isEmpty() && !result->problem.contains('\n'));
}

TARN_HOST_TEST_MAIN(tst_SolveJob)
#include "tst_SolveJob.moc"
