#pragma once

#include "Feature.h"
#include "ShapeReference.h"

#include <QSet>

/// Makes names of faces follow a feature that is renamed.
///
/// Names of features may contain full stops and slashes, so that only the list of all features
/// tells where one ends.
class FeatureRename
{
public:
    /// @p features are the names before the change, with @p former among them.
    FeatureRename(QSet<QString> features, QString former, QString name);

    /// @p faceName with the new name of the feature. Text that is not a name of a face stays.
    QString Applied(const QString& faceName) const;
    FaceReference Applied(FaceReference reference) const;
    EdgeReference Applied(EdgeReference reference) const;
    /// @p user with the new name in its inputs and references.
    Feature Applied(Feature user) const;

private:
    bool Split(const QString& path, QStringList& features) const;

    QSet<QString> m_features;
    QString m_former;
    QString m_name;
};
