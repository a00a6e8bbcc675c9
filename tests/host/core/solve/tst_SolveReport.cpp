#include "HostError.h"
#include "SolveReport.h"
#include "TestCase.h"

class tst_SolveReport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ModesComeWithTheirShapesOnTheSkin();
    void AStaticAnalysisComesWithItsPeaks();
    void AFailedAnalysisHasItsMesh();
    void BytesAreReadBack();
    void DamagedBytesAreRefused();
};

namespace {

/// A triangle, with the node 0 used by nobody.
SolveResult Result()
{
    SolveResult result;
    Mesh& mesh = result.model.mesh;
    mesh.nodes = {{9, 9, 9}, {0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.facets = {{{1, 2, 3, 4, 5, 6}, 3, 1}};
    result.quality.worst = 0.25;
    result.quality.worstPlace = {1, 2, 3};
    result.modes = {{12.5, {1, 2, 3, 4, 5, 6}}, {20.0, {}}};
    std::vector<Vector3> shape(mesh.nodes.size());
    shape[2] = {1, -2, 3};
    result.shapes = {std::vector<Vector3>(mesh.nodes.size()), shape};
    return result;
}

SolveResult StaticSample()
{
    SolveResult result = Result();
    result.modes.clear();
    result.shapes.clear();
    const std::size_t nodes = result.model.mesh.nodes.size();
    result.statics.displacements.assign(nodes, {0, 0, 0.5});
    result.statics.stresses.assign(nodes, 10.0);
    result.statics.stresses[3] = 40.0;
    result.statics.maximumDisplacement = 0.5;
    result.statics.maximumStress = 40.0;
    result.statics.stressedNode = 3;
    result.reaction = {0, 0, -7};
    return result;
}

} // namespace

void tst_SolveReport::ModesComeWithTheirShapesOnTheSkin()
{
    const SolveReport report = ReportOf(Result(), SolveKind::Vibration);
    QVERIFY(report.kind == SolveKind::Vibration);
    QCOMPARE(report.nodes, 7);
    QCOMPARE(report.elements, 1);
    QCOMPARE(report.worst, 0.25);
    QCOMPARE(report.modes.size(), std::size_t(2));
    QCOMPARE(report.moves.size(), std::size_t(2));
    for (std::size_t point = 0; point < report.skin.points.size(); ++point)
        QVERIFY((report.moves[1][point] ==
                 (report.skin.nodes[point] == 2 ? MeshSkin::Point{1, -2, 3} : MeshSkin::Point{})));
}

void tst_SolveReport::AStaticAnalysisComesWithItsPeaks()
{
    const SolveReport report = ReportOf(StaticSample(), SolveKind::Static);
    QCOMPARE(report.moves.size(), std::size_t(1));
    QCOMPARE(report.stresses.size(), report.skin.points.size());
    QCOMPARE(report.stress.value, 40.0);
    QVERIFY((report.stress.place == Vector3{0, 2, 0}));
    QVERIFY((report.displacement.place == Vector3{9, 9, 9}));
    QCOMPARE(report.reaction[2], -7.0);
}

void tst_SolveReport::AFailedAnalysisHasItsMesh()
{
    SolveResult result = Result();
    result.outcome = SolveResult::Failed;
    result.modes.clear();
    const SolveReport report = ReportOf(result, SolveKind::Static);
    QVERIFY(report.kind == SolveKind::Mesh);
    QCOMPARE(report.skin.triangles.size(), std::size_t(4));
    QVERIFY(report.moves.empty());
}

void tst_SolveReport::BytesAreReadBack()
{
    for (const SolveReport& report : {ReportOf(Result(), SolveKind::Vibration),
                                      ReportOf(StaticSample(), SolveKind::Static), SolveReport()}) {
        const QByteArray bytes = ToBytes(report);
        const SolveReport read = ReportFromBytes(bytes);
        QCOMPARE(ToBytes(read), bytes);
        QCOMPARE(read.modes.size(), report.modes.size());
        QCOMPARE(read.stress.value, report.stress.value);
        QVERIFY(read.skin.lines == report.skin.lines);
    }
}

void tst_SolveReport::DamagedBytesAreRefused()
{
    const QByteArray bytes = ToBytes(ReportOf(StaticSample(), SolveKind::Static));
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY_EXCEPTION_THROWN(ReportFromBytes(bytes.left(size)), HostError);
    // Whatever a byte becomes, nothing crashes, and no index is out of range.
    for (int place = 0; place < bytes.size(); ++place) {
        QByteArray damaged = bytes;
        damaged[place] = char(damaged[place] ^ char(0xff));
        try {
            const SolveReport report = ReportFromBytes(damaged);
            for (const auto& triangle : report.skin.triangles) {
                for (const int point : triangle)
                    QVERIFY(point >= 0 && std::size_t(point) < report.skin.points.size());
            }
        } catch (const HostError& error) {
            QCOMPARE(error.Reason(), QString("The file of the results is damaged."));
        }
    }
}

TARN_TEST_MAIN(tst_SolveReport)
#include "tst_SolveReport.moc"
