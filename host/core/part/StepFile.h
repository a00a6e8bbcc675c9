#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QString>

class TopoDS_Shape;

/// Why a STEP file could not be written or read: one line.
class StepError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(StepError)

public:
    using HostError::HostError;
};

/// Writes @p shape, in millimetres, to the file at @p path. A file of that name is replaced only
/// when the new one is complete. @throws StepError
void WriteStepFile(const TopoDS_Shape& shape, const QString& path);

/// Reads the shape in the file at @p path, in millimetres whatever the file's unit is; several
/// shapes come as a compound. @throws StepError when the file is unreadable, larger than 256 MB or
/// incomplete, when there is no shape in it, or one that reaches farther than 1000 m.
TopoDS_Shape ReadStepFile(const QString& path);
