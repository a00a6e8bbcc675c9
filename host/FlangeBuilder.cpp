#include "FlangeBuilder.h"

#include "GlobalParaMeterMgr.h"
#include "NumberTexts.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Tool.hxx>
#include <GeomAbs_CurveType.hxx>
#include <Precision.hxx>
#include <QCoreApplication>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <cmath>

namespace {

constexpr double Pi = 3.14159265358979323846;

// Within these the kernel's precision, 1e-7 mm, is far below every length and far above rounding.
constexpr double LeastLength = 0.01;
constexpr double GreatestLength = 100000.0;

// Walls thinner than this are taken for touching.
constexpr double LeastWall = 0.001;

// How far a cutting tool stands out, so that its ends lie in no face of the part.
constexpr double ToolExcess = 1.0;

class Text
{
    Q_DECLARE_TR_FUNCTIONS(FlangeBuilder)
};

[[noreturn]] void Refuse(const QString& reason)
{
    throw BuildError(reason);
}

double Stored(const char* name)
{
    const ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    const QString key = QLatin1String(name);
    if (store.count(key) == 0)
        Refuse(Text::tr("There is no parameter \"%1\".").arg(key));
    return GlobalParaMeterMgr::GetParameterRawValue(key).toDouble();
}

void CheckLength(const char* what, double value)
{
    const QString name = Text::tr(what);
    if (!std::isfinite(value))
        Refuse(Text::tr("The %1 has no finite value.").arg(name));
    if (value <= 0.0)
        Refuse(Text::tr("The %1 (%2) has to be above 0.").arg(name, ShortText(value)));
    if (value < LeastLength || value > GreatestLength)
        Refuse(Text::tr("The %1 (%2 mm) has to be from %3 to %4 mm.")
                   .arg(name, ShortText(value), ShortText(LeastLength), ShortText(GreatestLength)));
}

// Refuses when there is no wall left between an inner and an outer radius or place.
void CheckWall(double inner, double outer, const QString& reason)
{
    if (outer - inner < LeastWall)
        Refuse(reason);
}

gp_Ax2 AxisAt(double x, double y, double z)
{
    return gp_Ax2(gp_Pnt(x, y, z), gp_Dir(0.0, 0.0, 1.0));
}

TopoDS_Shape Cylinder(const gp_Ax2& axis, double diameter, double height)
{
    return BRepPrimAPI_MakeCylinder(axis, diameter / 2.0, height).Shape();
}

TopoDS_Shape PlateWithHub(const FlangeDimensions& flange)
{
    const TopoDS_Shape plate =
        Cylinder(AxisAt(0.0, 0.0, 0.0), flange.outerDiameter, flange.thickness);
    const TopoDS_Shape hub =
        Cylinder(AxisAt(0.0, 0.0, flange.thickness), flange.hubDiameter, flange.hubHeight);
    BRepAlgoAPI_Fuse fuse(plate, hub);
    if (!fuse.IsDone() || fuse.HasErrors())
        Refuse(Text::tr("The hub could not be joined to the plate."));
    return fuse.Shape();
}

// The circle on which the hub stands on the plate.
TopoDS_Edge FootOfHub(const TopoDS_Shape& shape, const FlangeDimensions& flange)
{
    for (TopExp_Explorer edges(shape, TopAbs_EDGE); edges.More(); edges.Next()) {
        const TopoDS_Edge& edge = TopoDS::Edge(edges.Current());
        const BRepAdaptor_Curve curve(edge);
        if (curve.GetType() != GeomAbs_Circle)
            continue;
        const gp_Circ circle = curve.Circle();
        if (std::abs(circle.Radius() - flange.hubDiameter / 2.0) < Precision::Confusion() &&
            std::abs(circle.Location().Z() - flange.thickness) < Precision::Confusion())
            return edge;
    }
    Refuse(Text::tr("The edge between hub and plate was not found for the fillet."));
}

TopoDS_Shape WithFillet(const TopoDS_Shape& shape, const FlangeDimensions& flange)
{
    BRepFilletAPI_MakeFillet fillet(shape);
    fillet.Add(flange.filletRadius, FootOfHub(shape, flange));
    fillet.Build();
    if (!fillet.IsDone())
        Refuse(Text::tr("The fillet between hub and plate could not be built."));
    return fillet.Shape();
}

TopoDS_Shape WithHoles(const TopoDS_Shape& shape, const FlangeDimensions& flange)
{
    const auto tool = [](double x, double y, double diameter, double height) {
        return Cylinder(AxisAt(x, y, -ToolExcess), diameter, height + 2.0 * ToolExcess);
    };
    TopTools_ListOfShape tools;
    tools.Append(tool(0.0, 0.0, flange.boreDiameter, flange.thickness + flange.hubHeight));
    const int count = int(flange.boltCount);
    for (int hole = 0; hole < count; ++hole) {
        const double angle = 2.0 * Pi * hole / count;
        const double radius = flange.boltCircle / 2.0;
        tools.Append(tool(radius * std::cos(angle), radius * std::sin(angle), flange.boltHole,
                          flange.thickness));
    }
    TopTools_ListOfShape arguments;
    arguments.Append(shape);

    BRepAlgoAPI_Cut cut;
    cut.SetArguments(arguments);
    cut.SetTools(tools);
    cut.Build();
    if (!cut.IsDone() || cut.HasErrors())
        Refuse(Text::tr("Bore and bolt holes could not be cut."));
    return cut.Shape();
}

// The one solid of what the boolean operations left, which is a compound.
TopoDS_Shape TheSolid(const TopoDS_Shape& shape)
{
    TopExp_Explorer solids(shape, TopAbs_SOLID);
    if (!solids.More())
        Refuse(Text::tr("The finished part is no solid."));
    const TopoDS_Shape solid = solids.Current();
    solids.Next();
    if (solids.More())
        Refuse(Text::tr("The finished part fell into several pieces."));
    for (TopExp_Explorer shells(solid, TopAbs_SHELL); shells.More(); shells.Next()) {
        if (!BRep_Tool::IsClosed(shells.Current()))
            Refuse(Text::tr("The finished part is not closed."));
    }
    if (!BRepCheck_Analyzer(solid).IsValid())
        Refuse(Text::tr("The finished part is no valid solid."));
    return solid;
}

} // namespace

FlangeDimensions FlangeBuilder::ReadDimensions()
{
    FlangeDimensions flange;
    flange.outerDiameter = Stored("outer_diameter");
    flange.boreDiameter = Stored("bore_diameter");
    flange.thickness = Stored("thickness");
    flange.boltCircle = Stored("bolt_circle");
    flange.boltCount = Stored("bolt_count");
    flange.boltHole = Stored("bolt_hole");
    flange.hubDiameter = Stored("hub_diameter");
    flange.hubHeight = Stored("hub_height");
    if (GlobalParaMeterMgr::m_nameMapParameters.count(QStringLiteral("fillet_radius")) != 0)
        flange.filletRadius = Stored("fillet_radius");
    return flange;
}

void FlangeBuilder::Check(const FlangeDimensions& flange)
{
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "outer diameter"), flange.outerDiameter);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "bore"), flange.boreDiameter);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "thickness"), flange.thickness);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "bolt circle"), flange.boltCircle);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "bolt hole"), flange.boltHole);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "hub diameter"), flange.hubDiameter);
    CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "hub height"), flange.hubHeight);
    if (flange.filletRadius != 0.0)
        CheckLength(QT_TRANSLATE_NOOP("FlangeBuilder", "fillet radius"), flange.filletRadius);
    if (!(flange.boltCount >= 1.0 && flange.boltCount <= MaximumBoltCount &&
          flange.boltCount == std::floor(flange.boltCount)))
        Refuse(Text::tr("The number of bolt holes (%1) has to be a whole number from 1 to %2.")
                   .arg(ShortText(flange.boltCount))
                   .arg(MaximumBoltCount));

    const double outer = flange.outerDiameter / 2.0;
    const double hub = flange.hubDiameter / 2.0;
    const double circle = flange.boltCircle / 2.0;
    const double hole = flange.boltHole / 2.0;
    CheckWall(flange.boreDiameter / 2.0, outer,
              Text::tr("The bore (%1) is not smaller than the flange (%2).")
                  .arg(ShortText(flange.boreDiameter), ShortText(flange.outerDiameter)));
    CheckWall(flange.boreDiameter / 2.0, hub,
              Text::tr("The bore (%1) is not smaller than the hub (%2).")
                  .arg(ShortText(flange.boreDiameter), ShortText(flange.hubDiameter)));
    CheckWall(hub, outer,
              Text::tr("The hub (%1) is not smaller than the flange (%2).")
                  .arg(ShortText(flange.hubDiameter), ShortText(flange.outerDiameter)));
    CheckWall(flange.filletRadius, flange.hubHeight,
              Text::tr("The fillet radius (%1) is not smaller than the hub's height (%2).")
                  .arg(ShortText(flange.filletRadius), ShortText(flange.hubHeight)));
    CheckWall(hub + flange.filletRadius, outer,
              Text::tr("The fillet around the hub reaches outside the flange."));
    CheckWall(circle + hole, outer,
              Text::tr("The bolt holes (%1 on a circle of %2) reach outside the flange (%3).")
                  .arg(ShortText(flange.boltHole), ShortText(flange.boltCircle),
                       ShortText(flange.outerDiameter)));
    CheckWall(hub + flange.filletRadius, circle - hole,
              Text::tr("The bolt holes (%1 on a circle of %2) reach into the hub (%3) or its "
                       "fillet.")
                  .arg(ShortText(flange.boltHole), ShortText(flange.boltCircle),
                       ShortText(flange.hubDiameter)));
    if (flange.boltCount > 1.0) {
        const double distance = 2.0 * circle * std::sin(Pi / flange.boltCount);
        CheckWall(flange.boltHole, distance,
                  Text::tr("The bolt holes overlap: %1 of %2 on a circle of %3.")
                      .arg(ShortText(flange.boltCount), ShortText(flange.boltHole),
                           ShortText(flange.boltCircle)));
    }
}

TopoDS_Shape FlangeBuilder::Build(const FlangeDimensions& dimensions)
{
    Check(dimensions);
    QString step = Text::tr("joining hub and plate");
    try {
        TopoDS_Shape shape = PlateWithHub(dimensions);
        step = Text::tr("cutting bore and bolt holes");
        shape = WithHoles(shape, dimensions);
        // Last: cutting is much slower where a fillet is near.
        if (dimensions.filletRadius > 0.0) {
            step = Text::tr("building the fillet");
            shape = WithFillet(shape, dimensions);
        }
        step = Text::tr("checking the finished part");
        return TheSolid(shape);
    } catch (const Standard_Failure& failure) {
        throw BuildError(Text::tr("The geometry kernel failed while %1: %2")
                             .arg(step, QString::fromLocal8Bit(failure.GetMessageString())));
    }
}

TopoDS_Shape FlangeBuilder::BuildFromStore()
{
    return Build(ReadDimensions());
}
