#pragma once

#include <QObject>
#include <QStringList>

class AnalysisRecords;
class DesignModel;
class PartModel;
class QAction;
class QMenu;
class QWidget;

/// Runs the dialogs of the parameters and of the design of experiments, and removes parameters with
/// what uses them.
class DesignActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs belong to @p window, which also owns this object; the models must outlive it. The
    /// dialog of the experiments keeps clear of @p view where there is room.
    DesignActions(DesignModel& design, PartModel& part, AnalysisRecords& analysis, QWidget* view,
                  QWidget* window);
    ~DesignActions() override;

    void FillMenu(QMenu& menu);

public Q_SLOTS:
    /// Removes parameters and their samples. If others use them, asks whether these are to go, too.
    void RemoveParameters(const QStringList& names);
    void BackToDesign();

Q_SIGNALS:
    /// The user changed the samples or ticks of the experiments, as @p text says.
    void SamplesEdited(const QString& text);

private:
    void EditParameters();
    void DesignExperiments();
    /// Expressions of features and conditions follow the new name of a parameter.
    void FollowName(const QString& before, const QString& after);

    DesignModel& m_design;
    PartModel& m_part;
    AnalysisRecords& m_analysis;
    QWidget* m_view;
    QWidget* m_window;
    QAction* m_back;
};
