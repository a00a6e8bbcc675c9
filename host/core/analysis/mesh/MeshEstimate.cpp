#include "MeshEstimate.h"

#include "NumberTexts.h"

#include <cmath>

namespace {

// Two significant digits, rounded up: the next mesh is to fit.
double RoundedUp(double size)
{
    const double unit = std::pow(10.0, std::floor(std::log10(size)) - 1.0);
    return std::ceil(size / unit) * unit;
}

} // namespace

MeshEstimate::MeshEstimate(int dimension, double elementsPerCell, double freedomsPerElement,
                           double content)
    : m_dimension(dimension)
    , m_elementsPerCell(elementsPerCell)
    , m_freedomsPerElement(freedomsPerElement)
    , m_content(content)
{
}

// The factors were measured on meshes of the sample flange and of plates.
MeshEstimate MeshEstimate::OfSolids(double volume)
{
    return {3, 5.3, 5.2, volume};
}

MeshEstimate MeshEstimate::OfShells(double area)
{
    return {2, 1.2, 19.0, area};
}

double MeshEstimate::Elements(double size) const
{
    return m_elementsPerCell * m_content / std::pow(size, m_dimension);
}

double MeshEstimate::Freedoms(double size) const
{
    return Elements(size) * m_freedomsPerElement;
}

QString MeshEstimate::Problem(double size, int maximum) const
{
    return Problem(size, maximum, Freedoms(size));
}

QString MeshEstimate::Problem(double size, int maximum, double freedoms) const
{
    if (freedoms <= maximum)
        return {};
    const double fitting = RoundedUp(size * std::pow(freedoms / maximum, 1.0 / m_dimension));
    return tr("The mesh of size %1 mm would have about %2 degrees of freedom; the limit is %3. A "
              "mesh size of %4 mm would fit.")
        .arg(ShortText(size), QString::number(freedoms, 'g', 2), QString::number(maximum),
             ShortText(fitting));
}
