#include "ResultsTable.h"

#include "CsvText.h"
#include "HostError.h"
#include "WholeFile.h"

#include <utility>

namespace {

// Enough for a million runs.
constexpr int MaximumFileSize = 1024 * 1024 * 1024;

const QString OkStatus = QStringLiteral("ok");
const QString FailedStatus = QStringLiteral("failed");

const QStringList MeasureNames = {
    QStringLiteral("volume_mm3"), QStringLiteral("area_mm2"), QStringLiteral("mass_kg"),
    QStringLiteral("x_min"),      QStringLiteral("y_min"),    QStringLiteral("z_min"),
    QStringLiteral("x_max"),      QStringLiteral("y_max"),    QStringLiteral("z_max")};

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

ResultsTable::ResultsTable(const QStringList& parameters)
    : m_parameters(parameters)
{
}

QStringList ResultsTable::Header() const
{
    return QStringList(QStringLiteral("run"))
           << m_parameters << MeasureNames << QStringLiteral("status") << QStringLiteral("error");
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
        } else {
            reader.Skip(MeasureNames.size());
        }
        const QString status = reader.Text();
        result.error = reader.Text();
        const bool knownStatus = status == OkStatus || status == FailedStatus;
        if (run < 1 || !knownStatus || !reader.IsGood() || !runs.emplace(run, result).second)
            fail();
    }
    m_runs = std::move(runs);
}

void ResultsTable::Write(const QString& path) const
{
    QString text = CsvLine(Header());
    for (const auto& [run, result] : m_runs) {
        QStringList cells(QString::number(run));
        for (const double value : result.values)
            cells << NumberCell(value);
        if (result.ok) {
            cells << NumberCell(result.measures.volume) << NumberCell(result.measures.area)
                  << NumberCell(result.mass);
            for (const double bound : result.measures.boundingBox)
                cells << NumberCell(bound);
        } else {
            for (int i = 0; i < MeasureNames.size(); ++i)
                cells << QString();
        }
        cells << (result.ok ? OkStatus : FailedStatus) << result.error;
        text += CsvLine(cells);
    }

    tarn::WholeFile file(path, MaximumFileSize);
    if (!file.Write(text.toUtf8()))
        throw HostError(QStringLiteral("%1: %2").arg(path, file.Error()));
}

void ResultsTable::Set(int run, RunResult result)
{
    m_runs[run] = std::move(result);
}
