#include "ResultColumns.h"

#include "ResultsTable.h"

#include <QCoreApplication>

#include <charconv>
#include <limits>
#include <utility>

namespace {

struct ResultColumnsText
{
    Q_DECLARE_TR_FUNCTIONS(ResultColumns)
};

const QByteArray OkStatus = "ok";
const QByteArray FailedStatus = "failed";

template<class Number>
bool Read(const QByteArray& cell, Number& number)
{
    const char* const end = cell.constData() + cell.size();
    const auto [stop, error] = std::from_chars(cell.constData(), end, number);
    return error == std::errc() && stop == end;
}

QString Shown(const QByteArray& cell)
{
    constexpr int MaximumLength = 40;
    return QString::fromUtf8(cell).simplified().left(MaximumLength);
}

} // namespace

ResultColumns::ResultColumns(QStringList parameters, QStringList results,
                             QHash<QString, QString> units)
    : m_names(parameters + results)
    , m_parameterCount(int(parameters.size()))
    , m_units(std::move(units))
    , m_columns(std::size_t(m_names.size()))
{
}

ResultColumns ResultColumns::WithoutRuns() const
{
    return {m_names.mid(0, m_parameterCount), ResultNames(), m_units};
}

QString ResultColumns::Title(int column) const
{
    const QString& name = m_names[column];
    const QString unit =
        column < m_parameterCount ? m_units.value(name) : ResultsTable::MeasureUnit(name);
    return unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, unit);
}

QString ResultColumns::Take(const std::vector<QByteArray>& cells)
{
    const std::size_t numbers = m_columns.size();
    if (cells.size() != numbers + 3)
        return ResultColumnsText::tr("has %1 cells instead of %2")
            .arg(cells.size())
            .arg(numbers + 3);
    int run = 0;
    if (!Read(cells[0], run) || run < 1)
        return ResultColumnsText::tr("\"%1\" in the column run is not the number of a run")
            .arg(Shown(cells[0]));
    const QByteArray& status = cells[numbers + 1];
    if (status != OkStatus && status != FailedStatus)
        return ResultColumnsText::tr("\"%1\" in the column status is neither ok nor failed")
            .arg(Shown(status));
    std::vector<double> values(numbers, std::numeric_limits<double>::quiet_NaN());
    for (std::size_t i = 0; i < numbers; ++i) {
        if (!cells[i + 1].isEmpty() && !Read(cells[i + 1], values[i]))
            return ResultColumnsText::tr("\"%1\" in the column %2 is not a number")
                .arg(Shown(cells[i + 1]), m_names[int(i)].simplified());
    }
    const auto row = std::size_t(RowFor(run));
    for (std::size_t i = 0; i < numbers; ++i)
        m_columns[i][row] = values[i];
    m_isOk[row] = status == OkStatus ? 1 : 0;
    m_errors[row] = PlainText(QString::fromUtf8(cells[numbers + 2]));
    return {};
}

void ResultColumns::Take(const ResultColumns& other)
{
    for (int from = 0; from < other.Count(); ++from) {
        const auto row = std::size_t(RowFor(other.Run(from)));
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_columns[i][row] = other.m_columns[i][std::size_t(from)];
        m_isOk[row] = other.m_isOk[std::size_t(from)];
        m_errors[row] = other.m_errors[std::size_t(from)];
    }
}

int ResultColumns::RowFor(int run)
{
    const auto known = m_rows.constFind(run);
    if (known != m_rows.constEnd())
        return *known;
    const int row = Count();
    m_rows.insert(run, row);
    m_runs.push_back(run);
    m_isOk.push_back(0);
    m_errors.emplace_back();
    for (std::vector<double>& column : m_columns)
        column.push_back(0.0);
    return row;
}
