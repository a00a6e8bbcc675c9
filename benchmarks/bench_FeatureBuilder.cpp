#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <GProp_GProps.hxx>
#include <GeomAbs_CurveType.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Circ.hxx>

#include <benchmark/benchmark.h>

#include <cmath>

// Rebuilding the sample flange for the runs of a study from its features and conditions, compared
// with the same kernel calls written by hand for this part.

namespace {

void Store(const char* name, double value)
{
    ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters[QLatin1String(name)];
    record.m_dValue = value;
    record.m_varRawValue = value;
}

double Stored(const char* name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(QLatin1String(name)).toDouble();
}

// Each run has another bore and thickness, as in a study.
void ChooseRun(int run)
{
    Store("bore_diameter", 60.0 + 2.0 * (run % 10));
    Store("thickness", 16.0 + run / 10 % 10);
    ParameterEvaluator::Evaluate();
}

// As ours: every body, not only the part.
TopoDS_Shape CheckedBody(const TopoDS_Shape& body)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(body, properties);
    return properties.Mass() > 0.0 && BRepCheck_Analyzer(body).IsValid() ? body : TopoDS_Shape();
}

// Moved like the features, which are built at the origin: the kernel needs more time for moved
// bodies.
TopoDS_Shape Cylinder(double x, double z, double radius, double height)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, 0.0, z));
    const TopoDS_Shape cylinder = CheckedBody(BRepPrimAPI_MakeCylinder(radius, height).Shape());
    return cylinder.Moved(TopLoc_Location(translation));
}

TopoDS_Shape BuildByHand()
{
    const double thickness = Stored("thickness");
    const double hubRadius = Stored("hub_diameter") / 2.0;
    const double hubHeight = Stored("hub_height");
    const TopoDS_Shape body =
        CheckedBody(BRepAlgoAPI_Fuse(Cylinder(0.0, 0.0, Stored("outer_diameter") / 2.0, thickness),
                                     Cylinder(0.0, thickness, hubRadius, hubHeight))
                        .Shape());

    TopTools_ListOfShape tools;
    tools.Append(Cylinder(0.0, -1.0, Stored("bore_diameter") / 2.0, thickness + hubHeight + 2.0));
    const TopoDS_Shape hole =
        Cylinder(Stored("bolt_circle") / 2.0, -1.0, Stored("bolt_hole") / 2.0, thickness + 2.0);
    const int count = int(Stored("bolt_count"));
    for (int index = 0; index < count; ++index) {
        gp_Trsf rotation;
        rotation.SetRotation(gp_Ax1(), 2.0 * std::acos(-1.0) * index / count);
        tools.Append(hole.Moved(TopLoc_Location(rotation)));
    }
    TopTools_ListOfShape arguments;
    arguments.Append(body);
    BRepAlgoAPI_Cut cut;
    cut.SetArguments(arguments);
    cut.SetTools(tools);
    cut.Build();

    const TopoDS_Shape drilled = CheckedBody(cut.Shape());
    BRepFilletAPI_MakeFillet fillet(drilled);
    for (TopExp_Explorer edges(drilled, TopAbs_EDGE); edges.More(); edges.Next()) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edges.Current()));
        if (curve.GetType() == GeomAbs_Circle &&
            std::abs(curve.Circle().Radius() - hubRadius) < 1e-7 &&
            std::abs(curve.Circle().Location().Z() - thickness) < 1e-7) {
            fillet.Add(Stored("fillet_radius"), TopoDS::Edge(edges.Current()));
            break;
        }
    }
    return CheckedBody(fillet.Shape());
}

template<class Builder>
void Regenerate(benchmark::State& state, const Project& project, const Builder& build)
{
    project.FillParameterStore();
    for (auto _ : state) {
        for (int run = 0; run < int(state.range(0)); ++run) {
            ChooseRun(run);
            if (build().IsNull())
                state.SkipWithError("a part was not built");
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        const auto add = [project = Project::Load(Project::SamplePath())](const char* name,
                                                                          auto build) {
            const auto regenerate = [project, build](benchmark::State& state) {
                Regenerate(state, project, [&] { return build(project); });
            };
            benchmark::RegisterBenchmark(name, regenerate)->Arg(100)->Unit(benchmark::kMillisecond);
        };
        add("Flange/ours", [](const Project& project) {
            ResultCache cache;
            return FeatureBuilder(cache).Build(project.Plan()).shape;
        });
        add("Flange/reference", [](const Project&) { return BuildByHand(); });
    });
}
