#pragma once

#include "AnalysisDefinition.h"
#include "Conditions.h"
#include "FeatureList.h"
#include "HostError.h"
#include "ParameterEntry.h"
#include "PartPlan.h"
#include "SampleList.h"
#include "StudyDefinition.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

#include <utility>
#include <vector>

class QJsonValue;

/// Why a project file cannot be read or written: one line, with the file's name.
class ProjectError : public HostError
{
public:
    using HostError::HostError;
};

/// A project as it stands in a file: parameters, samples, and what the part is made of.
///
/// host/samples/flange.json shows all there is to such a file.
class Project
{
public:
    /// Of the files that are written. Files of older versions are read as well.
    static constexpr int Version = 2;
    static constexpr int MaximumFileSize = 16 * 1024 * 1024; ///< In bytes.
    static constexpr double SteelDensity = 7850.0; ///< For files that give none, in kg/m3.

    /// The path of the sample project, which is built into the program.
    static QString SamplePath();

    /// A project without content, and without a file.
    Project() = default;

    /// Reads the file at @p path. @throws ProjectError
    static Project Load(const QString& path);

    const QString& Path() const { return m_path; } ///< As given to Load() or Save().
    /// Where the project is thought to be; relative paths of imports stay as they are.
    void SetPath(const QString& path) { m_path = path; }
    const QString& Title() const { return m_title; } ///< What the project is called.
    void SetTitle(const QString& title) { m_title = title; }
    /// Of a part without a material, in kg/m3. MaterialLibrary.h knows those of materials.
    double Density() const { return m_density; }
    void SetDensity(double density) { m_density = density; }
    /// Of the part, by its name in the system's or the user's library; empty for none.
    const QString& Material() const { return m_material; }
    void SetMaterial(const QString& material) { m_material = material; }
    const std::vector<ParametersDef>& Parameters() const { return m_parameters; }
    /// For display, by the parameter's name.
    const QHash<QString, QString>& Units() const { return m_units; }
    void SetParameters(const ParameterEntries& entries);
    /// Takes the records that GlobalParaMeterMgr holds now.
    void TakeParameterStore();
    const std::vector<SampleList>& SampleLists() const { return m_samples; }
    void SetSampleLists(std::vector<SampleList> lists) { m_samples = std::move(lists); }
    const FeatureList& Features() const { return m_features; }
    void SetFeatures(const FeatureList& features) { m_features = features; }
    const std::vector<Condition>& Conditions() const { return m_conditions; }
    void SetConditions(std::vector<Condition> conditions) { m_conditions = std::move(conditions); }
    const AnalysisDefinition& Analysis() const { return m_analysis; }
    void SetAnalysis(AnalysisDefinition analysis) { m_analysis = std::move(analysis); }
    const StudyDefinition& Study() const { return m_study; }
    void SetStudy(StudyDefinition study) { m_study = std::move(study); }

    /// Where the files of imports are looked for.
    QString Folder() const;

    /// The features with the values that the store holds now. @throws BuildError if a condition
    /// does not hold, or if there is nothing to build
    PartPlan Plan() const;

    /// Whether a file with @p other would be the same as one with this project.
    bool HasSameContent(const Project& other) const { return ToJson() == other.ToJson(); }

    /// Writes the project to the file at @p path. Path() is @p path from then on; relative paths of
    /// imports follow a change of folder. A project that Load() would refuse is not written, and an
    /// existing file stays until the new one is complete. @throws ProjectError
    void Save(const QString& path);

    /// Replaces the records of GlobalParaMeterMgr by the parameters of this project.
    void FillParameterStore() const;

private:
    void Read(const QJsonValue& json);
    QJsonObject ToJson() const;
    FeatureList FeaturesSeenFrom(const QString& path) const;

    QString m_path;
    QString m_title;
    double m_density = SteelDensity;
    std::vector<ParametersDef> m_parameters;
    QHash<QString, QString> m_units;
    std::vector<SampleList> m_samples;
    FeatureList m_features;
    std::vector<Condition> m_conditions;
    QString m_material;
    AnalysisDefinition m_analysis;
    StudyDefinition m_study;
};
