#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QString>

class TopoDS_Shape;

/// Why a STEP file could not be written or read: one line that begins with the file's name.
class StepError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(StepError)

public:
    using HostError::HostError;
};

/// Writes @p shape, in millimetres, to the file at @p path. An existing file is replaced once the
/// new one is complete on the disk. @throws StepError
void WriteStepFile(const TopoDS_Shape& shape, const QString& path);

/// Reads the shape in the file at @p path, in millimetres whatever the file's unit is. Several
/// shapes are returned as a compound. @throws StepError if the file is unreadable, larger than
/// 256 MB or incomplete, or if it contains no shape or one that extends beyond 1000 m.
TopoDS_Shape ReadStepFile(const QString& path);
