#pragma once

#include "PartFaces.h"
#include "ShapeReference.h"

#include <QWidget>
#include <TopoDS_Shape.hxx>

#include <functional>
#include <memory>

class PartModel;
class PartView;
class gp_Pnt;

namespace Ui {
class ShapePicker;
}

/// The bar above the view while the user picks faces and edges. It is hidden otherwise.
///
/// A click on a face or an edge adds it, a second click takes it away. "Done" hands over what was
/// picked; "Cancel", Escape and a change of the part end picking without a result.
class ShapePicker : public QWidget
{
    Q_OBJECT

public:
    /// What is picked.
    struct Choice
    {
        std::vector<FaceReference> faces;
        std::vector<EdgeReference> edges;
    };

    /// What may be picked.
    struct Request
    {
        QString title; ///< What for; begins with "Pick".
        bool hasFaces = true;
        bool hasEdges = true;
        Choice choice;                   ///< Picked already.
        int step = PartFaces::WholePart; ///< Whose faces and edges they are.
        std::function<void(const Choice&)> done;
    };

    /// The model must outlive the picker. @p view may be null; nothing can be picked then.
    ShapePicker(PartModel& model, PartView* view, QWidget* parent);
    ~ShapePicker() override;

    /// Begins; ends a picking that is under way without a result. Posts a message if there is no
    /// view or no shape.
    void Start(const Request& request);
    void Cancel();
    bool IsActive() const { return m_isActive; }

    /// The faces and edges that @p choice means in the part of now, as one shape; null if nothing
    /// is found. References that are not found are left out.
    static TopoDS_Shape ShapeOf(const PartModel& model, const Choice& choice,
                                int step = PartFaces::WholePart);

Q_SIGNALS:
    /// Picking has ended; the view shows the part again.
    void Ended();

private:
    void Toggle(const TopoDS_Shape& shape, const gp_Pnt& point);
    void Finish();
    void End();
    void Clear();
    void ShowChoice();

    PartModel& m_model;
    PartView* m_view;
    std::unique_ptr<Ui::ShapePicker> m_ui;
    Request m_request;
    bool m_isActive = false;
};
