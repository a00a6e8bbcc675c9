#include "ModelView.h"

#include <QShortcut>

class ModelView::Scene
{
};

QString ModelView::WhyNotAvailable()
{
    return QStringLiteral("not yet");
}

ModelView::ModelView(QWidget* parent)
    : QOpenGLWidget(parent)
    , m_escape(new QShortcut(Qt::Key_Escape, this))
{
    setObjectName(QStringLiteral("modelView"));
}

ModelView::~ModelView() = default;
void ModelView::ShowShape(const TopoDS_Shape&, bool) {}
void ModelView::HighlightShape(const TopoDS_Shape&) {}
void ModelView::ShowPoint(const gp_Pnt&) {}
void ModelView::HidePoint() {}
void ModelView::FitAll() {}
void ModelView::SetStandardView(StandardView) {}
void ModelView::SetDisplayMode(DisplayMode) {}
void ModelView::PickFace() {}
void ModelView::CancelPicking() {}
QSize ModelView::sizeHint() const { return {480, 360}; }
void ModelView::initializeGL() {}
void ModelView::paintGL() {}
void ModelView::resizeGL(int, int) {}
void ModelView::changeEvent(QEvent*) {}
void ModelView::leaveEvent(QEvent*) {}
void ModelView::mouseMoveEvent(QMouseEvent*) {}
void ModelView::mousePressEvent(QMouseEvent*) {}
void ModelView::mouseReleaseEvent(QMouseEvent*) {}
void ModelView::wheelEvent(QWheelEvent*) {}
