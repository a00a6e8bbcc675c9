#include "AnalysisMarks.h"

#include "AnalysisRecords.h"
#include "AnalysisTargets.h"
#include "AnalysisTree.h"
#include "FieldValues.h"
#include "PartModel.h"
#include "PartView.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Vec.hxx>

#include <Poly_Triangulation.hxx>

#include <cmath>
#include <limits>
#include <optional>

namespace {

/// A point of a face or an edge, and the direction away from the part.
struct Spot
{
    gp_Pnt point;
    gp_Dir outward;
};

// The middle of the triangle next to the mean of all triangles: it is on the face, also if that has
// a hole there.
std::optional<Spot> SpotOf(const TopoDS_Face& face)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) triangles = BRep_Tool::Triangulation(face, location);
    if (triangles.IsNull() || triangles->NbTriangles() == 0)
        return {};
    const auto corner = [&](const Poly_Triangle& triangle, int index) {
        return triangles->Node(triangle.Value(index)).XYZ();
    };
    const auto middle = [&](int index) {
        const Poly_Triangle& triangle = triangles->Triangle(index);
        return (corner(triangle, 1) + corner(triangle, 2) + corner(triangle, 3)) / 3.0;
    };
    gp_XYZ mean;
    for (int index = 1; index <= triangles->NbTriangles(); ++index)
        mean += middle(index) / triangles->NbTriangles();
    int nearest = 1;
    double distance = std::numeric_limits<double>::infinity();
    for (int index = 1; index <= triangles->NbTriangles(); ++index) {
        const double other = (middle(index) - mean).SquareModulus();
        if (other < distance) {
            distance = other;
            nearest = index;
        }
    }
    const Poly_Triangle& triangle = triangles->Triangle(nearest);
    gp_XYZ normal = (corner(triangle, 2) - corner(triangle, 1))
                        .Crossed(corner(triangle, 3) - corner(triangle, 1));
    if (face.Orientation() == TopAbs_REVERSED)
        normal.Reverse();
    if (normal.SquareModulus() == 0.0)
        return {};
    Spot spot{gp_Pnt(middle(nearest)), gp_Dir(normal)};
    spot.point.Transform(location.Transformation());
    spot.outward.Transform(location.Transformation());
    return spot;
}

std::optional<Spot> SpotOf(const TopoDS_Edge& edge)
{
    if (BRep_Tool::Degenerated(edge))
        return {};
    const BRepAdaptor_Curve curve(edge);
    const double middle = (curve.FirstParameter() + curve.LastParameter()) / 2.0;
    return Spot{curve.Value(middle), gp_Dir(0.0, 0.0, -1.0)};
}

// Calls @p visit with a spot of each face and edge of @p targets.
template<class Visit>
void VisitSpots(const TopoDS_Shape& targets, const Visit& visit)
{
    if (targets.IsNull())
        return;
    for (TopoDS_Iterator shapes(targets); shapes.More(); shapes.Next()) {
        const TopoDS_Shape& shape = shapes.Value();
        const std::optional<Spot> spot = shape.ShapeType() == TopAbs_FACE
                                             ? SpotOf(TopoDS::Face(shape))
                                             : SpotOf(TopoDS::Edge(shape));
        if (spot)
            visit(*spot);
    }
}

std::vector<ViewSymbol> SymbolsOf(const AnalysisDefinition& analysis, const PartModel& part)
{
    std::vector<ViewSymbol> symbols;
    for (const ConstraintDefinition& constraint : analysis.constraints)
        VisitSpots(ShapePicker::ShapeOf(part, {constraint.faces, constraint.edges}),
                   [&](const Spot& spot) {
                       symbols.push_back({ViewSymbol::Support, spot.point, spot.outward});
                   });
    FieldValues values;
    for (const LoadDefinition& load : analysis.loads) {
        const gp_Vec force(values.Evaluate(load.force[0]), values.Evaluate(load.force[1]),
                           values.Evaluate(load.force[2]));
        const double size = force.Magnitude();
        if (!(size > 0.0) || !std::isfinite(size))
            continue;
        VisitSpots(ShapePicker::ShapeOf(part, {load.faces, load.edges}), [&](const Spot& spot) {
            symbols.push_back({ViewSymbol::Force, spot.point, gp_Dir(force)});
        });
    }
    return symbols;
}

} // namespace

AnalysisMarks::AnalysisMarks(const AnalysisRecords& model, AnalysisTree& tree,
                             const PartModel& part, PartView* view, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_tree(tree)
    , m_part(part)
    , m_view(view)
{
    if (view == nullptr)
        return;
    connect(&tree, &AnalysisTree::SelectionChanged, this, &AnalysisMarks::ShowSelection);
    connect(&tree, &QDockWidget::visibilityChanged, this, [this](bool isShown) {
        m_isShown = isShown;
        Refresh();
    });
    connect(&model, &AnalysisRecords::Changed, this, &AnalysisMarks::Refresh);
    connect(&part, &PartModel::PartBuilt, this, &AnalysisMarks::Refresh);
    connect(view, &PartView::Failed, this, [this] { m_view = nullptr; });
}

AnalysisMarks::~AnalysisMarks() = default;

void AnalysisMarks::Refresh()
{
    ShowSymbols();
    if (m_isShown)
        ShowSelection();
}

void AnalysisMarks::ShowSymbols()
{
    if (m_view != nullptr)
        m_view->ShowSymbols(m_isShown ? SymbolsOf(m_model.Definition(), m_part)
                                      : std::vector<ViewSymbol>());
}

void AnalysisMarks::ShowSelection()
{
    const std::optional<AnalysisEntry> selected = m_tree.Selected();
    if (m_view == nullptr || !m_isShown || m_view->IsPicking())
        return;
    m_view->HighlightShape(
        selected ? ShapePicker::ShapeOf(m_part,
                                        AnalysisTargets::TargetsOf(m_model.Definition(), *selected))
                 : TopoDS_Shape());
}
