#include "AnalysisEntries.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "AttributeCommonMgr.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "MaterialLibrary.h"
#include "TestCase.h"

#include <QAction>
#include <QTreeWidget>

#include <functional>

class tst_AnalysisTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyModelHasItsGroups();
    void TheAnalysisTypeIsReported_data();
    void TheAnalysisTypeIsReported();
    void TheFixedDegreesOfFreedomAreShown_data();
    void TheFixedDegreesOfFreedomAreShown();
    void TargetsAreShownByName();
    void NumbersBearTheirUnits();
    void TheSourceOfAMaterialIsBelowItsProperty();
    void TheTreeFollowsTheModel();
    void OnlyEntriesOfListsCanBeDeleted();
    void DeletingWithTheKeyFreesTheName();
    void DeletingTakesTheSelectedEntryOnly_data();
    void DeletingTakesTheSelectedEntryOnly();
    void ADoubleClickAsksToEdit();
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

    void Edit(const std::function<void(AnalysisDefinition&)>& edit)
    {
        AnalysisDefinition analysis = model.Definition();
        edit(analysis);
        model.SetDefinition(analysis);
    }
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
    QCOMPARE(groups,
             QStringList({"Analysis type: Vibration (family 1, kind 2)",
                          "Boundary conditions: ", "Loads: ", "Element properties: ",
                          "Frequency range: 1 Hz to 1e+06 Hz, 10 modes",
                          "Mesh size: not set: a tenth of the longest side", "Local meshes: "}));
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
    AnalysisDefinition analysis;
    analysis.type = {family, kind};
    shown.model.SetDefinition(analysis);
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
    ConstraintDefinition foot = Constraint("foot");
    std::copy(held.begin(), held.end(), foot.held.begin());
    shown.Edit([&](AnalysisDefinition& analysis) { analysis.constraints = {foot}; });
    QCOMPARE(shown.Records("Boundary conditions"), QStringList("foot: " + text + " on box.zmin"));
}

void tst_AnalysisTree::TargetsAreShownByName()
{
    Shown shown;
    LoadDefinition load = Load("pull", "-f", "0", "2.5");
    load.faces.clear();
    load.edges = {{{{"a.xmin", {}}, {"a.ymin", {}}}, {}}, {{}, {"1", "2", "t"}}};
    PropertyDefinition web = Property("web", "%3", "t / 2");
    web.faces = {{"plate.zmax", {}}, {"", {"0", "0", "1"}}};
    shown.Edit([&](AnalysisDefinition& analysis) {
        analysis.loads = {load};
        analysis.properties = {web, Property("rest", "")};
        analysis.localMeshes = {{"2", "", {{"bore.side", {}}}, {}}, {"", "12", {}, {}}};
    });
    QCOMPARE(shown.Records("Loads"),
             QStringList("pull: FX = -f N, FY = 0 N, FZ = 2.5 N on a.xmin | a.ymin, (1, 2, t)"));
    QCOMPARE(shown.Records("Element properties"),
             QStringList({"web: material %3, shells t / 2 mm thick on plate.zmax, (0, 0, 1)",
                          "rest: no material, solid elements in the whole part; nothing is picked "
                          "for shells yet"}));
    QCOMPARE(shown.Records("Local meshes"),
             QStringList({"Local mesh 1: size 2 mm on bore.side",
                          "Local mesh 2: 12 elements along each; nothing is picked yet"}));
}

void tst_AnalysisTree::NumbersBearTheirUnits()
{
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) {
        analysis.frequencies = {0.5, 123456.75, 7};
        analysis.meshSize = "t / 4";
    });
    QCOMPARE(shown.Value("Frequency range"), QString("0.5 Hz to 123456.75 Hz, 7 modes"));
    QCOMPARE(shown.Value("Mesh size"), QString("t / 4 mm"));
}

void tst_AnalysisTree::TheSourceOfAMaterialIsBelowItsProperty()
{
    Shown shown;
    ReadMaterials("elsewhere");
    shown.Edit([](AnalysisDefinition& analysis) {
        analysis.properties = {{"ring", "Steel S355", {}, {}}, {"hub", {}, {}, {}}};
    });
    QCOMPARE(shown.Records("Element properties").size(), 2);
    const QTreeWidgetItem& group = shown.Group("Element properties");
    QCOMPARE(group.child(1)->childCount(), 0);
    QCOMPARE(group.child(0)->childCount(), 1);
    QTreeWidgetItem* const row = group.child(0)->child(0);
    QCOMPARE(row->text(AnalysisTree::NameColumn), QString("Source of the material"));
    QCOMPARE(row->text(AnalysisTree::ValueColumn), SourceOf("Steel S355"));
    shown.Tree().setCurrentItem(row);
    QCOMPARE(shown.Dock().Selected()->index, 0);
}

void tst_AnalysisTree::TheTreeFollowsTheModel()
{
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) { analysis.loads = {Load("a"), Load("b")}; });
    QCOMPARE(shown.Records("Loads").size(), 2);
    shown.ClickOn(shown.Group("Loads").child(1));
    shown.Edit([](AnalysisDefinition& analysis) { analysis.loads[1].name = "c"; });
    QCOMPARE(shown.Group("Loads").child(1)->text(AnalysisTree::NameColumn), QString("c"));
    // The selection stays where it was.
    QVERIFY(shown.Dock().Selected() == (AnalysisEntry{AnalysisEntry::Load, 1}));
    shown.model.Clear();
    QCOMPARE(shown.Records("Loads"), QStringList());
}

void tst_AnalysisTree::OnlyEntriesOfListsCanBeDeleted()
{
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) {
        analysis.constraints = {Constraint("foot")};
        analysis.loads = {Load("")};
        analysis.properties = {Property("web")};
    });
    const QAction& action = *shown.Dock().DeleteAction();
    QVERIFY(!action.isEnabled());
    for (const char* const group : {"Loads", "Boundary conditions", "Element properties"}) {
        shown.ClickOn(shown.Group(group).child(0));
        QVERIFY2(action.isEnabled(), group);
        shown.ClickOn(&shown.Group(group));
        QVERIFY2(!action.isEnabled(), group);
    }
    shown.ClickOn(&shown.Group("Mesh size"));
    QVERIFY(!action.isEnabled());
    QVERIFY(shown.Dock().EditAction()->isEnabled());
}

void tst_AnalysisTree::DeletingWithTheKeyFreesTheName()
{
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) { analysis.constraints = {Constraint("foot")}; });
    QVERIFY(IsTaken("foot"));
    shown.ClickOn(shown.Group("Boundary conditions").child(0));
    QTest::keyClick(&shown.Tree(), Qt::Key_Delete);
    QCOMPARE(shown.Records("Boundary conditions"), QStringList());
    QVERIFY(!IsTaken("foot"));
    QVERIFY(!shown.Dock().DeleteAction()->isEnabled());
}

void tst_AnalysisTree::DeletingTakesTheSelectedEntryOnly_data()
{
    QTest::addColumn<QString>("group");
    for (const char* const group :
         {"Boundary conditions", "Loads", "Element properties", "Local meshes"})
        QTest::newRow(group) << QString(group);
}

void tst_AnalysisTree::DeletingTakesTheSelectedEntryOnly()
{
    QFETCH(QString, group);
    EnterTemporaryDirectory();
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) {
        for (const char* const name : {"a", "b", "c"}) {
            analysis.constraints.push_back(Constraint(name));
            analysis.loads.push_back(Load(QString("load ") + name));
            analysis.properties.push_back(Property(name));
            analysis.localMeshes.push_back({name, "", {}, {}});
        }
    });
    QStringList expected = shown.Records(group);
    const int entries = shown.Tree().topLevelItemCount();
    shown.ClickOn(shown.Group(group).child(1));
    shown.Dock().DeleteAction()->trigger();
    expected.removeAt(1);
    if (group == "Local meshes")
        expected.last().replace("3:", "2:");
    QCOMPARE(shown.Records(group), expected);
    QCOMPARE(shown.Tree().topLevelItemCount(), entries);
}

void tst_AnalysisTree::ADoubleClickAsksToEdit()
{
    Shown shown;
    shown.Edit([](AnalysisDefinition& analysis) { analysis.loads = {Load("a"), Load("b")}; });
    std::optional<AnalysisEntry> wanted;
    connect(&shown.Dock(), &AnalysisTree::EditWanted, this,
            [&](const AnalysisEntry& entry) { wanted = entry; });
    QTreeWidgetItem* const item = shown.Group("Loads").child(1);
    shown.ClickOn(item);
    QTest::mouseDClick(shown.Tree().viewport(), Qt::LeftButton, {},
                       shown.Tree().visualItemRect(item).center());
    QVERIFY(wanted == (AnalysisEntry{AnalysisEntry::Load, 1}));
    QCOMPARE(shown.Tree().editTriggers(), QAbstractItemView::NoEditTriggers);
}

TARN_TEST_MAIN(tst_AnalysisTree)
#include "tst_AnalysisTree.moc"
