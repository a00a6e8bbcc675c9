#include "ResultsTable.h"

#include "CsvText.h"
#include "SolveFolder.h"
#include "WholeFile.h"

#include <cmath>
#include <utility>

namespace {

const QString OkStatus = QStringLiteral("ok");
const QString FailedStatus = QStringLiteral("failed");

// Which cells a spreadsheet calculates.
bool IsLikeFormula(const QString& text)
{
    return !text.isEmpty() && QStringLiteral("=+-@\t\r").contains(text[0]);
}

QString NumberCell(double value)
{
    return QString::number(value, 'g', 17);
}

/// Takes the cells of a row one after the other.
class RowReader
{
public:
    explicit RowReader(const QStringList& cells)
        : m_cells(cells)
    {
    }

    QString Text() { return m_cells[m_next++]; }

    double NumberOrNone()
    {
        return m_cells[m_next].isEmpty() ? (++m_next, std::nan("")) : Number();
    }

    double Number()
    {
        bool isNumber = false;
        const double value = m_cells[m_next++].toDouble(&isNumber);
        m_isGood = m_isGood && isNumber;
        return value;
    }

    void Skip(int cells) { m_next += cells; }

    bool IsGood() const { return m_isGood; }

private:
    const QStringList& m_cells;
    int m_next = 0;
    bool m_isGood = true;
};

} // namespace

QString TextCell(const QString& text)
{
    return IsLikeFormula(text) ? QLatin1Char('\'') + text : text;
}

QString PlainText(const QString& cell)
{
    const bool isMarked = cell.startsWith(QLatin1Char('\'')) && IsLikeFormula(cell.mid(1));
    return isMarked ? cell.mid(1) : cell;
}

ResultsTable::ResultsTable(const QStringList& parameters, const QStringList& more,
                           const QHash<QString, QString>& units)
    : m_parameters(parameters)
    , m_more(more)
    , m_units(units)
{
}

const QStringList& ResultsTable::MeasureNames()
{
    static const QStringList names = {
        QStringLiteral("volume_mm3"), QStringLiteral("area_mm2"), QStringLiteral("mass_kg"),
        QStringLiteral("x_min"),      QStringLiteral("y_min"),    QStringLiteral("z_min"),
        QStringLiteral("x_max"),      QStringLiteral("y_max"),    QStringLiteral("z_max")};
    return names;
}

// The bounding box.
QString ResultsTable::MeasureUnit(const QString& name)
{
    const bool isBound =
        name.endsWith(QLatin1String("_min")) || name.endsWith(QLatin1String("_max"));
    return isBound && MeasureNames().contains(name) ? QStringLiteral("mm") : QString();
}

std::vector<double> ResultsTable::MeasuresOf(const RunResult& result)
{
    std::vector<double> values = {result.measures.volume, result.measures.area, result.mass};
    values.insert(values.end(), result.measures.boundingBox.begin(),
                  result.measures.boundingBox.end());
    return values;
}

QStringList ResultsTable::Header() const
{
    QStringList cells(QStringLiteral("run"));
    const QStringList names = m_parameters + MeasureNames() + m_more;
    for (const QString& name : names)
        cells << TextCell(name);
    return cells << QStringLiteral("status") << QStringLiteral("error");
}

void ResultsTable::Read(const QString& path)
{
    tarn::WholeFile file(path, MaximumFileSize);
    QByteArray bytes;
    if (!file.Read(bytes))
        throw HostError(QStringLiteral("%1: %2").arg(path, file.Error()));
    const std::vector<QStringList> rows = CsvRows(QString::fromUtf8(bytes));
    const QStringList header = Header();
    if (rows.empty() || rows.front() != header)
        throw HostError(
            QStringLiteral("%1: holds the results of another study; choose another folder")
                .arg(path));

    std::map<int, RunResult> runs;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const auto fail = [&] {
            throw HostError(
                QStringLiteral("%1: row %2 is not a run of a study").arg(path).arg(i + 1));
        };
        if (rows[i].size() != header.size())
            fail();
        RowReader reader(rows[i]);
        const int run = reader.Text().toInt();
        RunResult result;
        for (int parameter = 0; parameter < m_parameters.size(); ++parameter)
            result.values.push_back(reader.Number());
        result.ok = rows[i][header.size() - 2] == OkStatus;
        if (result.ok) {
            result.measures.volume = reader.Number();
            result.measures.area = reader.Number();
            result.mass = reader.Number();
            for (double& bound : result.measures.boundingBox)
                bound = reader.Number();
            for (int column = 0; column < m_more.size(); ++column)
                result.more.push_back(reader.NumberOrNone());
        } else {
            reader.Skip(MeasureNames().size() + m_more.size());
        }
        const QString status = reader.Text();
        result.error = PlainText(reader.Text());
        const bool knownStatus = status == OkStatus || status == FailedStatus;
        if (run < 1 || !knownStatus || !reader.IsGood() || !runs.emplace(run, result).second)
            fail();
    }
    m_runs = std::move(runs);
}

QByteArray ResultsTable::Row(int run, const RunResult& result) const
{
    QStringList cells(QString::number(run));
    for (const double value : result.values)
        cells << NumberCell(value);
    if (result.ok) {
        for (const double value : MeasuresOf(result))
            cells << NumberCell(value);
        for (const double value : result.more)
            cells << (std::isfinite(value) ? NumberCell(value) : QString());
    } else {
        for (int i = 0; i < MeasureNames().size() + m_more.size(); ++i)
            cells << QString();
    }
    cells << (result.ok ? OkStatus : FailedStatus) << TextCell(result.error);
    return CsvLine(cells).toUtf8();
}

void ResultsTable::Write(const QString& path) const
{
    QByteArray rows;
    for (const auto& [run, result] : m_runs)
        rows += Row(run, result);
    WriteRows(path, rows);
}

void ResultsTable::WriteRows(const QString& path, const QByteArray& rows) const
{
    tarn::WholeFile file(path, MaximumFileSize);
    if (!file.Write(CsvLine(Header()).toUtf8() + rows))
        throw FolderError(QStringLiteral("%1: %2").arg(path, file.Error()));
}

void ResultsTable::Set(int run, RunResult result)
{
    m_runs[run] = std::move(result);
}
