// The dialogs for kinds that repeat a body.

#include "ArcArrayDlg.h"
#include "FeatureDialog.h"
#include "FeatureDialogs.h"
#include "MatrixArrayDlg.h"

namespace {

void TakePolarArray(const ArcArrayDlg& dialog, DialogFields& fields)
{
    const sMatrixArcdata array = dialog.GetArrayParameter();
    fields.TakePoint(array.m_axis.Location());
    fields.TakeDirection(array.m_axis.Direction());
    fields.Take("angle", array.m_dAngle);
    fields.TakeCount("number", array.m_nNumber);
}

void TakeRectangularArray(const MatrixArrayDlg& dialog, DialogFields& fields)
{
    const sMatrixArraydata array = dialog.GetArrayParameter();
    fields.TakeCount("xNumber", array.m_nXNumber);
    fields.TakeCount("yNumber", array.m_nYNumber);
    fields.Take("xDistance", array.m_dXDistance);
    fields.Take("yDistance", array.m_dYDistance);
}

} // namespace

std::vector<FeatureDialog> FeatureDialogs::Arrays()
{
    return {{"polarArray",
             {StepOf(TakePolarArray, {{"x", "lineEdit_AxisPtx"},
                                      {"y", "lineEdit_AxisPty"},
                                      {"z", "lineEdit_AxisPtz"},
                                      {"dx", "lineEdit_Dirx"},
                                      {"dy", "lineEdit_Diry"},
                                      {"dz", "lineEdit_Dirz"},
                                      {"angle", "lineEdit_Angle"},
                                      {"number", "lineEdit_Num"}})}},
            {"rectangularArray",
             {StepOf(TakeRectangularArray, {{"xNumber", "lineEdit_XNum"},
                                            {"yNumber", "lineEdit_YNum"},
                                            {"xDistance", "lineEdit_XDis"},
                                            {"yDistance", "lineEdit_YDis"}})}}};
}
