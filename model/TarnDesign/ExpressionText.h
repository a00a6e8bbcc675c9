#pragma once

#include <cstddef>
#include <string>

class QTextCodec;

/// The text of an expression: read in the local 8-bit code page, kept in UTF-8.
///
/// In some code pages the second byte of a letter looks like an operator or a digit, so nothing
/// may be looked for in the bytes themselves. Bytes that the code page cannot read, or would not
/// write back the same, are taken as Latin-1, one letter each.
class ExpressionText
{
public:
    explicit ExpressionText(const std::string& bytes);

    const std::string& Utf8() const { return m_utf8; }

    /// The bytes with which the text's code page writes @p name, a part of Utf8().
    std::string LocalName(const std::string& name) const;

    /// How many characters there are before @p offset of Utf8(), and one more.
    int PositionOf(std::size_t offset) const;

    /// True when @p bytes mean the same in every code page.
    static bool IsAscii(const std::string& bytes);

private:
    std::string m_utf8;
    const QTextCodec* m_codec = nullptr; // Null for what is ASCII throughout.
};
