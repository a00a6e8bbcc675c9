#include "RunList.h"

#include "CsvText.h"
#include "ResultsTable.h"
#include "SolveFolder.h"
#include "WholeFile.h"

#include <QCoreApplication>

#include <utility>

namespace {

struct RunListText
{
    Q_DECLARE_TR_FUNCTIONS(RunList)
};

constexpr int MaximumFileSize = 1024 * 1024 * 1024;

} // namespace

RunList::RunList(QStringList inputs)
    : m_inputs(std::move(inputs))
{
}

QByteArray RunList::HeaderLine() const
{
    QStringList cells(QStringLiteral("run"));
    for (const QString& input : m_inputs)
        cells << TextCell(input);
    return CsvLine(cells).toUtf8();
}

void RunList::Read(const QString& path)
{
    tarn::WholeFile file(path, MaximumFileSize);
    QByteArray bytes;
    if (!file.Read(bytes))
        throw HostError(QStringLiteral("%1: %2").arg(path, file.Error()));
    const QByteArray header = HeaderLine();
    if (!bytes.startsWith(header))
        throw HostError(RunListText::tr("%1: is not a list of the runs of this study").arg(path));
    m_runs.clear();
    m_numbers.clear();
    for (int begin = header.size(); begin < bytes.size();) {
        const int end = bytes.indexOf('\n', begin);
        const int comma = bytes.indexOf(',', begin);
        const int number = Count() + 1;
        const bool isGood = end > comma && comma > begin &&
                            bytes.mid(begin, comma - begin).toInt() == number &&
                            !m_numbers.contains(bytes.mid(comma + 1, end - comma - 1));
        if (!isGood)
            throw HostError(RunListText::tr("%1: row %2 is damaged").arg(path).arg(number + 1));
        m_runs.push_back(bytes.mid(comma + 1, end - comma - 1));
        m_numbers.insert(m_runs.back(), number);
        begin = end + 1;
    }
}

void RunList::Write(const QString& path) const
{
    QByteArray bytes = HeaderLine();
    for (int run = 1; run <= Count(); ++run)
        bytes += QByteArray::number(run) + ',' + m_runs[std::size_t(run) - 1] + '\n';
    tarn::WholeFile file(path, MaximumFileSize);
    if (!file.Write(bytes))
        throw FolderError(QStringLiteral("%1: %2").arg(path, file.Error()));
}

void RunList::Add(const std::vector<double>& values)
{
    AddText(TextOf(values));
}

void RunList::AddAll(const RunList& other)
{
    for (const QByteArray& text : other.m_runs)
        AddText(text);
}

void RunList::AddText(const QByteArray& text)
{
    if (m_numbers.contains(text))
        return;
    m_runs.push_back(text);
    m_numbers.insert(text, Count());
}

std::vector<double> RunList::Values(int run) const
{
    std::vector<double> values;
    const QList<QByteArray> cells = m_runs.at(std::size_t(run) - 1).split(',');
    for (const QByteArray& cell : cells)
        values.push_back(cell.toDouble());
    return values;
}

QByteArray RunList::TextOf(const std::vector<double>& values)
{
    constexpr int Digits = 17;
    m_lastValues.resize(values.size());
    m_lastTexts.resize(values.size());
    QByteArray text;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value = values[i] == 0.0 ? 0.0 : values[i]; // -0 is the same run as 0.
        const bool isLast = value == m_lastValues[i];
        if (!isLast || m_lastTexts[i].isEmpty()) {
            m_lastValues[i] = value;
            m_lastTexts[i] = QByteArray::number(value, 'g', Digits);
        }
        if (i > 0)
            text += ',';
        text += m_lastTexts[i];
    }
    return text;
}
