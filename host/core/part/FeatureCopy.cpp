#include "FeatureCopy.h"

#include "FeatureJson.h"
#include "FeatureRename.h"
#include "JsonSection.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <vector>

namespace {

const QLatin1String FeaturesKey("features");

// The name without the number that made it free.
QString StemOf(const QString& name)
{
    static const QRegularExpression number(QStringLiteral("_[0-9]+$"));
    const QString stem = QString(name).remove(number);
    return stem.isEmpty() ? name : stem;
}

} // namespace

QString CopiedFeatures(const FeatureList& features, const QStringList& names)
{
    QJsonArray copied;
    for (const Feature& feature : features.Features()) {
        if (names.contains(feature.name))
            copied.append(ToJson(feature));
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{FeaturesKey, copied}}).toJson());
}

FeatureList WithPastedFeatures(FeatureList features, const QString& text, QStringList& names)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject() || !document.object().contains(FeaturesKey))
        throw JsonError(
            JsonError::tr("The clipboard has no copied features. Copy features first."));
    const QJsonArray entries =
        JsonSection(JsonError::tr("the clipboard"), document.object(), {FeaturesKey})
            .Array(FeaturesKey);
    std::vector<Feature> copies;
    for (const QJsonValue& entry : entries)
        copies.push_back(ReadFeature(entry, int(copies.size()) + 1));

    QSet<QString> taken = features.Names();
    for (const Feature& copy : copies)
        taken.insert(copy.name);
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const QString former = copies[i].name;
        if (features.Find(former) >= 0)
            copies[i].name = features.UniqueName(StemOf(former));
        taken.insert(copies[i].name);
        features.Append(copies[i]);
        names << copies[i].name;
        const FeatureRename rename(taken, former, copies[i].name);
        for (std::size_t user = i + 1; user < copies.size(); ++user)
            copies[user] = rename.Applied(copies[user]);
    }
    return features;
}
