// The dialog for the kinds that mirror a body: its modes are the kinds.

#include "FeatureDialog.h"
#include "FeatureDialogs.h"
#include "FeatureKinds.h"
#include "MirrorDialog.h"

#include <QRadioButton>

#include <algorithm>

namespace {

struct MirrorMode
{
    QLatin1String kind;
    const char* button;
    bool takesEdits;
    std::vector<FieldEdit> edits;
};

const std::vector<MirrorMode>& Modes()
{
    static const std::vector<MirrorMode> modes = {
        // From the line edits: the symmetry that the dialog returns does not determine the point.
        {QLatin1String("mirrorAxis"),
         "radioButton_2",
         true,
         {{"x", "lineEdit_axisPtX"},
          {"y", "lineEdit_axisPtY"},
          {"z", "lineEdit_axisPtZ"},
          {"dx", "lineEdit_axisX"},
          {"dy", "lineEdit_axisY"},
          {"dz", "lineEdit_axisZ"}}},
        // The dialog returns the origin, whatever is typed. That is the default of the kind, and
        // another point, from the table of fields, is kept.
        {QLatin1String("mirrorPoint"),
         "radioButton",
         false,
         {{"x", "lineEdit_Ptx"}, {"y", "lineEdit_Pty"}, {"z", "lineEdit_Ptz"}}},
        {QLatin1String("mirrorFace"), "radioButton_3", false, {}}};
    return modes;
}

QRadioButton& Button(const QDialog& dialog, const MirrorMode& mode)
{
    return *dialog.findChild<QRadioButton*>(QLatin1String(mode.button));
}

void Show(const QDialog& dialog, DialogFields& fields)
{
    for (const MirrorMode& mode : Modes()) {
        if (fields.Result().kind->word != mode.kind)
            continue;
        Button(dialog, mode).setChecked(true);
        for (const FieldEdit& edit : mode.edits)
            fields.Show(dialog, edit);
    }
}

void Take(const MirrorDialog& dialog, DialogFields& fields)
{
    const auto mode =
        std::find_if(Modes().begin(), Modes().end(), [&dialog](const MirrorMode& candidate) {
            return Button(dialog, candidate).isChecked();
        });
    fields.SetKind(*FeatureKinds::Find(mode->kind));
    if (!mode->takesEdits)
        return;
    for (const FieldEdit& edit : mode->edits) {
        fields.TakeText(dialog, edit);
        fields.TakeExpression(dialog, edit);
    }
}

} // namespace

std::vector<FeatureDialog> FeatureDialogs::Mirrors()
{
    FeatureDialog mirror;
    for (const MirrorMode& mode : Modes())
        mirror.kinds.push_back(mode.kind);
    mirror.name = QLatin1String("mirror");
    mirror.title = QT_TRANSLATE_NOOP("PartActions", "Mirror");
    mirror.steps = {StepOf(Take, {})};
    mirror.steps.front().show = Show;
    return {mirror};
}
