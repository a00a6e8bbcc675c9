#pragma once

#include "Mesh.h"

#include <array>
#include <cmath>
#include <utility>
#include <vector>

// Shape functions of the second-order elements, with the nodes in the order of Mesh. Source:
// O. C. Zienkiewicz, R. L. Taylor, The Finite Element Method, 5th edition, volume 1, chapter 8.

/// The corners between which each mid-node of a tetrahedron lies.
constexpr std::array<std::pair<std::size_t, std::size_t>, 6> TetrahedronEdges = {
    {{0, 1}, {1, 2}, {2, 0}, {0, 3}, {1, 3}, {2, 3}}};

/// Derivatives by r, s and t, node by node. Corner 1 is at the origin, the others are at 1 on the
/// axes r, s, t.
using TetrahedronSlopes = std::array<Vector3, 10>;
TetrahedronSlopes SlopesOfTetrahedron(const Vector3& place);

/// The shape functions of a face and their derivatives by r and s. A triangle has corner 1 at the
/// origin, a quadrilateral reaches from -1 to 1.
struct FacetShape
{
    std::array<double, 8> values{};
    std::array<std::array<double, 2>, 8> slopes{};
};
FacetShape ShapeOfFacet(int corners, double r, double s);

/// A point of numerical integration.
struct FacetPoint
{
    FacetShape shape;
    double weight = 0.0;
};
/// Exact for polynomials of degree 5.
const std::vector<FacetPoint>& FacetPoints(int corners);

/// The normal of a face at a point; its length is the area per unit of r and s.
Vector3 FacetNormal(const Mesh& mesh, const Mesh::Facet& facet, const FacetShape& shape);

inline Vector3 operator+(const Vector3& a, const Vector3& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

inline Vector3 operator-(const Vector3& a, const Vector3& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

inline Vector3 operator*(double factor, const Vector3& a)
{
    return {factor * a[0], factor * a[1], factor * a[2]};
}

inline double Dot(const Vector3& a, const Vector3& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline Vector3 Cross(const Vector3& a, const Vector3& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline double Length(const Vector3& a)
{
    return std::sqrt(Dot(a, a));
}
