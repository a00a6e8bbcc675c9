// The dialogs for kinds that move or rotate a body.

#include "FeatureDialog.h"
#include "FeatureDialogs.h"
#include "MoveInput.h"
#include "rotateInputDlg.h"

#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

namespace {

void TakeMove(const MoveInput& dialog, DialogFields& fields)
{
    double dx = 0.0;
    double dy = 0.0;
    double dz = 0.0;
    dialog.GetMoveData(dx, dy, dz);
    fields.Take("dx", dx);
    fields.Take("dy", dy);
    fields.Take("dz", dz);
}

void TakeRotation(const rotateInputDlg& dialog, DialogFields& fields)
{
    fields.TakePoint(dialog.GetBasePt());
    fields.TakeDirection(dialog.GetRotateDir());
    fields.TakeDegrees("angle", dialog.GetAngle());
}

} // namespace

std::vector<FeatureDialog> FeatureDialogs::Transforms()
{
    return {
        {"move",
         {StepOf(TakeMove, {{"dx", "lineEdit_Dx"}, {"dy", "lineEdit_Dy"}, {"dz", "lineEdit_Dz"}})}},
        {"rotate",
         {StepOf(TakeRotation, {{"x", "lineEdit_xPt"},
                                {"y", "lineEdit_yPt"},
                                {"z", "lineEdit_zPt"},
                                {"dx", "lineEdit_xDir"},
                                {"dy", "lineEdit_yDir"},
                                {"dz", "lineEdit_zDir"},
                                {"angle", "lineEdit_Degree"}})}}};
}
