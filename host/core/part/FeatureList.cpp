#include "FeatureList.h"

#include "BuildError.h"
#include "FeatureJson.h"
#include "FeatureKind.h"
#include "FeatureRename.h"
#include "JsonSection.h"

#include <QSet>

#include <algorithm>

namespace {

QString InputsText(const FeatureKind& kind)
{
    if (kind.maxInputs == FeatureKind::Unlimited)
        return BuildError::tr("at least %1 inputs").arg(kind.minInputs);
    return kind.maxInputs == 0 ? BuildError::tr("no input") : BuildError::tr("one input");
}

void CheckShape(const Feature& feature)
{
    const FeatureKind& kind = *feature.kind;
    const int inputs = feature.inputs.size();
    const bool tooMany = kind.maxInputs != FeatureKind::Unlimited && inputs > kind.maxInputs;
    if (inputs < kind.minInputs || tooMany)
        throw FeatureError(feature.name,
                           BuildError::tr("a feature of kind \"%1\" takes %2, but has %3.")
                               .arg(kind.word, InputsText(kind))
                               .arg(inputs));
    if (feature.fields.size() != int(kind.fields.size()))
        throw FeatureError(feature.name,
                           BuildError::tr("a feature of kind \"%1\" needs %2 fields, but has %3.")
                               .arg(kind.word)
                               .arg(kind.fields.size())
                               .arg(feature.fields.size()));
    if (kind.readsFile && feature.file.isEmpty())
        throw FeatureError(feature.name,
                           BuildError::tr("the path of the file to import is empty."));
    if (!kind.readsFile && !feature.file.isEmpty())
        throw FeatureError(feature.name,
                           BuildError::tr("a feature of kind \"%1\" has no file.").arg(kind.word));
    if (!kind.isAtEdges && !feature.edges.empty())
        throw FeatureError(feature.name,
                           BuildError::tr("a feature of kind \"%1\" has no edges.").arg(kind.word));
    if (!kind.isAtFace && feature.face)
        throw FeatureError(feature.name,
                           BuildError::tr("a feature of kind \"%1\" has no face.").arg(kind.word));
    if (kind.hasProfile == feature.profile.empty())
        throw FeatureError(feature.name,
                           (kind.hasProfile
                                ? BuildError::tr("a feature of kind \"%1\" needs a profile.")
                                : BuildError::tr("a feature of kind \"%1\" has no profile."))
                               .arg(kind.word));
}

// Inputs are earlier features, each of them once.
void CheckInputs(const FeatureList& list, const Feature& feature, const QSet<QString>& earlier)
{
    QSet<QString> used;
    for (const QString& input : feature.inputs) {
        if (list.Find(input) < 0)
            throw FeatureError(feature.name,
                               BuildError::tr("its input %1 does not exist.").arg(Quoted(input)));
        if (!earlier.contains(input))
            throw FeatureError(
                feature.name,
                BuildError::tr("its input %1 is not an earlier feature.").arg(Quoted(input)));
        if (used.contains(input))
            throw FeatureError(feature.name,
                               BuildError::tr("it has the input %1 twice.").arg(Quoted(input)));
        used.insert(input);
    }
}

} // namespace

int FeatureList::Find(const QString& name) const
{
    const auto found = std::find_if(m_features.begin(), m_features.end(),
                                    [&](const Feature& feature) { return feature.name == name; });
    return found == m_features.end() ? -1 : int(found - m_features.begin());
}

QSet<QString> FeatureList::Names() const
{
    QSet<QString> names;
    for (const Feature& feature : m_features)
        names.insert(feature.name);
    return names;
}

QStringList FeatureList::UsersOf(const QString& name) const
{
    QStringList users;
    for (const Feature& feature : m_features) {
        if (feature.inputs.contains(name))
            users << feature.name;
    }
    return users;
}

QStringList FeatureList::ReferrersOf(const QString& name) const
{
    // Whatever a new name would change. No name has a line break.
    const FeatureRename rename(Names(), name, name + QLatin1Char('\n'));
    QStringList referrers;
    for (const Feature& feature : m_features) {
        if (feature.name != name && rename.Applied(feature) != feature)
            referrers << feature.name;
    }
    return referrers;
}

QString FeatureList::UniqueName(const QString& stem) const
{
    QString name = stem;
    for (int number = 2; Find(name) >= 0; ++number)
        name = QStringLiteral("%1_%2").arg(stem).arg(number);
    return name;
}

void FeatureList::Insert(int index, const Feature& feature)
{
    m_features.insert(m_features.begin() + index, feature);
}

void FeatureList::Replace(int index, const Feature& feature)
{
    Feature& place = m_features.at(std::size_t(index));
    const QString former = place.name;
    const QSet<QString> names = Names();
    place = feature;
    if (former == feature.name || Find(former) >= 0)
        return;
    const FeatureRename rename(names, former, feature.name);
    for (Feature& user : m_features)
        user = rename.Applied(user);
}

void FeatureList::Remove(int index)
{
    m_features.erase(m_features.begin() + index);
}

void FeatureList::Move(int from, int to)
{
    const Feature feature = At(from);
    Remove(from);
    Insert(to, feature);
}

void FeatureList::SetSuppressed(int index, bool suppressed)
{
    m_features.at(std::size_t(index)).suppressed = suppressed;
}

void FeatureList::Check() const
{
    if (Size() > MaximumSize)
        throw BuildError(
            BuildError::tr("Too many features: %1 (maximum %2).").arg(Size()).arg(MaximumSize));
    QSet<QString> earlier;
    for (const Feature& feature : m_features) {
        if (feature.name.trimmed().isEmpty())
            throw FeatureError(QStringLiteral("?"), BuildError::tr("the feature has no name."));
        if (earlier.contains(feature.name))
            throw FeatureError(feature.name, BuildError::tr("another feature has the same name."));
        CheckShape(feature);
        CheckInputs(*this, feature, earlier);
        earlier.insert(feature.name);
    }
}

FeatureList FeatureList::FromJson(const QJsonArray& json)
{
    FeatureList list;
    for (const QJsonValue& value : json)
        list.Append(ReadFeature(value, list.Size() + 1));
    try {
        list.Check();
    } catch (const BuildError& error) {
        throw JsonError(QStringLiteral("features: %1").arg(error.Reason()));
    }
    return list;
}

QJsonArray FeatureList::ToJson() const
{
    QJsonArray json;
    for (const Feature& feature : m_features)
        json.append(::ToJson(feature));
    return json;
}
