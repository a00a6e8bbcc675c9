#include "FileChoice.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "ParameterTable.h"
#include "PickingWindow.h"
#include "TestFiles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QTreeWidget>

#include <cmath>
#include <functional>

/// A user starts with an empty project, models a flange, sets up its analysis, saves it and opens
/// it again. The pictures of the manual are made on the way, into the folder TARN_PICTURES.
class tst_FirstPart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFlangeFromNothing();
};

namespace {

using Predicate = std::function<bool(double x, double y, double z)>;

/// The main window as a user handles it.
class Desk
{
public:
    Desk()
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
        window.resize(1270, 1000);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            FailTest("The window does not become active");
        view = &Find<PartView>(window, "modelView");
    }

    void Trigger(const char* action)
    {
        ::Trigger(window, action);
        Settle();
    }
    void Settle()
    {
        window.Part().WaitUntilIdle();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    void Show(const char* dock)
    {
        auto& shown = Find<QDockWidget>(window, dock);
        shown.show();
        shown.raise();
        Settle();
        QTRY_VERIFY(shown.isVisible());
    }

    QTableWidget& Parameters() { return Find<QTableWidget>(window, "parameterTable"); }
    void SetParameter(const QString& name, int column, const QString& text)
    {
        TypeIntoCell(Parameters(), RowOf(Parameters(), name), column, text);
        Settle();
    }
    void AddParameter(const QString& name, const QString& value, const QString& unit)
    {
        Trigger("action_AddParameter");
        auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(edit != nullptr);
        TypeText(*edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        Settle();
        SetParameter(name, ParameterTable::ValueColumn, value);
        if (!unit.isEmpty())
            SetParameter(name, ParameterTable::UnitColumn, unit);
    }

    /// Types into a field of the feature that is selected.
    void SetField(const QString& label, const QString& text)
    {
        Show("fieldsDock");
        auto& fields = Find<QTableWidget>(window, "fieldTable");
        QVERIFY2(RowOf(fields, label) >= 0, qPrintable(label));
        TypeIntoCell(fields, RowOf(fields, label), 1, text);
        Settle();
        QVERIFY2(!window.Part().HasFailed(), qPrintable(window.Part().Failure()));
    }
    void Select(const QStringList& features)
    {
        auto& tree = Find<QTreeWidget>(window, "featureTree");
        tree.clearSelection();
        for (const QString& name : features)
            tree.topLevelItem(window.Part().Features().Find(name))->setSelected(true);
        Settle();
    }

    /// Moves the mouse over the part until the position that is shown is the wanted one, and
    /// clicks.
    void ClickWhere(const Predicate& isWanted)
    {
        const auto& dock = Find<QWidget>(window, "positionDock");
        const auto shown = [&dock](const char* field) {
            return Find<QLineEdit>(dock, field).text();
        };
        constexpr int Step = 3;
        for (int y = Step; y < view->height(); y += Step) {
            for (int x = Step; x < view->width(); x += Step) {
                const QPoint place(x, y);
                QMouseEvent move(QEvent::MouseMove, place, view->mapToGlobal(place), Qt::NoButton,
                                 Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(view, &move);
                if (shown("lineEdit").isEmpty() ||
                    !isWanted(shown("lineEdit").toDouble(), shown("lineEdit_2").toDouble(),
                              shown("lineEdit_3").toDouble()))
                    continue;
                QTest::mouseClick(view, Qt::LeftButton, {}, place);
                Settle();
                return;
            }
        }
        QFAIL("There is no such place in the picture");
    }
    void BeginPicking(const char* action, const std::function<void(QDialog&)>& answer)
    {
        if (answer)
            user.Then(answer);
        Trigger(action);
        QVERIFY(user.IsDone());
        QVERIFY(view->IsPicking());
        Trigger("action_FitView");
        view->grab();
    }
    QString Choice() const { return Find<QLabel>(window, "choiceLabel").text(); }
    void EndPicking()
    {
        Click(window, "doneButton");
        Settle();
        QVERIFY(!view->IsPicking());
    }

    void Picture(const QString& name)
    {
        const QString folder = qEnvironmentVariable("TARN_PICTURES");
        if (folder.isEmpty())
            return;
        Settle();
        view->grab();
        QVERIFY(window.grab().save(QDir(folder).filePath(name + ".png")));
    }

    EmptyDesignStores stores;
    EmptyAnalysisStores analysisStores;
    EmptyAttributeNames names;
    MainWindow window;
    PartView* view = nullptr;
    ModalDriver user;
};

void DefineParameters(Desk& desk)
{
    desk.Show("parameterDock");
    desk.AddParameter("outer", "200", "mm");
    desk.AddParameter("bore", "70", "mm");
    desk.AddParameter("thickness", "20", "mm");
    desk.AddParameter("孔数", "8", "");
    desk.AddParameter("bolt_circle", "(outer + bore) / 2", "mm");
    desk.AddParameter("below", "-5", "mm");
    QCOMPARE(Stored("bolt_circle"), 135.0);
    QCOMPARE(Stored("below"), -5.0);

    // A new name goes into the expression; undo takes it back, redo brings it again.
    desk.SetParameter("bore", ParameterTable::NameColumn, "bore_diameter");
    const auto circle = [&] {
        return desk.Parameters()
            .item(RowOf(desk.Parameters(), "bolt_circle"), ParameterTable::ValueColumn)
            ->text();
    };
    QCOMPARE(circle(), QString("(outer + bore_diameter) / 2"));
    desk.Trigger("action_Undo");
    QCOMPARE(circle(), QString("(outer + bore) / 2"));
    desk.Trigger("action_Redo");
    QCOMPARE(circle(), QString("(outer + bore_diameter) / 2"));
    QCOMPARE(Stored("bolt_circle"), 135.0);
}

void ModelTheFlange(Desk& desk)
{
    desk.Trigger("action_Add_cylinder");
    desk.SetField("Name", "plate");
    desk.SetField("Radius", "outer / 2");
    desk.SetField("Height", "thickness");
    desk.Trigger("action_FitView");
    desk.Picture("first-part-2-plate");

    desk.Trigger("action_Add_cylinder");
    desk.SetField("Name", "bore");
    desk.SetField("Radius", "bore_diameter / 2");
    desk.SetField("Height", "thickness - 2 * below");
    desk.SetField("Move z", "below");

    desk.Trigger("action_Add_cylinder");
    desk.SetField("Name", "hole");
    desk.SetField("Radius", "9");
    desk.SetField("Height", "thickness - 2 * below");
    desk.SetField("Move x", "bolt_circle / 2");
    desk.SetField("Move z", "below");

    desk.Select({"hole"});
    desk.user.Then([&desk](QDialog& dialog) {
        Type(dialog, "lineEdit_Num", "孔数");
        Type(dialog, "lineEdit_Angle", "360");
        Click(dialog, "pushButtonOK");
    });
    desk.Trigger("action_Add_polarArray");
    QVERIFY(desk.user.IsDone());
    desk.SetField("Name", "holes");

    desk.Select({"plate", "bore", "holes"});
    desk.Trigger("action_Add_cut");
    desk.SetField("Name", "flange");
    desk.Trigger("action_IsometricView");
    desk.Trigger("action_FitView");
    desk.Picture("first-part-3-flange");

    // The upper edge of the plate.
    desk.BeginPicking("action_Add_fillet", {});
    desk.ClickWhere([](double x, double y, double z) {
        return std::abs(std::hypot(x, y) - 100) < 0.05 && std::abs(z - 20) < 0.05;
    });
    QCOMPARE(desk.Choice(), QString("plate.side | plate.top"));
    desk.Picture("first-part-4-edge");
    desk.EndPicking();
    desk.SetField("Radius", "3");
    QVERIFY2(!desk.window.Part().HasFailed(), qPrintable(desk.window.Part().Failure()));
}

void SetUpTheAnalysis(Desk& desk)
{
    desk.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_Title", "First part");
        Find<QComboBox>(dialog, "comboBox_Material").setCurrentText("Steel S355");
        QTest::mouseClick(Find<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    desk.Trigger("action_ProjectProperties");
    QVERIFY(desk.user.IsDone());

    desk.Show("modelTreeDock");
    desk.BeginPicking("action_BoundaryCondition", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "clamp");
        Click(dialog, "okButton");
    });
    desk.ClickWhere([](double x, double y, double z) {
        return std::abs(std::hypot(x, y) - 35) < 0.05 && z > 3 && z < 17;
    });
    QCOMPARE(desk.Choice(), QString("bore.side"));
    desk.Picture("first-part-5-support");
    desk.EndPicking();

    desk.BeginPicking("action_LoadForce", [](QDialog& dialog) {
        Type(dialog, "lied_FX", "0");
        Type(dialog, "lied_FZ", "-10000");
        Click(dialog, "okButton");
    });
    desk.ClickWhere([](double x, double y, double z) {
        return std::abs(std::hypot(x, y) - 90) < 2 && std::abs(z - 20) < 0.01;
    });
    QCOMPARE(desk.Choice(), QString("plate.top"));
    desk.EndPicking();
    desk.Picture("first-part-6-analysis");
}

QJsonObject Content(const QString& path)
{
    return QJsonDocument::fromJson(ContentOf(path)).object();
}

} // namespace

void tst_FirstPart::AFlangeFromNothing()
{
    const QString directory = EnterTemporaryDirectory();
    const QString path = directory + "/first.json";
    {
        Desk desk;
        desk.Trigger("action_NewProject");
        QVERIFY(desk.window.Part().Features().IsEmpty());
        DefineParameters(desk);
        desk.Picture("first-part-1-parameters");
        if (QTest::currentTestFailed())
            return;
        ModelTheFlange(desk);
        if (QTest::currentTestFailed())
            return;
        SetUpTheAnalysis(desk);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(desk.window.isWindowModified());
        ChooseFile(desk.user, path);
        desk.Trigger("action_SaveProject");
        QVERIFY(desk.user.IsDone());
        QVERIFY(!desk.window.isWindowModified());
        QCOMPARE(desk.window.windowTitle(), QString("First part - first.json[*] - Tarn host"));
        QVERIFY(desk.window.close());
    }
    QProcess validator;
    validator.start("python3", {"-m", "jsonschema", "-i", path,
                                SourcePath("docs/schemas/Project.schema.json")});
    QVERIFY(validator.waitForFinished());
    QVERIFY2(validator.exitCode() == 0, validator.readAllStandardError().constData());
    const QJsonObject saved = Content(path);
    QCOMPARE(saved["parameters"].toArray().size(), 6);
    QCOMPARE(saved["features"].toArray().size(), 6);
    QCOMPARE(saved["analysis"].toObject()["constraints"].toArray().at(0).toObject()["faces"],
             QJsonValue(QJsonArray({"bore.side"})));

    Desk desk;
    ChooseFile(desk.user, path);
    desk.Trigger("action_OpenProject");
    QVERIFY(desk.user.IsDone());
    QVERIFY2(!desk.window.Part().HasFailed(), qPrintable(desk.window.Part().Failure()));
    QVERIFY(!desk.window.isWindowModified());
    QVERIFY(QFile::remove(path));
    ChooseFile(desk.user, path);
    desk.Trigger("action_SaveProjectAs");
    QVERIFY(desk.user.IsDone());
    QCOMPARE(Content(path), saved);
}

TARN_HOST_TEST_MAIN(tst_FirstPart, HostApplication)
#include "tst_FirstPart.moc"
