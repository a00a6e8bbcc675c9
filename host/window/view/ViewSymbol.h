#pragma once

#include <AIS_InteractiveObject.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <vector>

/// A mark of the analysis in the view: an arrow of a force, or the triangle of a support. Its size
/// on the screen does not depend on the zoom.
struct ViewSymbol
{
    enum Kind
    {
        Force,  ///< An arrow that ends at the point.
        Support ///< A triangle whose tip is at the point.
    };

    Kind kind = Force;
    gp_Pnt point;     ///< On the part, in mm.
    gp_Dir direction; ///< Of the force, or away from the part.
};

/// One object for all @p symbols; null if there are none.
Handle(AIS_InteractiveObject) NewSymbols(const std::vector<ViewSymbol>& symbols);
