#include "ResultFile.h"

#include "TextLines.h"

namespace {

// The format has fixed columns, without blanks between numbers.
constexpr std::size_t KeyWidth = 3;
constexpr std::size_t IdWidth = 10;
constexpr std::size_t ValueWidth = 12;
constexpr std::size_t ValuesStart = KeyWidth + IdWidth;
constexpr std::size_t StepStart = 12; // Of the value in the head of a step.
constexpr std::size_t MaximumComponents = 6;

[[noreturn]] void Fail()
{
    throw ResultError(ResultError::tr("The solver's file of results is damaged or not complete."));
}

std::string_view Column(std::string_view line, std::size_t start, std::size_t width)
{
    return start < line.size() ? line.substr(start, width) : std::string_view();
}

bool StartsWith(std::string_view line, std::string_view start)
{
    return line.substr(0, start.size()) == start;
}

template<class Number>
Number NumberAt(std::string_view line, std::size_t start, std::size_t width)
{
    const std::optional<Number> number = NumberFrom<Number>(Column(line, start, width));
    if (!number)
        Fail();
    return *number;
}

class Reader
{
public:
    explicit Reader(const QByteArray& text)
        : m_lines(text)
    {
    }

    ResultFile Read()
    {
        for (;;) {
            const std::string_view line = Next();
            if (Trimmed(line) == "9999")
                return m_file;
            if (StartsWith(line, "    3C"))
                ReadElements(line);
            else if (StartsWith(line, "  100C"))
                ReadField(line);
        }
    }

private:
    std::string_view Next()
    {
        const auto line = m_lines.Next();
        if (!line)
            Fail();
        return *line;
    }

    static void NeedLongFormat(std::string_view head)
    {
        if (Trimmed(head).back() != '1')
            Fail();
    }

    void ReadElements(std::string_view head)
    {
        NeedLongFormat(head);
        for (std::string_view line = Next(); !IsEnd(line); line = Next()) {
            if (StartsWith(line, " -1")) {
                m_file.elements.push_back({NumberAt<int>(line, KeyWidth, IdWidth), {}});
            } else if (StartsWith(line, " -2") && !m_file.elements.empty()) {
                const std::size_t end = line.find_last_not_of(" \r") + 1;
                for (std::size_t at = KeyWidth; at < end; at += IdWidth)
                    m_file.elements.back().nodes.push_back(NumberAt<int>(line, at, IdWidth));
            } else {
                Fail();
            }
        }
    }

    static bool IsEnd(std::string_view line) { return StartsWith(line, " -3"); }

    void ReadField(std::string_view head)
    {
        NeedLongFormat(head);
        ResultField field;
        field.step = NumberAt<double>(head, StepStart, ValueWidth);
        std::string_view line = Next();
        if (!StartsWith(line, " -4"))
            Fail();
        const std::string_view name = Trimmed(Column(line, KeyWidth, IdWidth));
        field.name = QString::fromLatin1(name.data(), int(name.size()));
        const bool isWanted = name == "DISP" || name == "STRESS";
        field.components = name == "DISP" ? 3 : MaximumComponents;
        do
            line = Next();
        while (StartsWith(line, " -5"));
        for (; !IsEnd(line); line = Next()) {
            if (!StartsWith(line, " -1"))
                Fail();
            if (!isWanted)
                continue;
            field.nodes.push_back(NumberAt<int>(line, KeyWidth, IdWidth));
            for (std::size_t i = 0; i < field.components; ++i)
                field.values.push_back(
                    NumberAt<double>(line, ValuesStart + i * ValueWidth, ValueWidth));
        }
        if (isWanted)
            m_file.fields.push_back(std::move(field));
    }

    TextLines m_lines;
    ResultFile m_file;
};

} // namespace

ResultFile ReadResultFile(const QByteArray& text)
{
    return Reader(text).Read();
}
