#include "DoeSession.h"

#include "DOEDlg.h"
#include "GlobalParaMeterMgr.h"
#include "MessageLevel.h"
#include "ParameterEvaluator.h"
#include "sParaArrayData.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTableWidget>

namespace {

enum Column
{
    NameColumn,
    TickColumn,
    ButtonColumn
};

QSet<QString> TickedParameters()
{
    QSet<QString> names;
    for (const auto& [name, samples] : g_mapParaArrays) {
        if (samples.bChecked != 0)
            names.insert(name);
    }
    return names;
}

} // namespace

DoeSession::DoeSession(DOEDlg& dialog, QObject* parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_remembered(GlobalParaMeterMgr::m_nameMapParameters)
{
    ShowTicksByName();
    connect(&m_dialog, &DOEDlg::m_Signal_RegenerateGeo, this, &DoeSession::CompleteRun);
}

DoeSession::~DoeSession() = default;

void DoeSession::ShowTicksByName()
{
    const auto* const table =
        m_dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Parameters"));
    if (table == nullptr)
        return;
    const QSet<QString> ticked = TickedParameters();
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem* const name = table->item(row, NameColumn);
        auto* const check = qobject_cast<QCheckBox*>(table->cellWidget(row, TickColumn));
        auto* const button = qobject_cast<QPushButton*>(table->cellWidget(row, ButtonColumn));
        if (name == nullptr || check == nullptr || button == nullptr)
            continue;
        check->setChecked(ticked.contains(name->text()));
        button->setEnabled(check->isChecked());
    }
}

void DoeSession::CompleteRun()
{
    const QSet<QString> ticked = TickedParameters();
    QStringList run;
    int given = 0;
    for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        if (ticked.contains(name)) {
            run << QStringLiteral("%1 = %2").arg(name, record.m_strValue);
            continue;
        }
        const auto remembered = m_remembered.find(name);
        if (remembered == m_remembered.end())
            continue;
        record = remembered->second;
        ++given;
    }
    m_problems = EvaluateParameters(ticked);

    PostMessageToChannel(InfoLevel, tr("Run taken: %1. The other parameters, %2 of them, have "
                                       "their values from before again.")
                                        .arg(run.join(QStringLiteral(", ")))
                                        .arg(given));
    for (const QString& problem : m_problems)
        PostMessageToChannel(ErrorLevel, problem);
    Q_EMIT RunReady();
}
