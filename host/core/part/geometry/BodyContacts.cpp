#include "BodyContacts.h"

#include "Limits.h"

#include <BRepBndLib.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <Bnd_Box.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

namespace {

constexpr std::size_t MaximumPairs = 20;
constexpr int MaximumComparisons = 2000;

struct Solid
{
    TopoDS_Shape shape;
    TopTools_IndexedMapOfShape faces;
    Bnd_Box box;
};

std::vector<Solid> SolidsOf(const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape map;
    TopExp::MapShapes(shape, TopAbs_SOLID, map);
    std::vector<Solid> solids(static_cast<std::size_t>(map.Extent()));
    for (std::size_t i = 0; i < solids.size(); ++i) {
        solids[i].shape = map(int(i) + 1);
        TopExp::MapShapes(solids[i].shape, TopAbs_FACE, solids[i].faces);
        BRepBndLib::Add(solids[i].shape, solids[i].box);
        solids[i].box.Enlarge(MinimumLength);
    }
    return solids;
}

bool ShareFace(const Solid& a, const Solid& b)
{
    for (int face = 1; face <= a.faces.Extent(); ++face) {
        if (b.faces.Contains(a.faces(face)))
            return true;
    }
    return false;
}

bool Touch(const Solid& a, const Solid& b)
{
    const BRepExtrema_DistShapeShape distance(a.shape, b.shape);
    return distance.IsDone() && distance.Value() < MinimumLength;
}

} // namespace

std::vector<std::pair<int, int>> FindContacts(const TopoDS_Shape& shape)
{
    const std::vector<Solid> solids = SolidsOf(shape);
    std::vector<std::pair<int, int>> contacts;
    int comparisons = 0;
    for (std::size_t a = 0; a < solids.size(); ++a) {
        for (std::size_t b = a + 1; b < solids.size(); ++b) {
            if (solids[a].box.IsOut(solids[b].box) || ShareFace(solids[a], solids[b]))
                continue;
            if (++comparisons > MaximumComparisons || contacts.size() == MaximumPairs)
                return contacts;
            if (Touch(solids[a], solids[b]))
                contacts.emplace_back(int(a) + 1, int(b) + 1);
        }
    }
    return contacts;
}
