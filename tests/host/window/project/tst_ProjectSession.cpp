#include "HostTestMain.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "NewFeature.h"
#include "OpenSession.h"
#include "ParameterEvaluator.h"
#include "TestFiles.h"

#include <QSignalSpy>

class tst_ProjectSession : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnOpenedProjectFillsStoresAndModel();
    void EveryChangeIsUndoneAndRedone_data();
    void EveryChangeIsUndoneAndRedone();
    void ChangesOfAllKindsShareOneStack();
    void ACheckWithoutAChangeIsNoStep();
    void WhatIsPutBackIsNoChange();
    void ARenamedParameterIsOneStep();
    void ARunIsNoChange();
    void ARunIsSolvedAsItIsShown();
    void UndoLeavesARun();
    void TheMaterialGivesTheDensity();
    void AnotherProjectShowsNothingOfTheFormer();
    void WhatACrashLeftIsOneStep();
};

namespace {

using Change = std::function<void(OpenSession&)>;

void AddMaterial()
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = "mine";
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
}

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_ProjectSession::AnOpenedProjectFillsStoresAndModel()
{
    EnterTemporaryDirectory();
    OpenSession open;
    const Project sample = Project::Load(Project::SamplePath());
    const QSignalSpy opened(&open.session, &ProjectSession::Opened);
    open.session.Open(sample);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.size(), std::size_t(9));
    QVERIFY(open.part.Features() == sample.Features());
    QVERIFY(open.part.Conditions() == sample.Conditions());
    QVERIFY(!open.session.IsChanged());
    QCOMPARE(open.session.Density(), 7850.0);
    QCOMPARE(open.session.Current().Title(), QString("Bolted flange"));
}

void tst_ProjectSession::EveryChangeIsUndoneAndRedone_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) {
        QTest::newRow(name) << change;
    };
    row("value", [](OpenSession& open) { SetValue(open.design, "thickness", 33.0); });
    row("unit", [](OpenSession& open) {
        ParameterEntries entries = open.design.Design();
        entries[0].unit = "inch";
        open.design.Edit(entries, "unit");
    });
    row("study", [](OpenSession& open) {
        StudyDefinition study;
        study.responses = {{"ratio", "mass_kg / volume_mm3"}};
        open.session.SetStudy(study, "study");
    });
    row("order", [](OpenSession& open) {
        ParameterEntries entries = open.design.Design();
        std::swap(entries[0], entries[1]);
        open.design.Edit(entries, "order");
    });
    row("name", [](OpenSession& open) { open.design.Rename("thickness", "dicke"); });
    row("samples", [](OpenSession& open) {
        g_mapParaArrays["bolt_count"].vecValues.push_back(12.0);
        open.session.TakeChange("samples");
    });
    row("tick", [](OpenSession& open) {
        g_mapParaArrays["bolt_count"].bChecked = 0;
        open.session.TakeChange("tick");
    });
    row("feature", [](OpenSession& open) { open.part.Add(NewFeature("cube", "box")); });
    row("properties", [](OpenSession& open) {
        Project edited = open.session.Current();
        edited.SetTitle("other");
        edited.SetDensity(1000.0);
        edited.SetConditions({});
        open.session.SetProperties(edited);
    });
    row("material", [](OpenSession& open) {
        AddMaterial();
        open.session.TakeChange("material");
    });
    row("type of analysis", [](OpenSession& open) {
        AnalysisDefinition analysis = open.analysis.Definition();
        analysis.type.kind = AnalysisType::StaticKind;
        open.analysis.SetDefinition(analysis);
        open.session.TakeChange("type");
    });
    row("analysis", [](OpenSession& open) {
        AnalysisDefinition analysis = open.analysis.Definition();
        analysis.meshSize = "thickness / 4";
        analysis.properties = {{"web", "Steel S355", "thickness", {}}};
        open.analysis.SetDefinition(analysis);
        open.session.TakeChange("analysis");
    });
}

void tst_ProjectSession::EveryChangeIsUndoneAndRedone()
{
    QFETCH(Change, change);
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    const Project before = open.session.Current();
    const AnalysisStores storesBefore = AnalysisStores::Current();
    change(open);
    const Project after = open.session.Current();
    const AnalysisStores storesAfter = AnalysisStores::Current();
    QCOMPARE(open.part.UndoStack().count(), 1);
    QVERIFY(open.session.IsChanged());
    for (int i = 0; i < 2; ++i) {
        open.part.UndoStack().undo();
        QVERIFY(open.session.Current().HasSameContent(before));
        QVERIFY(AnalysisStores::Current() == storesBefore);
        QVERIFY(!open.session.IsChanged());
        open.part.UndoStack().redo();
        QVERIFY(open.session.Current().HasSameContent(after));
        QVERIFY(AnalysisStores::Current() == storesAfter);
        QVERIFY(open.session.IsChanged());
    }
}

void tst_ProjectSession::ChangesOfAllKindsShareOneStack()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    const Project before = open.session.Current();
    SetValue(open.design, "thickness", 33.0);
    open.part.Add(NewFeature("cube", "box"));
    open.design.Rename("outer_diameter", "d");
    open.part.Remove({"cube"});
    g_mapParaArrays.erase("bolt_count");
    open.session.TakeChange("samples");
    const Project after = open.session.Current();
    QUndoStack& stack = open.part.UndoStack();
    QCOMPARE(stack.count(), 5);
    stack.setIndex(0);
    QVERIFY(open.session.Current().HasSameContent(before));
    stack.setIndex(5);
    QVERIFY(open.session.Current().HasSameContent(after));
    stack.setIndex(2);
    QVERIFY(open.part.Features().Find("cube") >= 0);
    QCOMPARE(Stored("thickness"), 33.0);
    QCOMPARE(Stored("outer_diameter"), 200.0);
}

void tst_ProjectSession::ACheckWithoutAChangeIsNoStep()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    open.session.TakeChange("nothing");
    open.design.Edit(open.design.Design(), "nothing");
    QCOMPARE(open.part.UndoStack().count(), 0);
}

void tst_ProjectSession::WhatIsPutBackIsNoChange()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    SetValue(open.design, "thickness", 33.0);
    QVERIFY(open.session.IsChanged());
    SetValue(open.design, "thickness", 20.0);
    QVERIFY(!open.session.IsChanged());
}

void tst_ProjectSession::ARenamedParameterIsOneStep()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    connect(&open.design, &DesignModel::Renamed, this, [&open] {
        FeatureList features = open.part.Features();
        features.Append(NewFeature("follows", "box"));
        open.part.Replace(features, open.part.Conditions());
    });
    AnalysisDefinition analysis;
    analysis.meshSize = "thickness/2";
    open.analysis.SetDefinition(analysis);
    open.session.TakeChange("analysis");
    open.design.Rename("thickness", "dicke");
    QCOMPARE(open.part.UndoStack().count(), 2);
    QCOMPARE(open.analysis.Definition().meshSize, QString("dicke/2"));
    open.part.UndoStack().undo();
    QCOMPARE(open.analysis.Definition().meshSize, QString("thickness/2"));
    QCOMPARE(open.part.Features().Find("follows"), -1);
    QCOMPARE(Stored("thickness"), 20.0);
}

void tst_ProjectSession::ARunIsNoChange()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    const Project before = open.session.Current();
    open.design.ExpectRuns();
    GlobalParaMeterMgr::m_nameMapParameters["thickness"].m_varRawValue = 24.0;
    open.design.TakeRun({"thickness"});
    open.session.TakeChange("run");
    QVERIFY(open.session.Current().HasSameContent(before));
    QCOMPARE(open.part.UndoStack().count(), 0);
}

void tst_ProjectSession::ARunIsSolvedAsItIsShown()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    QVERIFY(open.session.Shown().HasSameContent(open.session.Current()));
    // The second one has an expression in the design.
    open.design.ShowRun({"thickness", "hub_diameter"}, {24.0, 130.0});
    Project shown = open.session.Shown();
    shown.Save("run.json");
    Project::Load("run.json").FillParameterStore();
    QVERIFY(ParameterEvaluator::Evaluate().messages.empty());
    const auto value = [](const char* name) {
        return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
    };
    QCOMPARE(value("thickness"), 24.0);
    QCOMPARE(value("hub_diameter"), 130.0);
    QCOMPARE(value("outer_diameter"), 200.0);
}

void tst_ProjectSession::UndoLeavesARun()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    SetValue(open.design, "bore_diameter", 60.0);
    open.design.ExpectRuns();
    GlobalParaMeterMgr::m_nameMapParameters["thickness"].m_varRawValue = 24.0;
    open.design.TakeRun({"thickness"});
    open.part.UndoStack().undo();
    QVERIFY(!open.design.HoldsRun());
    QCOMPARE(Stored("thickness"), 20.0);
    QCOMPARE(Stored("bore_diameter"), 70.0);
}

void tst_ProjectSession::TheMaterialGivesTheDensity()
{
    EnterTemporaryDirectory();
    OpenSession open;
    Project project;
    project.SetDensity(1000.0);
    open.session.Open(project);
    QCOMPARE(open.session.Density(), 1000.0);
    project.SetMaterial("Steel S355");
    open.session.SetProperties(project);
    QCOMPARE(open.session.Density(), 7850.0);
    project.SetMaterial("no such");
    open.session.SetProperties(project);
    QCOMPARE(open.session.Density(), 1000.0);
}

void tst_ProjectSession::AnotherProjectShowsNothingOfTheFormer()
{
    EnterTemporaryDirectory();
    OpenSession open;
    open.session.Open(Project::Load(Project::SamplePath()));
    AddMaterial();
    open.session.TakeChange("material");
    AnalysisDefinition analysis;
    analysis.properties = {{"web", "mine", "2", {}}};
    open.analysis.SetDefinition(analysis);
    open.session.Open(Project());
    QVERIFY(AnalysisStores::Current().materials.empty());
    QVERIFY(KVPropertyData::GetInstance()->GetProptyDataMap().empty());
    QVERIFY(open.analysis.Definition() == AnalysisDefinition());
    QVERIFY(GlobalParaMeterMgr::m_nameMapParameters.empty());
    QVERIFY(g_mapParaArrays.empty());
    QVERIFY(open.part.Features().IsEmpty());
    QCOMPARE(open.part.UndoStack().count(), 0);
    QVERIFY(!open.session.IsChanged());
}

void tst_ProjectSession::WhatACrashLeftIsOneStep()
{
    EnterTemporaryDirectory();
    OpenSession open;
    const Project sample = Project::Load(Project::SamplePath());
    Project left = sample;
    left.SetTitle("left");
    open.session.Open(sample);
    open.session.Recover(left);
    QVERIFY(open.session.IsChanged());
    QCOMPARE(open.session.Current().Title(), QString("left"));
    open.part.UndoStack().undo();
    QVERIFY(!open.session.IsChanged());
}

TARN_HOST_TEST_MAIN(tst_ProjectSession)
#include "tst_ProjectSession.moc"
