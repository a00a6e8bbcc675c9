#include "ViewSymbol.h"

#include <Graphic3d_ArrayOfSegments.hxx>
#include <Graphic3d_Group.hxx>
#include <Prs3d_LineAspect.hxx>
#include <Prs3d_Presentation.hxx>
#include <PrsMgr_PresentationManager.hxx>
#include <QtGlobal>
#include <gp_Ax2.hxx>
#include <gp_Vec.hxx>

#include <SelectMgr_Selection.hxx>

namespace {

constexpr double ArrowLength = 45.0; // Of an arrow, in pixels.
constexpr double HeadLength = 12.0;  // Of its head, and the height of a triangle.
constexpr double LineWidth = 2.0;

/// The symbols of one point: lines about the origin, drawn at the point at a fixed size.
class Symbol : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(Symbol, AIS_InteractiveObject)

public:
    explicit Symbol(const ViewSymbol& symbol)
        : m_symbol(symbol)
    {
        SetTransformPersistence(new Graphic3d_TransformPers(Graphic3d_TMF_ZoomPers, symbol.point));
        SetZLayer(Graphic3d_ZLayerId_Topmost);
    }

    bool AcceptDisplayMode(int mode) const override { return mode == 0; }

private:
    void Compute(const Handle(PrsMgr_PresentationManager) & manager,
                 const Handle(Prs3d_Presentation) & presentation, int mode) override
    {
        Q_UNUSED(manager)
        Q_UNUSED(mode)
        const bool isForce = m_symbol.kind == ViewSymbol::Force;
        const Quantity_Color colour = isForce ? Quantity_NOC_RED3 : Quantity_NOC_GREEN4;
        const Handle(Graphic3d_Group) group = presentation->NewGroup();
        group->SetGroupPrimitivesAspect(
            new Graphic3d_AspectLine3d(colour, Aspect_TOL_SOLID, LineWidth));
        const Handle(Graphic3d_ArrayOfSegments) lines = new Graphic3d_ArrayOfSegments(16);
        const auto draw = [&lines](const gp_Vec& from, const gp_Vec& to) {
            lines->AddVertex(gp_Pnt(from.XYZ()));
            lines->AddVertex(gp_Pnt(to.XYZ()));
        };
        // Two perpendicular pairs, so that some are seen from every side.
        const gp_Ax2 frame(gp_Pnt(), m_symbol.direction);
        const gp_Vec along(m_symbol.direction);
        const gp_Vec base = along * (isForce ? -HeadLength : HeadLength);
        if (isForce)
            draw(along * -ArrowLength, gp_Vec());
        for (const gp_Dir& side : {frame.XDirection(), frame.YDirection()}) {
            const gp_Vec half = gp_Vec(side) * (HeadLength / (isForce ? 3.0 : 1.5));
            draw(gp_Vec(), base + half);
            draw(gp_Vec(), base - half);
            if (!isForce)
                draw(base + half, base - half);
        }
        group->AddPrimitiveArray(lines);
    }

    void ComputeSelection(const Handle(SelectMgr_Selection) & selection,
                          int mode) override{Q_UNUSED(selection) Q_UNUSED(mode)}

    ViewSymbol m_symbol;
};

/// All symbols, shown and hidden together.
class Symbols : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(Symbols, AIS_InteractiveObject)

public:
    explicit Symbols(const std::vector<ViewSymbol>& symbols)
    {
        for (const ViewSymbol& symbol : symbols)
            AddChild(new Symbol(symbol));
    }

    bool AcceptDisplayMode(int mode) const override { return mode == 0; }

private:
    void Compute(const Handle(PrsMgr_PresentationManager) & manager,
                 const Handle(Prs3d_Presentation) & presentation, int mode) override
    {
        Q_UNUSED(manager)
        Q_UNUSED(presentation)
        Q_UNUSED(mode)
    }

    void ComputeSelection(const Handle(SelectMgr_Selection) & selection, int mode) override
    {
        Q_UNUSED(selection)
        Q_UNUSED(mode)
    }
};

} // namespace

Handle(AIS_InteractiveObject) NewSymbols(const std::vector<ViewSymbol>& symbols)
{
    if (symbols.empty())
        return {};
    return new Symbols(symbols);
}
