#include "PartPanel.h"

#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartView.h"
#include "ShapeMeasures.h"
#include "ShapePicture.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTime>
#include <QVBoxLayout>
#include <TopoDS_Shape.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr int ProgressDelay = 200; // ms

constexpr double CubicMillimetresPerCubicCentimetre = 1e3;
constexpr double SquareMillimetresPerSquareCentimetre = 1e2;

// Of a bounding box or a centre: both have tiny rests at 0.
QString LengthText(double millimetres)
{
    const double rounded = double(qRound64(millimetres * 1e3)) / 1e3;
    return ShortText(rounded);
}

// Without the tiny rests of a symmetrical part.
QString InertiaText(double moment, double largest)
{
    constexpr double Tiny = 1e-9;
    return ShortText(std::abs(moment) < Tiny * largest ? 0.0 : moment);
}

/// Holds the measures. Its height does not depend on their texts, so that the view keeps its own.
class MeasureArea : public QScrollArea
{
public:
    explicit MeasureArea(QWidget* measures)
    {
        setObjectName(QStringLiteral("measureArea"));
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        // Where the screen is low.
        constexpr int LeastLines = 3;
        setMinimumHeight(LeastLines * fontMetrics().lineSpacing());
        // With a second line of the status.
        m_height = measures->sizeHint().height() + fontMetrics().lineSpacing();
        setWidget(measures);
    }

    QSize sizeHint() const override { return {QScrollArea::sizeHint().width(), m_height}; }

private:
    int m_height;
};

// In the columns 0 and 1, or 2 and 3.
QLabel* AddMeasure(QGridLayout& grid, int row, int column, const QString& caption, const char* name)
{
    auto* const label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(new QLabel(caption), row, column);
    grid.addWidget(label, row, column + 1);
    return label;
}

} // namespace

PartPanel::PartPanel(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("shapeSummary"));

    auto* const measures = new QWidget;
    FillMeasures(*new QGridLayout(measures));
    auto* const area = new MeasureArea(measures);
    area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_layout->addWidget(area);
    m_progressRow = NewProgressRow();
    m_layout->addWidget(m_progressRow);
    const QString reason = PartView::UnavailableReason();
    if (reason.isEmpty()) {
        m_view = new PartView(this);
        m_layout->insertWidget(0, m_view, 1);
        connect(m_view, &PartView::Failed, this, &PartPanel::UsePicture);
    } else {
        UsePicture(reason);
    }
    Clear();
}

PartPanel::~PartPanel() = default;

void PartPanel::FillMeasures(QGridLayout& grid)
{
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setColumnStretch(3, 1);
    constexpr int WholeRow = -1;
    m_status = AddMeasure(grid, 0, 0, tr("Status"), "label_Status");
    m_status->setWordWrap(true);
    grid.addWidget(m_status, 0, 1, 1, WholeRow);
    m_volume = AddMeasure(grid, 1, 0, tr("Volume"), "label_Volume");
    m_area = AddMeasure(grid, 2, 0, tr("Surface"), "label_Area");
    m_mass = AddMeasure(grid, 3, 0, tr("Mass"), "label_Mass");
    m_size = AddMeasure(grid, 1, 2, tr("Bounding box"), "label_BoundingBox");
    m_position = AddMeasure(grid, 2, 2, tr("From, to"), "label_BoundingBoxPosition");
    m_centre = AddMeasure(grid, 3, 2, tr("Centre of mass"), "label_CentreOfMass");
    m_inertia = AddMeasure(grid, 4, 2, tr("Inertia"), "label_Inertia");

    m_overlaps = new QLabel;
    m_overlaps->setObjectName(QStringLiteral("label_Overlaps"));
    m_overlaps->setWordWrap(true);
    m_overlaps->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(m_overlaps, 5, 0, 1, WholeRow);
    m_overlaps->hide();
}

QWidget* PartPanel::NewProgressRow()
{
    auto* const row = new QWidget(this);
    m_progress = new QLabel(row);
    m_progress->setObjectName(QStringLiteral("label_Progress"));
    auto* const cancel = new QPushButton(tr("Cancel"), row);
    cancel->setObjectName(QStringLiteral("pushButton_CancelBuild"));
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_progress, 1);
    layout->addWidget(cancel);
    // The view does not change its height with each build.
    QSizePolicy policy = row->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    row->setSizePolicy(policy);
    row->hide();

    // Belongs to the row: while that is hidden, Escape is free for others.
    auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), row);
    connect(escape, &QShortcut::activated, this, &PartPanel::CancelWanted);
    connect(escape, &QShortcut::activatedAmbiguously, this, &PartPanel::CancelWanted);
    connect(cancel, &QPushButton::clicked, this, &PartPanel::CancelWanted);

    m_progressDelay.setSingleShot(true);
    m_progressDelay.setInterval(ProgressDelay);
    connect(&m_progressDelay, &QTimer::timeout, row, &QWidget::show);
    return row;
}

void PartPanel::ShowProgress(const QString& text)
{
    m_progress->setText(text);
    if (m_progressRow->isHidden() && !m_progressDelay.isActive())
        m_progressDelay.start();
}

void PartPanel::EndProgress()
{
    m_progressDelay.stop();
    m_progressRow->hide();
}

void PartPanel::UsePicture(const QString& reason)
{
    if (m_view != nullptr)
        m_view->hide();
    m_picture = new ShapePicture(this);
    const int place = m_view != nullptr ? m_layout->indexOf(m_view) : 0;
    m_layout->insertWidget(place, m_picture, 1);
    m_warning = tr("The part is shown as a line drawing: %1").arg(reason);
    Q_EMIT LinesWanted();
}

void PartPanel::Show(const TopoDS_Shape& shape, const LineDrawing& lines)
{
    if (m_view != nullptr)
        m_view->ShowShape(shape);
    if (m_picture != nullptr)
        m_picture->SetLines(lines);
    if (m_warning.isEmpty() || shape.IsNull())
        return;
    PostMessageToChannel(WarningLevel, m_warning);
    m_warning.clear();
}

void PartPanel::AddBar(QWidget* bar)
{
    m_layout->insertWidget(0, bar);
}

void PartPanel::ShowShape(const TopoDS_Shape& shape, const LineDrawing& lines,
                          const ShapeMeasures& measures, double density)
{
    const std::array<double, 6>& box = measures.boundingBox;
    m_volume->setText(
        tr("%1 cm³").arg(ShortText(measures.volume / CubicMillimetresPerCubicCentimetre)));
    m_area->setText(
        tr("%1 cm²").arg(ShortText(measures.area / SquareMillimetresPerSquareCentimetre)));
    m_mass->setText(tr("%1 kg").arg(ShortText(measures.Mass(density))));
    ShowInertia(measures, density);
    m_size->setText(tr("%1 × %2 × %3 mm")
                        .arg(LengthText(box[3] - box[0]), LengthText(box[4] - box[1]),
                             LengthText(box[5] - box[2])));
    m_position->setText(tr("(%1, %2, %3), (%4, %5, %6) mm")
                            .arg(LengthText(box[0]), LengthText(box[1]), LengthText(box[2]),
                                 LengthText(box[3]), LengthText(box[4]), LengthText(box[5])));
    ShowOverlaps(measures.overlaps.Warning());
    Show(shape, lines);
    m_builtAt = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    m_status->setText(tr("Built at %1").arg(m_builtAt));
}

void PartPanel::ShowInertia(const ShapeMeasures& measures, double density)
{
    const auto& [x, y, z] = measures.centre;
    m_centre->setText(tr("(%1, %2, %3) mm").arg(LengthText(x), LengthText(y), LengthText(z)));
    const std::array<double, 6> inertia = measures.Inertia(density);
    const double largest = *std::max_element(inertia.begin(), inertia.begin() + 3);
    std::array<QString, 6> texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = InertiaText(inertia[i], largest);
    m_inertia->setText(tr("Ixx %1, Iyy %2, Izz %3 kg·mm²").arg(texts[0], texts[1], texts[2]));
    m_inertia->setToolTip(
        tr("Moments of inertia about axes through the centre of mass, parallel to x, y and z.\n"
           "Products of inertia ∫xy dm, ∫xz dm, ∫yz dm about the same axes: %1, %2, %3 kg·mm²")
            .arg(texts[3], texts[4], texts[5]));
}

void PartPanel::ShowOverlaps(const QString& warning)
{
    m_overlaps->setText(warning);
    m_overlaps->setVisible(!warning.isEmpty());
}

void PartPanel::ShowFailure(const QString& reason)
{
    const QString shown = m_builtAt.isEmpty()
                              ? tr("The part has no earlier shape.")
                              : tr("Showing the last valid shape, built at %1.").arg(m_builtAt);
    m_status->setText(tr("Not built: %1\n%2").arg(reason, shown));
}

void PartPanel::Clear()
{
    Show({}, {});
    m_builtAt.clear();
    m_status->setText(tr("The part has no shape yet"));
    for (QLabel* const label : {m_volume, m_area, m_mass, m_centre, m_inertia, m_size, m_position})
        label->setText(tr("none"));
    m_inertia->setToolTip({});
    ShowOverlaps({});
}
