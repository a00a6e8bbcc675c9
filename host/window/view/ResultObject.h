#pragma once

#include "MeshSkin.h"

#include <AIS_InteractiveObject.hxx>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class AIS_ColorScale;
class Graphic3d_TextureMap;

/// What a view shows of an analysis.
struct ViewResult
{
    std::shared_ptr<const MeshSkin> skin; ///< Not empty.
    std::vector<MeshSkin::Point> moves; ///< Of each point, at the scale 1; empty if nothing moves.
    std::vector<float> values;          ///< Of each point; empty to show the mesh in one colour.
    double greatest = 1.0;              ///< Of the legend, which begins at 0; above 0.
    QString title;                      ///< Of the legend, with the unit.
    bool hasLines = true;               ///< Whether the edges of the elements are drawn.
    std::optional<std::size_t> marked;  ///< A point to be marked.
};

/// Draws a mesh: deformed, coloured by values with a legend, with the edges of its elements.
///
/// The kernel's own presentation of meshes asks for each element and each colour one by one, and is
/// too slow to be animated.
class ResultObject : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(ResultObject, AIS_InteractiveObject)

public:
    /// @p pixelRatio is that of the screen.
    ResultObject(ViewResult result, double pixelRatio);

    /// Of the moves. The view has to be told.
    void SetScale(double scale) { m_scale = scale; }

    bool AcceptDisplayMode(int mode) const override { return mode == 0; }

private:
    void Compute(const Handle(PrsMgr_PresentationManager) & manager,
                 const Handle(Prs3d_Presentation) & presentation, int mode) override;
    void ComputeSelection(const Handle(SelectMgr_Selection) & selection, int mode) override;

    void MakeLegend(double pixelRatio);
    void Move();
    void DrawFaces(const Handle(Prs3d_Presentation) & presentation) const;
    void DrawLines(const Handle(Prs3d_Presentation) & presentation) const;
    void DrawMark(const Handle(Prs3d_Presentation) & presentation) const;

    ViewResult m_result;
    double m_scale = 0.0;
    std::vector<MeshSkin::Point> m_points; // Where they are drawn.
    Handle(Graphic3d_TextureMap) m_colours;
};
