#include "DesignActions.h"

#include "AnalysisRecords.h"
#include "DOEDlg.h"
#include "DesignModel.h"
#include "DialogPlace.h"
#include "DialogTables.h"
#include "DoeSession.h"
#include "EditorSession.h"
#include "JsonSection.h"
#include "MenuActions.h"
#include "ParameterEditor.h"
#include "ParameterRemoval.h"
#include "ParameterUse.h"
#include "PartModel.h"
#include "sParaArrayData.h"

#include <QMenu>
#include <QMessageBox>

DesignActions::DesignActions(DesignModel& design, PartModel& part, AnalysisRecords& analysis,
                             QWidget* view, QWidget* window)
    : QObject(window)
    , m_design(design)
    , m_part(part)
    , m_analysis(analysis)
    , m_view(view)
    , m_window(window)
    , m_back(NewAction(tr("&Back to the design"), "action_RestoreParameters", this,
                       &DesignActions::BackToDesign))
{
    m_back->setEnabled(false);
    connect(&m_design, &DesignModel::Changed, this,
            [this] { m_back->setEnabled(m_design.HoldsRun()); });
    connect(&m_design, &DesignModel::Renamed, this, &DesignActions::FollowName);
}

DesignActions::~DesignActions() = default;

void DesignActions::FillMenu(QMenu& menu)
{
    menu.addActions(
        {NewAction(tr("&Parameters"), "action_Parameters", this, &DesignActions::EditParameters),
         NewAction(tr("Design of &Experiments"), "action_DesignOfExperiments", this,
                   &DesignActions::DesignExperiments)});
    menu.addSeparator();
    menu.addAction(m_back);
}

void DesignActions::EditParameters()
{
    // What the user applies is the design, and not the run that the store may hold.
    m_design.BackToDesign();
    ParameterEditor editor(m_window);
    editor.m_Slot_RefreshGUI();
    FitTables(editor);
    const EditorSession session(editor, m_design);
    editor.exec();
}

void DesignActions::DesignExperiments()
{
    DOEDlg dialog(m_window);
    const DoeSession session(dialog, m_design);
    connect(&session, &DoeSession::SamplesEdited, this, &DesignActions::SamplesEdited);
    FitTables(dialog);
    if (m_view != nullptr)
        PlaceBeside(dialog, *m_view);
    dialog.exec();
}

void DesignActions::BackToDesign()
{
    m_design.BackToDesign();
}

void DesignActions::RemoveParameters(const QStringList& names)
{
    const ParameterRemoval removal = FindRemoval(names, m_design.Design(), m_part.Features(),
                                                 m_part.Conditions(), m_analysis.Definition());
    if (!removal.users.isEmpty()) {
        QMessageBox box(QMessageBox::Question, tr("Remove parameters?"),
                        tr("They are used by: %1.\n\nRemove these as well?")
                            .arg(removal.users.join(QStringLiteral(", "))),
                        QMessageBox::Yes | QMessageBox::Cancel, m_window);
        box.setDefaultButton(QMessageBox::Cancel);
        if (box.exec() != QMessageBox::Yes)
            return;
    }
    QStringList quoted;
    for (const QString& name : removal.parameters) {
        g_mapParaArrays.erase(name);
        quoted << Quoted(name);
    }
    quoted.sort();
    const QString removed = tr("Remove parameters: %1").arg(quoted.join(QStringLiteral(", ")));
    m_part.Replace(removal.leftFeatures, removal.leftConditions);
    m_analysis.SetDefinition(removal.leftAnalysis);
    m_design.Edit(removal.leftParameters, removed);
}

void DesignActions::FollowName(const QString& before, const QString& after)
{
    m_part.Replace(WithRenamedParameter(m_part.Features(), before, after),
                   WithRenamedParameter(m_part.Conditions(), before, after));
}
