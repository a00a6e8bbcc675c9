#include "LineDrawing.h"

#include "KernelSignals.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepLib.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>

#include <GCPnts_TangentialDeflection.hxx>
#include <HLRAlgo_Projector.hxx>
#include <HLRBRep_Algo.hxx>
#include <HLRBRep_HLRToShape.hxx>

namespace {

// Hiding the lines of so many takes about 0.5 s.
constexpr int MaximumFaces = 3000;
// A sphere or a free-form face takes as long as so many flat ones.
constexpr int CurvedFace = 40;

bool HasTooManyFaces(const TopoDS_Shape& shape)
{
    int count = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More() && count <= MaximumFaces;
         face.Next()) {
        const GeomAbs_SurfaceType type =
            BRepAdaptor_Surface(TopoDS::Face(face.Current())).GetType();
        const bool isSimple =
            type == GeomAbs_Plane || type == GeomAbs_Cylinder || type == GeomAbs_Cone;
        count += isSimple ? 1 : CurvedFace;
    }
    return count > MaximumFaces;
}

// From the eye's side, with the vertical axis upwards.
gp_Ax2 ViewAxes()
{
    const gp_Dir towardsEye(0.5, -1.0, 0.8);
    return {gp::Origin(), towardsEye, gp::DZ().Crossed(towardsEye)};
}

// The edges of a drawing that lies in the plane z = 0.
void AppendLines(const TopoDS_Shape& drawing, QVector<LineDrawing::Line>& lines)
{
    if (drawing.IsNull())
        return;
    BRepLib::BuildCurves3d(drawing);
    for (TopExp_Explorer edge(drawing, TopAbs_EDGE); edge.More(); edge.Next()) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edge.Current()));
        const GCPnts_TangentialDeflection points(curve, 0.1, 1.0);
        LineDrawing::Line line;
        for (int i = 1; i <= points.NbPoints(); ++i)
            line << QPointF(points.Value(i).X(), -points.Value(i).Y());
        lines << line;
    }
}

void HideLines(const TopoDS_Shape& shape, LineDrawing& lines)
{
    const Handle(HLRBRep_Algo) hiddenLines = new HLRBRep_Algo;
    hiddenLines->Add(shape);
    hiddenLines->Projector(HLRAlgo_Projector(ViewAxes()));
    hiddenLines->Update();
    hiddenLines->Hide();
    HLRBRep_HLRToShape drawing(hiddenLines);
    AppendLines(drawing.VCompound(), lines.edges);
    AppendLines(drawing.OutLineVCompound(), lines.edges);
    AppendLines(drawing.Rg1LineVCompound(), lines.smooth);
}

} // namespace

LineDrawing DrawLines(const TopoDS_Shape& shape)
{
    LineDrawing lines;
    lines.isTooLarge = !shape.IsNull() && HasTooManyFaces(shape);
    if (shape.IsNull() || lines.isTooLarge)
        return lines;
    try {
        GuardKernelCall([&] { HideLines(shape, lines); });
    } catch (const Standard_Failure& failure) {
        lines.failure = QString::fromLocal8Bit(failure.GetMessageString()).simplified();
    }
    return lines;
}
