#include "ResultsFile.h"

#include "CsvReader.h"
#include "HostError.h"
#include "ResultsTable.h"
#include "WholeFile.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct ResultsFileText
{
    Q_DECLARE_TR_FUNCTIONS(ResultsFile)
};

const QString RunName = QStringLiteral("run");
const QString StatusName = QStringLiteral("status");
const QString ErrorName = QStringLiteral("error");

[[noreturn]] void Fail(const QString& path, const QString& reason)
{
    throw HostError(QStringLiteral("%1: %2").arg(path, reason));
}

// The names of the number columns, from the header.
QStringList NumberNames(const QString& path, const std::vector<QByteArray>& header)
{
    QStringList names;
    for (const QByteArray& cell : header)
        names << PlainText(QString::fromUtf8(cell));
    for (const QString& name : {RunName, StatusName, ErrorName}) {
        if (!names.contains(name))
            Fail(path, ResultsFileText::tr("is not a table of results; it has no column \"%1\"")
                           .arg(name));
    }
    if (names.takeFirst() != RunName || names.takeLast() != ErrorName ||
        names.takeLast() != StatusName)
        Fail(path,
             ResultsFileText::tr("is not a table of results; its first column has to be \"run\", "
                                 "its last ones \"status\" and \"error\""));
    if (names.removeDuplicates() > 0)
        Fail(path, ResultsFileText::tr("two columns have the same name"));
    return names;
}

} // namespace

ResultColumns ReadResults(const QString& path)
{
    tarn::WholeFile file(path, ResultsTable::MaximumFileSize);
    QByteArray text;
    if (!file.Read(text))
        Fail(path, file.Error());
    CsvReader reader(text);
    std::vector<QByteArray> cells;
    if (!reader.Next(cells))
        Fail(path, ResultsFileText::tr("is empty"));
    const QStringList names = NumberNames(path, cells);
    // The parameters stand before the measures.
    const int parameters = std::max(0, names.lastIndexOf(ResultsTable::MeasureNames().first()));
    ResultColumns columns(names.mid(0, parameters), names.mid(parameters));
    while (reader.Next(cells)) {
        const QString fault = columns.Take(cells);
        if (!fault.isEmpty())
            Fail(path, ResultsFileText::tr("row %1: %2").arg(QString::number(reader.Row()), fault));
    }
    return columns;
}
