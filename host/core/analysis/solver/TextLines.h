#pragma once

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

/// The lines of a text, one after the other.
class TextLines
{
public:
    /// @p bytes must outlive the object.
    explicit TextLines(const QByteArray& bytes)
        : m_next(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
    {
    }

    /// The next line without its end; nothing after the last one.
    std::optional<std::string_view> Next()
    {
        if (m_next == m_end)
            return std::nullopt;
        const char* const begin = m_next;
        const char* const end = std::find(m_next, m_end, '\n');
        m_next = end == m_end ? end : end + 1;
        return std::string_view(begin, std::size_t(end - begin));
    }

private:
    const char* m_next;
    const char* m_end;
};

inline std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \r\t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \r\t") - first + 1);
}

/// The number that all of @p text is, blanks aside; nothing if it is not one or not finite.
template<class Number>
std::optional<Number> NumberFrom(std::string_view text)
{
    text = Trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end || !std::isfinite(double(number)))
        return std::nullopt;
    return number;
}
