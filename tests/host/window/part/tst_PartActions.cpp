#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureFields.h"
#include "FeatureTree.h"
#include "FullDisk.h"
#include "HostApplication.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "PartActions.h"
#include "PartModel.h"
#include "PartView.h"
#include "ShapeMeasures.h"
#include "TestCase.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTreeWidget>

class tst_PartActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenuOffersEveryKind();
    void AKindWithoutADialogIsAddedWithDefaults_data();
    void AKindWithoutADialogIsAddedWithDefaults();
    void AKindWithADialogIsAddedAfterOK();
    void ACancelledDialogAddsNothing();
    void TheNewFeatureIsSelectedAndNamedAfterItsKind();
    void SelectedFeaturesAreTheInputsInTheirOrder();
    void WithoutASelectionTheLastBodiesAreTheInputs();
    void ASelectedBodyComesBeforeTheLastOne();
    void TooManySelectedAreRefused();
    void TooFewBodiesAreRefused();
    void EditRunsTheDialog();
    void EditGoesToTheFieldsWhereThereIsNoDialog();
    void UpAndDownMoveTheFeature();
    void AMoveBeforeAnInputIsRefusedWithAMessage();
    void SuppressSwitches();
    void DeletingWhatIsUsedIsRefusedWithAMessage();
    void SeveralAreDeletedAtOnce();
    void UndoAndRedoSayWhatTheyDo();
    void ActionsFitTheSelection();
    void WithoutAViewTheFacesPointIsToBeTyped();
    void AMirrorWaitsForItsFace();
    void AMirrorThatWaitsCanBeGivenUp();
    void AMirrorTakesATypedPoint();
    void AnEditedMirrorWaitsForAnotherFace();
    void AFailedViewIsNoView();
    void ATypedPointNeedsAWaitingMirror();
    void AStepFileIsExportedAndImported();
    void TheSelectedFeaturesShapeIsExported();
    void ThereIsNothingToExportWithoutAShape();
    void AFileThatCannotBeWrittenIsTold();
    void AFileBesideTheProjectIsNamedRelatively();
    void TheSampleProjectHasNoFolderForFiles();
    void AVanishedFileIsToldAndTheShapeStays();
};

namespace {

struct Modelling
{
    explicit Modelling(PartView* view = nullptr)
        : actions(new PartActions(model, *tree, *fields, view, &window))
    {
        window.addDockWidget(Qt::LeftDockWidgetArea, tree);
        window.addDockWidget(Qt::LeftDockWidgetArea, fields);
        QObject::connect(tree, &FeatureTree::SelectionChanged, fields, [this] {
            fields->ShowFeature(tree->Selected().size() == 1 ? tree->Selected().first()
                                                             : QString());
        });
        actions->FillMenu(*window.menuBar()->addMenu("Model"));
        window.resize(900, 700);
        window.show();
    }

    QAction& Action(const char* name)
    {
        auto* const action = window.findChild<QAction*>(name);
        if (action == nullptr)
            qFatal("There is no action named \"%s\"", name);
        return *action;
    }
    void Trigger(const char* name)
    {
        QVERIFY2(Action(name).isEnabled(), name);
        Action(name).trigger();
    }
    void Select(const QStringList& names)
    {
        auto& list = Find<QTreeWidget>(window, "featureTree");
        list.clearSelection();
        for (const QString& name : names)
            list.topLevelItem(model.Features().Find(name))->setSelected(true);
        QCOMPARE(tree->Selected(), names);
    }
    QStringList Names() const
    {
        QStringList names;
        for (const Feature& feature : model.Features().Features())
            names << feature.name;
        return names;
    }
    const Feature& Last() const { return model.Features().At(model.Features().Size() - 1); }

    void AddSamples()
    {
        model.Add(NewFeature("plate", "box"));
        model.Add(NewFeature("pin", "cylinder", {}, {{"radius", "2"}}));
        model.Add(NewFeature("body", "fuse", {"plate", "pin"}));
    }
    void CheckRefused(const QString& words) const
    {
        QCOMPARE(posted.count(), 1);
        QCOMPARE(posted[0][0].toInt(), int(ErrorLevel));
        QVERIFY2(posted[0][1].toString().contains(words), qPrintable(posted[0][1].toString()));
    }

    EmptyDesignStores stores;
    QMainWindow window;
    PartModel model;
    FeatureTree* tree = new FeatureTree(model, &window);
    FeatureFields* fields = new FeatureFields(model, &window);
    PartActions* actions;
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

void AskForFaceMirror(Modelling& modelling, const char* action)
{
    modelling.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton_3").setChecked(true);
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger(action);
    QVERIFY(modelling.user.IsDone());
}

void ChooseFile(ModalDriver& user, const QString& path)
{
    user.Then([path](QDialog& dialog) {
        Find<QLineEdit>(dialog, "fileNameEdit").setText(path);
        auto& buttons = Find<QDialogButtonBox>(dialog, "buttonBox");
        QPushButton* button = buttons.button(QDialogButtonBox::Open);
        if (button == nullptr)
            button = buttons.button(QDialogButtonBox::Save);
        QTest::mouseClick(button, Qt::LeftButton);
    });
}

} // namespace

void tst_PartActions::TheMenuOffersEveryKind()
{
    Modelling modelling;
    for (const FeatureKind& kind : FeatureKinds::All()) {
        QString name = "action_Add_" + kind.word;
        if (QString(kind.word).startsWith("mirror"))
            name = "action_Add_mirror";
        if (kind.readsFile)
            name = "action_ImportStep";
        QVERIFY2(modelling.window.findChild<QAction*>(name) != nullptr, qPrintable(name));
    }
}

void tst_PartActions::AKindWithoutADialogIsAddedWithDefaults_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<double>("volume");
    QTest::newRow("box") << QByteArray("action_Add_box") << 1000.0;
    QTest::newRow("cylinder") << QByteArray("action_Add_cylinder") << 1000.0 * 3.141592653589793;
}

void tst_PartActions::AKindWithoutADialogIsAddedWithDefaults()
{
    QFETCH(QByteArray, action);
    QFETCH(double, volume);
    Modelling modelling;
    modelling.Trigger(action);
    QVERIFY(qFuzzyCompare(Measure(modelling.model.Shape()).volume, volume));
    QCOMPARE(modelling.posted.count(), 0);
}

void tst_PartActions::AKindWithADialogIsAddedAfterOK()
{
    Modelling modelling;
    modelling.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_TopRadius", "2");
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_Add_cone");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("cone"));
    QCOMPARE(FieldText(modelling.Last(), "topRadius"), QString("2"));
    QVERIFY(!modelling.model.Shape().IsNull());
}

void tst_PartActions::ACancelledDialogAddsNothing()
{
    Modelling modelling;
    modelling.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    modelling.Trigger("action_Add_torus");
    QVERIFY(modelling.user.IsDone());
    QVERIFY(modelling.model.Features().IsEmpty());
}

void tst_PartActions::TheNewFeatureIsSelectedAndNamedAfterItsKind()
{
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.Trigger("action_Add_box");
    QCOMPARE(modelling.Names(), QStringList({"box", "box_2"}));
    QCOMPARE(modelling.tree->Selected(), QStringList("box_2"));
    QCOMPARE(Find<QTableWidget>(modelling.window, "fieldTable").item(0, 1)->text(),
             QString("box_2"));
}

void tst_PartActions::SelectedFeaturesAreTheInputsInTheirOrder()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin", "plate"});
    modelling.Trigger("action_Add_cut");
    QCOMPARE(modelling.Last().inputs, QStringList({"pin", "plate"}));
}

void tst_PartActions::WithoutASelectionTheLastBodiesAreTheInputs()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("a", "box"));
    modelling.model.Add(NewFeature("b", "box"));
    modelling.model.Add(NewFeature("c", "cylinder"));
    modelling.Trigger("action_Add_fuse");
    QCOMPARE(modelling.Last().inputs, QStringList({"b", "c"}));
    modelling.Select({});
    modelling.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_OK"); });
    modelling.Trigger("action_Add_move");
    QCOMPARE(modelling.Last().inputs, QStringList("fuse"));
}

void tst_PartActions::ASelectedBodyComesBeforeTheLastOne()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("a", "box"));
    modelling.model.Add(NewFeature("b", "cylinder"));
    modelling.Select({"b"});
    modelling.Trigger("action_Add_cut");
    QCOMPARE(modelling.Last().inputs, QStringList({"b", "a"}));
}

void tst_PartActions::TooManySelectedAreRefused()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate", "pin"});
    modelling.Trigger("action_Add_move");
    modelling.CheckRefused("Move takes one body, but 2 features are selected");
    QCOMPARE(modelling.model.Features().Size(), 3);
}

void tst_PartActions::TooFewBodiesAreRefused()
{
    Modelling modelling;
    modelling.Trigger("action_Add_fillet");
    modelling.CheckRefused("Fillet needs a body, but there is none");
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    modelling.Trigger("action_Add_cut");
    modelling.CheckRefused("Cut needs two bodies, but there are not enough");
    QCOMPARE(modelling.Names(), QStringList("box"));
}

void tst_PartActions::EditRunsTheDialog()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("ring", "torus", {}, {{"radius", "5 * 4"}}));
    modelling.Select({"ring"});
    modelling.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_RadiusSweep", "4");
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_EditFeature");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(FieldText(modelling.Last(), "sweepRadius"), QString("4"));
    QCOMPARE(FieldText(modelling.Last(), "radius"), QString("5 * 4"));
    QCOMPARE(modelling.model.UndoStack().undoText(), QString("Change \"ring\""));
}

void tst_PartActions::EditGoesToTheFieldsWhereThereIsNoDialog()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&modelling.window));
    modelling.Select({"pin"});
    modelling.Trigger("action_EditFeature");
    const auto& table = Find<QTableWidget>(modelling.window, "fieldTable");
    QVERIFY(table.hasFocus() || table.isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(table.currentItem()->text(), QString("2"));
}

void tst_PartActions::UpAndDownMoveTheFeature()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin"});
    modelling.Trigger("action_MoveUp");
    QCOMPARE(modelling.Names(), QStringList({"pin", "plate", "body"}));
    modelling.Trigger("action_MoveDown");
    QCOMPARE(modelling.Names(), QStringList({"plate", "pin", "body"}));
    QCOMPARE(modelling.tree->Selected(), QStringList("pin"));
}

void tst_PartActions::AMoveBeforeAnInputIsRefusedWithAMessage()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"body"});
    modelling.Trigger("action_MoveUp");
    modelling.CheckRefused("Cannot move \"body\"");
    QCOMPARE(modelling.Names(), QStringList({"plate", "pin", "body"}));
}

void tst_PartActions::SuppressSwitches()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"body"});
    QVERIFY(!modelling.Action("action_Suppress").isChecked());
    modelling.Trigger("action_Suppress");
    QVERIFY(modelling.Last().suppressed);
    QVERIFY(modelling.Action("action_Suppress").isChecked());
    modelling.Trigger("action_Suppress");
    QVERIFY(!modelling.Last().suppressed);
    QVERIFY(!modelling.Action("action_Suppress").isChecked());
}

void tst_PartActions::DeletingWhatIsUsedIsRefusedWithAMessage()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate"});
    modelling.Trigger("action_DeleteFeature");
    modelling.CheckRefused("Cannot delete \"plate\": it is used by \"body\"");
    QCOMPARE(modelling.model.Features().Size(), 3);
}

void tst_PartActions::SeveralAreDeletedAtOnce()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin", "body"});
    modelling.Trigger("action_DeleteFeature");
    QCOMPARE(modelling.Names(), QStringList("plate"));
    QCOMPARE(modelling.posted.count(), 0);
}

void tst_PartActions::UndoAndRedoSayWhatTheyDo()
{
    Modelling modelling;
    QVERIFY(!modelling.Action("action_Undo").isEnabled());
    modelling.Trigger("action_Add_cylinder");
    QCOMPARE(modelling.Action("action_Undo").text(), QString("&Undo Add Cylinder \"cylinder\""));
    modelling.Trigger("action_Undo");
    QVERIFY(modelling.model.Features().IsEmpty());
    QCOMPARE(modelling.Action("action_Redo").text(), QString("&Redo Add Cylinder \"cylinder\""));
    modelling.Trigger("action_Redo");
    QCOMPARE(modelling.Names(), QStringList("cylinder"));
}

void tst_PartActions::ActionsFitTheSelection()
{
    Modelling modelling;
    modelling.AddSamples();
    const auto enabled = [&modelling] {
        QStringList names;
        for (const char* const name : {"action_EditFeature", "action_MoveUp", "action_MoveDown",
                                       "action_Suppress", "action_DeleteFeature"}) {
            if (modelling.Action(name).isEnabled())
                names << QString(name).mid(7);
        }
        return names.join(' ');
    };
    modelling.Select({});
    QCOMPARE(enabled(), QString());
    modelling.Select({"plate"});
    QCOMPARE(enabled(), QString("EditFeature MoveDown Suppress DeleteFeature"));
    modelling.Select({"pin"});
    QCOMPARE(enabled(), QString("EditFeature MoveUp MoveDown Suppress DeleteFeature"));
    modelling.Select({"body"});
    QCOMPARE(enabled(), QString("EditFeature MoveUp Suppress DeleteFeature"));
    modelling.Select({"plate", "pin"});
    QCOMPARE(enabled(), QString("Suppress DeleteFeature"));
}

void tst_PartActions::WithoutAViewTheFacesPointIsToBeTyped()
{
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    modelling.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton_3").setChecked(true);
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_Add_mirror");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
    QCOMPARE(modelling.Last().inputs, QStringList("box"));
    QVERIFY(modelling.posted.count() == 1);
    QVERIFY(modelling.posted[0][1].toString().contains("type a point on the face"));
}

void tst_PartActions::AMirrorWaitsForItsFace()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    QVERIFY(view.IsPicking());
    QCOMPARE(modelling.model.Features().Size(), 1);
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(10.000000000000002, 5.25, 5.0 - 1e-12));
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
    QCOMPARE(modelling.Last().inputs, QStringList("box"));
    QCOMPARE(modelling.Last().fields, QStringList({"10", "5.25", "5"}));
    QVERIFY2(!modelling.model.HasFailed(), qPrintable(modelling.model.Failure()));
    // The next click is an ordinary one.
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(0.0, 5.0, 5.0));
    QCOMPARE(modelling.model.Features().Size(), 2);
}

void tst_PartActions::AMirrorThatWaitsCanBeGivenUp()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    view.CancelPicking();
    modelling.actions->TakePoint(gp_Pnt(10.0, 5.0, 5.0));
    QCOMPARE(modelling.model.Features().Size(), 1);
    // Another feature gives it up, too.
    AskForFaceMirror(modelling, "action_Add_mirror");
    modelling.Trigger("action_Add_cylinder");
    QVERIFY(!view.IsPicking());
    modelling.actions->TakePoint(gp_Pnt(10.0, 5.0, 5.0));
    QCOMPARE(modelling.Names(), QStringList({"box", "cylinder"}));
}

void tst_PartActions::AMirrorTakesATypedPoint()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    modelling.actions->TakePoint(gp_Pnt(5.0, 5.0, 10.0));
    QCOMPARE(modelling.Last().fields, QStringList({"5", "5", "10"}));
    QVERIFY(!view.IsPicking());
}

void tst_PartActions::AnEditedMirrorWaitsForAnotherFace()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    modelling.model.Add(NewFeature("twin", "mirrorFace", {"box"}, {{"x", "10"}}));
    modelling.Select({"twin"});
    AskForFaceMirror(modelling, "action_EditFeature");
    QVERIFY(view.IsPicking());
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(0.0, 5.0, 5.0));
    QCOMPARE(modelling.Names(), QStringList({"box", "twin"}));
    QCOMPARE(modelling.Last().fields, QStringList({"0", "5", "5"}));
}

void tst_PartActions::AFailedViewIsNoView()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    Q_EMIT view.Failed("broken");
    AskForFaceMirror(modelling, "action_Add_mirror");
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
}

void tst_PartActions::ATypedPointNeedsAWaitingMirror()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.actions->TakePoint(gp_Pnt(1.0, 2.0, 3.0));
    QCOMPARE(modelling.model.Features().Size(), 3);
}

void tst_PartActions::AStepFileIsExportedAndImported()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.Select({});
    ChooseFile(modelling.user, directory + "/part");
    modelling.Trigger("action_ExportStep");
    QVERIFY(modelling.user.IsDone());
    QVERIFY(QFile::exists("part.step"));
    QVERIFY(modelling.posted.last()[1].toString().contains("part.step"));

    modelling.Trigger("action_Undo");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ImportStep");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("import"));
    QCOMPARE(modelling.Last().file, directory + "/part.step");
    QVERIFY(qFuzzyCompare(Measure(modelling.model.Shape()).volume, 1000.0));
}

void tst_PartActions::TheSelectedFeaturesShapeIsExported()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate"});
    ChooseFile(modelling.user, directory + "/plate.step");
    modelling.Trigger("action_ExportStep");
    Feature import = NewFeature("import", "import");
    import.file = directory + "/plate.step";
    modelling.model.Add(import);
    QVERIFY(qFuzzyCompare(Measure(modelling.model.ShapeOf("import")).volume, 1000.0));
}

void tst_PartActions::ThereIsNothingToExportWithoutAShape()
{
    Modelling modelling;
    modelling.Trigger("action_ExportStep");
    QCOMPARE(modelling.posted.count(), 1);
    QCOMPARE(modelling.posted[0][1].toString(), QString("There is no shape to export"));
}

void tst_PartActions::AFileThatCannotBeWrittenIsTold()
{
    FullDisk disk;
    disk.Fill();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    ChooseFile(modelling.user, QDir::current().filePath("new.step"));
    modelling.Trigger("action_ExportStep");
    QVERIFY(modelling.user.IsDone());
    modelling.CheckRefused("new.step: cannot be written: " + disk.Reason());
    QVERIFY(!QFile::exists("new.step"));
}

void tst_PartActions::AFileBesideTheProjectIsNamedRelatively()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("parts"));
    Modelling modelling;
    modelling.model.Open(FeatureList(), {}, directory);
    modelling.Trigger("action_Add_box");
    ChooseFile(modelling.user, directory + "/parts/box.step");
    modelling.Trigger("action_ExportStep");
    ChooseFile(modelling.user, directory + "/parts/box.step");
    modelling.Trigger("action_ImportStep");
    QCOMPARE(modelling.Last().file, QString("parts/box.step"));
    QVERIFY2(!modelling.model.HasFailed(), qPrintable(modelling.model.Failure()));
    // Another file can be chosen for it.
    QVERIFY(QFile::copy("parts/box.step", "other.step"));
    modelling.Select({"import"});
    ChooseFile(modelling.user, directory + "/other.step");
    modelling.Trigger("action_EditFeature");
    QCOMPARE(modelling.Last().file, QString("other.step"));
    QVERIFY(modelling.user.IsDone());
}

void tst_PartActions::TheSampleProjectHasNoFolderForFiles()
{
    Modelling modelling;
    modelling.model.Open(FeatureList(), {}, ":/samples");
    modelling.Trigger("action_Add_box");
    for (const char* const action : {"action_ExportStep", "action_ImportStep"}) {
        QString folder;
        modelling.user.Then([&folder](QDialog& dialog) {
            folder = qobject_cast<QFileDialog*>(&dialog)->directory().path();
            dialog.reject();
        });
        modelling.Trigger(action);
        QVERIFY2(QDir(folder).exists() && !folder.startsWith(':'), qPrintable(folder));
    }
}

void tst_PartActions::AVanishedFileIsToldAndTheShapeStays()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ExportStep");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ImportStep");
    const TopoDS_Shape shape = modelling.model.Shape();
    QVERIFY(QFile::remove("part.step"));
    modelling.model.Rebuild();
    QCOMPARE(modelling.model.FailedFeature(), QString("import"));
    QVERIFY(modelling.model.Failure().contains("part.step: cannot be opened"));
    QVERIFY(modelling.model.Shape().IsEqual(shape));
    // It can be taken back, and then comes again as what cannot be built.
    modelling.Trigger("action_Undo");
    QVERIFY(!modelling.model.HasFailed());
    modelling.Trigger("action_Redo");
    QVERIFY(modelling.model.HasFailed());
    QCOMPARE(modelling.Names(), QStringList({"box", "import"}));
}

TARN_TEST_MAIN(tst_PartActions, HostApplication)
#include "tst_PartActions.moc"
