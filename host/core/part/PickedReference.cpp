#include "PickedReference.h"

#include "BuildError.h"
#include "BuiltPart.h"
#include "PartFaces.h"

#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <cmath>

namespace {

const TopoDS_Shape& ShapeOf(const BuiltPart& part, int step)
{
    return step == PartFaces::WholePart ? part.shape : part.shapes.at(std::size_t(step));
}

PointTexts TextsOf(const std::array<double, 3>& point)
{
    return {CoordinateText(point[0]), CoordinateText(point[1]), CoordinateText(point[2])};
}

// A name that means @p face alone; empty if there is none.
QString UniqueName(const PartFaces& faces, int step, int face)
{
    const QStringList names = faces.NamesOf(step, face);
    for (const QString& name : names) {
        if (faces.Named(step, name).size() == 1)
            return name;
    }
    // Of the copies and images of a face, one may be the only one that went through a feature.
    const QStringList features = faces.FeaturesOf(step, face);
    for (const QString& feature : features) {
        for (const QString& name : names) {
            QString through = feature + QLatin1Char('/') + name;
            if (faces.Named(step, through).size() == 1)
                return through;
        }
    }
    return {};
}

FaceTarget TargetOf(const QString& name)
{
    FaceTarget target;
    target.name = name;
    return target;
}

} // namespace

QString CoordinateText(double coordinate)
{
    constexpr double Step = 1e-6;
    const double rounded = std::round(coordinate / Step) * Step;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'g', 12);
}

FaceReference ReferenceToFace(const BuiltPart& part, int step, int face,
                              const std::array<double, 3>& point)
{
    FaceReference reference;
    reference.name = UniqueName(PartFaces(part), step, face);
    if (reference.name.isEmpty())
        reference.at = TextsOf(point);
    return reference;
}

EdgeReference ReferenceToEdge(const BuiltPart& part, int step, int edge,
                              const std::array<double, 3>& point)
{
    const PartFaces names(part);
    const TopoDS_Shape& shape = ShapeOf(part, step);
    TopTools_IndexedDataMapOfShapeListOfShape faces;
    TopExp::MapShapesAndUniqueAncestors(shape, TopAbs_EDGE, TopAbs_FACE, faces);
    TopTools_IndexedMapOfShape numbers;
    TopExp::MapShapes(shape, TopAbs_FACE, numbers);
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);

    EdgeReference reference;
    EdgeTarget target;
    for (const TopoDS_Shape& face : faces.FindFromKey(edges.FindKey(edge))) {
        const QString name = UniqueName(names, step, numbers.FindIndex(face));
        if (!name.isEmpty()) {
            reference.between.push_back({name, {}});
            target.between.push_back(TargetOf(name));
        }
    }
    if (target.between.size() == 2 && names.Edges(step, target).size() == 1)
        return reference;
    reference.between.clear();
    reference.at = TextsOf(point);
    return reference;
}
