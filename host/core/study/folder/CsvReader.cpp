#include "CsvReader.h"

CsvReader::CsvReader(const QByteArray& text)
    : m_text(text)
{
    const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF"); // Spreadsheets begin UTF-8 with it.
    if (m_text.startsWith(mark))
        m_place = mark.size();
}

bool CsvReader::Next(std::vector<QByteArray>& cells)
{
    cells.clear();
    if (m_place >= m_text.size())
        return false;
    ++m_row;
    for (;;) {
        if (m_place < m_text.size() && m_text[m_place] == '"') {
            cells.push_back(QuotedCell());
        } else {
            const int begin = m_place;
            while (m_place < m_text.size() && m_text[m_place] != ',' && m_text[m_place] != '\n')
                ++m_place;
            int size = m_place - begin;
            if (size > 0 && m_text[m_place - 1] == '\r')
                --size;
            cells.push_back(QByteArray::fromRawData(m_text.constData() + begin, size));
        }
        if (m_place >= m_text.size())
            return true;
        if (m_text[m_place++] == '\n')
            return true;
    }
}

// Up to the comma or the line end behind it.
QByteArray CsvReader::QuotedCell()
{
    QByteArray cell;
    for (++m_place; m_place < m_text.size(); ++m_place) {
        if (m_text[m_place] != '"') {
            cell += m_text[m_place];
        } else if (m_place + 1 < m_text.size() && m_text[m_place + 1] == '"') {
            cell += m_text[m_place++];
        } else {
            break;
        }
    }
    while (m_place < m_text.size() && m_text[m_place] != ',' && m_text[m_place] != '\n')
        ++m_place;
    return cell;
}
