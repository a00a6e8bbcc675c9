#include "BuildLimitsDialog.h"

#include "ui_BuildLimitsDialog.h"

BuildLimitsDialog::BuildLimitsDialog(const BuildLimits& limits, QWidget* parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::BuildLimitsDialog>())
{
    m_form->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_form->spinBox_Memory->setRange(BuildLimits::MinimumMegabytes, BuildLimits::MaximumMegabytes);
    m_form->spinBox_Memory->setValue(limits.megabytes);
    m_form->spinBox_Time->setRange(1, BuildLimits::MaximumSeconds);
    m_form->spinBox_Time->setValue(limits.seconds);
}

BuildLimitsDialog::~BuildLimitsDialog() = default;

BuildLimits BuildLimitsDialog::Limits() const
{
    BuildLimits limits;
    limits.megabytes = m_form->spinBox_Memory->value();
    limits.seconds = m_form->spinBox_Time->value();
    return limits;
}
