#pragma once

#include "ParameterEntry.h"
#include "ParameterEvaluator.h"
#include "ParameterMap.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <vector>

/// The parameters of the open project: GlobalParaMeterMgr, which the dialogs share, with what it
/// has no place for: units, and the design while the store holds a run of the experiments.
///
/// Every change goes through Edit(), which settles the expressions. It is a change of the design:
/// if the store holds a run, that is left.
class DesignModel : public QObject
{
    Q_OBJECT

public:
    explicit DesignModel(QObject* parent = nullptr);
    ~DesignModel() override;

    /// What the store holds now.
    ParameterEntries Stored() const;
    /// What a project is saved with: the store, or the design that a run has replaced.
    ParameterEntries Design() const;
    bool HoldsRun() const { return m_holdsRun; }
    /// Why the parameter has no value; empty if it has one.
    QString ReasonFor(const QString& name) const { return m_faults.reasons.value(name); }

    /// Another project stands in the store; @p units are by name.
    void Open(const QHash<QString, QString>& units);
    /// Makes @p entries the design and the content of the store. Not a change by the user: for
    /// undo.
    void Replace(const ParameterEntries& entries);
    /// Like Replace(), but a change by the user, which @p text describes.
    void Edit(const ParameterEntries& entries, const QString& text);
    /// Renames a parameter in the design, its samples, and whatever follows Renamed().
    /// @throws ParameterError
    void Rename(const QString& before, const QString& after);

    /// Remembers the design before a dialog may replace it by runs.
    void ExpectRuns();
    /// The store holds a run of the @p ticked parameters. Gives the others their values of the
    /// design, and settles the expressions of all that are not ticked. Returns how many got theirs
    /// back.
    int TakeRun(const QSet<QString>& ticked);
    /// Puts a run with these @p values of the parameters @p names into the store. @throws
    /// ParameterError if the parameter does not exist
    void ShowRun(const QStringList& names, const std::vector<double>& values);
    /// Ends a run.
    void BackToDesign();

Q_SIGNALS:
    /// The user renamed a parameter; expressions elsewhere are to follow. Edited() comes next.
    void Renamed(const QString& before, const QString& after);
    /// The user changed the design, as @p text says. Changed() comes next.
    void Edited(const QString& text);
    /// The store has other content, and its expressions are settled.
    void Changed();

private:
    void Store(const ParameterEntries& entries);
    void Settle();
    void Take(const ParameterEvaluator::Faults& faults);

    ParameterEntries m_design; // Of a run, or before one.
    QHash<QString, QString> m_units;
    ParameterEvaluator::Faults m_faults;
    bool m_holdsRun = false;
};
