#include "FeatureDialogs.h"

#include "ArcArrayDlg.h"
#include "ExtrudInputDlg.h"
#include "FeatureKinds.h"
#include "FieldValues.h"
#include "HostApplication.h"
#include "MatrixArrayDlg.h"
#include "MessageLevel.h"
#include "MirrorDialog.h"
#include "MoveInput.h"
#include "NumberTexts.h"
#include "PolygonNumInputDlg.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "rotateInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

#include <QLineEdit>
#include <QRadioButton>
#include <gp.hxx>
#include <gp_Vec.hxx>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double Pi = 3.141592653589793;

// A field of the kind, and the line edit of the dialog that asks for it.
struct FieldEdit
{
    const char* key;
    const char* edit;
};

/// The fields of one feature on their way through its dialogs.
class DialogRun
{
    Q_DECLARE_TR_FUNCTIONS(FeatureDialogs)

public:
    DialogRun(const Feature& feature, bool isNew, QWidget* window)
        : m_feature(feature)
        , m_isNew(isNew)
        , m_window(window)
    {
    }

    /// Runs the dialogs of the kind; false when the user cancels.
    bool Ask();

    const Feature& Result() const { return m_feature; }

private:
    bool AskSphere();
    bool AskTorus();
    bool AskCone();
    bool AskWedge();
    bool AskPolygon();
    bool AskMove();
    bool AskRotation();
    bool AskMirror();
    bool AskPolarArray();
    bool AskRectangularArray();

    template<typename Dialog, typename TakeFields>
    bool Run(Dialog& dialog, std::initializer_list<FieldEdit> edits, TakeFields take);

    void Show(const QDialog& dialog, const FieldEdit& field);
    void Take(const char* key, double number);
    void TakeCount(const char* key, int number);
    void TakeDegrees(const char* key, double radians);
    void TakePoint(const gp_Pnt& point);
    void TakeDirection(const gp_Dir& direction);
    void Replace(const char* key, double number, const QString& text);

    int IndexOf(const char* key) const;
    QString& Text(const char* key) { return m_feature.fields[IndexOf(key)]; }
    bool IsShown(const char* key) const { return m_shown.contains(QLatin1String(key)); }
    QString Shown(const char* key) const { return m_shown.value(QLatin1String(key)); }

    Feature m_feature;
    bool m_isNew;
    QWidget* m_window;
    QHash<QLatin1String, QString> m_shown; // By key: what the dialog was opened with.
    QString m_problem;
};

// A few digits less than a double has: those that a conversion to and fro does not keep.
QString ConvertedText(double number)
{
    constexpr int Digits = 15;
    return QString::number(number, 'g', Digits);
}

// The fields of a dialog are to be found by name alone.
QLineEdit& Edit(const QDialog& dialog, const char* name)
{
    return *dialog.findChild<QLineEdit*>(QLatin1String(name));
}

int DialogRun::IndexOf(const char* key) const
{
    const std::vector<FieldKind>& fields = FeatureKinds::Of(m_feature.kind).fields;
    const auto found = std::find_if(fields.begin(), fields.end(), [key](const FieldKind& field) {
        return field.key == QLatin1String(key);
    });
    return int(found - fields.begin());
}

void DialogRun::Show(const QDialog& dialog, const FieldEdit& field)
{
    const QString& text = Text(field.key);
    const double value = FieldValues().Evaluate(text);
    const QString shown = std::isnan(value) ? text : ExactText(value);
    Edit(dialog, field.edit).setText(shown);
    m_shown.insert(QLatin1String(field.key), shown);
}

template<typename Dialog, typename TakeFields>
bool DialogRun::Run(Dialog& dialog, std::initializer_list<FieldEdit> edits, TakeFields take)
{
    // A new feature's dialog opens with its own defaults.
    if (!m_isNew) {
        for (const FieldEdit& edit : edits)
            Show(dialog, edit);
    }
    const ConstructionErrorText zeroDirection(
        tr("A direction needs a component that is not 0; the dialog waits for one"));
    const Feature before = m_feature;
    while (dialog.exec() == QDialog::Accepted) {
        m_problem.clear();
        take();
        if (m_problem.isEmpty())
            return true;
        PostMessageToChannel(WarningLevel, m_problem);
        m_feature = before;
    }
    return false;
}

void DialogRun::Replace(const char* key, double number, const QString& text)
{
    Text(key) = text;
    const FieldKind& field = FeatureKinds::Of(m_feature.kind).fields[std::size_t(IndexOf(key))];
    if (!field.rule.Allows(number))
        m_problem = tr("%1 has to be %2; %3 was entered")
                        .arg(FeatureKinds::Label(field), field.rule.Text(), text);
}

void DialogRun::Take(const char* key, double number)
{
    if (!IsShown(key) || number != Shown(key).toDouble())
        Replace(key, number, ExactText(number));
}

void DialogRun::TakeCount(const char* key, int number)
{
    if (!IsShown(key) || number != Shown(key).toInt())
        Replace(key, number, QString::number(number));
}

void DialogRun::TakeDegrees(const char* key, double radians)
{
    const double degrees = radians * 180.0 / Pi;
    const QString text = ConvertedText(degrees);
    if (!IsShown(key) || text != ConvertedText(Shown(key).toDouble()))
        Replace(key, degrees, text);
}

void DialogRun::TakePoint(const gp_Pnt& point)
{
    Take("x", point.X());
    Take("y", point.Y());
    Take("z", point.Z());
}

void DialogRun::TakeDirection(const gp_Dir& direction)
{
    if (IsShown("dx")) {
        const gp_Vec shown(Shown("dx").toDouble(), Shown("dy").toDouble(), Shown("dz").toDouble());
        // As the dialog makes its direction: the same components, to the last digit.
        if (shown.Magnitude() > gp::Resolution() && gp_Dir(shown).XYZ().IsEqual(direction.XYZ(), 0))
            return;
    }
    Replace("dx", direction.X(), ConvertedText(direction.X()));
    Replace("dy", direction.Y(), ConvertedText(direction.Y()));
    Replace("dz", direction.Z(), ConvertedText(direction.Z()));
}

bool DialogRun::Ask()
{
    switch (m_feature.kind) {
    case FeatureKind::Sphere:
        return AskSphere();
    case FeatureKind::Torus:
        return AskTorus();
    case FeatureKind::Cone:
        return AskCone();
    case FeatureKind::Wedge:
        return AskWedge();
    case FeatureKind::Polygon:
        return AskPolygon();
    case FeatureKind::Move:
        return AskMove();
    case FeatureKind::Rotate:
        return AskRotation();
    case FeatureKind::MirrorPoint:
    case FeatureKind::MirrorAxis:
    case FeatureKind::MirrorFace:
        return AskMirror();
    case FeatureKind::PolarArray:
        return AskPolarArray();
    case FeatureKind::RectangularArray:
        return AskRectangularArray();
    default:
        return true;
    }
}

bool DialogRun::AskSphere()
{
    sphereParaInputdlg dialog(m_window);
    return Run(dialog,
               {{"angle1", "lineEdit_Angle1"},
                {"angle2", "lineEdit_Angle2"},
                {"angle3", "lineEdit_Angle3"}},
               [&] {
                   Take("angle1", dialog.GetAngle1());
                   Take("angle2", dialog.GetAngle2());
                   Take("angle3", dialog.GetAngle3());
               });
}

bool DialogRun::AskTorus()
{
    torusParaInputDlg dialog(m_window);
    return Run(dialog,
               {{"sweepRadius", "lineEdit_RadiusSweep"},
                {"angle1", "lineEdit_Angle1"},
                {"angle2", "lineEdit_Angle2"},
                {"angle3", "lineEdit_Angle3"}},
               [&] {
                   Take("sweepRadius", dialog.GetSweepRadius());
                   Take("angle1", dialog.GetAngle1());
                   Take("angle2", dialog.GetAngle2());
                   Take("angle3", dialog.GetAngle3());
               });
}

bool DialogRun::AskCone()
{
    TruncatedConeInputDlg dialog(m_window);
    return Run(dialog,
               {{"height", "lineEdit_Height"},
                {"topRadius", "lineEdit_TopRadius"},
                {"angle", "lineEdit_Angle"}},
               [&] {
                   Take("height", dialog.GetHeightValue());
                   Take("topRadius", dialog.GetTopRadius());
                   Take("angle", dialog.GetAngle());
               });
}

bool DialogRun::AskWedge()
{
    WedgeInputDlg dialog(m_window);
    return Run(dialog,
               {{"height", "lineEdit_Height"},
                {"xmin", "lineEdit_xmin"},
                {"xmax", "lineEdit_xmax"},
                {"zmin", "lineEdit_zmin"},
                {"zmax", "lineEdit_zmax"}},
               [&] {
                   double height = 0.0;
                   double xMin = 0.0;
                   double xMax = 0.0;
                   double zMin = 0.0;
                   double zMax = 0.0;
                   dialog.GetWedgeParameter(height, xMin, xMax, zMin, zMax);
                   Take("height", height);
                   Take("xmin", xMin);
                   Take("xmax", xMax);
                   Take("zmin", zMin);
                   Take("zmax", zMax);
               });
}

bool DialogRun::AskPolygon()
{
    PolygonNumInputDlg edges(m_window);
    if (!Run(edges, {{"edges", "lineEdit_EdgeNumber"}},
             [&] { TakeCount("edges", edges.GetEdgeNumber()); }))
        return false;
    ExtrudInputDlg extrusion(m_window);
    return Run(extrusion,
               {{"length", "lineEdit_Height"},
                {"dx", "lineEdit_XDir"},
                {"dy", "lineEdit_YDir"},
                {"dz", "lineEdit_ZDir"}},
               [&] {
                   Take("length", extrusion.GetHeightValue());
                   TakeDirection(extrusion.GetExtrudeDirection());
               });
}

bool DialogRun::AskMove()
{
    MoveInput dialog(m_window);
    return Run(dialog, {{"dx", "lineEdit_Dx"}, {"dy", "lineEdit_Dy"}, {"dz", "lineEdit_Dz"}}, [&] {
        double dx = 0.0;
        double dy = 0.0;
        double dz = 0.0;
        dialog.GetMoveData(dx, dy, dz);
        Take("dx", dx);
        Take("dy", dy);
        Take("dz", dz);
    });
}

bool DialogRun::AskRotation()
{
    rotateInputDlg dialog(m_window);
    return Run(dialog,
               {{"x", "lineEdit_xPt"},
                {"y", "lineEdit_yPt"},
                {"z", "lineEdit_zPt"},
                {"dx", "lineEdit_xDir"},
                {"dy", "lineEdit_yDir"},
                {"dz", "lineEdit_zDir"},
                {"angle", "lineEdit_Degree"}},
               [&] {
                   TakePoint(dialog.GetBasePt());
                   TakeDirection(dialog.GetRotateDir());
                   TakeDegrees("angle", dialog.GetAngle());
               });
}

bool DialogRun::AskPolarArray()
{
    ArcArrayDlg dialog(nullptr);
    dialog.setParent(m_window, dialog.windowFlags());
    return Run(dialog,
               {{"x", "lineEdit_AxisPtx"},
                {"y", "lineEdit_AxisPty"},
                {"z", "lineEdit_AxisPtz"},
                {"dx", "lineEdit_Dirx"},
                {"dy", "lineEdit_Diry"},
                {"dz", "lineEdit_Dirz"},
                {"angle", "lineEdit_Angle"},
                {"number", "lineEdit_Num"}},
               [&] {
                   const sMatrixArcdata array = dialog.GetArrayParameter();
                   TakePoint(array.m_axis.Location());
                   TakeDirection(array.m_axis.Direction());
                   Take("angle", array.m_dAngle);
                   TakeCount("number", array.m_nNumber);
               });
}

bool DialogRun::AskRectangularArray()
{
    MatrixArrayDlg dialog(nullptr);
    dialog.setParent(m_window, dialog.windowFlags());
    return Run(dialog,
               {{"xNumber", "lineEdit_XNum"},
                {"yNumber", "lineEdit_YNum"},
                {"xDistance", "lineEdit_XDis"},
                {"yDistance", "lineEdit_YDis"}},
               [&] {
                   const sMatrixArraydata array = dialog.GetArrayParameter();
                   TakeCount("xNumber", array.m_nXNumber);
                   TakeCount("yNumber", array.m_nYNumber);
                   Take("xDistance", array.m_dXDistance);
                   Take("yDistance", array.m_dYDistance);
               });
}

// The dialog's three modes are three kinds of features.
struct MirrorMode
{
    FeatureKind kind;
    const char* button;
    std::array<FieldEdit, 6> edits;
    int fields;
};

const std::array<MirrorMode, 3> MirrorModes = {
    MirrorMode{FeatureKind::MirrorPoint,
               "radioButton",
               {{{"x", "lineEdit_Ptx"}, {"y", "lineEdit_Pty"}, {"z", "lineEdit_Ptz"}}},
               3},
    MirrorMode{FeatureKind::MirrorAxis,
               "radioButton_2",
               {{{"x", "lineEdit_axisPtX"},
                 {"y", "lineEdit_axisPtY"},
                 {"z", "lineEdit_axisPtZ"},
                 {"dx", "lineEdit_axisX"},
                 {"dy", "lineEdit_axisY"},
                 {"dz", "lineEdit_axisZ"}}},
               6},
    MirrorMode{FeatureKind::MirrorFace, "radioButton_3", {}, 0}};

bool DialogRun::AskMirror()
{
    MirrorDialog dialog(nullptr);
    dialog.setParent(m_window, dialog.windowFlags());
    const auto button = [&dialog](const MirrorMode& mode) {
        return dialog.findChild<QRadioButton*>(QLatin1String(mode.button));
    };
    const FeatureKind kindBefore = m_feature.kind;
    if (!m_isNew) {
        const MirrorMode& mode = *std::find_if(
            MirrorModes.begin(), MirrorModes.end(),
            [kindBefore](const MirrorMode& candidate) { return candidate.kind == kindBefore; });
        button(mode)->setChecked(true);
        for (int i = 0; i < mode.fields; ++i)
            Show(dialog, mode.edits[std::size_t(i)]);
    }
    return Run(dialog, {}, [&] {
        const MirrorMode& mode = *std::find_if(
            MirrorModes.begin(), MirrorModes.end(),
            [&button](const MirrorMode& candidate) { return button(candidate)->isChecked(); });
        const bool isSameMode = !m_isNew && mode.kind == kindBefore;
        if (mode.kind != m_feature.kind) {
            m_feature.kind = mode.kind;
            m_feature.fields = FeatureKinds::MakeFeature(mode.kind).fields;
        }
        // The point mode gives the origin whatever is typed, which are the defaults of its kind:
        // fields that say otherwise were typed by the user in their own place, and stay. The
        // symmetry that the axis mode gives does not tell the point that was typed on the axis.
        if (mode.kind != FeatureKind::MirrorAxis)
            return;
        for (int i = 0; i < mode.fields; ++i) {
            const FieldEdit& field = mode.edits[std::size_t(i)];
            const double number = Edit(dialog, field.edit).text().toDouble();
            if (!isSameMode || number != Shown(field.key).toDouble())
                Replace(field.key, number, ExactText(number));
        }
    });
}

std::optional<Feature> Ask(const Feature& feature, bool isNew, QWidget* window)
{
    DialogRun run(feature, isNew, window);
    if (!run.Ask())
        return std::nullopt;
    return run.Result();
}

} // namespace

bool FeatureDialogs::HasDialogFor(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Box:
    case FeatureKind::Cylinder:
    case FeatureKind::Fuse:
    case FeatureKind::Cut:
    case FeatureKind::Fillet:
    case FeatureKind::StepImport:
        return false;
    default:
        return true;
    }
}

std::optional<Feature> FeatureDialogs::AskNew(const Feature& feature)
{
    return Ask(feature, true, m_window);
}

std::optional<Feature> FeatureDialogs::AskChanges(const Feature& feature)
{
    return Ask(feature, false, m_window);
}
