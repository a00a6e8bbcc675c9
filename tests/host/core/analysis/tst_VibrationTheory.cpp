#include "DeckModels.h"
#include "ErrorPlot.h"
#include "MeshRepair.h"
#include "ModeSearch.h"
#include "Solved.h"
#include "TestCase.h"
#include "Verification.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <QFileInfo>

#include <functional>

/// Natural frequencies against formulas; docs/verification.md names their sources.
class tst_VibrationTheory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ACantileverPlate_data();
    void ACantileverPlate();
    void ASimplySupportedPlate();
    void AnAnnularPlateClampedAtTheBore_data();
    void AnAnnularPlateClampedAtTheBore();
    void ACantileverBeam();
    void AFreeBeam_data();
    void AFreeBeam();
    void ErrorsFallWithTheSize();
};

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr double ElasticModulus = 210000.0; // MPa
constexpr double Poisson = 0.3;
constexpr double Density = 7.85e-9; // t/mm3

/// The frequency in Hz of a plate: @p factor is omega a^2 sqrt(rho t / D).
double OfPlate(double factor, double a, double thickness)
{
    const double stiffness =
        ElasticModulus * std::pow(thickness, 3) / (12.0 * (1.0 - Poisson * Poisson));
    return factor / (2.0 * Pi * a * a) * std::sqrt(stiffness / (Density * thickness));
}

/// The frequency in Hz of a beam with a rectangular section that bends along @p height.
double OfBeam(double root, double length, double height)
{
    return root * root / (2.0 * Pi * length * length) *
           std::sqrt(ElasticModulus * height * height / (12.0 * Density));
}

std::vector<double> Frequencies(const FiniteElementModel& model, const FrequencyRange& range)
{
    ModeSearch search(model, range);
    ModesTable table;
    do
        table = SolvedModes(model, search.Asked());
    while (!search.Take(table));
    std::vector<double> frequencies;
    for (const std::size_t place : search.Found())
        frequencies.push_back(table.modes[place].frequency);
    return frequencies;
}

FrequencyRange Lowest(int number)
{
    FrequencyRange range;
    range.number = number;
    return range;
}

FiniteElementModel Meshed(const TopoDS_Shape& shape, double size, AnalysisPlan plan)
{
    MeshRequest request = OfSize(size);
    request.shellFaces = plan.ShellFaces();
    Mesh mesh = Meshed(shape, request);
    if (!RepairMesh(mesh).isUsable)
        throw std::runtime_error("The mesh cannot be repaired.");
    return BuildModel(std::move(mesh), plan).model;
}

FiniteElementModel CantileverPlate(bool isSolid, double thickness, double size)
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(100.0, 100.0, thickness).Shape();
    AnalysisPlan plan;
    if (isSolid) {
        plan.properties = {SteelSolid()};
        plan.constraints = {OnFaces("clamp", Displacements, {FaceAt(shape, 0, 50, thickness / 2)})};
    } else {
        plan.properties = {SteelShell("plate", thickness, {FaceAt(shape, 50, 50, 0)})};
        plan.constraints = {OnEdges("clamp", AllFreedoms, {EdgeAt(shape, 0, 50, 0)})};
    }
    return Meshed(shape, size, plan);
}

FiniteElementModel AnnularPlate(bool isSolid, double size)
{
    const TopoDS_Shape shape = BRepAlgoAPI_Cut(BRepPrimAPI_MakeCylinder(100.0, 2.0).Shape(),
                                               BRepPrimAPI_MakeCylinder(30.0, 2.0).Shape())
                                   .Shape();
    AnalysisPlan plan;
    if (isSolid) {
        plan.properties = {SteelSolid()};
        plan.constraints = {OnFaces("bore", Displacements, {FaceAt(shape, 0, 30, 1)})};
    } else {
        plan.properties = {SteelShell("plate", 2.0, {FaceAt(shape, 0, 60, 0)})};
        plan.constraints = {OnEdges("bore", AllFreedoms, {EdgeAt(shape, 0, 30, 0)})};
    }
    return Meshed(shape, size, plan);
}

void Compare(const QString& name, const std::vector<double>& theory,
             const std::vector<double>& computed, double allowed)
{
    QCOMPARE(computed.size(), theory.size());
    for (std::size_t i = 0; i < theory.size(); ++i)
        Verify(name, QString("f%1, Hz").arg(i + 1), theory[i], computed[i], allowed);
}

// Several frequencies of a plate with the same dimensions.
std::vector<double> OfPlate(const std::vector<double>& factors, double a, double thickness)
{
    std::vector<double> frequencies;
    for (const double factor : factors)
        frequencies.push_back(OfPlate(factor, a, thickness));
    return frequencies;
}

} // namespace

void tst_VibrationTheory::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_VibrationTheory::ACantileverPlate_data()
{
    QTest::addColumn<bool>("isSolid");
    QTest::addColumn<double>("thickness");
    QTest::addColumn<double>("allowed");
    NewRow("solids", true, 2.0, 0.02);
    NewRow("shells", false, 1.0, 0.006);
}

void tst_VibrationTheory::ACantileverPlate()
{
    QFETCH(bool, isSolid);
    QFETCH(double, thickness);
    QFETCH(double, allowed);
    Compare(isSolid ? "Cantilever plate, solids, size 10" : "Cantilever plate, shells, size 10",
            OfPlate({3.492, 8.525, 21.43, 27.33, 31.11, 54.44}, 100.0, thickness),
            Frequencies(CantileverPlate(isSolid, thickness, 10), Lowest(6)), allowed);
}

void tst_VibrationTheory::ASimplySupportedPlate()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(120.0, 80.0, 1.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelShell("plate", 1.0, {FaceAt(shape, 60, 40, 0)})};
    plan.constraints = {OnEdges("along x", {true, true, true, false, true, true},
                                {EdgeAt(shape, 0, 40, 0), EdgeAt(shape, 120, 40, 0)}),
                        OnEdges("along y", {true, true, true, true, false, true},
                                {EdgeAt(shape, 60, 0, 0), EdgeAt(shape, 60, 80, 0)})};
    // At x = 0 the edge runs along y and may turn about y, at y = 0 about x.
    std::swap(plan.constraints[0].held[3], plan.constraints[0].held[4]);
    std::swap(plan.constraints[1].held[3], plan.constraints[1].held[4]);
    std::vector<double> theory;
    for (const auto& [m, n] : std::vector<std::pair<int, int>>{{1, 1}, {2, 1}, {1, 2}, {3, 1}})
        theory.push_back(OfPlate(Pi * Pi * (m * m / 2.25 + n * n), 80.0, 1.0));
    Compare("Simply supported plate, shells, size 10", theory,
            Frequencies(Meshed(shape, 10, plan), Lowest(4)), 0.006);
}

void tst_VibrationTheory::AnAnnularPlateClampedAtTheBore_data()
{
    QTest::addColumn<bool>("isSolid");
    QTest::addColumn<double>("size");
    QTest::addColumn<double>("allowed");
    NewRow("solids", true, 8.0, 0.025);
    NewRow("shells", false, 5.0, 0.01);
}

void tst_VibrationTheory::AnAnnularPlateClampedAtTheBore()
{
    QFETCH(bool, isSolid);
    QFETCH(double, size);
    QFETCH(double, allowed);
    const QString name =
        isSolid ? "Annular plate, solids, size 8" : "Annular plate, shells, size 5";
    // Modes with nodal diameters come in pairs.
    Compare(name,
            OfPlate({6.552314, 6.552314, 6.660367, 7.956487, 7.956487, 13.275733, 13.275733,
                     22.073777, 22.073777},
                    100.0, 2.0),
            Frequencies(AnnularPlate(isSolid, size), Lowest(9)), allowed);
}

void tst_VibrationTheory::ACantileverBeam()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(200.0, 8.0, 5.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelSolid()};
    plan.constraints = {OnFaces("clamp", Displacements, {FaceAt(shape, 0, 4, 2.5)})};
    Compare("Cantilever beam, solids, size 4",
            {OfBeam(1.875104, 200, 5), OfBeam(1.875104, 200, 8), OfBeam(4.694091, 200, 5)},
            Frequencies(Meshed(shape, 4, plan), Lowest(3)), 0.015);
}

void tst_VibrationTheory::AFreeBeam_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<int>("rigid");
    NewRow("without rigid-body modes", 1.0, 0);
    NewRow("with rigid-body modes", 0.0, 6);
}

void tst_VibrationTheory::AFreeBeam()
{
    QFETCH(double, min);
    QFETCH(int, rigid);
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(200.0, 8.0, 5.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelSolid()};
    FrequencyRange range = Lowest(rigid + 3);
    range.min = min;
    std::vector<double> found = Frequencies(Meshed(shape, 4, plan), range);
    QCOMPARE(found.size(), std::size_t(rigid + 3));
    for (int mode = 0; mode < rigid; ++mode)
        QVERIFY(found[std::size_t(mode)] < 1.0);
    found.erase(found.begin(), found.begin() + rigid);
    Compare(rigid == 0 ? "Free beam, solids, size 4"
                       : "Free beam with its rigid-body modes, solids, size 4",
            {OfBeam(4.730041, 200, 5), OfBeam(4.730041, 200, 8), OfBeam(7.853205, 200, 5)}, found,
            0.015);
}

// Further sizes for the plot, which is written beside the table of Verify().
void tst_VibrationTheory::ErrorsFallWithTheSize()
{
    const QString table = qEnvironmentVariable("TARN_VERIFICATION_TABLE");
    std::vector<double> sizes = {20.0, 14.0, 10.0};
    if (!table.isEmpty())
        sizes.insert(sizes.end(), {7.0, 5.0, 3.5});
    struct Case
    {
        const char* name;
        std::size_t mode;
        double theory;
        std::function<FiniteElementModel(double)> model;
    };
    const Case cases[] = {
        {"cantilever plate, solids, f6", 6, OfPlate(54.44, 100.0, 2.0),
         [](double size) {
             return CantileverPlate(true, 2.0, size);
         }},
        {"cantilever plate, shells, f3", 3, OfPlate(21.43, 100.0, 1.0),
         [](double size) {
             return CantileverPlate(false, 1.0, size);
         }},
        {"annular plate, solids, f1", 1, OfPlate(6.552314, 100.0, 2.0),
         [](double size) {
             return AnnularPlate(true, size);
         }},
        {"annular plate, shells, f1", 1, OfPlate(6.552314, 100.0, 2.0), [](double size) {
             return AnnularPlate(false, size);
         }}};
    ErrorPlot plot(3.0, 25.0, -2, 16);
    for (const double size : sizes)
        plot.AddSize(size);
    for (const Case& verified : cases) {
        std::vector<double> errors;
        for (const double size : sizes) {
            const std::vector<double> found =
                Frequencies(verified.model(size), Lowest(int(verified.mode)));
            errors.push_back(100.0 * (found.at(verified.mode - 1) / verified.theory - 1.0));
        }
        plot.AddCurve(verified.name, sizes, errors);
        QVERIFY2(errors.back() < errors.front(), verified.name);
    }
    if (!table.isEmpty())
        Put(QFileInfo(table).dir().filePath("convergence.svg"), plot.Svg());
}

TARN_TEST_MAIN(tst_VibrationTheory)
#include "tst_VibrationTheory.moc"
