#pragma once

#include "HostError.h"

#include <QCoreApplication>

/// Why a result of the solver cannot be used: one line.
class ResultError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(ResultError)

public:
    using HostError::HostError;
};
