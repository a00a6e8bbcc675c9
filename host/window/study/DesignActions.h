#pragma once

#include "ParameterMap.h"

#include <QObject>
#include <QStringList>

class QAction;
class QMenu;
class QWidget;

/// Runs the dialogs of the parameters and of the design of experiments, and keeps the design that a
/// run replaces.
class DesignActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs belong to @p window, which also owns this object.
    explicit DesignActions(QWidget* window);
    ~DesignActions() override;

    void FillMenu(QMenu& menu);

    /// Another project stands in the store: settles its expressions and forgets the last design.
    void Start();

    /// After the store was saved: tells where that was a run and not the design.
    void WarnIfRunIsStored() const;

public Q_SLOTS:
    /// Removes parameters, and their samples, from the stores and from the design of a run.
    void RemoveParameters(const QStringList& names);

Q_SIGNALS:
    /// The store was written and its expressions are settled: whatever depends on it is to follow.
    void ParametersChanged();
    /// The dialog in which samples are given was closed.
    void SamplesEdited();

private:
    void EditParameters();
    void DesignExperiments();
    void RestoreParameters();

    /// Evaluates the expressions; tells in the message channel what cannot be evaluated.
    static void SettleExpressions();
    /// Before a run's values are accepted: keeps the records of the design that they replace.
    void KeepDesign(const ParameterMap& records);

    QWidget* m_window;
    QAction* m_restore;
    ParameterMap m_design;     // The records that "Restore parameters" brings back.
    bool m_storeIsRun = false; // The store holds a run in place of the design.
};
