#include "StudyPlot.h"

#include "ColumnBox.h"
#include "StudySelection.h"
#include "StudyTable.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QLabel>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgGenerator>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

StudyPlot::StudyPlot(StudyTable& table, StudySelection& selection, QWidget* parent)
    : QWidget(parent)
    , m_table(table)
    , m_selection(selection)
    , m_layout(new QVBoxLayout(this))
    , m_controls(new QHBoxLayout)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addLayout(m_controls);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &StudyPlot::Refresh);
    connect(&m_table, &StudyTable::RowsChanged, this, &StudyPlot::RefreshLater);
    connect(&m_selection, &StudySelection::Changed, this, [this] {
        // A plot that is out of date shows the selection later, too.
        if (isVisible() && !m_isOutdated)
            ShowSelection();
        else
            m_isOutdated = true;
    });
}

StudyPlot::~StudyPlot() = default;

const ResultColumns& StudyPlot::Columns() const
{
    return m_table.Columns();
}

const std::vector<int>& StudyPlot::Rows() const
{
    return m_table.Rows();
}

QStringList StudyPlot::Inputs() const
{
    return m_table.Inputs();
}

std::vector<int> StudyPlot::VaryingInputs() const
{
    const QStringList inputs = Inputs();
    std::vector<int> columns = VaryingColumns(Columns());
    const auto isOther = [&](int column) {
        return column >= Columns().ParameterCount() || !inputs.contains(Columns().Names()[column]);
    };
    columns.erase(std::remove_if(columns.begin(), columns.end(), isOther), columns.end());
    return columns;
}

std::vector<double> StudyPlot::Shown(int column) const
{
    std::vector<double> values;
    values.reserve(Rows().size());
    for (const int row : Rows())
        values.push_back(Columns().Value(column, row));
    return values;
}

bool StudyPlot::IsSelected(int row) const
{
    return m_selection.Contains(row);
}

bool StudyPlot::IsVector(const QPainter& painter) const
{
    constexpr std::size_t MostRuns = 2000; // Some megabytes.
    return painter.paintEngine()->type() == QPaintEngine::SVG && Rows().size() <= MostRuns;
}

void StudyPlot::Select(std::vector<int> rows)
{
    const Qt::KeyboardModifiers keys = QGuiApplication::keyboardModifiers();
    if (keys.testFlag(Qt::ShiftModifier) || keys.testFlag(Qt::ControlModifier))
        rows.insert(rows.end(), m_selection.Rows().begin(), m_selection.Rows().end());
    m_selection.Set(std::move(rows));
}

void StudyPlot::Paint(QPainter& painter, const QRect& area)
{
    painter.save();
    painter.translate(area.topLeft());
    Canvas().render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    painter.restore();
}

void StudyPlot::SetCanvas(QWidget& canvas)
{
    m_controls->addStretch();
    m_layout->addWidget(&canvas, 1);
}

QString StudyPlot::TitleOf(const ColumnBox& box) const
{
    return box.Column() < 0 ? QString() : Columns().Title(box.Column());
}

ColumnBox& StudyPlot::AddColumnBox(const QString& text, const char* name)
{
    auto* const label = new QLabel(text, this);
    auto* const box = new ColumnBox(this);
    box->setObjectName(QString::fromLatin1(name));
    label->setBuddy(box);
    m_controls->addWidget(label);
    m_controls->addWidget(box);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, &StudyPlot::RefreshLater);
    return *box;
}

void StudyPlot::RefreshLater()
{
    m_isOutdated = true;
    if (isVisible())
        m_refresh.start();
}

void StudyPlot::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Refresh();
}

void StudyPlot::Refresh()
{
    m_refresh.stop();
    if (!m_isOutdated)
        return;
    m_isOutdated = false;
    ShowRows();
    ShowSelection();
}

QImage StudyPlot::Picture(int scale)
{
    Refresh();
    const QSize size = Canvas().size();
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(palette().color(QPalette::Base));
    QPainter painter(&image);
    painter.scale(scale, scale);
    Paint(painter, QRect(QPoint(), size));
    return image;
}

QByteArray StudyPlot::Svg()
{
    Refresh();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(Canvas().size());
    generator.setViewBox(QRect(QPoint(), Canvas().size()));
    QPainter painter(&generator);
    painter.fillRect(QRect(QPoint(), Canvas().size()), palette().color(QPalette::Base));
    Paint(painter, QRect(QPoint(), Canvas().size()));
    painter.end();
    return bytes;
}
