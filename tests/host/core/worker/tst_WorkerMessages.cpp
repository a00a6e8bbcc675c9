#include "Bodies.h"
#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "PartFaces.h"
#include "TestCase.h"
#include "WorkerMessages.h"

class tst_WorkerMessages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARequestIsReadAsItWasWritten();
    void ProgressIsReadAsItWasWritten();
    void AReplyIsReadAsItWasWritten();
    void AFailureIsReadAsItWasWritten();
    void ShapesAreReadAsTheyWereWritten_data();
    void ShapesAreReadAsTheyWereWritten();
    void KnownShapesAreNotSent();
    void SharedBodiesStayShared();
    void NamesOfFacesAreReadAsTheyWereWritten();
    void AFrameIsTakenWhenItIsComplete();
};

namespace {

const QByteArray Holes =
    R"({"name": "plate", "kind": "box", "fields": {"x": 50, "y": 50}},
       {"name": "off", "kind": "sphere", "suppressed": true},
       {"name": "pin", "kind": "cylinder", "fields": {"radius": 2}},
       {"name": "hole", "kind": "cut", "inputs": ["plate", "pin"]},
       {"name": "other", "kind": "box"})";

/// A request for a list, and the reply to it.
struct Exchange
{
    explicit Exchange(const QByteArray& list)
    {
        request.plan = PlanPart(List(list));
        ResultCache cache;
        reply.part = FeatureBuilder(cache).Build(request.plan);
    }

    PartReply Received(const BuiltPart& known = {}) const
    {
        return MessageFromBytes(ToBytes(reply, request), request, known).reply.value();
    }

    EmptyDesignStores stores;
    PartRequest request;
    PartReply reply;
};

} // namespace

void tst_WorkerMessages::ARequestIsReadAsItWasWritten()
{
    const EmptyDesignStores stores;
    PartRequest request;
    request.plan =
        PlanPart(List(Holes + R"(, {"name": "长", "kind": "import", "file": "x.step"})"));
    request.known = {"a", "b"};
    request.wantsShapes = false;
    request.wantsLines = true;
    request.stepPath = "长/a.step";
    request.stepFeature = 3;
    request.brepPath = "长/a.brep";
    request.faces = {{"plate.zmin", {}}, {"", {1, 2, 3}}};
    request.edges = {{request.faces, {}}, {{}, {4, 5, 6}}};
    const PartRequest read = RequestFromBytes(ToBytes(request));
    QCOMPARE(read.known, request.known);
    QCOMPARE(read.wantsShapes, false);
    QCOMPARE(read.wantsLines, true);
    QCOMPARE(read.stepPath, request.stepPath);
    QCOMPARE(read.stepFeature, 3);
    QCOMPARE(read.brepPath, request.brepPath);
    QVERIFY(read.faces == request.faces);
    QVERIFY(read.edges == request.edges);
    QCOMPARE(read.plan.size(), request.plan.size());
    for (std::size_t place = 0; place < read.plan.size(); ++place) {
        const BuildStep& step = read.plan[place];
        const BuildStep& expected = request.plan[place];
        QCOMPARE(step.name, expected.name);
        QCOMPARE(step.kind, expected.kind);
        QCOMPARE(step.suppressed, expected.suppressed);
        QCOMPARE(step.inputs, expected.inputs);
        QCOMPARE(step.values, expected.values);
        QCOMPARE(step.file, expected.file);
    }
}

void tst_WorkerMessages::ProgressIsReadAsItWasWritten()
{
    const QByteArray bytes = ProgressToBytes(7);
    QVERIFY(!IsReply(bytes));
    const WorkerMessage message = MessageFromBytes(bytes, {}, {});
    QVERIFY(!message.reply.has_value());
    QCOMPARE(message.step, 7);
}

void tst_WorkerMessages::AReplyIsReadAsItWasWritten()
{
    Exchange exchange(Holes);
    exchange.reply.measures.volume = 1.5;
    exchange.reply.measures.area = 2.5;
    exchange.reply.measures.centre = {7, 8, 9};
    exchange.reply.measures.secondMoments = {6, 5, 4, 3, 2, 1};
    exchange.reply.measures.boundingBox = {1, 2, 3, 4, 5, 6};
    exchange.reply.lines = DrawLines(exchange.reply.part.shape);
    exchange.reply.lines.isTooLarge = true;
    exchange.reply.lines.failure = "a curve";
    exchange.reply.faces = {{{1, 7}, {}}};
    exchange.reply.edges = {{{}, "there is none."}};
    exchange.reply.solids = {2};
    exchange.reply.isLast = true;
    QVERIFY(IsReply(ToBytes(exchange.reply, exchange.request)));
    const PartReply reply = exchange.Received();
    QCOMPARE(reply.outcome, PartReply::Done);
    QCOMPARE(reply.measures.volume, 1.5);
    QCOMPARE(reply.measures.area, 2.5);
    QVERIFY(reply.measures.boundingBox == exchange.reply.measures.boundingBox);
    QVERIFY(reply.measures.centre == exchange.reply.measures.centre);
    QVERIFY(reply.measures.secondMoments == exchange.reply.measures.secondMoments);
    QVERIFY(!reply.lines.edges.isEmpty() && reply.lines.edges == exchange.reply.lines.edges);
    QVERIFY(reply.lines.smooth == exchange.reply.lines.smooth);
    QVERIFY(reply.lines.isTooLarge);
    QCOMPARE(reply.lines.failure, QString("a curve"));
    QCOMPARE(reply.faces.at(0).numbers, std::vector<int>({1, 7}));
    QCOMPARE(reply.edges.at(0).error, QString("there is none."));
    QCOMPARE(reply.solids, std::vector<int>({2}));
    QVERIFY(reply.isLast);
    QCOMPARE(reply.part.keys, exchange.reply.part.keys);
}

void tst_WorkerMessages::AFailureIsReadAsItWasWritten()
{
    PartReply failed;
    failed.outcome = PartReply::Failed;
    failed.failedFeature = "长";
    failed.cause = "it is too long.";
    const PartReply reply = MessageFromBytes(ToBytes(failed, {}), {}, {}).reply.value();
    QCOMPARE(reply.outcome, PartReply::Failed);
    QCOMPARE(reply.Reason(), QString("长: it is too long."));
    QVERIFY(reply.part.shape.IsNull());
}

void tst_WorkerMessages::ShapesAreReadAsTheyWereWritten_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("one") << A10;
    QTest::newRow("holes") << Holes;
    QTest::newRow("only suppressed")
        << QByteArray(R"({"name": "a", "kind": "box", "suppressed": true})");
    QTest::newRow("equal features") << A10 + R"(, {"name": "b", "kind": "box"})";
}

void tst_WorkerMessages::ShapesAreReadAsTheyWereWritten()
{
    QFETCH(QByteArray, list);
    const Exchange exchange(list);
    const BuiltPart& sent = exchange.reply.part;
    const BuiltPart part = exchange.Received().part;
    QCOMPARE(part.shapes.size(), sent.shapes.size());
    for (std::size_t place = 0; place < sent.shapes.size(); ++place) {
        QCOMPARE(part.shapes[place].IsNull(), sent.shapes[place].IsNull());
        if (!sent.shapes[place].IsNull())
            QCOMPARE(MassOf(part.shapes[place]).volume, MassOf(sent.shapes[place]).volume);
    }
    QCOMPARE(part.shape.IsNull(), sent.shape.IsNull());
    if (!sent.shape.IsNull())
        QCOMPARE(MassOf(part.shape).volume, MassOf(sent.shape).volume);
}

void tst_WorkerMessages::KnownShapesAreNotSent()
{
    Exchange exchange(Holes);
    const QByteArray all = ToBytes(exchange.reply, exchange.request);
    BuiltPart known = exchange.Received().part;
    exchange.request.known = QSet<QByteArray>(known.keys.begin(), known.keys.end());
    QVERIFY(ToBytes(exchange.reply, exchange.request).size() < all.size() / 4);
    const BuiltPart part = exchange.Received(known).part;
    for (std::size_t place = 0; place < known.shapes.size(); ++place)
        QVERIFY(known.shapes[place].IsNull() || part.shapes[place].IsSame(known.shapes[place]));
    exchange.request.known.clear();
    exchange.request.wantsShapes = false;
    QVERIFY(ToBytes(exchange.reply, exchange.request).size() < all.size() / 4);
    QVERIFY(exchange.Received().part.shapes.empty());
}

void tst_WorkerMessages::SharedBodiesStayShared()
{
    const Exchange exchange(A10 + R"(, {"name": "b", "kind": "rectangularArray", "inputs": ["a"],
                                        "fields": {"xNumber": 3, "yNumber": 1}})");
    const BuiltPart part = exchange.Received().part;
    QCOMPARE(Count(part.shape, TopAbs_SOLID), 3);
    const TopTools_ListOfShape bodies = BodiesOf(part.shape);
    for (const TopoDS_Shape& body : bodies)
        QVERIFY(body.IsPartner(part.shapes[0]));
}

void tst_WorkerMessages::NamesOfFacesAreReadAsTheyWereWritten()
{
    Exchange exchange(Holes);
    const BuiltPart first = exchange.Received().part;
    // The hole and the other box are sent, the rest is known.
    BuiltPart known = first;
    known.keys.resize(3);
    known.shapes.resize(3);
    known.faces.resize(3);
    exchange.request.known = QSet<QByteArray>(known.keys.begin(), known.keys.end());
    for (const BuiltPart& part : {first, exchange.Received(known).part}) {
        for (const char* const name : {"pin.side", "hole/plate.zmax", "other.xmin", "plate.side"})
            QCOMPARE(PartFaces(part).Named(PartFaces::WholePart, name),
                     PartFaces(exchange.reply.part).Named(PartFaces::WholePart, name));
        QCOMPARE(PartFaces(part).Named(PartFaces::WholePart, "pin.side").size(), std::size_t(1));
    }
}

void tst_WorkerMessages::AFrameIsTakenWhenItIsComplete()
{
    const QByteArray frames = Frame("first") + Frame("") + Frame("second");
    QByteArray received;
    QList<QByteArray> taken;
    for (const char byte : frames) {
        received.append(byte);
        while (const std::optional<QByteArray> message = TakeFrame(received))
            taken << *message;
    }
    QCOMPARE(taken, QList<QByteArray>({"first", "", "second"}));
    QVERIFY(received.isEmpty());
}

TARN_TEST_MAIN(tst_WorkerMessages)
#include "tst_WorkerMessages.moc"
