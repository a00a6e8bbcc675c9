#pragma once

#include "HostError.h"

#include <QCoreApplication>

/// Why a STEP file could not be written or read: one line. Where it leaves StepFile.h, it begins
/// with the file's name.
class StepError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(StepError)

public:
    using HostError::HostError;
};
