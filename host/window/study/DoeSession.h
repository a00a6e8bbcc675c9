#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class DOEDlg;
class DesignModel;
class QTableWidget;

/// What a host does around one DOE dialog, so that a chosen run gives a whole part and no samples
/// are lost.
///
///     DOEDlg dialog(window);
///     DoeSession session(dialog, design);
///     dialog.exec();
///
/// - "Generate" sets every parameter outside the run to 0. The session gives those that are not
///   ticked their values of the design, settles the expressions, and says so once in the message
///   channel. A ticked parameter with an expression keeps the run's value.
/// - The dialog pairs its ticks with the registry by position; the session pairs them by name.
/// - "Set Array" of a parameter without samples starts with a range around its value. Samples that
///   the sampling dialog cannot show are kept if its OK changed nothing.
class DoeSession : public QObject
{
    Q_OBJECT

public:
    /// To be constructed before the dialog is shown; dialog and design must outlive the session.
    DoeSession(DOEDlg& dialog, DesignModel& design, QObject* parent = nullptr);
    ~DoeSession() override;

Q_SIGNALS:
    /// The user changed ticks or samples, as @p text says.
    void SamplesEdited(const QString& text);

private:
    void ConnectRows(const QTableWidget& table);
    void CompleteRun();

    DOEDlg& m_dialog;
    DesignModel& m_design;
};
