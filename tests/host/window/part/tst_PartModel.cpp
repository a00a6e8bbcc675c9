#include "EmptyDesignStores.h"
#include "HostTestMain.h"
#include "NewFeature.h"
#include "PartModel.h"
#include "ShapeMeasures.h"
#include "StepFile.h"

#include <QSignalSpy>

class tst_PartModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewModelIsEmpty();
    void AnAddedFeatureIsBuilt();
    void EveryChangeHasATextAndAWayBack_data();
    void EveryChangeHasATextAndAWayBack();
    void ARefusedChangeChangesNothing_data();
    void ARefusedChangeChangesNothing();
    void AChangeToTheSameIsNoChange();
    void AnOldNameWithACommaMayStay();
    void ANewNameReachesTheUsers();
    void SeveralAreDeletedTogether();
    void AFailedBuildKeepsTheLastGoodShape();
    void AFailureIsOverWithTheNextGoodBuild();
    void ParametersAreFollowed();
    void AConditionThatDoesNotHoldFailsTheBuild();
    void TheShapeOfAFeatureIsThatOfTheLastGoodPart();
    void BodiesAreTheUnusedFeatures();
    void OpeningForgetsWhatWasBefore();
    void ProgressNamesTheFeature();
    void ACancelledBuildKeepsTheLastGoodShape();
    void ANewerChangeReplacesTheBuild();
    void AnExportWaitsForTheBuild();
    void AnExportFailsWithTheBuild();
    void AChangeEndsAnExport();
};

namespace {

const QStringList Before = {"plate", "pin", "body"};

FeatureList SampleList()
{
    FeatureList list;
    list.Append(NewFeature("plate", "box"));
    list.Append(NewFeature("pin", "cylinder", {}, {{"radius", "2"}}));
    list.Append(NewFeature("body", "fuse", {"plate", "pin"}));
    return list;
}

struct OpenModel
{
    OpenModel()
    {
        model.Open(SampleList(), {}, {});
        model.WaitUntilIdle();
    }

    EmptyDesignStores stores;
    PartModel model;
};

QStringList Names(const PartModel& model)
{
    QStringList names;
    for (const Feature& feature : model.Features().Features())
        names << feature.name;
    return names;
}

double Volume(const PartModel& model)
{
    model.WaitUntilIdle();
    return Measure(model.Shape()).volume;
}

QString ReasonRefused(const std::function<void()>& change)
{
    try {
        change();
    } catch (const ModellingError& error) {
        return error.Reason();
    }
    return QString();
}

void SetParameter(const QString& name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

using Change = std::function<void(PartModel&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_PartModel::ANewModelIsEmpty()
{
    PartModel model;
    QVERIFY(model.Features().IsEmpty());
    QVERIFY(model.Shape().IsNull());
    QVERIFY(!model.HasFailed());
    QVERIFY(!model.UndoStack().canUndo());
}

void tst_PartModel::AnAddedFeatureIsBuilt()
{
    const EmptyDesignStores stores;
    PartModel model;
    QSignalSpy built(&model, &PartModel::PartBuilt);
    QSignalSpy changed(&model, &PartModel::Changed);
    model.Add(NewFeature("box", "box", {}, {{"z", "20"}}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(built.count(), 0);
    QCOMPARE(Volume(model), 2000.0);
    QCOMPARE(built.count(), 1);
    QCOMPARE(changed.count(), 1);
}

void tst_PartModel::EveryChangeHasATextAndAWayBack_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* name, const Change& change, const QString& text,
                        const QStringList& names) {
        QTest::newRow(name) << change << text << names;
    };
    row("add", [](PartModel& m) { m.Add(NewFeature("disc", "cylinder")); }, "Add Cylinder \"disc\"",
        {"plate", "pin", "body", "disc"});
    row(
        "change",
        [](PartModel& m) {
            m.Change("pin", NewFeature("pin", "cylinder", {}, {{"height", "33"}}));
        },
        "Change \"pin\"", Before);
    row("rename", [](PartModel& m) { m.Change("pin", NewFeature("bolt", "cylinder")); },
        "Rename \"pin\" to \"bolt\"", {"plate", "bolt", "body"});
    row("up", [](PartModel& m) { m.Move("pin", -1); }, "Move \"pin\" up", {"pin", "plate", "body"});
    row("down", [](PartModel& m) { m.Move("plate", 1); }, "Move \"plate\" down",
        {"pin", "plate", "body"});
    row(
        "suppress", [](PartModel& m) { m.SetSuppressed({"pin"}, true); }, "Suppress \"pin\"",
        Before);
    row("delete", [](PartModel& m) { m.Remove({"body"}); }, "Delete \"body\"", {"plate", "pin"});
}

void tst_PartModel::EveryChangeHasATextAndAWayBack()
{
    QFETCH(Change, change);
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    OpenModel open;
    const double volume = Volume(open.model);
    change(open.model);
    const FeatureList after = open.model.Features();
    QVERIFY(after != SampleList());
    QCOMPARE(Names(open.model), names);
    QCOMPARE(open.model.UndoStack().undoText(), text);
    open.model.UndoStack().undo();
    QVERIFY(open.model.Features() == SampleList());
    QCOMPARE(Volume(open.model), volume);
    QCOMPARE(open.model.UndoStack().redoText(), text);
    open.model.UndoStack().redo();
    QVERIFY(open.model.Features() == after);
}

void tst_PartModel::ARefusedChangeChangesNothing_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const Change& change, const QString& words) {
        QTest::newRow(name) << change << words;
    };
    row(
        "name taken", [](PartModel& m) { m.Add(NewFeature("pin", "box")); }, "pin");
    row(
        "no such input", [](PartModel& m) { m.Add(NewFeature("x", "move", {"nut"})); }, "nut");
    row(
        "too few inputs", [](PartModel& m) { m.Add(NewFeature("x", "cut", {"pin"})); },
        "at least 2");
    row(
        "before its input", [](PartModel& m) { m.Move("body", -1); }, "Cannot move \"body\"");
    row(
        "after its user", [](PartModel& m) { m.Move("pin", 1); }, "Cannot move \"pin\"");
    row(
        "deleted while used", [](PartModel& m) { m.Remove({"pin"}); }, "it is used by \"body\"");
    row(
        "unknown", [](PartModel& m) { m.Remove({"nut"}); }, "no feature \"nut\"");
    row(
        "deleted twice",
        [](PartModel& m) {
            m.Remove({"body", "body"});
        },
        "no feature \"body\"");
    row(
        "comma in its name", [](PartModel& m) { m.Change("pin", NewFeature("a, b", "cylinder")); },
        "comma");
    row(
        "no name", [](PartModel& m) { m.Change("pin", NewFeature("", "cylinder")); }, "name");
}

void tst_PartModel::ARefusedChangeChangesNothing()
{
    QFETCH(Change, change);
    QFETCH(QString, words);
    OpenModel open;
    QSignalSpy changed(&open.model, &PartModel::Changed);
    const QString reason = ReasonRefused([&] { change(open.model); });
    QVERIFY2(reason.contains(words), qPrintable(reason));
    QVERIFY(open.model.Features() == SampleList());
    QVERIFY(!open.model.UndoStack().canUndo());
    QCOMPARE(changed.count(), 0);
}

void tst_PartModel::AnOldNameWithACommaMayStay()
{
    // Files may have such names; their features can be changed all the same.
    const EmptyDesignStores stores;
    PartModel model;
    FeatureList list;
    list.Append(NewFeature("a, b", "box"));
    model.Open(list, {}, {});
    model.Change("a, b", NewFeature("a, b", "box", {}, {{"x", "20"}}));
    QCOMPARE(FieldText(model.Features().At(0), "x"), QString("20"));
}

void tst_PartModel::AChangeToTheSameIsNoChange()
{
    OpenModel open;
    open.model.Change("pin", open.model.Features().At(1));
    open.model.SetSuppressed({"pin"}, false);
    open.model.Move("plate", -1);
    QVERIFY(!open.model.UndoStack().canUndo());
}

void tst_PartModel::ANewNameReachesTheUsers()
{
    OpenModel open;
    open.model.Change("pin", NewFeature("bolt", "cylinder"));
    open.model.WaitUntilIdle();
    QCOMPARE(open.model.Features().At(2).inputs, QStringList({"plate", "bolt"}));
    QVERIFY(!open.model.HasFailed());
}

void tst_PartModel::SeveralAreDeletedTogether()
{
    OpenModel open;
    open.model.Remove({"pin", "body"});
    QCOMPARE(Names(open.model), QStringList({"plate"}));
    open.model.UndoStack().undo();
    QCOMPARE(Names(open.model), Before);
    open.model.Remove(Before);
    open.model.WaitUntilIdle();
    QVERIFY(open.model.Shape().IsNull());
    QVERIFY(!open.model.HasFailed());
}

void tst_PartModel::AFailedBuildKeepsTheLastGoodShape()
{
    OpenModel open;
    const double volume = Volume(open.model);
    QSignalSpy failed(&open.model, &PartModel::BuildFailed);
    QSignalSpy built(&open.model, &PartModel::PartBuilt);
    open.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "nuts"}}));
    QCOMPARE(failed.count(), 1);
    QCOMPARE(built.count(), 0);
    QVERIFY2(open.model.Failure().startsWith("pin: "), qPrintable(open.model.Failure()));
    QCOMPARE(failed[0][0].toString(), open.model.Failure());
    QCOMPARE(open.model.FailedFeature(), QString("pin"));
    QCOMPARE(FieldText(open.model.Features().At(1), "radius"), QString("nuts"));
    QCOMPARE(Volume(open.model), volume);
}

void tst_PartModel::AFailureIsOverWithTheNextGoodBuild()
{
    OpenModel open;
    open.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "-2"}}));
    QVERIFY(open.model.HasFailed());
    open.model.UndoStack().undo();
    open.model.WaitUntilIdle();
    QVERIFY(!open.model.HasFailed());
    QCOMPARE(open.model.FailedFeature(), QString());
}

void tst_PartModel::ParametersAreFollowed()
{
    const EmptyDesignStores stores;
    SetParameter("size", 10.0);
    PartModel model;
    model.Add(NewFeature("box", "box", {}, {{"x", "2 * size"}}));
    QCOMPARE(Volume(model), 2000.0);
    SetParameter("size", 20.0);
    model.Rebuild();
    QCOMPARE(Volume(model), 4000.0);
    QVERIFY(model.UndoStack().index() == 1);
}

void tst_PartModel::AConditionThatDoesNotHoldFailsTheBuild()
{
    const EmptyDesignStores stores;
    SetParameter("size", 10.0);
    PartModel model;
    model.Open(SampleList(), {{"size < 20", "The size is 20 or more."}}, {});
    model.WaitUntilIdle();
    QVERIFY(!model.HasFailed());
    SetParameter("size", 20.0);
    model.Rebuild();
    QVERIFY2(model.Failure().contains("The size is 20 or more."), qPrintable(model.Failure()));
    QCOMPARE(model.FailedFeature(), QString());
    QVERIFY(!model.Shape().IsNull());
}

void tst_PartModel::TheShapeOfAFeatureIsThatOfTheLastGoodPart()
{
    OpenModel open;
    QCOMPARE(Measure(open.model.ShapeOf("plate")).volume, 1000.0);
    QVERIFY(open.model.ShapeOf("nut").IsNull());
    // In a list that is not built, places are others.
    open.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "-2"}}));
    open.model.Move("pin", -1);
    QVERIFY(open.model.HasFailed());
    QCOMPARE(Measure(open.model.ShapeOf("plate")).volume, 1000.0);
}

void tst_PartModel::BodiesAreTheUnusedFeatures()
{
    OpenModel open;
    QCOMPARE(open.model.Bodies(), QStringList({"body"}));
    open.model.Remove({"body"});
    QCOMPARE(open.model.Bodies(), QStringList({"plate", "pin"}));
}

void tst_PartModel::OpeningForgetsWhatWasBefore()
{
    OpenModel open;
    open.model.Remove({"body"});
    open.model.Open(FeatureList(), {}, "/somewhere");
    QVERIFY(!open.model.UndoStack().canUndo());
    QVERIFY(open.model.Shape().IsNull());
    QVERIFY(open.model.ShapeOf("plate").IsNull());
    QCOMPARE(open.model.Folder(), QString("/somewhere"));
}

void tst_PartModel::ProgressNamesTheFeature()
{
    const EmptyDesignStores stores;
    PartModel model;
    QStringList texts;
    connect(&model, &PartModel::Progressed, this, [&](const QString& text) { texts << text; });
    model.Open(SampleList(), {}, {});
    QVERIFY(model.IsBusy());
    model.WaitUntilIdle();
    QCOMPARE(texts, QStringList({"Building \"plate\", 1 of 3", "Building \"pin\", 2 of 3",
                                 "Building \"body\", 3 of 3", "Measuring the part"}));
}

void tst_PartModel::ACancelledBuildKeepsTheLastGoodShape()
{
    OpenModel open;
    const double volume = Volume(open.model);
    const TopoDS_Shape shape = open.model.Shape();
    QSignalSpy failed(&open.model, &PartModel::BuildFailed);
    open.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "3"}}));
    open.model.Cancel();
    open.model.WaitUntilIdle();
    QCOMPARE(failed.count(), 1);
    QCOMPARE(open.model.Failure(), QString("The build was cancelled."));
    QVERIFY(open.model.Shape().IsSame(shape));
    // The change itself stays.
    QCOMPARE(FieldText(open.model.Features().At(1), "radius"), QString("3"));
    open.model.Rebuild();
    QVERIFY(Volume(open.model) != volume);
}

void tst_PartModel::ANewerChangeReplacesTheBuild()
{
    OpenModel open;
    QSignalSpy built(&open.model, &PartModel::PartBuilt);
    open.model.Remove({"body"});
    open.model.Remove({"pin"});
    QCOMPARE(Volume(open.model), 1000.0);
    QCOMPARE(built.count(), 1);
}

void tst_PartModel::AnExportWaitsForTheBuild()
{
    const QString directory = EnterTemporaryDirectory();
    OpenModel open;
    QSignalSpy exported(&open.model, &PartModel::Exported);
    open.model.Remove({"body", "pin"});
    open.model.ExportStep({}, directory + "/a.step");
    open.model.WaitUntilIdle();
    QCOMPARE(exported.count(), 1);
    QVERIFY(qFuzzyCompare(Measure(ReadStepFile("a.step")).volume, 1000.0));
}

void tst_PartModel::AnExportFailsWithTheBuild()
{
    const QString directory = EnterTemporaryDirectory();
    OpenModel open;
    QSignalSpy failed(&open.model, &PartModel::ExportFailed);
    open.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "3"}}));
    open.model.ExportStep({}, directory + "/a.step");
    open.model.Cancel();
    open.model.WaitUntilIdle();
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed[0][0].toString(), QString("The export failed: the part could not be built"));
    QVERIFY(!QFile::exists("a.step"));
}

void tst_PartModel::AChangeEndsAnExport()
{
    const QString directory = EnterTemporaryDirectory();
    OpenModel open;
    QSignalSpy failed(&open.model, &PartModel::ExportFailed);
    open.model.ExportStep({}, directory + "/a.step");
    open.model.Remove({"body"});
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed[0][0].toString(), QString("The export failed: the part was changed meanwhile"));
    open.model.WaitUntilIdle();
    QVERIFY(!open.model.HasFailed());
}

TARN_HOST_TEST_MAIN(tst_PartModel)
#include "tst_PartModel.moc"
