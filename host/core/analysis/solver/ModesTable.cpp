#include "ModesTable.h"

#include "TextLines.h"

#include <cstddef>

namespace {

[[noreturn]] void Fail()
{
    throw ResultError(ResultError::tr("The solver's table of modes is damaged."));
}

/// The numbers of a line, separated by blanks.
std::vector<double> NumbersOf(std::string_view line)
{
    std::vector<double> numbers;
    for (line = Trimmed(line); !line.empty(); line = Trimmed(line)) {
        const std::size_t length = std::min(line.find(' '), line.size());
        const std::optional<double> number = NumberFrom<double>(line.substr(0, length));
        if (!number)
            Fail();
        numbers.push_back(*number);
        line.remove_prefix(length);
    }
    return numbers;
}

class Reader
{
public:
    explicit Reader(const QByteArray& text)
        : m_lines(text)
    {
    }

    ModesTable Read()
    {
        while (const auto line = m_lines.Next()) {
            const std::string_view title = Trimmed(*line);
            if (title == "E I G E N V A L U E   O U T P U T")
                ReadEigenvalues();
            else if (title == "E F F E C T I V E   M O D A L   M A S S")
                ReadMasses();
            else if (title == "T O T A L   E F F E C T I V E   M A S S")
                ReadTotal();
        }
        return m_table;
    }

private:
    // The next line that begins with a number, or nothing where the table ends.
    std::optional<std::vector<double>> NextRow(bool isFirst)
    {
        while (const auto line = m_lines.Next()) {
            const std::string_view text = Trimmed(*line);
            const bool isRow = !text.empty() && (text.front() == '-' || text.front() == '+' ||
                                                 (text.front() >= '0' && text.front() <= '9'));
            if (isRow)
                return NumbersOf(text);
            // Titles and blank lines stand before the first row.
            if (!isFirst)
                return std::nullopt;
        }
        return std::nullopt;
    }

    void ReadEigenvalues()
    {
        constexpr std::size_t Columns = 5;
        constexpr std::size_t FrequencyColumn = 3;
        m_table.modes.clear();
        for (auto row = NextRow(true); row; row = NextRow(false)) {
            if (row->size() != Columns || (*row)[0] != double(m_table.modes.size() + 1))
                Fail();
            Mode mode;
            mode.frequency = (*row)[FrequencyColumn];
            if (mode.frequency < 0.0)
                Fail();
            m_table.modes.push_back(mode);
        }
    }

    void ReadMasses()
    {
        std::size_t next = 0;
        for (auto row = NextRow(true); row; row = NextRow(false)) {
            if (row->size() != 1 + std::size_t(Mode::Masses().size()) ||
                next == m_table.modes.size())
                Fail();
            std::copy(row->begin() + 1, row->end(), m_table.modes[next++].effectiveMass.begin());
        }
    }

    void ReadTotal()
    {
        const auto row = NextRow(true);
        if (!row || row->size() != m_table.totalMass.size())
            Fail();
        std::copy(row->begin(), row->end(), m_table.totalMass.begin());
    }

    TextLines m_lines;
    ModesTable m_table;
};

} // namespace

ModesTable ReadModesTable(const QByteArray& text)
{
    return Reader(text).Read();
}
