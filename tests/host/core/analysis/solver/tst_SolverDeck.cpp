#include "DeckModels.h"
#include "Meshio.h"
#include "Solved.h"
#include "TestCase.h"

class tst_SolverDeck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void AnotherReaderFindsTheSameMesh_data();
    void AnotherReaderFindsTheSameMesh();
    void TheDeckOfASmallModel();
    void TheForcesInTheDeckAddUp();
    void NumbersFitTheSolverSFields();
    void TheSameModelGivesTheSameBytesInEveryLocale_data();
    void TheSameModelGivesTheSameBytesInEveryLocale();
    void NamesOfTheUserAreNotInTheDeck();
    void TheSolverAcceptsBothKinds_data();
    void TheSolverAcceptsBothKinds();
};

namespace {

void KindRows()
{
    QTest::addColumn<bool>("isSolid");
    NewRow("solid", true);
    NewRow("shell", false);
}

FiniteElementModel Model(bool isSolid, const QString& name = "clamp")
{
    return isSolid ? SolidModel(name) : ShellModel(name);
}

QList<QByteArray> LinesAfter(const QByteArray& deck, const QByteArray& keyword)
{
    QList<QByteArray> lines;
    bool isInside = false;
    for (const QByteArray& line : deck.split('\n')) {
        if (line.startsWith('*'))
            isInside = line == keyword;
        else if (isInside)
            lines << line;
    }
    return lines;
}

} // namespace

void tst_SolverDeck::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolverDeck::AnotherReaderFindsTheSameMesh_data()
{
    KindRows();
}

void tst_SolverDeck::AnotherReaderFindsTheSameMesh()
{
    QFETCH(bool, isSolid);
    const FiniteElementModel model = Model(isSolid);
    Put("job.inp", SolverDeck(model, {false, 3}));
    QCOMPARE(ReadByMeshio("job.inp", "abaqus"), AsMeshioWrites(model.mesh));
}

void tst_SolverDeck::TheDeckOfASmallModel()
{
    FiniteElementModel model;
    model.mesh.nodes = {{0, 0, 0}, {4, 0, 0}, {0, 3, 0}, {2, 0, 0}, {2, 1.5, 0}, {0, 1.5, 0}};
    Mesh::Facet facet;
    facet.nodes = {0, 1, 2, 3, 4, 5};
    model.mesh.facets = {facet};
    model.materials = {{210000.0, 0.3, 7.85e-9}};
    model.sections = {{0, 2.5, {0}}};
    model.held = {0b111111, 0, 0, 0b000100, 0, 0};
    model.forces.resize(6);
    model.forces[1] = {0.0, -0.5, 1e6};
    const QByteArray start = "** Units: mm, N, MPa, t, s\n*HEADING\nModel_Active\n*NODE\n1,0,0,0\n"
                             "2,4,0,0\n3,0,3,0\n4,2,0,0\n5,2,1.5,0\n6,0,1.5,0\n"
                             "*ELEMENT,TYPE=S6,ELSET=E1\n1,1,2,3,4,5,6\n"
                             "*MATERIAL,NAME=M1\n*ELASTIC\n210000,0.3\n*DENSITY\n7.85e-09\n"
                             "*SHELL SECTION,ELSET=E1,MATERIAL=M1\n2.5\n"
                             "*BOUNDARY\n1,1\n1,2\n1,3\n1,4\n1,5\n1,6\n4,3\n*STEP\n";
    QCOMPARE(SolverDeck(model, {false, 7}),
             start + "*FREQUENCY\n7\n*NODE FILE,OUTPUT=2D\nU\n*END STEP\n");
    QCOMPARE(SolverDeck(model, {true, 0}),
             start +
                 "*STATIC\n*CLOAD\n2,2,-0.5\n2,3,1e+06\n*NODE FILE\nU\n*EL FILE\nS\n*END STEP\n");
}

void tst_SolverDeck::TheForcesInTheDeckAddUp()
{
    const QByteArray deck = SolverDeck(SolidModel(), {true, 0});
    Vector3 sum{};
    for (const QByteArray& line : LinesAfter(deck, "*CLOAD")) {
        const QList<QByteArray> fields = line.split(',');
        sum[fields.at(1).toUInt() - 1] += fields.at(2).toDouble();
    }
    QVERIFY(Length(sum - Vector3{1.0 / 3.0, -2e3, 1e-3}) < 1e-9 * 2e3);
}

void tst_SolverDeck::NumbersFitTheSolverSFields()
{
    const QByteArray deck = SolverDeck(SolidModel(), {true, 0});
    for (const QByteArray& line : LinesAfter(deck, "*NODE") + LinesAfter(deck, "*CLOAD")) {
        for (const QByteArray& field : line.split(','))
            QVERIFY(!field.isEmpty() && field.size() <= 20);
    }
}

void tst_SolverDeck::TheSameModelGivesTheSameBytesInEveryLocale_data()
{
    KindRows();
}

void tst_SolverDeck::TheSameModelGivesTheSameBytesInEveryLocale()
{
    QFETCH(bool, isSolid);
    const QByteArray deck = SolverDeck(Model(isSolid), {true, 0});
    UseLocale("de_DE.UTF-8");
    QLocale::setDefault(QLocale(QLocale::Chinese));
    const QByteArray other = SolverDeck(Model(isSolid), {true, 0});
    QLocale::setDefault(QLocale::c());
    QVERIFY(other == deck);
}

void tst_SolverDeck::NamesOfTheUserAreNotInTheDeck()
{
    const QString name = "*NODE, " + QString(100, 'M') + "\n网格";
    for (const bool isSolid : {true, false})
        QVERIFY(SolverDeck(Model(isSolid, name), {true, 0}) ==
                SolverDeck(Model(isSolid), {true, 0}));
}

void tst_SolverDeck::TheSolverAcceptsBothKinds_data()
{
    KindRows();
}

void tst_SolverDeck::TheSolverAcceptsBothKinds()
{
    QFETCH(bool, isSolid);
    const FiniteElementModel model = Model(isSolid);
    const ModesTable modes = SolvedModes(model, 3);
    QCOMPARE(modes.modes.size(), std::size_t(3));
    QVERIFY(modes.modes[0].frequency > 1.0);
    QCOMPARE(ModeShapes(ReadResultFile(ContentOf("job.frd")), model.mesh).size(), std::size_t(3));
    QVERIFY(SolvedStatic(model).maximumStress > 0.0);
}

TARN_TEST_MAIN(tst_SolverDeck)
#include "tst_SolverDeck.moc"
