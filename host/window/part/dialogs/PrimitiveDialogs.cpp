// The dialogs for kinds that make a body.

#include "ExtrudInputDlg.h"
#include "FeatureDialog.h"
#include "FeatureDialogs.h"
#include "PolygonNumInputDlg.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

namespace {

void TakeSphere(const sphereParaInputdlg& dialog, DialogFields& fields)
{
    fields.Take("angle1", dialog.GetAngle1());
    fields.Take("angle2", dialog.GetAngle2());
    fields.Take("angle3", dialog.GetAngle3());
}

void TakeTorus(const torusParaInputDlg& dialog, DialogFields& fields)
{
    fields.Take("sweepRadius", dialog.GetSweepRadius());
    fields.Take("angle1", dialog.GetAngle1());
    fields.Take("angle2", dialog.GetAngle2());
    fields.Take("angle3", dialog.GetAngle3());
}

void TakeCone(const TruncatedConeInputDlg& dialog, DialogFields& fields)
{
    fields.Take("height", dialog.GetHeightValue());
    fields.Take("topRadius", dialog.GetTopRadius());
    fields.Take("angle", dialog.GetAngle());
}

void TakeWedge(const WedgeInputDlg& dialog, DialogFields& fields)
{
    double height = 0.0;
    double xMin = 0.0;
    double xMax = 0.0;
    double zMin = 0.0;
    double zMax = 0.0;
    dialog.GetWedgeParameter(height, xMin, xMax, zMin, zMax);
    fields.Take("height", height);
    fields.Take("xmin", xMin);
    fields.Take("xmax", xMax);
    fields.Take("zmin", zMin);
    fields.Take("zmax", zMax);
}

void TakeEdges(const PolygonNumInputDlg& dialog, DialogFields& fields)
{
    fields.TakeCount("edges", dialog.GetEdgeNumber());
}

void TakeExtrusion(const ExtrudInputDlg& dialog, DialogFields& fields)
{
    fields.Take("length", dialog.GetHeightValue());
    fields.TakeDirection(dialog.GetExtrudeDirection());
}

} // namespace

std::vector<FeatureDialog> FeatureDialogs::Primitives()
{
    return {{"sphere",
             {StepOf(TakeSphere, {{"angle1", "lineEdit_Angle1"},
                                  {"angle2", "lineEdit_Angle2"},
                                  {"angle3", "lineEdit_Angle3"}})}},
            {"torus",
             {StepOf(TakeTorus, {{"sweepRadius", "lineEdit_RadiusSweep"},
                                 {"angle1", "lineEdit_Angle1"},
                                 {"angle2", "lineEdit_Angle2"},
                                 {"angle3", "lineEdit_Angle3"}})}},
            {"cone",
             {StepOf(TakeCone, {{"height", "lineEdit_Height"},
                                {"topRadius", "lineEdit_TopRadius"},
                                {"angle", "lineEdit_Angle"}})}},
            {"wedge",
             {StepOf(TakeWedge, {{"height", "lineEdit_Height"},
                                 {"xmin", "lineEdit_xmin"},
                                 {"xmax", "lineEdit_xmax"},
                                 {"zmin", "lineEdit_zmin"},
                                 {"zmax", "lineEdit_zmax"}})}},
            {"polygon",
             {StepOf(TakeEdges, {{"edges", "lineEdit_EdgeNumber"}}),
              StepOf(TakeExtrusion, {{"length", "lineEdit_Height"},
                                     {"dx", "lineEdit_XDir"},
                                     {"dy", "lineEdit_YDir"},
                                     {"dz", "lineEdit_ZDir"}})}}};
}
