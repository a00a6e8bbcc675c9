#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "AttributeCommonMgr.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "TestCase.h"

#include <QAction>
#include <QTreeWidget>

class tst_AnalysisTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyModelHasItsGroups();
    void TheAnalysisTypeIsReported_data();
    void TheAnalysisTypeIsReported();
    void TheFixedDegreesOfFreedomAreShown_data();
    void TheFixedDegreesOfFreedomAreShown();
    void AForceIsShownAsStored_data();
    void AForceIsShownAsStored();
    void APropertyIsShownWithMaterialAndThickness_data();
    void APropertyIsShownWithMaterialAndThickness();
    void TheFrequencyRangeIsShown();
    void TheMeshSizesAreShown();
    void NamesAreShownInTheLocalCodePage();
    void TheTreeFollowsTheModel();
    void TheTreeFollowsTheStoresOnRefresh();
    void OnlyBoundaryConditionsAndLoadsCanBeDeleted();
    void DeletingWithTheKeyFreesTheName();
    void DeletingTakesTheSelectedRecordOnly();
    void NothingCanBeEdited();
};

namespace {

/// A model with its tree, and nothing left over in stores and preferences.
class Shown
{
public:
    AnalysisRecords model;

private:
    const EmptyAnalysisStores m_stores;
    const EmptyAttributeNames m_names;
    // After the stores, which it reads.
    AnalysisTree m_dock{model, nullptr};

public:
    ~Shown()
    {
        FrequencyPref::m_MinFreq = 1.0;
        FrequencyPref::m_MaxFreq = 1000000.0;
        FrequencyPref::m_NumFreq = 10;
    }

    AnalysisTree& Dock() { return m_dock; }
    QTreeWidget& Tree() const { return Find<QTreeWidget>(m_dock, "modelTree"); }

    QTreeWidgetItem& Group(const QString& title) const
    {
        const auto groups = Tree().findItems(title, Qt::MatchExactly, AnalysisTree::NameColumn);
        if (groups.size() != 1)
            FailTest(QString("There is not exactly one group \"%1\"").arg(title));
        return *groups.first();
    }

    /// The records of a group, each as "name: value".
    QStringList Records(const QString& title) const
    {
        QStringList records;
        const QTreeWidgetItem& group = Group(title);
        for (int i = 0; i < group.childCount(); ++i)
            records << group.child(i)->text(AnalysisTree::NameColumn) + ": " +
                           group.child(i)->text(AnalysisTree::ValueColumn);
        return records;
    }

    QString Value(const QString& title) const
    {
        return Group(title).text(AnalysisTree::ValueColumn);
    }

    // As a user does.
    void ClickOn(QTreeWidgetItem* item)
    {
        if (!m_dock.isVisible()) {
            m_dock.resize(600, 600);
            m_dock.show();
            m_dock.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&m_dock));
        }
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {},
                          Tree().visualItemRect(item).center());
        QVERIFY(item->isSelected());
    }
};

sLoadForceData Load(const char* name, double fx, double fy, double fz, int kind = 1)
{
    sLoadForceData load;
    load.m_strName = name;
    load.m_nKind = kind;
    load.m_dFX = fx;
    load.m_dFY = fy;
    load.m_dFZ = fz;
    return load;
}

sConstrainData Constraint(const char* name)
{
    sConstrainData constraint;
    constraint.m_strName = name;
    return constraint;
}

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

} // namespace

void tst_AnalysisTree::AnEmptyModelHasItsGroups()
{
    const Shown shown;
    QStringList groups;
    for (int i = 0; i < shown.Tree().topLevelItemCount(); ++i) {
        const QTreeWidgetItem& group = *shown.Tree().topLevelItem(i);
        QCOMPARE(group.childCount(), 0);
        groups << group.text(AnalysisTree::NameColumn) + ": " +
                      group.text(AnalysisTree::ValueColumn);
    }
    QCOMPARE(groups, QStringList({"Analysis type: Vibration (family 1, kind 2)",
                                  "Boundary conditions: ", "Loads: ", "Element properties: ",
                                  "Frequency range: 1 to 1e+06, 10 points", "Mesh size: not set",
                                  "Sub-shape mesh: not set"}));
}

void tst_AnalysisTree::TheAnalysisTypeIsReported_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::newRow("1 1") << 1 << 1 << "Static (family 1, kind 1)";
    QTest::newRow("1 2") << 1 << 2 << "Vibration (family 1, kind 2)";
    QTest::newRow("1 3") << 1 << 3 << "Buckling (family 1, kind 3)";
    QTest::newRow("1 4") << 1 << 4 << "Transient (family 1, kind 4)";
    QTest::newRow("1 6") << 1 << 6 << "Frequency response (family 1, kind 6)";
    QTest::newRow("7 7") << 7 << 7 << "Complex eigenvalue (family 7, kind 7)";
    QTest::newRow("1 5") << 1 << 5 << "unknown (family 1, kind 5)";
}

void tst_AnalysisTree::TheAnalysisTypeIsReported()
{
    QFETCH(int, family);
    QFETCH(int, kind);
    QFETCH(QString, text);
    Shown shown;
    shown.model.SetSolverType(family, kind);
    QCOMPARE(shown.Value("Analysis type"), text);
}

void tst_AnalysisTree::TheFixedDegreesOfFreedomAreShown_data()
{
    QTest::addColumn<QVector<bool>>("held");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QVector<bool>(6, false) << "fixes nothing";
    QTest::newRow("all") << QVector<bool>(6, true) << "fixes X_D, Y_D, Z_D, X_R, Y_R, Z_R";
    const QString words[] = {"X_D", "Y_D", "Z_D", "X_R", "Y_R", "Z_R"};
    for (int i = 0; i < 6; ++i) {
        QVector<bool> held(6, false);
        held[i] = true;
        QTest::newRow(qPrintable(words[i])) << held << "fixes " + words[i];
    }
}

void tst_AnalysisTree::TheFixedDegreesOfFreedomAreShown()
{
    QFETCH(QVector<bool>, held);
    QFETCH(QString, text);
    Shown shown;
    shown.model.AddConstraint({"foot", held[0], held[1], held[2], held[3], held[4], held[5]});
    QCOMPARE(shown.Records("Boundary conditions"), QStringList("foot: " + text));
}

void tst_AnalysisTree::AForceIsShownAsStored_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("fx");
    QTest::addColumn<double>("fy");
    QTest::addColumn<double>("fz");
    QTest::addColumn<QString>("text");
    QTest::newRow("components") << 1 << 1000.0 << 7.0 << 5.0 << "FX = 1000, FY = 7, FZ = 5";
    QTest::newRow("every digit") << 1 << 0.1 << -1.0 / 3.0 << 0.0
                                 << "FX = 0.1, FY = -0.3333333333333333, FZ = 0";
    QTest::newRow("normal") << 2 << 1.0 << 2.0 << 3.0
                            << "normal to surface, FX = 1, FY = 2, FZ = 3";
}

void tst_AnalysisTree::AForceIsShownAsStored()
{
    QFETCH(int, kind);
    QFETCH(double, fx);
    QFETCH(double, fy);
    QFETCH(double, fz);
    QFETCH(QString, text);
    Shown shown;
    shown.model.AddLoad(Load("pull", fx, fy, fz, kind));
    QCOMPARE(shown.Records("Loads"), QStringList("pull: " + text));
}

void tst_AnalysisTree::APropertyIsShownWithMaterialAndThickness_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("material");
    QTest::addColumn<double>("thickness");
    QTest::addColumn<QString>("text");
    QTest::newRow("full") << "Shell"
                          << "steel" << 0.0025 << "Shell, material steel, thickness 0.0025";
    QTest::newRow("no material") << "Shell"
                                 << "" << 2.5 << "Shell, no material, thickness 2.5";
    QTest::newRow("no type") << ""
                             << "steel" << 0.0 << "no type, material steel, thickness 0";
    QTest::newRow("per cent sign") << "Shell"
                                   << "%3" << 1.0 << "Shell, material %3, thickness 1";
}

void tst_AnalysisTree::APropertyIsShownWithMaterialAndThickness()
{
    QFETCH(QString, type);
    QFETCH(QString, material);
    QFETCH(double, thickness);
    QFETCH(QString, text);
    Shown shown;
    auto* const property = new CQLTElemPropDef;
    property->m_strName = "plate";
    property->m_strTypeName = type;
    property->m_strMaterialName = material;
    property->m_dThickness = thickness;
    KVPropertyData::GetInstance()->AddPropInfo(property);
    shown.Dock().Refresh();
    QCOMPARE(shown.Records("Element properties"), QStringList("plate: " + text));
}

void tst_AnalysisTree::TheFrequencyRangeIsShown()
{
    Shown shown;
    FrequencyPref::m_MinFreq = 0.5;
    FrequencyPref::m_MaxFreq = 123456.75;
    FrequencyPref::m_NumFreq = 7;
    shown.Dock().Refresh();
    QCOMPARE(shown.Value("Frequency range"), QString("0.5 to 123456.75, 7 points"));
}

void tst_AnalysisTree::TheMeshSizesAreShown()
{
    Shown shown;
    shown.model.SetMeshSize(0.25);
    shown.model.SetSubShape({0.05, 12});
    QCOMPARE(shown.Value("Mesh size"), QString("0.25"));
    QCOMPARE(shown.Value("Sub-shape mesh"), QString("size 0.05, number 12"));
}

void tst_AnalysisTree::NamesAreShownInTheLocalCodePage()
{
    UseCodePage("ISO-8859-1");
    Shown shown;
    shown.model.AddLoad(Load("\xe4", 1.0, 0.0, 0.0));
    QCOMPARE(shown.Records("Loads"), QStringList(QString::fromUtf8("ä: FX = 1, FY = 0, FZ = 0")));
}

void tst_AnalysisTree::TheTreeFollowsTheModel()
{
    Shown shown;
    shown.model.AddConstraint(Constraint("foot"));
    shown.model.AddLoad(Load("pull", 1.0, 0.0, 0.0));
    shown.model.AddLoad(Load("push", 0.0, 1.0, 0.0));
    QCOMPARE(shown.Records("Loads").size(), 2);
    shown.model.Remove("pull");
    QCOMPARE(shown.Records("Loads"), QStringList("push: FX = 0, FY = 1, FZ = 0"));
    shown.model.Clear();
    QCOMPARE(shown.Records("Boundary conditions"), QStringList());
    QCOMPARE(shown.Records("Loads"), QStringList());
}

void tst_AnalysisTree::TheTreeFollowsTheStoresOnRefresh()
{
    Shown shown;
    KVPropertyData::GetInstance()->AddPropInfo(new CQLTElemPropDef);
    QCOMPARE(shown.Records("Element properties").size(), 0);
    shown.Dock().Refresh();
    QCOMPARE(shown.Records("Element properties").size(), 1);
}

void tst_AnalysisTree::OnlyBoundaryConditionsAndLoadsCanBeDeleted()
{
    Shown shown;
    KVPropertyData::GetInstance()->AddPropInfo(new CQLTElemPropDef);
    shown.model.AddConstraint(Constraint("foot"));
    shown.model.AddLoad(Load("", 1.0, 0.0, 0.0));
    const QAction& action = *shown.Dock().DeleteAction();
    QVERIFY(!action.isEnabled());
    shown.ClickOn(shown.Group("Loads").child(0));
    QVERIFY(action.isEnabled());
    shown.ClickOn(&shown.Group("Loads"));
    QVERIFY(!action.isEnabled());
    shown.ClickOn(shown.Group("Boundary conditions").child(0));
    QVERIFY(action.isEnabled());
    shown.ClickOn(shown.Group("Element properties").child(0));
    QVERIFY(!action.isEnabled());
}

void tst_AnalysisTree::DeletingWithTheKeyFreesTheName()
{
    Shown shown;
    shown.model.AddConstraint(Constraint("foot"));
    QVERIFY(IsTaken("foot"));
    shown.ClickOn(shown.Group("Boundary conditions").child(0));
    QTest::keyClick(&shown.Tree(), Qt::Key_Delete);
    QCOMPARE(shown.Records("Boundary conditions"), QStringList());
    QVERIFY(shown.model.Constraints().empty());
    QVERIFY(!IsTaken("foot"));
    QVERIFY(!shown.Dock().DeleteAction()->isEnabled());
}

void tst_AnalysisTree::DeletingTakesTheSelectedRecordOnly()
{
    Shown shown;
    shown.model.AddLoad(Load("a", 1.0, 0.0, 0.0));
    shown.model.AddLoad(Load("b", 2.0, 0.0, 0.0));
    shown.model.AddLoad(Load("c", 3.0, 0.0, 0.0));
    shown.ClickOn(shown.Group("Loads").child(1));
    shown.Dock().DeleteAction()->trigger();
    QCOMPARE(shown.Records("Loads"),
             QStringList({"a: FX = 1, FY = 0, FZ = 0", "c: FX = 3, FY = 0, FZ = 0"}));
    QVERIFY(IsTaken("a"));
    QVERIFY(!IsTaken("b"));
    QVERIFY(IsTaken("c"));
}

void tst_AnalysisTree::NothingCanBeEdited()
{
    const Shown shown;
    QCOMPARE(shown.Tree().editTriggers(), QAbstractItemView::NoEditTriggers);
}

TARN_TEST_MAIN(tst_AnalysisTree)
#include "tst_AnalysisTree.moc"
