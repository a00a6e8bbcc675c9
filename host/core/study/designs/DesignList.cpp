#include "DesignList.h"

#include "CsvText.h"
#include "HostError.h"
#include "StudyDefinition.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>
#include <map>

namespace {

/// A CSV file, and what is wrong in it.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(DesignList)

public:
    Reader(const QString& path, const QSet<QString>& known)
        : m_path(path)
        , m_known(known)
    {
    }

    DesignList Read()
    {
        tarn::WholeFile file(m_path);
        QByteArray bytes;
        if (!file.Read(bytes))
            Fail(file.Error());
        QString text = QString::fromUtf8(bytes);
        const QChar byteOrderMark(0xfeff);
        if (text.startsWith(byteOrderMark))
            text.remove(0, 1);
        const std::vector<QStringList> rows = CsvRows(text);
        if (rows.empty())
            Fail(tr("has no header with the names of parameters"));
        ReadHeader(rows.front());
        for (std::size_t i = 1; i < rows.size(); ++i) {
            const bool isEmpty = rows[i].size() == 1 && rows[i].front().trimmed().isEmpty();
            if (!isEmpty)
                ReadRow(int(i) + 1, rows[i]);
        }
        if (m_list.runs.empty())
            Fail(tr("has no runs below its header"));
        return m_list;
    }

private:
    [[noreturn]] void Fail(const QString& reason) const
    {
        throw HostError(QStringLiteral("%1: %2").arg(m_path.simplified(), reason));
    }

    void ReadHeader(const QStringList& header)
    {
        for (int column = 0; column < header.size(); ++column) {
            const QString name = header[column].trimmed();
            if (!m_known.contains(name))
                Fail(tr("row 1, column %1: %2 is not a parameter of the project")
                         .arg(QString::number(column + 1), Quoted(name)));
            if (m_list.names.contains(name))
                Fail(tr("row 1, column %1: %2 is there twice")
                         .arg(QString::number(column + 1), Quoted(name)));
            m_list.names << name;
        }
    }

    void ReadRow(int number, const QStringList& cells)
    {
        const int columns = m_list.names.size();
        const QString row = tr("row %1").arg(number);
        if (cells.size() < columns)
            Fail(tr("%1: column %2 is missing").arg(row, Quoted(m_list.names[cells.size()])));
        if (cells.size() > columns)
            Fail(tr("%1 has %2 cells, but the header has %3")
                     .arg(row)
                     .arg(cells.size())
                     .arg(columns));
        std::vector<double> values;
        for (int column = 0; column < columns; ++column) {
            bool isNumber = false;
            const double value = QLocale::c().toDouble(cells[column].trimmed(), &isNumber);
            if (!isNumber || !std::isfinite(value))
                Fail(tr("%1, column %2: %3 is not a number")
                         .arg(row, Quoted(m_list.names[column]), Quoted(cells[column])));
            values.push_back(value == 0.0 ? 0.0 : value); // -0 is the same run as 0.
        }
        const auto [earlier, isNew] = m_rows.emplace(values, number);
        if (!isNew)
            Fail(tr("%1 is equal to row %2").arg(row).arg(earlier->second));
        if (m_list.runs.size() == StudyDefinition::MaximumRuns)
            Fail(tr("has more than %1 runs").arg(StudyDefinition::MaximumRuns));
        m_list.runs.push_back(std::move(values));
    }

    static QString Quoted(const QString& text)
    {
        constexpr int Most = 60;
        return QLatin1Char('"') + text.left(Most).simplified() + QLatin1Char('"');
    }

    const QString& m_path;
    const QSet<QString>& m_known;
    DesignList m_list;
    std::map<std::vector<double>, int> m_rows; // By values.
};

} // namespace

DesignList ReadDesignList(const QString& path, const QSet<QString>& known)
{
    return Reader(path, known).Read();
}
