#include "AnalysisDialogs.h"

#include "AnalysisRecords.h"
#include "AttributeCommonMgr.h"
#include "AttributeRecords.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "CQLTLoadForceEditor.h"
#include "DialogText.h"
#include "FieldValues.h"
#include "HostError.h"
#include "MeshSizeInput.h"
#include "NumberTexts.h"
#include "SubShapeMeshParameterDlg.h"
#include "frequencySetting.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <memory>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(AnalysisDialogs)
};

/// The check boxes of the dialog, in the order of ConstraintDefinition::held.
const std::array<const char*, ConstraintDefinition::Freedoms> FreedomBoxes = {
    "chb_XD", "chb_YD", "chb_ZD", "chb_XR", "chb_YR", "chb_ZR"};

const std::array<const char*, 3> ForceFields = {"lied_FX", "lied_FY", "lied_FZ"};

/// While it lives, the dialogs accept @p name, which the edited entry has.
class FreeName
{
public:
    explicit FreeName(const QString& name)
        : m_name(name.toLocal8Bit().toStdString())
        , m_wasTaken(AttributeCommonMgr::GetInstance()->FindName(m_name))
    {
        AttributeCommonMgr::GetInstance()->RemoveName(m_name);
    }
    ~FreeName()
    {
        if (m_wasTaken)
            AttributeCommonMgr::GetInstance()->AddName(m_name);
    }
    Q_DISABLE_COPY(FreeName)

private:
    std::string m_name;
    bool m_wasTaken;
};

// The dialogs change the number that they show; a text that shows it still is kept.
QString EditedText(const QString& text, const QString& former)
{
    const double value = FieldValues().Evaluate(former);
    return text == ShortText(value) ? former : text;
}

// The form has the field of FZ beside the label "FY", and that of FY beside "FZ".
void PutForcesBesideTheirLabels(const CQLTLoadForceEditor& editor)
{
    auto* const forceY = editor.findChild<QLineEdit*>(QStringLiteral("lied_FY"));
    auto* const forceZ = editor.findChild<QLineEdit*>(QStringLiteral("lied_FZ"));
    const QRect besideZ = forceY->geometry();
    forceY->setGeometry(forceZ->geometry());
    forceZ->setGeometry(besideZ);
    editor.findChild<QLabel*>(QStringLiteral("label_5"))->setBuddy(forceY);
    editor.findChild<QLabel*>(QStringLiteral("label_4"))->setBuddy(forceZ);
    QWidget::setTabOrder(editor.findChild<QLineEdit*>(QStringLiteral("lied_FX")), forceY);
    QWidget::setTabOrder(forceY, forceZ);
}

} // namespace

std::optional<ConstraintDefinition> AskConstraint(QWidget* parent,
                                                  const ConstraintDefinition& former)
{
    CQLTConstrainEditor editor(parent);
    std::optional<FreeName> freeName;
    if (!former.name.isEmpty()) {
        freeName.emplace(former.name);
        // The dialog stores a record, but does not show it.
        SetFieldText(editor, "lied_Name", former.name);
        for (std::size_t freedom = 0; freedom < FreedomBoxes.size(); ++freedom)
            editor.findChild<QCheckBox*>(QString::fromLatin1(FreedomBoxes[freedom]))
                ->setChecked(former.held[freedom]);
    }
    if (editor.exec() != QDialog::Accepted)
        return std::nullopt;
    return FromRecord(editor.GetConstrainData(), former);
}

std::optional<LoadDefinition> AskLoad(QWidget* parent, const LoadDefinition& former)
{
    CQLTLoadForceEditor editor(parent);
    PutForcesBesideTheirLabels(editor);
    std::optional<FreeName> freeName;
    if (!former.name.isEmpty()) {
        freeName.emplace(former.name);
        editor.InitData(ToRecord(former));
    }
    if (editor.exec() != QDialog::Accepted)
        return std::nullopt;
    LoadDefinition load = FromRecord(editor.GetLoadForceData(), former);
    const char* const axes = "XYZ";
    for (std::size_t axis = 0; axis < ForceFields.size(); ++axis)
        load.force[axis] =
            EditedText(NumberOrExpression(editor, ForceFields[axis],
                                          Texts::tr("The force F%1").arg(axes[axis])),
                       former.force[axis]);
    return load;
}

std::optional<PropertyDefinition> AskProperty(QWidget* parent, const PropertyDefinition& former)
{
    CQLTElePropertyEditor editor(parent);
    CQLTElemPropDef shown;
    const bool isNew = former.name.isEmpty();
    if (!isNew) {
        shown.m_strName = former.name;
        shown.m_strMaterialName = former.material;
        shown.m_dThickness =
            former.thickness.isEmpty() ? 0.0 : FieldValues().Evaluate(former.thickness);
        shown.m_nTypeCode = CQLTElemPropDef::ShellType;
        editor.SetPropData(&shown);
    }
    const bool isAccepted = editor.exec() == QDialog::Accepted;
    // OK allocates the record even if it refuses it, and Cancel may follow.
    const std::unique_ptr<CQLTElemPropDef> allocated(isNew ? editor.GetPropData() : nullptr);
    if (!isAccepted)
        return std::nullopt;
    const CQLTElemPropDef& record = isNew ? *allocated : shown;
    PropertyDefinition property = former;
    property.name = record.m_strName;
    property.material = record.m_strMaterialName;
    property.thickness =
        EditedText(NumberOrExpression(editor, "lineEdit_thickness", Texts::tr("The thickness")),
                   former.thickness);
    return property;
}

std::optional<FrequencyRange> AskFrequencies(QWidget* parent, const FrequencyRange& former)
{
    frequencySetting dialog(parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    FrequencyRange range;
    dialog.GetFreqParameter(range.min, range.max, range.number);
    for (const double frequency : {range.min, range.max}) {
        if (std::isfinite(frequency))
            continue;
        StoreFrequencies(former); // the dialog has stored its own
        throw HostError(
            Texts::tr("The frequency range stays as it was: %1 Hz is not a finite number; "
                      "enter a smaller one")
                .arg(frequency));
    }
    return range;
}

std::optional<QString> AskMeshSize(QWidget* parent, const QString& former)
{
    const std::unique_ptr<MeshSizeInput> dialog =
        former.isEmpty() ? std::make_unique<MeshSizeInput>(parent)
                         : std::make_unique<MeshSizeInput>(FieldValues().Evaluate(former), parent);
    if (dialog->exec() != QDialog::Accepted)
        return std::nullopt;
    return EditedText(NumberOrExpression(*dialog, "lineEdit_MeshSize", Texts::tr("The mesh size")),
                      former);
}

std::optional<LocalMeshDefinition> AskLocalMesh(QWidget* parent, const LocalMeshDefinition& former)
{
    SubShapeMeshParameterDlg dialog(parent);
    dialog.ui.lineEdit_MeshSize->setText(former.size);
    dialog.ui.lineEdit_MeshNumber->setText(former.number);
    // The dialog leaves its buttons to the host.
    QObject::connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(dialog.ui.pushButton_Cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;

    const bool hasSize = !dialog.ui.lineEdit_MeshSize->text().trimmed().isEmpty();
    const bool hasNumber = !dialog.ui.lineEdit_MeshNumber->text().trimmed().isEmpty();
    if (hasSize == hasNumber)
        throw HostError(Texts::tr("A local mesh has either a size in mm or a number of elements "
                                  "along each edge; leave the other field empty"));
    LocalMeshDefinition mesh = former;
    mesh.size = hasSize ? NumberOrExpression(dialog, "lineEdit_MeshSize", Texts::tr("The size"))
                        : QString();
    mesh.number = hasNumber
                      ? NumberOrExpression(dialog, "lineEdit_MeshNumber", Texts::tr("The number"))
                      : QString();
    return mesh;
}
