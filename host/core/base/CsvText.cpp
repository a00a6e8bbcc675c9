#include "CsvText.h"

#include <utility>

namespace {

QString Cell(const QString& text, QChar separator)
{
    const bool plain = !text.contains(separator) && !text.contains(QLatin1Char('"')) &&
                       !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'));
    if (plain)
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

} // namespace

QString CsvLine(const QStringList& cells, QChar separator)
{
    QStringList line;
    line.reserve(cells.size());
    for (const QString& cell : cells)
        line << Cell(cell, separator);
    return line.join(separator) + QLatin1Char('\n');
}

// Cells may hold line ends, so the text is split as a whole and not line by line.
std::vector<QStringList> CsvRows(const QString& text, QChar separator)
{
    std::vector<QStringList> rows;
    QStringList row;
    QString cell;
    bool quoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c != QLatin1Char('"')) {
                cell += c;
            } else if (i + 1 < text.size() && text[i + 1] == QLatin1Char('"')) {
                cell += c;
                ++i;
            } else {
                quoted = false;
            }
        } else if (c == QLatin1Char('"')) {
            quoted = true;
        } else if (c == separator) {
            row << std::exchange(cell, QString());
        } else if (c == QLatin1Char('\n')) {
            row << std::exchange(cell, QString());
            rows.push_back(std::exchange(row, QStringList()));
        } else if (c != QLatin1Char('\r')) {
            cell += c;
        }
    }
    if (!cell.isEmpty() || !row.isEmpty()) {
        row << cell;
        rows.push_back(row);
    }
    return rows;
}
