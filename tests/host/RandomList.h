#pragma once

#include "FeatureList.h"
#include "NewFeature.h"

#include <array>
#include <random>

inline const std::array<const char*, 7> Primitives = {"box",  "cylinder", "sphere", "torus",
                                                      "cone", "wedge",    "polygon"};

/// A list of primitives, placed at random and then combined. The same @p seed gives the same list.
inline FeatureList RandomList(unsigned seed)
{
    std::mt19937 random(seed);
    const auto number = [&](double least, double greatest) {
        return least + (greatest - least) * (double(random()) / 4294967296.0);
    };
    const auto text = [&](double least, double greatest) {
        return QString::number(number(least, greatest), 'f', 3);
    };
    FeatureList list;
    QStringList loose;
    const auto add = [&](const char* kind, const QStringList& inputs) -> Feature {
        Feature feature(KindOf(kind));
        feature.name = QString("f%1").arg(list.Size());
        feature.inputs = inputs;
        for (const QString& input : inputs)
            loose.removeOne(input);
        loose << feature.name;
        return feature;
    };
    const int primitives = 2 + int(random() % 2);
    for (int i = 0; i < primitives; ++i) {
        Feature feature = add(Primitives[random() % Primitives.size()], {});
        const bool isTorus = feature.kind == &KindOf("torus");
        if (feature.kind == &KindOf("box"))
            for (int side = 0; side < 3; ++side)
                feature.fields[side] = text(5, 20);
        else
            feature.fields[1] = feature.kind == &KindOf("sphere") ? text(-90, 0) : text(1, 9);
        list.Append(feature);
        feature = add("move", {feature.name});
        feature.fields = QStringList({text(-8, 8), text(-8, 8), text(-8, 8)});
        list.Append(feature);
        if (random() % 2 == 0) {
            const bool turn = random() % 2 == 0;
            feature = add(turn ? "rotate" : "mirrorPoint", {feature.name});
            if (turn)
                feature.fields[6] = text(-180, 180);
            list.Append(feature);
        }
        if (random() % 4 == 0) {
            feature = add("polarArray", {feature.name});
            feature.fields[7] = QString::number(2 + random() % 3);
            list.Append(feature);
        }
        // Where a torus meets other bodies the kernel takes many seconds.
        if (isTorus)
            loose.removeLast();
    }
    while (loose.size() > 1 && random() % 5 != 0) {
        Feature feature = add(random() % 2 == 0 ? "fuse" : "cut", {loose[0], loose[1]});
        feature.suppressed = random() % 6 == 0;
        list.Append(feature);
    }
    return list;
}
