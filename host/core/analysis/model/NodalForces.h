#pragma once

#include "ElementShapes.h"

#include <vector>

/// Nodal forces that do the same work as a force spread evenly over an area or a length.
///
/// Their sum is the force, however the mesh is. Source: O. C. Zienkiewicz, R. L. Taylor, The Finite
/// Element Method, 5th edition, volume 1, section 2.3.
class NodalForces
{
public:
    explicit NodalForces(const Mesh& mesh);

    void Add(const Mesh::Facet& facet);
    void Add(const Mesh::Line& line);

    /// Adds @p force, spread over what was added, to the force of each node in @p forces.
    void Spread(const Vector3& force, std::vector<Vector3>& forces) const;

    double Content() const { return m_content; } ///< The area in mm2, or the length in mm.

private:
    void Add(int node, double share);

    const Mesh& m_mesh;
    std::vector<double> m_shares; // By node: the integral of its shape function.
    double m_content = 0.0;
};
