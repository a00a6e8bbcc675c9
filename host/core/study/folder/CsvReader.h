#pragma once

#include <QByteArray>

#include <vector>

/// Splits the text of a CSV file (comma, quotes) into rows, without copying most cells: they are
/// valid while the text is.
class CsvReader
{
public:
    explicit CsvReader(const QByteArray& text);

    /// Reads the next row. Returns false at the end.
    bool Next(std::vector<QByteArray>& cells);
    /// Of the row that was read last, counted from 1.
    int Row() const { return m_row; }

private:
    QByteArray QuotedCell();

    const QByteArray& m_text;
    int m_place = 0;
    int m_row = 0;
};
