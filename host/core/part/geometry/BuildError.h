#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QString>

/// Why a part cannot be built: one line.
class BuildError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(BuildError)

public:
    using HostError::HostError;
};

/// Why one feature of a part cannot be built. The text names the feature and the cause.
class FeatureError : public BuildError
{
public:
    FeatureError(const QString& feature, const QString& cause)
        : BuildError(QStringLiteral("%1: %2").arg(feature.simplified(), cause))
        , m_feature(feature)
        , m_cause(cause)
    {
    }

    const QString& FeatureName() const { return m_feature; }
    const QString& Cause() const { return m_cause; } ///< Without the feature's name.

private:
    QString m_feature;
    QString m_cause;
};
