#pragma once

#include <QDockWidget>
#include <gp_Pnt.hxx>

#include <array>

class PartView;
class QLineEdit;

/// The point under the cursor on the part, and a place to type one.
///
/// The fields follow the cursor until one of them has the focus. Enter in a field takes the three
/// texts as coordinates in millimetres, marks the point in the view, and tells PointEntered(). A
/// text that is no coordinate is told in the message channel and stays as it is.
class PositionDock : public QDockWidget
{
    Q_OBJECT

public:
    /// @p view may be null, where there is no OpenGL; then only typed points come.
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
