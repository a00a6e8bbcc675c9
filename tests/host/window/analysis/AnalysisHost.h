#pragma once

#include "AnalysisActions.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "DrawerOutput.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "MenuUser.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "PartModel.h"
#include "SetupCheckDock.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTreeWidget>

/// The analysis menu and tree in a window of their own, in an empty working directory with empty
/// stores.
class AnalysisHost
{
public:
    explicit AnalysisHost(TestCase& test)
        : model(&window)
        , tree(model, &window)
        , check(&window)
    {
        test.EnterTemporaryDirectory();
        (new AnalysisActions(model, tree, check, part, &window))->FillMenu(menu);
    }
    ~AnalysisHost()
    {
        FrequencyPref::m_MinFreq = 1.0;
        FrequencyPref::m_MaxFreq = 1000000.0;
        FrequencyPref::m_NumFreq = 10;
    }
    Q_DISABLE_COPY(AnalysisHost)

    /// Triggers the action; its dialog takes the step.
    void Run(const char* name, const std::function<void(QDialog&)>& step)
    {
        user.Then(step);
        Trigger(name);
        QVERIFY(user.IsDone());
    }

    void Trigger(const char* name) const { ::Trigger(window, name); }

    void SetType(const SolverType& type)
    {
        AnalysisDefinition analysis = model.Definition();
        analysis.type = type;
        model.SetDefinition(analysis);
    }

    /// The texts of a group of the tree: its own value, or those of its records.
    QStringList Shown(const QString& group) const
    {
        const auto& widget = Find<QTreeWidget>(tree, "modelTree");
        QStringList texts;
        const QList<QTreeWidgetItem*> items = widget.findItems(group, Qt::MatchExactly);
        for (const QTreeWidgetItem* const item : items) {
            if (item->childCount() == 0)
                texts << item->text(AnalysisTree::ValueColumn);
            for (int i = 0; i < item->childCount(); ++i)
                texts << item->child(i)->text(AnalysisTree::NameColumn) + ": " +
                             item->child(i)->text(AnalysisTree::ValueColumn);
        }
        return texts;
    }

private:
    const EmptyAnalysisStores m_stores;
    const EmptyAttributeNames m_names;

public:
    QWidget window;
    AnalysisRecords model;
    AnalysisTree tree;
    SetupCheckDock check;
    PartModel part;
    QMenu menu;
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};
