#include "BoundingBox.h"

#include "Bodies.h"

#include <BRepBndLib.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_DataMapOfShapeInteger.hxx>
#include <TopoDS_Shape.hxx>

#include <algorithm>
#include <vector>

namespace {

// In mm. Two faces that end at the same place differ by less.
constexpr double Rounding = 1e-9;

constexpr bool UseTriangulation = false;
constexpr bool UseTolerance = false;

struct Piece
{
    TopoDS_Shape shape;
    Bnd_Box around; // The shape lies in it, but it may be too large.
    bool isAdded = false;
};

// How far @p box extends along an axis (1 to 3), upwards or downwards.
double Reach(const Bnd_Box& box, int axis, bool isUpwards)
{
    return isUpwards ? box.CornerMax().Coord(axis) : -box.CornerMin().Coord(axis);
}

// For each side, from the piece that may reach furthest to the first that cannot reach further than
// the box does already.
template<class TightBoxOf>
Bnd_Box Union(std::vector<Piece>& pieces, const TightBoxOf& tightBoxOf)
{
    Bnd_Box box;
    for (const bool isUpwards : {true, false}) {
        for (int axis = 1; axis <= 3; ++axis) {
            const auto reach = [=](const Piece& piece) {
                return Reach(piece.around, axis, isUpwards);
            };
            std::stable_sort(pieces.begin(), pieces.end(),
                             [&](const Piece& a, const Piece& b) { return reach(a) > reach(b); });
            for (Piece& piece : pieces) {
                if (!box.IsVoid() && reach(piece) <= Reach(box, axis, isUpwards) + Rounding)
                    break;
                if (!piece.isAdded)
                    box.Add(tightBoxOf(piece));
                piece.isAdded = true;
            }
        }
    }
    return box;
}

Bnd_Box OptimalBox(const TopoDS_Shape& shape)
{
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, UseTriangulation, UseTolerance);
    return box;
}

// Without copies of it elsewhere.
Bnd_Box BoxOfBody(const TopoDS_Shape& body)
{
    std::vector<Piece> pieces;
    const auto collect = [&](TopAbs_ShapeEnum type, TopAbs_ShapeEnum except) {
        for (TopExp_Explorer parts(body, type, except); parts.More(); parts.Next()) {
            Piece piece;
            piece.shape = parts.Current();
            BRepBndLib::Add(piece.shape, piece.around, UseTriangulation);
            piece.around.SetGap(0.0);
            if (!piece.around.IsVoid())
                pieces.push_back(piece);
        }
    };
    collect(TopAbs_FACE, TopAbs_SHAPE);
    collect(TopAbs_EDGE, TopAbs_FACE);
    collect(TopAbs_VERTEX, TopAbs_EDGE);
    return Union(pieces, [](const Piece& piece) { return OptimalBox(piece.shape); });
}

bool IsTranslation(const TopLoc_Location& location)
{
    const gp_TrsfForm form = location.Transformation().Form();
    return form == gp_Identity || form == gp_Translation;
}

} // namespace

Bnd_Box TightBox(const TopoDS_Shape& shape)
{
    if (shape.IsNull())
        return {};
    // A copy of a body elsewhere is not searched again.
    TopTools_DataMapOfShapeInteger places;
    std::vector<Bnd_Box> boxes;
    std::vector<Piece> pieces;
    for (const TopoDS_Shape& body : BodiesOf(shape)) {
        const TopoDS_Shape atOrigin = body.Located(TopLoc_Location());
        if (!places.IsBound(atOrigin)) {
            places.Bind(atOrigin, int(boxes.size()));
            boxes.push_back(BoxOfBody(atOrigin));
        }
        const Bnd_Box& box = boxes[std::size_t(places(atOrigin))];
        if (!box.IsVoid())
            pieces.push_back({body, box.Transformed(body.Location().Transformation())});
    }
    return Union(pieces, [](const Piece& piece) {
        return IsTranslation(piece.shape.Location()) ? piece.around : BoxOfBody(piece.shape);
    });
}
