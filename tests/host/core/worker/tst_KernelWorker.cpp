#include "HostTestMain.h"
#include "StepFile.h"
#include "TestFiles.h"
#include "WatchedWorker.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRep_Builder.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>

#include <csignal>

class tst_KernelWorker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void APartIsBuiltAsInTheSameProcess();
    void AFailureNamesTheFeature();
    void ProgressNamesEachStepThatIsBuilt();
    void OneProcessServesAllRequests();
    void AnUnusedWorkerHasNoProcess();
    void AStepFileIsWritten_data();
    void AStepFileIsWritten();
    void TargetsAreFoundInTheBrepFile();
    void AKilledBuildFailsByNameAndTheNextOneWorks();
    void AnIdleWorkerThatWasKilledIsReplaced();
    void ACrashEndsTheProcessAfterItsReply();
    void CancelEndsABuild();
    void ANewRequestReplacesTheOneAtHand();
    void ADiscardedRequestHasNoReply();
    void TheTimeLimitEndsABuild();
    void TheWorkerEndsWithItsOwner();
};

void tst_KernelWorker::APartIsBuiltAsInTheSameProcess()
{
    Watched watched;
    const QByteArray list = A10 + R"(, {"name": "b", "kind": "sphere"},
                                       {"name": "c", "kind": "cut", "inputs": ["a", "b"]})";
    const PartReply reply = watched.worker.Run(Request(list));
    QCOMPARE(reply.outcome, PartReply::Done);
    QVERIFY(!watched.worker.IsBusy());
    const BuiltPart part = FeatureBuilder::Build(List(list));
    const ShapeMeasures measures = Measure(part.shape);
    QCOMPARE(reply.measures.volume, measures.volume);
    QCOMPARE(reply.measures.area, measures.area);
    QVERIFY(reply.measures.boundingBox == measures.boundingBox);
    QCOMPARE(MassOf(reply.part.shape).volume, MassOf(part.shape).volume);
    QCOMPARE(reply.part.shapes.size(), std::size_t(3));
    QVERIFY(reply.lines.edges.isEmpty());
    PartRequest drawn = Request(list);
    drawn.wantsLines = true;
    QCOMPARE(watched.worker.Run(drawn).lines.edges.size(), DrawLines(part.shape).edges.size());
}

void tst_KernelWorker::AFailureNamesTheFeature()
{
    Watched watched;
    const PartReply reply =
        watched.worker.Run(Request(A10 + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"],
                            "fields": {"radius": 30, "x": 5, "y": 0, "z": 10}})"));
    QCOMPARE(reply.outcome, PartReply::Failed);
    QCOMPARE(reply.failedFeature, QString("b"));
    QVERIFY2(reply.Reason().startsWith("b: a fillet of 30 mm"), qPrintable(reply.Reason()));
}

void tst_KernelWorker::ProgressNamesEachStepThatIsBuilt()
{
    Watched watched;
    watched.worker.Run(Request(A10 + R"(, {"name": "b", "kind": "sphere"})"));
    QCOMPARE(watched.steps, QList<int>({0, 1, 2}));
    watched.steps.clear();
    watched.worker.Run(
        Request(A10 + R"(, {"name": "b", "kind": "sphere", "fields": {"radius": 3}})"));
    QCOMPARE(watched.steps, QList<int>({1, 2}));
}

void tst_KernelWorker::OneProcessServesAllRequests()
{
    Watched watched;
    watched.worker.Run(Request(A10));
    const qint64 first = watched.ProcessId();
    QVERIFY(first != 0);
    watched.worker.Run(Request(Brick));
    QCOMPARE(watched.ProcessId(), first);
}

void tst_KernelWorker::AnUnusedWorkerHasNoProcess()
{
    const Watched watched;
    QCOMPARE(watched.ProcessId(), qint64(0));
}

void tst_KernelWorker::AStepFileIsWritten_data()
{
    QTest::addColumn<int>("feature");
    QTest::addColumn<double>("volume");
    QTest::newRow("whole part") << int(PartRequest::WholePart) << 8000.0;
    QTest::newRow("one feature") << 0 << 1000.0;
}

void tst_KernelWorker::AStepFileIsWritten()
{
    QFETCH(int, feature);
    QFETCH(double, volume);
    const QString directory = EnterTemporaryDirectory();
    Watched watched;
    PartRequest request = Request(A10 + R"(, {"name": "b", "kind": "box", "fields": {"x": 70}})");
    request.wantsShapes = false;
    request.stepPath = directory + "/长.step";
    request.stepFeature = feature;
    const PartReply reply = watched.worker.Run(request);
    QVERIFY2(reply.outcome == PartReply::Done, qPrintable(reply.Reason()));
    QVERIFY(qFuzzyCompare(Measure(ReadStepFile("长.step")).volume, volume));
    // Where it cannot be written, the reason is that of the file.
    request.stepPath = directory + "/none/a.step";
    const QString reason = watched.worker.Run(request).Reason();
    QVERIFY2(reason.startsWith("a.step: "), qPrintable(reason));
}

void tst_KernelWorker::TargetsAreFoundInTheBrepFile()
{
    const QString directory = EnterTemporaryDirectory();
    Watched watched;
    PartRequest request =
        Request(A10 + R"(, {"name": "pin", "kind": "cylinder", "fields": {"radius": 2}},
                           {"name": "hole", "kind": "cut", "inputs": ["a", "pin"]},
                           {"name": "b", "kind": "rectangularArray", "inputs": ["hole"]},
                           {"name": "c", "kind": "box"})");
    request.wantsShapes = false;
    request.brepPath = directory + "/长.brep";
    request.faces = {{"pin.side", {}}, {"pin.end", {}}, {"", {105, 5, 0}}};
    request.edges = {{{{"pin.side", {}}, {"a.zmin", {}}}, {}}, {{}, {1, 2, 3}}};
    const PartReply reply = watched.worker.Run(request);
    QVERIFY2(reply.outcome == PartReply::Done, qPrintable(reply.Reason()));
    QCOMPARE(reply.faces.size(), std::size_t(3));
    QCOMPARE(reply.faces[1].error, QString("the part has no face \"pin.end\"."));
    QCOMPARE(reply.edges[1].error, QString("no edge lies at the point (1, 2, 3)."));

    TopoDS_Shape read;
    QVERIFY(BRepTools::Read(read, "长.brep", BRep_Builder()));
    const auto surfaces = [&](const FoundTarget& found) {
        TopTools_IndexedMapOfShape faces;
        TopExp::MapShapes(read, TopAbs_FACE, faces);
        QList<int> kinds;
        for (const int number : found.numbers)
            kinds << BRepAdaptor_Surface(TopoDS::Face(faces(number))).GetType();
        return kinds;
    };
    QCOMPARE(surfaces(reply.faces[0]), QVector<int>(20, GeomAbs_Cylinder).toList());
    QCOMPARE(surfaces(reply.faces[2]), QList<int>({GeomAbs_Plane}));
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(read, TopAbs_EDGE, edges);
    QCOMPARE(reply.edges[0].numbers.size(), std::size_t(20));
    for (const int number : reply.edges[0].numbers)
        QCOMPARE(BRepAdaptor_Curve(TopoDS::Edge(edges(number))).GetType(), GeomAbs_Circle);
    std::vector<int> solids(20, 3);
    solids.push_back(4);
    QCOMPARE(reply.solids, solids);
    // Where it cannot be written, the reason is that of the file.
    request.brepPath = directory + "/none/a.brep";
    const QString reason = watched.worker.Run(request).Reason();
    QVERIFY2(reason.startsWith("a.brep: "), qPrintable(reason));
}

void tst_KernelWorker::AKilledBuildFailsByNameAndTheNextOneWorks()
{
    Watched watched;
    watched.StartEndless();
    ::kill(pid_t(watched.ProcessId()), SIGKILL);
    QTRY_COMPARE(watched.replies.count(), 1);
    QCOMPARE(watched.Last().outcome, PartReply::Failed);
    QCOMPARE(watched.Last().Reason(), QString("knot: the geometry kernel crashed."));
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
}

void tst_KernelWorker::AnIdleWorkerThatWasKilledIsReplaced()
{
    Watched watched;
    watched.worker.Run(Request(A10));
    ::kill(pid_t(watched.ProcessId()), SIGKILL);
    QCOMPARE(watched.worker.Run(Request(Brick)).measures.volume, 6000.0);
}

void tst_KernelWorker::ACrashEndsTheProcessAfterItsReply()
{
    Watched watched;
    watched.worker.Run(Request(A10));
    const qint64 before = watched.ProcessId();
    // The kernel crashes at this one, and catches that itself.
    const PartReply reply = watched.worker.Run(Request(
        R"({"name": "a", "kind": "box", "fields": {"x": 30, "y": 30, "z": 10}},
           {"name": "b", "kind": "fillet", "inputs": ["a"],
            "fields": {"radius": 3, "x": 15, "y": 0, "z": 10}},
           {"name": "c", "kind": "fillet", "inputs": ["b"],
            "fields": {"radius": 12, "x": 0, "y": 15, "z": 10}})"));
    QCOMPARE(reply.failedFeature, QString("c"));
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
    QVERIFY(watched.ProcessId() != before);
}

void tst_KernelWorker::CancelEndsABuild()
{
    Watched watched;
    watched.worker.Cancel();
    watched.StartEndless();
    watched.worker.Cancel();
    QTRY_COMPARE(watched.replies.count(), 1);
    QCOMPARE(watched.Last().outcome, PartReply::Abandoned);
    QCOMPARE(watched.Last().Reason(), QString("The build was cancelled."));
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
}

void tst_KernelWorker::ANewRequestReplacesTheOneAtHand()
{
    Watched watched;
    watched.StartEndless();
    watched.worker.Start(Request(A10));
    watched.worker.Start(Request(Brick));
    QTRY_COMPARE(watched.replies.count(), 1);
    QCOMPARE(watched.Last().outcome, PartReply::Done);
    QCOMPARE(watched.Last().measures.volume, 6000.0);
    // Before the worker has begun as well.
    KernelWorker fresh;
    QSignalSpy replies(&fresh, &KernelWorker::Finished);
    fresh.Start(Request(A10));
    fresh.Start(Request(Brick));
    QTRY_COMPARE(replies.count(), 1);
    QCOMPARE(replies[0][0].value<PartReply>().measures.volume, 6000.0);
}

void tst_KernelWorker::ADiscardedRequestHasNoReply()
{
    Watched watched;
    watched.StartEndless();
    watched.worker.Discard();
    QTRY_VERIFY(!watched.worker.IsBusy());
    QCOMPARE(watched.replies.count(), 0);
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
}

void tst_KernelWorker::TheTimeLimitEndsABuild()
{
    Watched watched;
    BuildLimits limits;
    limits.seconds = 6; // Longer than a worker needs to start.
    watched.worker.SetLimits(limits);
    QCOMPARE(watched.worker.Run(Request(Endless)).Reason(),
             QString("knot: the geometry kernel did not finish within 6 s, the time limit."));
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
}

void tst_KernelWorker::TheWorkerEndsWithItsOwner()
{
    qint64 idle = 0;
    qint64 busy = 0;
    {
        Watched watched;
        watched.worker.Run(Request(A10));
        idle = watched.ProcessId();
        Watched other;
        other.StartEndless();
        busy = other.ProcessId();
        QVERIFY(idle != 0 && busy != 0);
    }
    for (const qint64 id : {idle, busy})
        QCOMPARE(::kill(pid_t(id), 0), -1);
}

TARN_HOST_TEST_MAIN(tst_KernelWorker)
#include "tst_KernelWorker.moc"
