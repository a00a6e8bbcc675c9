#pragma once

#include <QString>
#include <QTemporaryDir>

class AnalysisRecords;

/// Adds sample records to @p records.
void FillSampleAnalysis(AnalysisRecords& records);

/// While it lives, the working directory is a temporary one that contains only the system library,
/// and the stores hold the materials of this library and sample properties. Afterwards the stores
/// are empty.
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
