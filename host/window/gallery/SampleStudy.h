#pragma once

class QWidget;
class StudyTable;

/// Fills @p table with the runs of the manual's first study.
void FillSampleStudy(StudyTable& table);

/// Sets the plots in @p results as the manual's first study does, and finds the optimum.
void PrepareSamplePlots(const QWidget& results);

/// Adds the run that verifies the optimum.
void AddVerifyingRun(StudyTable& table);
