#include "BodyVolumes.h"

#include "Bodies.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>

double BodyVolumes::Of(const TopoDS_Shape& shape)
{
    double sum = 0.0;
    VisitBodies(shape, [&](const TopoDS_Shape& placed) {
        const TopoDS_Shape body = AtOrigin(placed);
        if (!m_measured.IsBound(body)) {
            GProp_GProps properties;
            BRepGProp::VolumeProperties(body, properties);
            m_measured.Bind(body, properties.Mass());
        }
        sum += m_measured(body);
    });
    return sum;
}
