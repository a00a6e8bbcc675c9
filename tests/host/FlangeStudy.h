#pragma once

#include "Project.h"
#include "TestFiles.h"

#include <QJsonDocument>
#include <QJsonObject>

/// @file
/// A project with a study of four runs.

/// The features and conditions of the sample project, as entries of another one.
inline QByteArray PartOfTheSample()
{
    const QByteArray bytes = ContentOf(Project::SamplePath());
    const QJsonObject sample = QJsonDocument::fromJson(bytes).object();
    const QJsonObject part{{"features", sample["features"]}, {"conditions", sample["conditions"]}};
    return QJsonDocument(part).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

/// A flange of two thicknesses and two bores. @p bores are its samples of the bore.
inline QByteArray Flange(const QByteArray& bores = "[60, 70]", const QByteArray& density = "7850")
{
    return R"({ "version": 1, "density": )" + density + R"(, "parameters": [
        { "name": "outer_diameter", "value": 200 },
        { "name": "bore_diameter", "value": 70 },
        { "name": "thickness", "value": 20 },
        { "name": "bolt_count", "value": 2 },
        { "name": "bolt_hole", "value": 18 },
        { "name": "bolt_circle", "expression": "(outer_diameter + hub_diameter) / 2",
          "expressionParameters": ["outer_diameter", "hub_diameter"] },
        { "name": "hub_diameter", "value": 110 },
        { "name": "hub_height", "expression": "1.5 * thickness",
          "expressionParameters": ["thickness"] },
        { "name": "fillet_radius", "value": 0 }
      ], "samples": [
        { "parameter": "thickness", "min": 16, "max": 20, "delta": 4 },
        { "parameter": "bore_diameter", "values": )" +
           bores + " } ], " + PartOfTheSample() + " }";
}
