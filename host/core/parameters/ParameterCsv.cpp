#include "ParameterCsv.h"

#include "CsvText.h"
#include "JsonSection.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr int MaximumRows = 100000;

const QString NameWord = QStringLiteral("name");
const QString TypeWord = QStringLiteral("type");
const QString ValueWord = QStringLiteral("value");
const QString UnitWord = QStringLiteral("unit");
const QString DescriptionWord = QStringLiteral("description");

// In the order of ParametersDef::Type.
const std::array<QString, 4> TypeWords = {QStringLiteral("Bool"), QStringLiteral("Scalar"),
                                          QStringLiteral("Vector"), QStringLiteral("Tensor")};

QStringList Lowered(const QStringList& cells)
{
    QStringList words;
    for (const QString& cell : cells)
        words << cell.trimmed().toLower();
    return words;
}

// The one that the first line has.
QChar SeparatorOf(const QString& text)
{
    const QStringRef line = text.leftRef(text.indexOf(QLatin1Char('\n')));
    for (const char separator : {'\t', ';'}) {
        if (line.contains(QLatin1Char(separator)))
            return QLatin1Char(separator);
    }
    return QLatin1Char(',');
}

int TypeOf(const QString& word)
{
    if (word.isEmpty())
        return ParametersDef::ScalarType;
    const auto* const found =
        std::find_if(TypeWords.begin(), TypeWords.end(), [&](const auto& type) {
            return type.compare(word, Qt::CaseInsensitive) == 0;
        });
    if (found == TypeWords.end())
        throw ParameterError(ParameterError::tr("%1 is not a type of parameter").arg(Quoted(word)));
    return int(found - TypeWords.begin());
}

ParameterEntry EntryOf(const QStringList& columns, const QStringList& cells)
{
    const auto cell = [&](const QString& column) {
        const int index = columns.indexOf(column);
        return index < 0 ? QString() : cells.value(index).trimmed();
    };
    CheckParameterName(cell(NameWord));
    ParameterEntry entry = NewParameter(cell(NameWord));
    entry.SetType(TypeOf(cell(TypeWord)));
    entry.SetValueText(cell(ValueWord));
    entry.unit = cell(UnitWord);
    entry.record.m_strDescription = cell(DescriptionWord);
    return entry;
}

} // namespace

QString ParametersToText(const ParameterEntries& entries, QChar separator)
{
    QString text = CsvLine({NameWord, TypeWord, ValueWord, UnitWord, DescriptionWord}, separator);
    for (const ParameterEntry& entry : entries) {
        const auto type = std::size_t(entry.record.m_nType);
        text += CsvLine({entry.Name(), type < TypeWords.size() ? TypeWords[type] : QString(),
                         entry.ValueText(), entry.unit, entry.record.m_strDescription},
                        separator);
    }
    return text;
}

ParameterEntries ParametersFromText(const QString& text)
{
    const std::vector<QStringList> rows = CsvRows(text, SeparatorOf(text));
    if (rows.size() > MaximumRows)
        throw ParameterError(
            ParameterError::tr("there are more than %1 rows").arg(int(MaximumRows)));
    QStringList columns = {NameWord, ValueWord, UnitWord, DescriptionWord};
    std::size_t row = 0;
    if (!rows.empty() && Lowered(rows.front()).contains(NameWord)) {
        columns = Lowered(rows.front());
        row = 1;
    }
    ParameterEntries entries;
    QSet<QString> names;
    for (; row < rows.size(); ++row) {
        if (rows[row].join(QString()).trimmed().isEmpty())
            continue;
        try {
            entries.push_back(EntryOf(columns, rows[row]));
            if (names.contains(entries.back().Name()))
                throw ParameterError(ParameterError::tr("there are two parameters %1")
                                         .arg(Quoted(entries.back().Name())));
        } catch (const ParameterError& error) {
            throw ParameterError(
                ParameterError::tr("row %1: %2").arg(int(row) + 1).arg(error.Reason()));
        }
        names.insert(entries.back().Name());
    }
    return entries;
}

ParameterEntries Merged(ParameterEntries entries, const ParameterEntries& added)
{
    QHash<QString, std::size_t> places;
    for (const ParameterEntry& entry : entries)
        places.insert(entry.Name(), std::size_t(places.size()));
    for (const ParameterEntry& entry : added) {
        const auto place = places.constFind(entry.Name());
        if (place != places.constEnd()) {
            entries[*place] = entry;
            continue;
        }
        places.insert(entry.Name(), entries.size());
        entries.push_back(entry);
    }
    return entries;
}
