#pragma once

#include <QByteArray>
#include <QList>

#include <stdexcept>
#include <vector>

/// One entry of bulk data.
struct BulkEntry
{
    QByteArray name;          ///< Without the mark of large fields.
    QList<QByteArray> fields; ///< Without the blanks around them.

    double Real(int field) const
    {
        QByteArray text = fields.at(field);
        if (!text.contains('.'))
            throw std::runtime_error("an integer where a real number must be: " +
                                     text.toStdString());
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber)
            throw std::runtime_error("not a number: " + text.toStdString());
        return number;
    }

    int Integer(int field) const
    {
        bool isNumber = false;
        const int number = fields.at(field).toInt(&isNumber);
        if (!isNumber)
            throw std::runtime_error("not an integer: " + fields.at(field).toStdString());
        return number;
    }
};

/// Reads bulk data strictly: fields of 8 or 16 characters, lines that continue are marked at their
/// end and at the beginning of the next one. Throws std::runtime_error with the line.
inline std::vector<BulkEntry> ReadBulkData(const QByteArray& deck)
{
    const auto need = [](bool isTrue, const QByteArray& line) {
        if (!isTrue)
            throw std::runtime_error("bad line: " + line.toStdString());
    };
    const QByteArray start = "BEGIN BULK\n";
    const QByteArray end = "ENDDATA\n";
    need(deck.count(start) == 1 && deck.endsWith(end), "BEGIN BULK, ENDDATA");
    const int begin = deck.indexOf(start) + start.size();
    const QByteArray bulk = deck.mid(begin, deck.size() - begin - end.size());
    const QList<QByteArray> lines = bulk.split('\n');
    std::vector<BulkEntry> entries;
    QByteArray mark; // At the end of the line before.
    bool isLarge = false;
    for (const QByteArray& line : lines) {
        if (line.isEmpty())
            continue;
        const QByteArray name = line.left(8).trimmed();
        if (mark.isEmpty()) {
            isLarge = name.endsWith('*');
            entries.push_back({isLarge ? name.chopped(1) : name, {}});
        } else {
            need(name == mark, line);
        }
        const int width = isLarge ? 16 : 8;
        need(line.size() <= 73 && (line.size() == 73 || line.size() % 8 == 0), line);
        for (int at = 8; at < qMin(line.size(), 72); at += width)
            entries.back().fields << line.mid(at, width).trimmed();
        mark = line.mid(72);
        need(mark.isEmpty() || mark == (isLarge ? "*" : "+"), line);
    }
    need(mark.isEmpty(), "the last line continues");
    return entries;
}
