#include "ViewConversions.h"

V3d_TypeOfOrientation Orientation(PartView::StandardView view)
{
    switch (view) {
    case PartView::FrontView:
        return V3d_TypeOfOrientation_Zup_Front;
    case PartView::BackView:
        return V3d_TypeOfOrientation_Zup_Back;
    case PartView::LeftView:
        return V3d_TypeOfOrientation_Zup_Left;
    case PartView::RightView:
        return V3d_TypeOfOrientation_Zup_Right;
    case PartView::TopView:
        return V3d_TypeOfOrientation_Zup_Top;
    case PartView::BottomView:
        return V3d_TypeOfOrientation_Zup_Bottom;
    case PartView::IsometricView:
        break;
    }
    return V3d_TypeOfOrientation_Zup_AxoRight;
}

Aspect_VKeyMouse MouseButtons(Qt::MouseButtons buttons)
{
    Aspect_VKeyMouse keys = Aspect_VKeyMouse_NONE;
    if (buttons.testFlag(Qt::LeftButton))
        keys |= Aspect_VKeyMouse_LeftButton;
    if (buttons.testFlag(Qt::MiddleButton))
        keys |= Aspect_VKeyMouse_MiddleButton;
    if (buttons.testFlag(Qt::RightButton))
        keys |= Aspect_VKeyMouse_RightButton;
    return keys;
}

Aspect_VKeyFlags KeyFlags(Qt::KeyboardModifiers modifiers)
{
    return modifiers.testFlag(Qt::ShiftModifier) ? Aspect_VKeyFlags_SHIFT : Aspect_VKeyFlags_NONE;
}

gp_XYZ SectionNormal(PartView::Section section)
{
    return gp_XYZ(section == PartView::SectionX ? 1.0 : 0.0,
                  section == PartView::SectionY ? 1.0 : 0.0,
                  section == PartView::SectionZ ? 1.0 : 0.0);
}
