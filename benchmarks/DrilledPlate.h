#pragma once

#include "FeatureKinds.h"
#include "FeatureList.h"

/// A plate with @p holes, each drilled by three features of its own.
inline FeatureList Drilled(int holes, const QString& lastRadius)
{
    FeatureList list;
    Feature plate(*FeatureKinds::Find(QStringLiteral("box")));
    plate.name = QStringLiteral("plate");
    plate.fields[0] = plate.fields[1] = QStringLiteral("1000");
    list.Append(plate);
    QString body = plate.name;
    for (int hole = 0; hole < holes; ++hole) {
        Feature pin(*FeatureKinds::Find(QStringLiteral("cylinder")));
        pin.name = QStringLiteral("pin%1").arg(hole);
        pin.fields[0] = hole == holes - 1 ? lastRadius : QStringLiteral("8");
        Feature moved(*FeatureKinds::Find(QStringLiteral("move")));
        moved.name = QStringLiteral("moved%1").arg(hole);
        moved.inputs << pin.name;
        moved.fields[0] = QString::number(50 + 100 * (hole % 10));
        moved.fields[1] = QString::number(50 + 100 * (hole / 10));
        Feature cut(*FeatureKinds::Find(QStringLiteral("cut")));
        cut.name = QStringLiteral("hole%1").arg(hole);
        cut.inputs << body << moved.name;
        body = cut.name;
        for (const Feature& feature : {pin, moved, cut})
            list.Append(feature);
    }
    return list;
}
