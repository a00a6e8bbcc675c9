#include "StudyTable.h"

#include "CsvText.h"
#include "ExpressionEngine.h"
#include "ExpressionNames.h"
#include "NumberTexts.h"
#include "ResultsTable.h"
#include "StudyColumns.h"
#include "StudySelection.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <string>
#include <utility>

namespace {

const QString RunName = QStringLiteral("run");

} // namespace

StudyTable::StudyTable(StudySelection& selection, QObject* parent)
    : QAbstractTableModel(parent)
    , m_selection(selection)
{
    connect(&m_selection, &StudySelection::Changed, this, &StudyTable::ShowSelection);
}

StudyTable::~StudyTable() = default;

void StudyTable::Clear()
{
    m_selection.Clear();
    beginResetModel();
    m_columns = ResultColumns();
    m_inputs.clear();
    m_rows.clear();
    m_filter.clear();
    m_sortColumn = 0;
    m_sortOrder = Qt::AscendingOrder;
    m_failed = 0;
    endResetModel();
    Q_EMIT RowsChanged();
}

void StudyTable::Take(const ResultColumns& news)
{
    if (news.Names() != m_columns.Names()) {
        Clear();
        beginResetModel();
        m_columns = news.WithoutRuns();
        endResetModel();
    }
    m_columns.Take(news);
    m_failed = 0;
    for (int row = 0; row < m_columns.Count(); ++row)
        m_failed += m_columns.IsOk(row) ? 0 : 1;
    std::vector<int> rows = FilteredRows();
    SortRows(rows);
    Show(std::move(rows));
}

void StudyTable::SetInputs(const QStringList& names)
{
    if (names == m_inputs)
        return;
    m_inputs = names;
    Q_EMIT RowsChanged();
}

QStringList StudyTable::Inputs() const
{
    if (!m_inputs.isEmpty())
        return m_inputs;
    return m_columns.Names().mid(0, m_columns.ParameterCount());
}

QString StudyTable::SetFilter(const QString& expression)
{
    const QString filter = expression.trimmed();
    if (!filter.isEmpty()) {
        QString fault = ExpressionFault(filter, m_columns.Names() + QStringList(RunName));
        if (!fault.isEmpty())
            return fault;
    }
    m_filter = filter;
    std::vector<int> rows = FilteredRows();
    SortRows(rows);
    Show(std::move(rows));
    return {};
}

std::vector<int> StudyTable::FilteredRows() const
{
    std::vector<int> rows(std::size_t(m_columns.Count()));
    std::iota(rows.begin(), rows.end(), 0);
    if (m_filter.isEmpty())
        return rows;
    std::map<std::string, double> variables;
    std::vector<std::pair<double*, int>> places; // Of each variable: its column; -1 for the run.
    const QStringList names = tarn::NamesIn(m_filter);
    for (const QString& name : names) {
        const int column = m_columns.Names().indexOf(name);
        if (column >= 0 || name == RunName)
            places.emplace_back(&variables[name.toLocal8Bit().toStdString()], column);
    }
    const std::string expression = m_filter.toLocal8Bit().toStdString();
    const auto isOut = [&](int row) {
        for (const auto& [value, column] : places) {
            *value = column < 0 ? double(m_columns.Run(row)) : m_columns.Value(column, row);
            if (std::isnan(*value))
                return true;
        }
        const double value = ExpressionEngine::CalculateExpress(expression, variables);
        return std::isnan(value) || value == 0.0;
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isOut), rows.end());
    return rows;
}

void StudyTable::SortRows(std::vector<int>& rows) const
{
    const auto sortBy = [&](const auto& isBefore) {
        if (m_sortOrder == Qt::AscendingOrder)
            std::stable_sort(rows.begin(), rows.end(), isBefore);
        else
            std::stable_sort(rows.begin(), rows.end(),
                             [&isBefore](int a, int b) { return isBefore(b, a); });
    };
    if (m_sortColumn <= 0)
        return sortBy([this](int a, int b) { return m_columns.Run(a) < m_columns.Run(b); });
    if (m_sortColumn > m_columns.Names().size())
        return sortBy([this](int a, int b) { return m_columns.Error(a) < m_columns.Error(b); });
    // Runs without a number are last in both orders.
    const std::vector<double>& values = m_columns.Column(m_sortColumn - 1);
    const auto valued = std::stable_partition(rows.begin(), rows.end(), [&values](int row) {
        return !std::isnan(values[std::size_t(row)]);
    });
    std::vector<int> without(valued, rows.end());
    rows.erase(valued, rows.end());
    sortBy([&values](int a, int b) { return values[std::size_t(a)] < values[std::size_t(b)]; });
    rows.insert(rows.end(), without.begin(), without.end());
}

void StudyTable::Show(std::vector<int> rows)
{
    // First the number of rows, then what stands in them.
    const std::size_t before = m_rows.size();
    const std::size_t after = rows.size();
    if (after > before) {
        beginInsertRows({}, int(before), int(after) - 1);
        m_rows.insert(m_rows.end(), rows.begin() + std::ptrdiff_t(before), rows.end());
        endInsertRows();
    } else if (after < before) {
        beginRemoveRows({}, int(after), int(before) - 1);
        m_rows.resize(after);
        endRemoveRows();
    }
    m_rows = std::move(rows);
    if (after > 0)
        Q_EMIT dataChanged(index(0, 0), index(int(after) - 1, columnCount() - 1));
    Q_EMIT RowsChanged();
}

void StudyTable::ShowSelection()
{
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::BackgroundRole, Qt::ForegroundRole});
}

int StudyTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int StudyTable::columnCount(const QModelIndex& parent) const
{
    constexpr int RunAndStatus = 2;
    return parent.isValid() || m_columns.Names().isEmpty()
               ? 0
               : int(m_columns.Names().size()) + RunAndStatus;
}

// As it is shown.
QString StudyTable::ShownText(int row, int column) const
{
    if (column == 0)
        return QString::number(m_columns.Run(row));
    if (column > m_columns.Names().size())
        return m_columns.IsOk(row) ? tr("ok") : tr("failed: %1").arg(m_columns.Error(row));
    const double value = m_columns.Value(column - 1, row);
    return std::isnan(value) ? QString() : ShortText(value);
}

// As it stands in files; without the last column.
QString StudyTable::TextOf(int row, int column) const
{
    if (column == 0)
        return QString::number(m_columns.Run(row));
    const double value = m_columns.Value(column - 1, row);
    return std::isnan(value) ? QString() : ExactText(value);
}

QVariant StudyTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const int row = m_rows[std::size_t(index.row())];
    const bool isNumber = index.column() <= m_columns.Names().size();
    switch (role) {
    case Qt::DisplayRole:
        return ShownText(row, index.column());
    case Qt::ToolTipRole:
        return isNumber ? TextOf(row, index.column()) : ShownText(row, index.column());
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::BackgroundRole:
        return m_selection.Contains(row) ? QVariant(QApplication::palette().highlight())
                                         : QVariant();
    case Qt::ForegroundRole:
        return m_selection.Contains(row) ? QVariant(QApplication::palette().highlightedText())
                                         : QVariant();
    default:
        return {};
    }
}

QVariant StudyTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == 0)
        return tr("Run");
    return section <= m_columns.Names().size() ? m_columns.Title(section - 1) : tr("Status");
}

void StudyTable::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    std::vector<int> rows = m_rows;
    SortRows(rows);
    Show(std::move(rows));
}

QByteArray StudyTable::ToCsv() const
{
    QStringList cells(RunName);
    for (const QString& name : m_columns.Names())
        cells << TextCell(name);
    cells << QStringLiteral("status") << QStringLiteral("error");
    QByteArray text = CsvLine(cells).toUtf8();
    for (const int row : m_rows) {
        cells.clear();
        for (int column = 0; column <= m_columns.Names().size(); ++column)
            cells << TextOf(row, column);
        cells << (m_columns.IsOk(row) ? QStringLiteral("ok") : QStringLiteral("failed"))
              << TextCell(m_columns.Error(row));
        text += CsvLine(cells).toUtf8();
    }
    return text;
}
