// The kinds that move, rotate or mirror a body.

#include "Angles.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <GeomAbs_SurfaceType.hxx>
#include <Precision.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Pln.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

#include <optional>

using namespace FieldRules;

namespace {

FeatureKind Transform(const char* word, const char* title)
{
    FeatureKind kind(word, title, FeatureGroup::Transform);
    kind.minInputs = 1;
    kind.maxInputs = 1;
    return kind;
}

TracedShape Rotated(const BuildInput& input, const gp_Ax1& axis, double radians)
{
    gp_Trsf rotation;
    rotation.SetRotation(axis, radians);
    return input.Placed(rotation);
}

// A location cannot turn a body inside out, so the body itself is copied.
TracedShape Mirrored(const BuildInput& input, const gp_Trsf& mirror)
{
    constexpr bool Copy = true;
    BRepBuilderAPI_Transform transform(input.FirstBody(), mirror, Copy);
    FaceTrace trace;
    trace.AddInput(0, input.FirstBody());
    trace.Follow(transform);
    return trace.Of(transform.Shape());
}

FeatureKind Move()
{
    FeatureKind kind = Transform("move", QT_TRANSLATE_NOOP("FeatureKinds", "Move"));
    kind.fields = {{"dx", QT_TRANSLATE_NOOP("FeatureKinds", "Distance x"), "0", Coordinate},
                   {"dy", QT_TRANSLATE_NOOP("FeatureKinds", "Distance y"), "0", Coordinate},
                   {"dz", QT_TRANSLATE_NOOP("FeatureKinds", "Distance z"), "0", Coordinate}};
    kind.build = [](const BuildInput& input) {
        gp_Trsf translation;
        translation.SetTranslation(gp_Vec(input.Value("dx"), input.Value("dy"), input.Value("dz")));
        return input.Placed(translation);
    };
    return kind;
}

FeatureKind Rotate()
{
    FeatureKind kind = Transform("rotate", QT_TRANSLATE_NOOP("FeatureKinds", "Rotate"));
    kind.fields =
        Joined(AxisFields(), {{"angle", QT_TRANSLATE_NOOP("FeatureKinds", "Angle"), "90", Turn}});
    kind.build = [](const BuildInput& input) {
        return Rotated(input, input.Axis(), input.Radians("angle"));
    };
    return kind;
}

FeatureKind MirrorAtPoint()
{
    FeatureKind kind =
        Transform("mirrorPoint", QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at a point"));
    kind.fields = PointFields(QT_TRANSLATE_NOOP("FeatureKinds", "Point x"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point y"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point z"));
    kind.build = [](const BuildInput& input) {
        gp_Trsf mirror;
        mirror.SetMirror(input.Point());
        return Mirrored(input, mirror);
    };
    return kind;
}

FeatureKind MirrorAtAxis()
{
    FeatureKind kind =
        Transform("mirrorAxis", QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at an axis"));
    kind.fields = AxisFields();
    kind.build = [](const BuildInput& input) {
        return Rotated(input, input.Axis(), 180.0 * tarn::RadiansPerDegree);
    };
    return kind;
}

// Of all the faces: a name may mean several pieces of one.
gp_Ax2 PlaneOf(const std::vector<TopoDS_Face>& faces)
{
    std::optional<gp_Pln> plane;
    for (const TopoDS_Face& face : faces) {
        const BRepAdaptor_Surface surface(face);
        if (surface.GetType() != GeomAbs_Plane)
            throw BuildError(BuildError::tr("the face to mirror at is not flat."));
        if (!plane)
            plane = surface.Plane();
        const gp_Pln& other = surface.Plane();
        if (!plane->Axis().IsParallel(other.Axis(), Precision::Angular()) ||
            plane->Distance(other.Location()) > Precision::Confusion())
            throw BuildError(BuildError::tr(
                "the faces to mirror at do not lie in one plane; name one of them."));
    }
    return plane->Position().Ax2();
}

FeatureKind MirrorAtFace()
{
    FeatureKind kind =
        Transform("mirrorFace", QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at a face"));
    kind.isAtFace = true;
    kind.fields = PointFields(QT_TRANSLATE_NOOP("FeatureKinds", "Point on face x"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point on face y"),
                              QT_TRANSLATE_NOOP("FeatureKinds", "Point on face z"));
    kind.build = [](const BuildInput& input) {
        gp_Trsf mirror;
        mirror.SetMirror(PlaneOf(input.Faces()));
        return Mirrored(input, mirror);
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Transforms()
{
    return {Move(), Rotate(), MirrorAtPoint(), MirrorAtAxis(), MirrorAtFace()};
}
