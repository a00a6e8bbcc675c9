#include "DesignActions.h"

#include "DOEDlg.h"
#include "DialogTables.h"
#include "DoeSession.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "ParameterEditor.h"
#include "ParameterEvaluator.h"
#include "sParaArrayData.h"

#include <QMenu>

DesignActions::DesignActions(QWidget* window)
    : QObject(window)
    , m_window(window)
    , m_restore(NewAction(tr("&Restore parameters"), "action_RestoreParameters", this,
                          &DesignActions::RestoreParameters))
{
    m_restore->setEnabled(false);
}

DesignActions::~DesignActions() = default;

void DesignActions::FillMenu(QMenu& menu)
{
    menu.addActions(
        {NewAction(tr("&Parameters"), "action_Parameters", this, &DesignActions::EditParameters),
         NewAction(tr("Design of &Experiments"), "action_DesignOfExperiments", this,
                   &DesignActions::DesignExperiments)});
    menu.addSeparator();
    menu.addAction(m_restore);
}

void DesignActions::Start()
{
    m_design.clear();
    m_storeIsRun = false;
    m_restore->setEnabled(false);
    SettleExpressions();
}

void DesignActions::WarnIfRunIsStored() const
{
    if (m_storeIsRun)
        PostMessageToChannel(WarningLevel, tr("What was saved are the values of a run; \"Restore "
                                              "parameters\" brings the design back"));
}

void DesignActions::EditParameters()
{
    ParameterEditor editor(m_window);
    editor.m_Slot_RefreshGUI();
    FitTables(editor);
    connect(&editor, &ParameterEditor::m_Signal_Apply, this, [this, &editor] {
        // What the user applied is the design from now on.
        m_storeIsRun = false;
        SettleExpressions();
        editor.m_Slot_RefreshGUI();
        Q_EMIT ParametersChanged();
    });
    editor.exec();
}

void DesignActions::DesignExperiments()
{
    DOEDlg dialog(m_window);
    const DoeSession session(dialog);
    FitTables(dialog);
    connect(&session, &DoeSession::RunReady, this, [this, &session] {
        KeepDesign(session.Remembered());
        Q_EMIT ParametersChanged();
    });
    dialog.exec();
    Q_EMIT SamplesEdited();
}

void DesignActions::KeepDesign(const ParameterMap& records)
{
    // Of several runs in a row the first one has replaced the design.
    if (!m_storeIsRun)
        m_design = records;
    m_storeIsRun = true;
    m_restore->setEnabled(true);
}

void DesignActions::RestoreParameters()
{
    for (const auto& [name, record] : m_design)
        GlobalParaMeterMgr::AddParameter(name, record);
    m_storeIsRun = false;
    m_restore->setEnabled(false);
    PostMessageToChannel(InfoLevel, tr("The parameters are as before the design of experiments"));
    // For the expressions of parameters that came later.
    SettleExpressions();
    Q_EMIT ParametersChanged();
}

void DesignActions::RemoveParameters(const QStringList& names)
{
    QStringList quoted;
    for (const QString& name : names) {
        GlobalParaMeterMgr::m_nameMapParameters.erase(name);
        m_design.erase(name);
        g_mapParaArrays.erase(name);
        quoted << Quoted(name);
    }
    PostMessageToChannel(InfoLevel,
                         tr("Removed parameters: %1").arg(quoted.join(QStringLiteral(", "))));
    SettleExpressions();
    Q_EMIT ParametersChanged();
}

void DesignActions::SettleExpressions()
{
    for (const QString& problem : EvaluateParameters())
        PostMessageToChannel(ErrorLevel, problem);
}
