#pragma once

#include "AnalysisPlan.h"

/// Pieces of analysis plans for tests. The material is steel.

inline Material Steel()
{
    return {"Steel", 2.1e11, 0.3, 7850.0};
}

inline PlannedProperty SteelSolid()
{
    return {{}, Steel(), 0.0, {}};
}

inline PlannedProperty SteelShell(const QString& name, double thickness, std::vector<int> faces)
{
    return {name, Steel(), thickness, std::move(faces)};
}

constexpr std::array<bool, 6> AllFreedoms = {true, true, true, true, true, true};
constexpr std::array<bool, 6> Displacements = {true, true, true, false, false, false};

inline PlannedConstraint OnFaces(const QString& name, std::array<bool, 6> held,
                                 std::vector<int> faces)
{
    return {name, held, {std::move(faces), {}}};
}

inline PlannedConstraint OnEdges(const QString& name, std::array<bool, 6> held,
                                 std::vector<int> edges)
{
    return {name, held, {{}, std::move(edges)}};
}

inline PlannedLoad LoadOnFaces(const QString& name, const Vector3& force, std::vector<int> faces)
{
    return {name, force, {std::move(faces), {}}};
}

inline PlannedLoad LoadOnEdges(const QString& name, const Vector3& force, std::vector<int> edges)
{
    return {name, force, {{}, std::move(edges)}};
}
