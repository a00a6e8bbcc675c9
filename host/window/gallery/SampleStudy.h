#pragma once

class StudyTable;

/// Fills @p table with the runs of a small study.
void FillSampleStudy(StudyTable& table);
