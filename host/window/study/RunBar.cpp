#include "RunBar.h"

#include "DesignModel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

RunBar::RunBar(DesignModel& design, QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("runBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto* const label = new QLabel(
        tr("The part is a run of the experiments. Saving the project saves the design."), this);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setWordWrap(true);
    auto* const back = new QPushButton(tr("Back to the design"), this);
    back->setObjectName(QStringLiteral("pushButton_BackToDesign"));
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(label, 1);
    layout->addWidget(back);
    connect(back, &QPushButton::clicked, this, &RunBar::BackWanted);
    const auto refresh = [this, &design] {
        setVisible(design.HoldsRun());
    };
    connect(&design, &DesignModel::Changed, this, refresh);
    refresh();
}

RunBar::~RunBar() = default;
