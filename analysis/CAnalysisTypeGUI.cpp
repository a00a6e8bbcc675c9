#include "CAnalysisTypeGUI.h"

#include "AnalysisType.h"
#include "ElidedTexts.h"

using namespace AnalysisType;

CAnalysisTypeGUI::CAnalysisTypeGUI(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.ok_push_button, SIGNAL(clicked()), this, SLOT(OnOKButtonPush()));
    connect(m_ui.cancael_push_button, SIGNAL(clicked()), this, SLOT(OnCloseButtonPush()));
}

CAnalysisTypeGUI::~CAnalysisTypeGUI() = default;

void CAnalysisTypeGUI::InitData(int family, int kind)
{
    m_nFamily = family;
    m_nKind = kind;
    if (family != MechanicsFamily)
        return;

    switch (kind) {
    case StaticKind:
        m_ui.rad_Static->setChecked(true);
        break;
    case VibrationKind:
        m_ui.rad_Vibration->setChecked(true);
        break;
    case BucklingKind:
        m_ui.rad_Bucking->setChecked(true);
        break;
    case TransientKind:
        m_ui.rad_Transient->setChecked(true);
        break;
    case FrequencyResponseKind:
        m_ui.rad_Freq->setChecked(true);
        break;
    case ComplexEigenvalueKind:
        m_ui.rad_ComplexEig->setChecked(true);
        break;
    default:
        break;
    }
}

void CAnalysisTypeGUI::getSolverType(int& family, int& kind) const
{
    family = m_nFamily;
    kind = m_nKind;
}

void CAnalysisTypeGUI::OnOKButtonPush()
{
    const struct
    {
        const QRadioButton* button;
        Family family;
        Kind kind;
    } choices[] = {
        {m_ui.rad_Static, MechanicsFamily, StaticKind},
        {m_ui.rad_Bucking, MechanicsFamily, BucklingKind},
        {m_ui.rad_Transient, MechanicsFamily, TransientKind},
        {m_ui.rad_Freq, MechanicsFamily, FrequencyResponseKind},
        {m_ui.rad_ComplexEig, ComplexEigenvalueFamily, ComplexEigenvalueKind},
        {m_ui.rad_Vibration, MechanicsFamily, VibrationKind},
    };
    for (const auto& choice : choices) {
        if (choice.button->isChecked()) {
            m_nFamily = choice.family;
            m_nKind = choice.kind;
        }
    }
    hide();
}

void CAnalysisTypeGUI::OnCloseButtonPush()
{
    close();
}
