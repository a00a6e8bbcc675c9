#include "BulkData.h"
#include "DeckModels.h"
#include "Meshio.h"
#include "NastranDeck.h"
#include "TestCase.h"

#include <map>

class tst_NastranDeck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void AnotherReaderFindsTheSameMesh_data();
    void AnotherReaderFindsTheSameMesh();
    void PropertiesAndMaterialsAreThoseOfTheModel_data();
    void PropertiesAndMaterialsAreThoseOfTheModel();
    void SupportsAreThoseOfTheModel_data();
    void SupportsAreThoseOfTheModel();
    void TheForcesAddUp();
    void TheModesAreThoseOfTheRange_data();
    void TheModesAreThoseOfTheRange();
    void TheControlNamesTheSolution();
    void TheSameModelGivesTheSameBytesInEveryLocale();
};

namespace {

void KindRows()
{
    QTest::addColumn<bool>("isSolid");
    NewRow("solid", true);
    NewRow("shell", false);
}

FiniteElementModel Model(bool isSolid)
{
    return isSolid ? SolidModel() : ShellModel();
}

std::vector<BulkEntry> Named(const QByteArray& deck, const QByteArray& name)
{
    std::vector<BulkEntry> entries;
    for (const BulkEntry& entry : ReadBulkData(deck)) {
        if (entry.name == name)
            entries.push_back(entry);
    }
    return entries;
}

const FrequencyRange Range;

} // namespace

void tst_NastranDeck::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_NastranDeck::AnotherReaderFindsTheSameMesh_data()
{
    KindRows();
}

void tst_NastranDeck::AnotherReaderFindsTheSameMesh()
{
    QFETCH(bool, isSolid);
    const FiniteElementModel model = Model(isSolid);
    Put("job.bdf", VibrationNastranDeck(model, Range));
    QCOMPARE(ReadByMeshio("job.bdf", "nastran"), AsMeshioWrites(model.mesh));
}

void tst_NastranDeck::PropertiesAndMaterialsAreThoseOfTheModel_data()
{
    KindRows();
}

void tst_NastranDeck::PropertiesAndMaterialsAreThoseOfTheModel()
{
    QFETCH(bool, isSolid);
    const QByteArray deck = StaticNastranDeck(Model(isSolid));
    for (const BulkEntry& material : Named(deck, "MAT1")) {
        QCOMPARE(material.Real(1), 210000.0);
        QCOMPARE(material.Real(3), 0.3);
        QCOMPARE(material.Real(4), 7.85e-9);
    }
    const std::vector<BulkEntry> shells = Named(deck, "PSHELL");
    QCOMPARE(shells.size(), std::size_t(isSolid ? 0 : 2));
    QCOMPARE(Named(deck, "PSOLID").size(), std::size_t(isSolid ? 1 : 0));
    if (isSolid)
        return;
    QVERIFY(std::abs(shells[0].Real(2) - 1.0 / 3.0) < 1e-13);
    QCOMPARE(shells[1].Real(2), 2.5);
    QCOMPARE(shells[1].Integer(1), 2); // Stretching, bending and shear are of one material.
    QCOMPARE(shells[1].Integer(3), 2);
    QCOMPARE(shells[1].Integer(5), 2);
    QCOMPARE(Named(deck, "MAT1").size(), std::size_t(2));
}

void tst_NastranDeck::SupportsAreThoseOfTheModel_data()
{
    KindRows();
}

void tst_NastranDeck::SupportsAreThoseOfTheModel()
{
    QFETCH(bool, isSolid);
    const FiniteElementModel model = Model(isSolid);
    std::map<int, QByteArray> held;
    for (const BulkEntry& entry : Named(StaticNastranDeck(model), "SPC1")) {
        QCOMPARE(entry.Integer(0), 1);
        for (int field = 2; field < entry.fields.size(); ++field)
            QVERIFY(held.insert({entry.Integer(field), entry.fields[1]}).second);
    }
    for (std::size_t node = 0; node < model.held.size(); ++node) {
        const QByteArray expected = model.held[node] == 0 ? "" : isSolid ? "123" : "1236";
        QCOMPARE(held[int(node) + 1], expected);
    }
}

void tst_NastranDeck::TheForcesAddUp()
{
    Vector3 sum{};
    for (const BulkEntry& force : Named(StaticNastranDeck(SolidModel()), "FORCE")) {
        QCOMPARE(force.Integer(0), 1);
        for (std::size_t axis = 0; axis < 3; ++axis)
            sum[axis] += force.Real(3) * force.Real(4 + int(axis));
    }
    QVERIFY(Length(sum - Vector3{1.0 / 3.0, -2e3, 1e-3}) < 1e-9 * 2e3);
}

void tst_NastranDeck::TheModesAreThoseOfTheRange_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<QByteArray>("minText");
    NewRow("above the rigid-body modes", 1.0, QByteArray("1."));
    NewRow("with the rigid-body modes", 0.0, QByteArray());
}

void tst_NastranDeck::TheModesAreThoseOfTheRange()
{
    QFETCH(double, min);
    FrequencyRange range;
    range.min = min;
    range.max = 2500.5;
    range.number = 7;
    const std::vector<BulkEntry> modes = Named(VibrationNastranDeck(SolidModel(), range), "EIGRL");
    QCOMPARE(modes.size(), std::size_t(1));
    QTEST(modes[0].fields[1], "minText");
    QCOMPARE(modes[0].Real(2), 2500.5);
    QCOMPARE(modes[0].Integer(3), 7);
}

void tst_NastranDeck::TheControlNamesTheSolution()
{
    const FiniteElementModel model = SolidModel();
    const QByteArray modes = VibrationNastranDeck(model, Range);
    QVERIFY(modes.contains("\nSOL 103\nCEND\n"));
    QVERIFY(modes.contains("\nMETHOD = 1\n") && modes.contains("\nSPC = 1\n"));
    const QByteArray load = StaticNastranDeck(model);
    QVERIFY(load.contains("\nSOL 101\nCEND\n"));
    QVERIFY(load.contains("\nLOAD = 1\n") && load.contains("\nSPC = 1\n"));
    QCOMPARE(Named(load, "PARAM").at(0).fields, QList<QByteArray>({"POST", "-1"}));
    FiniteElementModel free = model;
    free.held.assign(free.held.size(), 0);
    QVERIFY(!VibrationNastranDeck(free, Range).contains("SPC"));
}

void tst_NastranDeck::TheSameModelGivesTheSameBytesInEveryLocale()
{
    const QByteArray deck = StaticNastranDeck(ShellModel());
    UseLocale("de_DE.UTF-8");
    QLocale::setDefault(QLocale(QLocale::Chinese));
    const QByteArray other = StaticNastranDeck(ShellModel());
    QLocale::setDefault(QLocale::c());
    QVERIFY(other == deck);
}

TARN_TEST_MAIN(tst_NastranDeck)
#include "tst_NastranDeck.moc"
