#include "PositionDock.h"

#include "Limits.h"
#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartView.h"
#include "PosInputDlg.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

// On the screen a point is never known to less than a thousandth; the rest is noise, as in -1e-15.
QString CoordinateText(double millimetres)
{
    const double rounded = std::round(millimetres * 1e3) / 1e3;
    return ShortText(rounded == 0.0 ? 0.0 : rounded);
}

} // namespace

PositionDock::PositionDock(PartView* view, QWidget* parent)
    : QDockWidget(tr("Position"), parent)
    , m_view(view)
{
    setObjectName(QStringLiteral("positionDock"));
    // The form takes its height at the top; docks in tabs beside it may be higher.
    auto* const centre = new QWidget(this);
    auto* const layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const input = new PosInputDlg(centre);
    layout->addWidget(input);
    layout->addStretch();
    setWidget(centre);

    m_fields = {input->ui.lineEdit, input->ui.lineEdit_2, input->ui.lineEdit_3};
    for (QLineEdit* const field : m_fields)
        connect(field, &QLineEdit::returnPressed, this, &PositionDock::Enter);
    if (m_view == nullptr)
        return;
    connect(m_view, &PartView::PointMoved, this, [this](const gp_Pnt& point) {
        Fill({CoordinateText(point.X()), CoordinateText(point.Y()), CoordinateText(point.Z())});
    });
    connect(m_view, &PartView::PointLost, this, [this] {
        Fill({QString(), QString(), QString()});
    });
}

PositionDock::~PositionDock() = default;

void PositionDock::Fill(const QStringList& texts)
{
    const bool isTyping = std::any_of(m_fields.begin(), m_fields.end(),
                                      [](const QLineEdit* field) { return field->hasFocus(); });
    if (isTyping)
        return;
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(texts[int(i)]);
}

void PositionDock::Enter()
{
    gp_XYZ point;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        bool isNumber = false;
        const QString text = m_fields[i]->text();
        const double value = text.toDouble(&isNumber);
        // Also refuses what is not a number to the arithmetic either.
        if (!isNumber || !(std::abs(value) <= MaximumLength)) {
            PostMessageToChannel(
                ErrorLevel, tr("Position: %1 is \"%2\", not a number from %3 to %4")
                                .arg(QLatin1Char("xyz"[i]))
                                .arg(text, ShortText(-MaximumLength), ShortText(MaximumLength)));
            m_fields[i]->setFocus();
            m_fields[i]->selectAll();
            return;
        }
        point.SetCoord(int(i) + 1, value);
    }
    if (m_view != nullptr)
        m_view->ShowPoint(point);
    Q_EMIT PointEntered(point);
}
