#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>

class AnalysisRecords;

/// The dialogs of the analysis set-up as they are pictured: filled with samples, not yet shown.
/// Those of properties and materials need SampleAnalysisFiles.
std::unique_ptr<QWidget> PictureOfAnalysisType();
std::unique_ptr<QWidget> PictureOfConstrainEditor();
std::unique_ptr<QWidget> PictureOfFrequencies();
std::unique_ptr<QWidget> PictureOfLoadEditor();
std::unique_ptr<QWidget> PictureOfMaterialEditor();
std::unique_ptr<QWidget> PictureOfMaterialLibrary();
std::unique_ptr<QWidget> PictureOfMeshSize();
std::unique_ptr<QWidget> PictureOfPropertyEditor();
std::unique_ptr<QWidget> PictureOfPropertyManager();
std::unique_ptr<QWidget> PictureOfSubShapeMesh();

/// Adds sample records to @p model.
void FillSampleAnalysis(AnalysisRecords& model);

/// While it lives, the working directory is an empty one of its own but for the system library, and
/// the stores hold its materials and sample properties; afterwards the stores are empty.
class SampleAnalysisFiles
{
public:
    SampleAnalysisFiles();
    ~SampleAnalysisFiles();
    Q_DISABLE_COPY(SampleAnalysisFiles)

private:
    QString m_before;
    QTemporaryDir m_directory;
};
