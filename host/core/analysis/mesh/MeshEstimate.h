#pragma once

#include <QCoreApplication>
#include <QString>

/// How many degrees of freedom a mesh will have, before it is made. Local refinement comes on top.
class MeshEstimate
{
    Q_DECLARE_TR_FUNCTIONS(MeshEstimate)

public:
    /// A mesh of solids; @p volume is in mm3.
    static MeshEstimate OfSolids(double volume);
    /// A mesh of shells; @p area is that of their faces, in mm2.
    static MeshEstimate OfShells(double area);

    /// With elements of @p size mm.
    double Elements(double size) const;
    double Freedoms(double size) const;

    /// Why a mesh of this size is not made, in one line that names a size that would do; empty if
    /// it has at most @p maximum degrees of freedom.
    QString Problem(double size, int maximum) const;
    /// The same for a mesh that was made with @p freedoms degrees of freedom.
    QString Problem(double size, int maximum, double freedoms) const;

private:
    MeshEstimate(int dimension, double elementsPerCell, double freedomsPerElement, double content);

    int m_dimension;
    double m_elementsPerCell; // A cell is a cube or a square with sides of the size.
    double m_freedomsPerElement;
    double m_content;
};
