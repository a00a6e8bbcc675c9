#pragma once

#include "AnalysisStores.h"
#include "Project.h"
#include "sParaArrayData.h"

#include <QObject>

#include <map>
#include <memory>

class AnalysisRecords;
class DesignModel;
class PartModel;

/// The open project: puts a Project into the models and the shared stores, and takes it out of them
/// again.
///
/// Every change of it is a step on the undo stack of the part. Changes of the features go there by
/// themselves; everything else is compared with the step before by TakeChange().
class ProjectSession : public QObject
{
    Q_OBJECT

public:
    /// The models must outlive the session, which rebuilds the part when parameters change.
    ProjectSession(DesignModel& design, PartModel& part, AnalysisRecords& analysis,
                   QObject* parent = nullptr);
    ~ProjectSession() override;

    /// Replaces everything by @p project, whose folder the working directory is. Cannot be undone.
    void Open(const Project& project);

    /// Brings back what a crash has left, as one step.
    void Recover(const Project& project);

    /// The project as it is now, with the path that it was opened with.
    Project Current() const;
    /// Current(), but with the values of a run of the experiments, if the part has these.
    Project Shown() const;
    /// In kg/m3: of the material, or the project's own.
    double Density() const;

    /// Whether Current() differs from what was opened or saved last.
    bool IsChanged() const;
    /// What is in the file now.
    void NoteSaved(const Project& saved);
    /// The project and the files that it refers to are at @p path from now on.
    void MoveTo(const QString& path);

    /// Writes the user's materials, if they are not saved yet, to the working directory.
    void SaveStores() const;

    /// One step: title, density, material and conditions of @p project.
    void SetProperties(const Project& project);
    /// One step, which @p text describes.
    void SetStudy(const StudyDefinition& study, const QString& text);

public Q_SLOTS:
    /// To be called after a change of the models or stores; makes it a step that @p text describes.
    /// Does nothing if nothing has changed.
    void TakeChange(const QString& text);

Q_SIGNALS:
    /// Another project stands in the stores; its part comes next.
    void Opened();
    /// IsChanged() may have another value, or the title has.
    void StateChanged();

private:
    class Step;
    struct State
    {
        Project project;
        std::map<QString, sParaArrayData> samples;
        AnalysisStores stores;
    };
    /// Steps share it: with many parameters it is large.
    using KnownState = std::shared_ptr<const State>;

    State CurrentState() const;
    void Apply(const State& state);
    void FollowStack();
    /// Expressions of the analysis and of the study follow the new name of a parameter.
    void FollowName(const QString& before, const QString& after);

    DesignModel& m_design;
    PartModel& m_part;
    AnalysisRecords& m_analysis;
    Project m_values; // With what no model holds: path, title, density, material, study.
    KnownState m_known = std::make_shared<const State>(); // After the last step.
    Project m_saved;
    AnalysisStores m_savedStores;
    bool m_isOpening = false;
    bool m_isTaking = false;
};
