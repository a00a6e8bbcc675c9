#include "SolverSetting.h"

#include "ElidedTexts.h"
#include "Notice.h"
#include "SolverRun.h"

#include <QPointer>

SolverSetting::SolverSetting(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_Browse, SIGNAL(clicked()), this, SLOT(SelectExecuteNas()));
    connect(m_ui.pushButton_Run, SIGNAL(clicked()), this, SLOT(RunCommand()));
}

SolverSetting::~SolverSetting() = default;

void SolverSetting::SelectExecuteNas()
{
    // The host's event loop keeps running and may destroy this dialog meanwhile.
    const QPointer<SolverSetting> self = this;
    const QString path = tarn::PickExecutable(*this, tr("Open Nastran.exe"));
    if (!self)
        return;
    m_strExecutePath = path;
    m_ui.lineEdit_Path->setText(path);
    m_ui.lineEdit_Path->setToolTip(path);
}

void SolverSetting::RunCommand()
{
    const QString command = m_strExecutePath + QStringLiteral(" Model_Active.bdf");
    if (tarn::RunToEnd(command) == QProcess::NormalExit)
        tarn::ShowNotice(QStringLiteral("Title"), QStringLiteral("Solver is Done"));
}
