#pragma once

#include "ParameterMap.h"

#include <QObject>
#include <QString>

#include <vector>

class DOEDlg;

/// What a host does around one DOE dialog, so that a chosen run gives a whole part.
///
///     DOEDlg dialog(window);
///     DoeSession session(dialog);
///     connect(&session, &DoeSession::RunReady, window, &MainWindow::Rebuild);
///     dialog.exec();
///
/// "Generate" sets every parameter outside the run to 0. The session remembers all records when it
/// is constructed, gives those that are not ticked back, settles the expressions, says so once in
/// the message channel, and then asks for the rebuild. A ticked parameter with an expression keeps
/// the run's value. The session also brings the dialog's ticks, which the dialog pairs with the
/// registry by position, into line with the registry by name.
class DoeSession : public QObject
{
    Q_OBJECT

public:
    /// To be constructed before the dialog is shown; the dialog must outlive the session.
    explicit DoeSession(DOEDlg& dialog, QObject* parent = nullptr);
    ~DoeSession() override;

    /// What could not be settled after the last run; see EvaluateParameters().
    const std::vector<QString>& Problems() const { return m_problems; }

    /// All records as they were when the session was constructed.
    const ParameterMap& Remembered() const { return m_remembered; }

Q_SIGNALS:
    /// A run stands in the parameter store, complete and settled: the part is to be rebuilt.
    void RunReady();

private:
    void ShowTicksByName();
    void CompleteRun();

    DOEDlg& m_dialog;
    ParameterMap m_remembered;
    std::vector<QString> m_problems;
};
