#pragma once

#include "AnalysisTools.h"
#include "SolveFolder.h"

#include <QString>

/// Runs the solver on a deck that stands beside a deck for another one, for dialogs that know only
/// the name of that.
class DeckRun
{
    Q_DECLARE_TR_FUNCTIONS(DeckRun)

public:
    /// @p deck is the path of a file whose name ends with ".bdf" or ".inp".
    DeckRun(const QString& deck, AnalysisTools tools);

    /// Solves the ".inp" file of that name. Its results replace earlier ones beside it once they
    /// are complete; after a failure there are none. The log is beside them in any case.
    /// @throws HostError if there are no results, FolderError if the folder cannot be written
    void Run() const;

private:
    QString NameWith(const char* suffix) const { return m_name + QLatin1String(suffix); }
    void Move(const SolveFolder& from, const QString& name) const;

    SolveFolder m_folder;
    QString m_name; // Of the deck, without suffix.
    AnalysisTools m_tools;
};
