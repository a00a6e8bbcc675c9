#include "FeatureRename.h"

#include <QStringList>

FeatureRename::FeatureRename(QSet<QString> features, QString former, QString name)
    : m_features(std::move(features))
    , m_former(std::move(former))
    , m_name(std::move(name))
{
}

QString FeatureRename::Applied(const QString& faceName) const
{
    // The words of faces have no full stop.
    const int stop = faceName.lastIndexOf(QLatin1Char('.'));
    QStringList features;
    if (stop < 0 || !Split(faceName.left(stop), features))
        return faceName;
    for (QString& feature : features) {
        if (feature == m_former)
            feature = m_name;
    }
    return features.join(QLatin1Char('/')) + faceName.mid(stop);
}

FaceReference FeatureRename::Applied(FaceReference reference) const
{
    if (!reference.IsPoint())
        reference.name = Applied(reference.name);
    return reference;
}

EdgeReference FeatureRename::Applied(EdgeReference reference) const
{
    for (FaceReference& face : reference.between)
        face = Applied(face);
    return reference;
}

Feature FeatureRename::Applied(Feature user) const
{
    for (QString& input : user.inputs) {
        if (input == m_former)
            input = m_name;
    }
    for (EdgeReference& edge : user.edges)
        edge = Applied(edge);
    if (user.face)
        user.face = Applied(*user.face);
    return user;
}

// Into names of features, between slashes. The whole first: a name may contain slashes.
bool FeatureRename::Split(const QString& path, QStringList& features) const
{
    if (m_features.contains(path)) {
        features << path;
        return true;
    }
    // From the right: what is left of it has to be a feature, the rest is looked at again.
    for (int slash = path.lastIndexOf(QLatin1Char('/')); slash > 0;
         slash = path.lastIndexOf(QLatin1Char('/'), slash - 1)) {
        if (!m_features.contains(path.left(slash)))
            continue;
        const int count = features.size();
        features << path.left(slash);
        if (Split(path.mid(slash + 1), features))
            return true;
        features = features.mid(0, count);
    }
    return false;
}
