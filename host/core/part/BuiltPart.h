#pragma once

#include "FaceOrigins.h"
#include "PartPlan.h"

#include <QByteArray>
#include <TopoDS_Shape.hxx>

#include <vector>

/// What a list of features builds.
struct BuiltPart
{
    PartPlan plan;      ///< What it was built from.
    TopoDS_Shape shape; ///< The part: all results that no feature uses. Null if there are none.
    std::vector<TopoDS_Shape> shapes; ///< Of each feature; null where nothing was built.
    std::vector<FaceOrigins> faces;   ///< Of each shape. PartFaces derives the names from them.
    /// Of each shape. Equal keys mean equal shapes; empty where nothing was built.
    std::vector<QByteArray> keys;

    /// The steps that have a shape which no step uses. They make up the part, in this order.
    std::vector<std::size_t> Results() const;
    /// Of each solid of the part, in the order of TopExp::MapShapes(): the step whose result it is
    /// in.
    std::vector<int> StepsOfSolids() const;
    /// Makes the part of the shapes of Results().
    void JoinResults();
};
