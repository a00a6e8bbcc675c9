#pragma once

#include "ResultObject.h"
#include "SolveReport.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class PartView;

namespace Ui {
class ResultDisplay;
}

/// Chooses what the view shows of an analysis, and how: the mesh, displacements or stresses, their
/// scale, and an animation.
class ResultDisplay : public QWidget
{
    Q_OBJECT

public:
    /// @p view may be null; this then says why nothing is shown.
    ResultDisplay(PartView* view, QWidget* parent);
    ~ResultDisplay() override;

    /// Shows @p report; null for none.
    void SetReport(const std::shared_ptr<const SolveReport>& report);
    /// Shows another mode of the report, counted from 0.
    void SetMode(int mode);
    /// Shows the part.
    void ShowPart();

private:
    /// What the view shows.
    enum Content
    {
        Part,
        Mesh,
        Displacement,
        Stress
    };

    void Fill();
    Content Current() const;
    void Choose(Content content);
    void Refresh();
    void ShowScale();
    void SetAnimated(bool isAnimated);
    void Animate();
    void ExportPicture();
    ViewResult ResultOf(Content content) const;
    double Scale() const;
    QString ValueText(Content content) const;

    std::unique_ptr<Ui::ResultDisplay> m_ui;
    QPointer<PartView> m_view;
    std::shared_ptr<const SolveReport> m_report;
    int m_mode = 0;
    Handle(ResultObject) m_shown; // Null while the part is shown.
    double m_greatestMove = 0.0;  // Of what is shown.
    QTimer m_clock;
    int m_frame = 0;
};
