#include "ResultSetting.h"

#include "ElidedTexts.h"
#include "SolverRun.h"

#include <QPointer>

ResultSetting::ResultSetting(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_Browse, SIGNAL(clicked()), this, SLOT(SelectExecuteHyper()));
    connect(m_ui.pushButton_Run, SIGNAL(clicked()), this, SLOT(RunCommand()));
}

ResultSetting::~ResultSetting() = default;

void ResultSetting::SelectExecuteHyper()
{
    // The host's event loop keeps running and may destroy this dialog meanwhile.
    const QPointer<ResultSetting> self = this;
    const QString path = tarn::PickExecutable(*this, tr("Open HyperView.exe"));
    if (!self)
        return;
    const QLatin1Char quote('"');
    m_strCommandPrefix = quote + path + quote;
    m_ui.lineEdit_Path->setText(path);
    m_ui.lineEdit_Path->setToolTip(path);
}

void ResultSetting::RunCommand()
{
    tarn::RunToEnd(m_strCommandPrefix + QStringLiteral(" Model_Active.op2"));
}
