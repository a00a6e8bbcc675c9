#pragma once

#include <QDockWidget>
#include <gp_Pnt.hxx>

#include <array>

class PartView;
class QLineEdit;

/// The point under the cursor on the part, and a place to type one.
///
/// The fields follow the cursor until one of them has the focus. Enter in a field takes the three
/// texts as coordinates in millimetres, marks the point in the view, and emits PointEntered(). The
/// message channel reports a text that is not a coordinate; the text stays.
class PositionDock : public QDockWidget
{
    Q_OBJECT

public:
    /// @p view is null without OpenGL; the dock then only takes typed points.
    PositionDock(PartView* view, QWidget* parent);
    ~PositionDock() override;

Q_SIGNALS:
    void PointEntered(const gp_Pnt& point);

private:
    void Fill(const QStringList& texts);
    void Enter();

    PartView* m_view;
    std::array<QLineEdit*, 3> m_fields; // Of x, y and z.
};
