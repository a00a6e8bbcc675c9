#pragma once

#include "ArcArrayDlg.h"
#include "ExtrudInputDlg.h"
#include "KernelText.h"
#include "MirrorDialog.h"
#include "rotateInputDlg.h"

#include <functional>
#include <map>

/// The dialogs whose exec() an error of the kernel may leave: they make a direction of their
/// fields.

using Fields = std::map<const char*, const char*>;

/// A dialog that makes a direction from its fields, and how a host uses it.
struct Subject
{
    std::function<QDialog*(QDialog*)> make;
    const char* ok;
    Fields fields;
    const char* zDirection;
    std::function<QString(const QDialog&)> read;
    const char* before;
    const char* afterRaise;
    const char* afterOK;
};

template<class Dialog>
const Dialog& As(const QDialog& dialog)
{
    return static_cast<const Dialog&>(dialog);
}

inline const std::map<QString, Subject>& Subjects()
{
    static const std::map<QString, Subject> subjects = {
        {"rotateInputDlg",
         {[](QDialog* parent) { return new rotateInputDlg(parent); },
          "pushButton_OK",
          {{"lineEdit_Degree", "180"},
           {"lineEdit_xPt", "1"},
           {"lineEdit_yPt", "2"},
           {"lineEdit_zPt", "3"}},
          "lineEdit_zDir",
          [](const QDialog& dialog) {
              const auto& rotate = As<rotateInputDlg>(dialog);
              return QString("%1 | %2 | %3 | %4")
                  .arg(rotate.GetAngle())
                  .arg(KernelText(rotate.GetBasePt()), KernelText(rotate.GetRotateDir()),
                       KernelText(rotate.GetRotateAxis()));
          },
          "0 | (0, 0, 0) | (1, 0, 0) | (0, 0, 0) along (0, 0, 1)",
          "3.14159 | (1, 2, 3) | (1, 0, 0) | (0, 0, 0) along (0, 0, 1)",
          "3.14159 | (1, 2, 3) | (0, 0, -1) | (1, 2, 3) along (0, 0, -1)"}},
        {"MirrorDialog",
         {[](QDialog* parent) { return new MirrorDialog(parent); },
          "pushButton_OK",
          {{"lineEdit_axisPtX", "1"}, {"lineEdit_axisPtY", "2"}, {"lineEdit_axisPtZ", "3"}},
          "lineEdit_axisZ",
          [](const QDialog& dialog) {
              gp_Trsf transform;
              As<MirrorDialog>(dialog).GetMirrorData(transform);
              return KernelText(transform);
          },
          "(0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)",
          "(0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)",
          "(2, 4, 0) (1, 4, 0) (2, 3, 0) (2, 4, 1)"}},
        {"ArcArrayDlg",
         {[](QDialog* parent) { return new ArcArrayDlg(parent); },
          "pushButtonOK",
          {{"lineEdit_Angle", "45"},
           {"lineEdit_Num", "7"},
           {"lineEdit_AxisPtx", "1"},
           {"lineEdit_AxisPty", "2"},
           {"lineEdit_AxisPtz", "3"}},
          "lineEdit_Dirz",
          [](const QDialog& dialog) {
              const sMatrixArcdata record = As<ArcArrayDlg>(dialog).GetArrayParameter();
              return QString("%1 | %2 | %3")
                  .arg(record.m_dAngle)
                  .arg(record.m_nNumber)
                  .arg(KernelText(record.m_axis));
          },
          "0 | 0 | (0, 0, 0) along (0, 0, 1)",
          "45 | 7 | (0, 0, 0) along (0, 0, 1)",
          "45 | 7 | (1, 2, 3) along (0, 0, -1)"}},
        {"ExtrudInputDlg",
         {[](QDialog* parent) { return new ExtrudInputDlg(parent); },
          "pushButton_OK",
          {{"lineEdit_Height", "25"}},
          "lineEdit_ZDir",
          [](const QDialog& dialog) {
              const auto& extrude = As<ExtrudInputDlg>(dialog);
              return QString("%1 | %2")
                  .arg(extrude.GetHeightValue())
                  .arg(KernelText(extrude.GetExtrudeDirection()));
          },
          "0 | (1, 0, 0)",
          "25 | (1, 0, 0)",
          "25 | (0, 0, -1)"}},
    };
    return subjects;
}
