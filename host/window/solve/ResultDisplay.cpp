#include "ResultDisplay.h"

#include "ui_ResultDisplay.h"

#include "Angles.h"
#include "ElementShapes.h"
#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartView.h"
#include "ResultTable.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int FrameTime = 40; // ms
constexpr int FramesPerPeriod = 40;
constexpr double Percent = 0.01;
constexpr int MaximumPictureSize = 256 * 1024 * 1024;

Vector3 Exact(const MeshSkin::Point& point)
{
    return {double(point[0]), double(point[1]), double(point[2])};
}

// The diagonal of its box.
double SizeOf(const MeshSkin& skin)
{
    Vector3 least = Exact(skin.points.front());
    Vector3 greatest = least;
    for (const MeshSkin::Point& point : skin.points) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            least[axis] = std::min(least[axis], double(point[axis]));
            greatest[axis] = std::max(greatest[axis], double(point[axis]));
        }
    }
    return Length(greatest - least);
}

std::size_t NearestPoint(const MeshSkin& skin, const Vector3& place)
{
    std::size_t nearest = 0;
    double distance = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < skin.points.size(); ++i) {
        const double other = Length(Exact(skin.points[i]) - place);
        if (other < distance) {
            distance = other;
            nearest = i;
        }
    }
    return nearest;
}

QString FactorText(double factor)
{
    constexpr double Large = 10.0;
    return factor < Large ? QString::number(factor, 'g', 3) : QString::number(factor, 'f', 0);
}

} // namespace

ResultDisplay::ResultDisplay(PartView* view, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ResultDisplay>())
    , m_view(view)
{
    m_ui->setupUi(this);
    m_clock.setInterval(FrameTime);
    connect(&m_clock, &QTimer::timeout, this, &ResultDisplay::Animate);
    connect(m_ui->showBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ResultDisplay::Refresh);
    connect(m_ui->linesBox, &QCheckBox::toggled, this, &ResultDisplay::Refresh);
    connect(m_ui->scaleSpin, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ResultDisplay::ShowScale);
    connect(m_ui->animateButton, &QPushButton::toggled, this, &ResultDisplay::SetAnimated);
    connect(m_ui->pictureButton, &QPushButton::clicked, this, &ResultDisplay::ExportPicture);
    if (view != nullptr) {
        connect(view, &PartView::ResultHidden, this, &ResultDisplay::ShowPart);
        connect(view, &PartView::Failed, this, [this] {
            m_view = nullptr;
            SetReport(m_report);
        });
    }
    SetReport({});
}

ResultDisplay::~ResultDisplay() = default;

void ResultDisplay::SetReport(const std::shared_ptr<const SolveReport>& report)
{
    ShowPart();
    m_report = report;
    m_mode = 0;
    Fill();
    if (report != nullptr && report->kind != SolveKind::Mesh)
        Choose(report->moves.empty() ? Mesh : Displacement);
    else if (report != nullptr)
        Choose(Mesh);
    Refresh();
}

void ResultDisplay::Fill()
{
    const QSignalBlocker blocked(m_ui->showBox);
    m_ui->showBox->clear();
    m_ui->showBox->addItem(tr("Part"), Part);
    const bool canShow = m_view != nullptr && m_report != nullptr && !m_report->skin.points.empty();
    setEnabled(canShow);
    if (!canShow)
        return;
    m_ui->showBox->addItem(tr("Mesh"), Mesh);
    if (!m_report->moves.empty())
        m_ui->showBox->addItem(tr("Displacement"), Displacement);
    if (!m_report->stresses.empty())
        m_ui->showBox->addItem(tr("Von Mises stress"), Stress);
}

ResultDisplay::Content ResultDisplay::Current() const
{
    return Content(m_ui->showBox->currentData().toInt());
}

void ResultDisplay::Choose(Content content)
{
    const QSignalBlocker blocked(m_ui->showBox);
    m_ui->showBox->setCurrentIndex(std::max(0, m_ui->showBox->findData(content)));
}

void ResultDisplay::SetMode(int mode)
{
    if (m_report == nullptr || mode < 0 || std::size_t(mode) >= m_report->modes.size())
        return;
    m_mode = mode;
    if (Current() != Displacement)
        Choose(Displacement);
    Refresh();
}

void ResultDisplay::ShowPart()
{
    Choose(Part);
    Refresh();
}

ViewResult ResultDisplay::ResultOf(Content content) const
{
    ViewResult result;
    result.skin = std::shared_ptr<const MeshSkin>(m_report, &m_report->skin);
    result.hasLines = m_ui->linesBox->isChecked() || content == Mesh;
    const auto mode = std::size_t(m_mode);
    if (content == Mesh || mode >= m_report->moves.size())
        return result;
    result.moves = m_report->moves[mode];
    const bool isStatic = m_report->kind == SolveKind::Static;
    if (content == Stress) {
        result.values = m_report->stresses;
        result.greatest = m_report->stress.value;
        result.title = tr("von Mises (MPa)");
        result.marked = NearestPoint(*result.skin, m_report->stress.place);
    } else {
        for (const MeshSkin::Point& move : result.moves)
            result.values.push_back(float(Length(Exact(move))));
        const auto greatest = std::max_element(result.values.begin(), result.values.end());
        result.greatest = double(*greatest);
        result.title = isStatic ? tr("Displacement (mm)") : tr("Relative displacement");
        result.marked = std::size_t(std::distance(result.values.begin(), greatest));
        if (!isStatic && result.greatest > 0.0) {
            for (float& value : result.values)
                value = float(double(value) / result.greatest);
            result.greatest = 1.0;
        }
    }
    if (!(result.greatest > 0.0))
        result.greatest = 1.0;
    return result;
}

void ResultDisplay::Refresh()
{
    const Content content = Current();
    const bool isMoving = content == Displacement || content == Stress;
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             m_ui->linesBox, m_ui->scaleSpin, m_ui->scaleLabel, m_ui->animateButton})
        widget->setEnabled(isMoving);
    if (!isMoving)
        m_ui->animateButton->setChecked(false);
    m_ui->pictureButton->setEnabled(content != Part);
    m_greatestMove = 0.0;
    if (m_view != nullptr && content == Part) {
        m_shown.Nullify();
        m_view->HideResult();
    } else if (m_view != nullptr) {
        const ViewResult result = ResultOf(content);
        for (const MeshSkin::Point& move : result.moves)
            m_greatestMove = std::max(m_greatestMove, Length(Exact(move)));
        m_shown = new ResultObject(result, m_view->devicePixelRatioF());
        m_shown->SetScale(Scale());
        m_view->ShowResult(m_shown);
    }
    m_ui->valueLabel->setText(ValueText(content));
}

double ResultDisplay::Scale() const
{
    if (!(m_greatestMove > 0.0))
        return 0.0;
    return m_ui->scaleSpin->value() * Percent * SizeOf(m_report->skin) / m_greatestMove;
}

QString ResultDisplay::ValueText(Content content) const
{
    const QString reason = PartView::UnavailableReason();
    if (m_view == nullptr && reason.isEmpty())
        return tr("Results are not drawn: the 3D view is not available.");
    if (m_view == nullptr)
        return tr("Results are not drawn: %1").arg(reason);
    if (m_report == nullptr || content == Part || content == Mesh)
        return {};
    if (m_report->kind != SolveKind::Static) {
        if (std::size_t(m_mode) >= m_report->moves.size())
            return tr("This mode is not drawn: there are too many.");
        return tr("Mode %1 at %2 Hz. The scale of a mode is arbitrary.")
            .arg(m_mode + 1)
            .arg(ShortText(m_report->modes[std::size_t(m_mode)].frequency));
    }
    const QString value =
        content == Stress
            ? tr("Greatest stress %1 MPa").arg(ShortText(m_report->stress.value))
            : tr("Greatest displacement %1 mm").arg(ShortText(m_report->displacement.value));
    const SolveReport::Peak& peak = content == Stress ? m_report->stress : m_report->displacement;
    return tr("%1 near %2 mm, marked. Displacements are drawn %3 times as large.")
        .arg(value, PlaceText(peak.place), FactorText(Scale()));
}

void ResultDisplay::ShowScale()
{
    m_ui->valueLabel->setText(ValueText(Current()));
    if (m_shown.IsNull() || m_clock.isActive())
        return;
    m_shown->SetScale(Scale());
    m_view->UpdateResult();
}

void ResultDisplay::SetAnimated(bool isAnimated)
{
    m_frame = 0;
    if (isAnimated) {
        m_clock.start();
        return;
    }
    m_clock.stop();
    ShowScale();
}

void ResultDisplay::Animate()
{
    if (m_shown.IsNull() || m_view == nullptr)
        return;
    ++m_frame;
    const double turn = 2.0 * tarn::Pi * m_frame / FramesPerPeriod;
    // A mode swings to both sides; loads only push.
    const bool isMode = m_report->kind == SolveKind::Vibration;
    m_shown->SetScale(Scale() * (isMode ? std::sin(turn) : (1.0 - std::cos(turn)) / 2.0));
    m_view->UpdateResult();
}

void ResultDisplay::ExportPicture()
{
    QFileDialog dialog(this, tr("Export picture"), QDir::currentPath(),
                       tr("Pictures (*.png);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    if (dialog.exec() != QDialog::Accepted || m_view == nullptr)
        return;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    m_view->grabFramebuffer().save(&buffer, "PNG");
    const QString path = dialog.selectedFiles().value(0);
    tarn::WholeFile file(path, MaximumPictureSize);
    if (file.Write(png))
        PostMessageToChannel(InfoLevel, tr("Exported to %1").arg(QDir::toNativeSeparators(path)));
    else
        PostMessageToChannel(ErrorLevel, QStringLiteral("%1: %2").arg(path, file.Error()));
}
