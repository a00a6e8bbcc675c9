#pragma once

#include "EmptyDesignStores.h"
#include "PartFaces.h"
#include "kinds/KindRows.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <GeomAbs_SurfaceType.hxx>
#include <QTest>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>

// Faces by their names, told by a point on them and the kind of their surface.

struct Wall
{
    const char* name;
    GeomAbs_SurfaceType surface;
    std::array<double, 3> point; ///< On one of them.
    int count = 1;               ///< 0 for a face that does not exist.
};

Q_DECLARE_METATYPE(std::vector<Wall>)
Q_DECLARE_METATYPE(FaceTarget)
Q_DECLARE_METATYPE(EdgeTarget)

constexpr GeomAbs_SurfaceType Flat = GeomAbs_Plane;
constexpr GeomAbs_SurfaceType Cylindrical = GeomAbs_Cylinder;
constexpr GeomAbs_SurfaceType Conical = GeomAbs_Cone;
constexpr GeomAbs_SurfaceType Spherical = GeomAbs_Sphere;
constexpr GeomAbs_SurfaceType Toroidal = GeomAbs_Torus;

/// Sine and cosine of 45 degrees.
const double Half = std::sqrt(0.5);

inline TopoDS_Face FaceOf(const TopoDS_Shape& shape, int number)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    return TopoDS::Face(faces(number));
}

inline GeomAbs_SurfaceType SurfaceOf(const TopoDS_Face& face)
{
    return BRepAdaptor_Surface(face).GetType();
}

inline double Distance(const TopoDS_Shape& face, const std::array<double, 3>& point)
{
    const gp_Pnt place(point[0], point[1], point[2]);
    return BRepExtrema_DistShapeShape(BRepBuilderAPI_MakeVertex(place).Shape(), face).Value();
}

inline void AddWallColumns()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<std::vector<Wall>>("walls");
}

inline void AddWalls(const QByteArray& name, const QByteArray& list, const std::vector<Wall>& walls)
{
    QTest::newRow(name) << list << walls;
}

/// Finds the walls of the row in the part that its list builds, where each face has a name.
inline void CheckWalls()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(std::vector<Wall>, walls);
    const BuiltPart part = FeatureBuilder::Build(List(list));
    const PartFaces faces(part);
    for (const Wall& wall : walls) {
        const std::vector<int> found = faces.Named(PartFaces::WholePart, wall.name);
        QVERIFY2(int(found.size()) == wall.count,
                 wall.name + QByteArray(": ") + QByteArray::number(int(found.size())));
        if (wall.count == 0)
            continue;
        double distance = 1e9;
        for (const int number : found) {
            const TopoDS_Face face = FaceOf(part.shape, number);
            QVERIFY2(SurfaceOf(face) == wall.surface, wall.name);
            distance = std::min(distance, Distance(face, wall.point));
        }
        QVERIFY2(distance < 1e-6, wall.name + QByteArray(": ") + QByteArray::number(distance));
    }
    for (int face = 1; face <= Count(part.shape, TopAbs_FACE); ++face)
        QVERIFY2(!faces.NamesOf(PartFaces::WholePart, face).isEmpty(),
                 "give every face a name with FaceTrace; without one is face " +
                     QByteArray::number(face));
}
