#pragma once

#include "PartView.h"

#include <Aspect_VKeyFlags.hxx>
#include <Graphic3d_Vec2.hxx>
#include <QPoint>
#include <V3d_TypeOfOrientation.hxx>
#include <gp_XYZ.hxx>

// From the toolkit's terms and those of PartView to the kernel's.

V3d_TypeOfOrientation Orientation(PartView::StandardView view);
Aspect_VKeyMouse MouseButtons(Qt::MouseButtons buttons);
Aspect_VKeyFlags KeyFlags(Qt::KeyboardModifiers modifiers);
/// Points to the half that is cut away; zero for no section.
gp_XYZ SectionNormal(PartView::Section section);

inline Graphic3d_Vec2i Vector(const QPoint& point)
{
    return Graphic3d_Vec2i(point.x(), point.y());
}
