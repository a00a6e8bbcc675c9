#include "ElementShapes.h"
#include "TestCase.h"

class tst_ElementShapes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ShapeFunctionsAre1AtTheirNodeAnd0AtOthers_data();
    void ShapeFunctionsAre1AtTheirNodeAnd0AtOthers();
    void SlopesAreTheDerivatives_data();
    void SlopesAreTheDerivatives();
    void SlopesOfATetrahedronGiveTheGradientOfAQuadraticField();
    void PointsIntegrateDegreeFive_data();
    void PointsIntegrateDegreeFive();
    void TheNormalHasTheLengthOfTheArea();
};

namespace {

constexpr double Third = 1.0 / 3.0;

using Places = std::vector<std::pair<double, double>>;

Places NodePlaces(int corners)
{
    if (corners == 3)
        return {{0, 0}, {1, 0}, {0, 1}, {0.5, 0}, {0.5, 0.5}, {0, 0.5}};
    return {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}, {0, -1}, {1, 0}, {0, 1}, {-1, 0}};
}

void CornerRows()
{
    QTest::addColumn<int>("corners");
    NewRow("triangle", 3);
    NewRow("quadrilateral", 4);
}

bool IsNear(double a, double b)
{
    return std::abs(a - b) < 1e-12;
}

} // namespace

void tst_ElementShapes::ShapeFunctionsAre1AtTheirNodeAnd0AtOthers_data()
{
    CornerRows();
}

void tst_ElementShapes::ShapeFunctionsAre1AtTheirNodeAnd0AtOthers()
{
    QFETCH(int, corners);
    const Places places = NodePlaces(corners);
    for (std::size_t node = 0; node < places.size(); ++node) {
        const FacetShape shape = ShapeOfFacet(corners, places[node].first, places[node].second);
        for (std::size_t i = 0; i < places.size(); ++i)
            QVERIFY(IsNear(shape.values[i], i == node ? 1.0 : 0.0));
    }
}

void tst_ElementShapes::SlopesAreTheDerivatives_data()
{
    CornerRows();
}

void tst_ElementShapes::SlopesAreTheDerivatives()
{
    QFETCH(int, corners);
    constexpr double Step = 1e-5;
    const double r = 0.21;
    const double s = 0.34;
    const FacetShape shape = ShapeOfFacet(corners, r, s);
    for (std::size_t i = 0; i < 2 * std::size_t(corners); ++i) {
        const auto slope = [&](double dr, double ds) {
            return (ShapeOfFacet(corners, r + dr, s + ds).values[i] -
                    ShapeOfFacet(corners, r - dr, s - ds).values[i]) /
                   (2.0 * Step);
        };
        QVERIFY(std::abs(shape.slopes[i][0] - slope(Step, 0.0)) < 1e-8);
        QVERIFY(std::abs(shape.slopes[i][1] - slope(0.0, Step)) < 1e-8);
    }
}

void tst_ElementShapes::SlopesOfATetrahedronGiveTheGradientOfAQuadraticField()
{
    const std::array<Vector3, 4> corners = {{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    std::vector<Vector3> nodes(corners.begin(), corners.end());
    for (const auto& [a, b] : TetrahedronEdges)
        nodes.push_back(0.5 * (corners[a] + corners[b]));
    const TetrahedronSlopes slopes = SlopesOfTetrahedron({0.1, 0.2, 0.3});
    Vector3 gradient{};
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const Vector3& n = nodes[i];
        const double field = n[0] * n[0] + 2.0 * n[0] * n[1] + 3.0 * n[2];
        gradient = gradient + field * slopes[i];
    }
    QVERIFY(Length(gradient - Vector3{0.6, 0.2, 3.0}) < 1e-12);
}

void tst_ElementShapes::PointsIntegrateDegreeFive_data()
{
    QTest::addColumn<int>("corners");
    QTest::addColumn<double>("expected");
    // Of x y^4 over the triangle, and of x^4 over the square of side 2.
    NewRow("triangle", 3, 1.0 / 210.0);
    NewRow("quadrilateral", 4, 0.8);
}

void tst_ElementShapes::PointsIntegrateDegreeFive()
{
    QFETCH(int, corners);
    const Places places = NodePlaces(corners);
    double integral = 0.0;
    for (const FacetPoint& point : FacetPoints(corners)) {
        double x = 0.0;
        double y = 0.0;
        for (std::size_t i = 0; i < places.size(); ++i) {
            x += point.shape.values[i] * places[i].first;
            y += point.shape.values[i] * places[i].second;
        }
        integral += point.weight * (corners == 3 ? x * std::pow(y, 4) : std::pow(x, 4));
    }
    QFETCH(double, expected);
    QVERIFY2(IsNear(integral, expected), qPrintable(QString::number(integral)));
}

void tst_ElementShapes::TheNormalHasTheLengthOfTheArea()
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 5}, {4, 0, 5}, {0, 3, 5}, {2, 0, 5}, {2, 1.5, 5}, {0, 1.5, 5}};
    Mesh::Facet facet;
    facet.nodes = {0, 1, 2, 3, 4, 5};
    const Vector3 normal = FacetNormal(mesh, facet, ShapeOfFacet(3, Third, Third));
    QVERIFY(Length(normal - Vector3{0, 0, 12}) < 1e-12);
}

TARN_TEST_MAIN(tst_ElementShapes)
#include "tst_ElementShapes.moc"
