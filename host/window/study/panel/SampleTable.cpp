#include "SampleTable.h"

#include "CompactTable.h"
#include "DesignModel.h"
#include "JsonSection.h"
#include "NumberTexts.h"
#include "SampleList.h"
#include "SamplingGuard.h"
#include "sParaArrayData.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <cmath>

namespace {

SampleRange RangeOf(const sParaArrayData& samples)
{
    return {samples.dMin, samples.dMax, samples.dDelta, samples.nSampleType};
}

// Whether a study can give the parameter values.
bool CanVary(const ParameterEntry& entry)
{
    return entry.record.m_nType != ParametersDef::VectorType;
}

QString TextOf(const std::vector<double>& values)
{
    constexpr std::size_t MostShown = 200;
    QStringList texts;
    for (std::size_t i = 0; i < values.size() && i < MostShown; ++i)
        texts << ExactText(values[i]);
    if (values.size() > MostShown)
        texts << QStringLiteral("…");
    return texts.join(QStringLiteral(", "));
}

} // namespace

SampleTable::SampleTable(QWidget* parent)
    : QTableWidget(0, ValuesColumn + 1, parent)
{
    setHorizontalHeaderLabels(
        {tr("Parameter"), tr("Unit"), tr("From"), tr("To"), tr("Step"), tr("Samples")});
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    MakeCompact(*this);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { Take(*item); });
}

SampleTable::~SampleTable() = default;

void SampleTable::Refresh(const DesignModel& design)
{
    m_design = &design;
    const QSignalBlocker silent(this);
    const ParameterEntries entries = design.Design();
    setRowCount(0);
    for (const ParameterEntry& entry : entries) {
        if (!CanVary(entry))
            continue;
        setRowCount(rowCount() + 1);
        ShowRow(rowCount() - 1, entry);
    }
    for (int column = NameColumn; column < ValuesColumn; ++column)
        resizeColumnToContents(column);
}

void SampleTable::ShowRow(int row, const ParameterEntry& entry)
{
    const QString& name = entry.Name();
    const auto found = g_mapParaArrays.find(name);
    const bool hasRecord = found != g_mapParaArrays.end();
    const std::vector<double> values = hasRecord ? found->second.vecValues : std::vector<double>();
    Show(row, NameColumn, name);
    item(row, NameColumn)
        ->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    const bool isTicked = hasRecord && found->second.bChecked != 0;
    item(row, NameColumn)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
    item(row, NameColumn)
        ->setToolTip(tr("%1, %2 in the design").arg(name, ExactText(entry.Number())));
    Show(row, UnitColumn, entry.unit);
    item(row, UnitColumn)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    const bool isRange = !values.empty() && MatchesRange(values, RangeOf(found->second));
    Show(row, FromColumn, isRange ? ExactText(found->second.dMin) : QString());
    Show(row, ToColumn, isRange ? ExactText(found->second.dMax) : QString());
    Show(row, StepColumn, isRange ? ExactText(found->second.dDelta) : QString());
    Show(row, ValuesColumn, TextOf(values));
}

void SampleTable::Show(int row, int column, const QString& text)
{
    auto* const cell = new QTableWidgetItem(text);
    cell->setToolTip(text);
    setItem(row, column, cell);
}

std::vector<double> SampleTable::SamplesIn(const QString& text)
{
    std::vector<double> samples;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        bool isNumber = false;
        samples.push_back(part.trimmed().toDouble(&isNumber));
        if (!isNumber || !std::isfinite(samples.back()))
            return {};
    }
    return samples;
}

void SampleTable::Take(const QTableWidgetItem& cell)
{
    const int row = cell.row();
    const int column = cell.column();
    const QString name = item(row, NameColumn)->text();
    const QString text = cell.text();
    bool isTaken = false;
    if (column == NameColumn)
        isTaken = TakeTick(name, cell.checkState() == Qt::Checked);
    else if (column == ValuesColumn)
        isTaken = TakeValues(name, text);
    else
        isTaken = TakeRange(row, name);
    if (!isTaken)
        return;
    if (column != NameColumn)
        Q_EMIT SamplesEdited(tr("Samples of %1").arg(Quoted(name)));
    else
        Q_EMIT SamplesEdited(cell.checkState() == Qt::Checked ? tr("Tick %1").arg(Quoted(name))
                                                              : tr("Untick %1").arg(Quoted(name)));
}

bool SampleTable::TakeTick(const QString& name, bool isTicked)
{
    sParaArrayData& samples = g_mapParaArrays[name];
    samples.strName = name;
    if ((samples.bChecked != 0) == isTicked)
        return false;
    samples.bChecked = isTicked ? 1 : 0;
    if (isTicked && samples.vecValues.empty()) {
        // A range around the value, as the sampling dialog begins with.
        const SamplingGuard guard(name);
        samples.vecValues = RangeOf(samples).Samples();
    }
    return true;
}

bool SampleTable::TakeValues(const QString& name, const QString& text)
{
    const std::vector<double> values = SamplesIn(text);
    if (values.empty() && !text.trimmed().isEmpty()) {
        Q_EMIT Refused(tr("%1 is not a list of samples: type numbers with commas between them, "
                          "such as 60, 65.5, 70")
                           .arg(Quoted(text)));
        return false;
    }
    sParaArrayData& samples = g_mapParaArrays[name];
    samples.strName = name;
    samples.vecValues = values;
    return true;
}

bool SampleTable::TakeRange(int row, const QString& name)
{
    sParaArrayData& samples = g_mapParaArrays[name];
    samples.strName = name;
    SampleRange range = RangeOf(samples);
    const struct
    {
        Column column;
        double& value;
    } cells[] = {{FromColumn, range.min}, {ToColumn, range.max}, {StepColumn, range.step}};
    for (const auto& [column, value] : cells) {
        const QString text = item(row, column)->text().trimmed();
        if (text.isEmpty())
            return false; // Until the whole range is there.
        bool isNumber = false;
        value = text.toDouble(&isNumber);
        if (!isNumber) {
            Q_EMIT Refused(tr("%1 is not a number").arg(Quoted(text)));
            return false;
        }
    }
    const QString fault = FaultText(range.FindFault());
    if (!fault.isEmpty()) {
        Q_EMIT Refused(tr("The range of %1 %2").arg(Quoted(name), fault));
        return false;
    }
    samples.dMin = range.min;
    samples.dMax = range.max;
    samples.dDelta = range.step;
    samples.nSampleType = range.spacing;
    samples.vecValues = range.Samples();
    return true;
}
