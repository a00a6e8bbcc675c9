#pragma once

#include "BuildLimits.h"

#include <QDialog>

#include <memory>

namespace Ui {
class BuildLimitsDialog;
}

/// Asks for the memory and the time that a build may take.
class BuildLimitsDialog : public QDialog
{
    Q_OBJECT

public:
    BuildLimitsDialog(const BuildLimits& limits, QWidget* parent);
    ~BuildLimitsDialog() override;

    BuildLimits Limits() const; ///< As shown.

private:
    std::unique_ptr<Ui::BuildLimitsDialog> m_form;
};
