#include "XmlRecords.h"

#include "WholeFile.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <limits>

namespace tarn {

namespace {

constexpr int FormatVersion = 1;

// The reader refuses files beyond these limits, so that no file can exhaust memory or time; the
// writer keeps a margin. A record has room for four line edits at maximum length. Tokens outside
// the root and the equals signs of a tag are limited because Qt compares all attributes that are
// declared or given with each other before it returns any; namespaces, because it looks up each
// prefix in all open ones.
constexpr int MaximumRecords = 1000000;
constexpr int MaximumDepth = 100;
constexpr int MaximumAttributes = 100;
constexpr int MaximumNamespaces = 100;
constexpr int MaximumOuterTokenSize = 64 * 1024;
constexpr int MaximumTokenSize = 2 * 1024 * 1024;
constexpr int MaximumRecordSize = 1024 * 1024;
constexpr int MaximumTokenEquals = 4000;
constexpr int MaximumTextEquals = 400;

constexpr int EscapeLength = 6;
constexpr int EscapeDigits = 4;
constexpr int Hexadecimal = 16;

constexpr char VersionAttribute[] = "version";
constexpr char UnitsAttribute[] = "units";

bool HasManyEquals(const QString& text)
{
    return text.size() > MaximumTextEquals && text.count(QLatin1Char('=')) > MaximumTextEquals;
}

/// Whether the character at @p i of @p text is written as it is.
bool IsPlain(const QString& text, int i)
{
    const QChar c = text[i];
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text[i + 1].isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text[i - 1].isHighSurrogate();
    return c.unicode() >= 0x20 && c != QLatin1Char('\\') && c.unicode() < 0xFFFE;
}

/// Replaces by \uXXXX what XML cannot hold or would change, the backslash itself, and equals signs
/// if there are very many.
QString Escaped(const QString& text)
{
    const bool isEqualsPlain = !HasManyEquals(text);
    const auto isPlain = [&text, isEqualsPlain](int i) {
        return IsPlain(text, i) && (isEqualsPlain || text[i] != QLatin1Char('='));
    };
    int i = 0;
    while (i < text.size() && isPlain(i))
        ++i;
    if (i == text.size())
        return text;

    QString escaped = text.left(i);
    for (; i < text.size(); ++i) {
        if (isPlain(i))
            escaped += text[i];
        else
            escaped += QStringLiteral("\\u%1").arg(text[i].unicode(), EscapeDigits, Hexadecimal,
                                                   QLatin1Char('0'));
    }
    return escaped;
}

/// Reverses Escaped(). A backslash that does not begin an escape is kept.
QString Unescaped(const QString& text)
{
    int i = int(text.indexOf(QLatin1Char('\\')));
    if (i < 0)
        return text;

    QString plain = text.left(i);
    while (i < text.size()) {
        bool isEscape = false;
        if (QStringView(text).mid(i, 2) == QLatin1String("\\u") &&
            i + EscapeLength <= text.size()) {
            const auto isDigit = [](QChar c) {
                return c < QChar(0x80) && std::isxdigit(c.toLatin1()) != 0;
            };
            isEscape = std::all_of(text.begin() + i + 2, text.begin() + i + EscapeLength, isDigit);
        }
        if (isEscape) {
            plain += QChar(text.mid(i + 2, EscapeDigits).toUShort(nullptr, Hexadecimal));
            i += EscapeLength;
        } else {
            plain += text[i];
            ++i;
        }
    }
    return plain;
}

/// Passes a file's content to the parser and stops if a single tag or text is too long. It counts
/// bytes, whatever the encoding; in UTF-16 some of the equals signs are halves of other characters.
class BoundedInput : public QIODevice
{
public:
    explicit BoundedInput(const QByteArray& content)
        : m_content(content)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /// Call this after every token.
    void StartToken(bool isInRoot)
    {
        m_tokenLimit = isInRoot ? MaximumTokenSize : MaximumOuterTokenSize;
        m_tokenStart = m_position;
        m_tokenEquals = 0;
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        if (m_position - m_tokenStart > m_tokenLimit || m_tokenEquals > MaximumTokenEquals)
            return -1;
        const int count = int(std::min<qint64>(size, m_content.size() - m_position));
        std::memcpy(data, m_content.constData() + m_position, std::size_t(count));
        m_tokenEquals += int(std::count(data, data + count, '='));
        m_position += count;
        return count;
    }

    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    const QByteArray& m_content;
    int m_position = 0;
    int m_tokenLimit = MaximumOuterTokenSize;
    int m_tokenStart = 0;
    int m_tokenEquals = 0;
};

class RecordReader
{
public:
    RecordReader(const XmlFormat& format, const QByteArray& content)
        : m_format(format)
        , m_fields(format.fields + format.optional)
        , m_input(content)
        , m_xml(&m_input)
        , m_texts(std::size_t(m_fields.size()))
        , m_last(m_texts)
    {
        // Our files have no entities, so there is nothing to expand.
        m_xml.setEntityExpansionLimit(0);
    }

    XmlReading Read(const std::function<bool(std::vector<QString>&)>& take);

private:
    int FieldOf(QStringView name, int likely) const;
    bool IsBounded();
    bool ReadRoot();
    bool ReadRecord(const std::function<bool(std::vector<QString>&)>& take);

    const XmlFormat& m_format;
    const QVector<QString> m_fields;
    BoundedInput m_input;
    QXmlStreamReader m_xml;
    std::vector<QString> m_texts;
    std::vector<QString> m_last; ///< The texts of the previous record, as they are in the file.
    int m_records = 0;
    int m_namespaces = 0;
    bool m_isFull = true;
};

/// The field called @p name, or -1; it is usually the one at @p likely.
int RecordReader::FieldOf(QStringView name, int likely) const
{
    if (likely < m_fields.size() && m_fields[likely] == name)
        return likely;
    for (int i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i] == name)
            return i;
    }
    return -1;
}

XmlReading RecordReader::Read(const std::function<bool(std::vector<QString>&)>& take)
{
    int depth = 0;
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            ++depth;
            if (depth > MaximumDepth || !IsBounded())
                return XmlReading::Refused;
            const bool isRecord =
                depth == 2 && m_xml.namespaceUri().isEmpty() && m_xml.name() == m_format.record;
            if (depth == 1 ? !ReadRoot() : isRecord && !ReadRecord(take))
                return XmlReading::Refused;
            if (depth > 1 && !isRecord)
                m_isFull = false;
            break;
        }
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Invalid:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            return XmlReading::Refused;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace())
                m_isFull = false;
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            m_isFull = false;
            break;
        case QXmlStreamReader::NoToken:
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::EndDocument:
            break;
        }
        m_input.StartToken(depth > 0);
    }
    if (m_xml.hasError())
        return XmlReading::Refused;
    return m_isFull ? XmlReading::Fully : XmlReading::Partly;
}

/// False if the start tag has more attributes or namespaces than any of ours.
bool RecordReader::IsBounded()
{
    m_namespaces += int(m_xml.namespaceDeclarations().size());
    return m_namespaces <= MaximumNamespaces && m_xml.attributes().size() <= MaximumAttributes;
}

bool RecordReader::ReadRoot()
{
    if (m_xml.name() != m_format.root || !m_xml.namespaceUri().isEmpty())
        return false;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    bool isNumber = false;
    const int version = attributes.value(QLatin1String(VersionAttribute)).toInt(&isNumber);
    if (attributes.size() > 2)
        m_isFull = false;
    return isNumber && version >= 1 && version <= FormatVersion &&
           attributes.value(QLatin1String(UnitsAttribute)) == m_format.units;
}

bool RecordReader::ReadRecord(const std::function<bool(std::vector<QString>&)>& take)
{
    for (QString& text : m_texts)
        text.clear();
    bool isNamed = false;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const int field = FieldOf(attributes[i].qualifiedName(), i);
        if (field < 0) {
            m_isFull = false;
            continue;
        }
        // Records often have the same text as the previous one; they then share it.
        const auto value = attributes[i].value();
        QString& last = m_last[std::size_t(field)];
        if (last.isNull() || value != last)
            last = value.toString();
        m_texts[std::size_t(field)] = Unescaped(last);
        isNamed = isNamed || field == 0;
    }
    ++m_records;
    return isNamed && m_records <= MaximumRecords && take(m_texts);
}

} // namespace

XmlReading ReadRecords(const XmlFormat& format, const QByteArray& content,
                       const std::function<bool(std::vector<QString>& texts)>& take)
{
    return RecordReader(format, content).Read(take);
}

bool WriteRecords(const XmlFormat& format, QByteArray& content,
                  const std::function<bool(std::vector<QString>& texts)>& next)
{
    QXmlStreamWriter xml(&content);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(format.root);
    xml.writeAttribute(QLatin1String(VersionAttribute), QString::number(FormatVersion));
    xml.writeAttribute(QLatin1String(UnitsAttribute), format.units);

    const QVector<QString> fields = format.fields + format.optional;
    std::vector<QString> texts(std::size_t(fields.size()));
    for (int records = 0; next(texts); ++records) {
        const auto before = content.size();
        xml.writeEmptyElement(format.record);
        for (int i = 0; i < fields.size(); ++i) {
            if (i < format.fields.size() || !texts[std::size_t(i)].isEmpty())
                xml.writeAttribute(fields[i], Escaped(texts[std::size_t(i)]));
        }
        if (records == MaximumRecords || content.size() - before > MaximumRecordSize ||
            content.size() > WholeFile::MaximumSize)
            return false;
    }
    xml.writeEndDocument();
    return !xml.hasError();
}

QString ToText(double number)
{
    if (std::isnan(number))
        return QStringLiteral("NaN");
    if (std::isinf(number))
        return number > 0.0 ? QStringLiteral("INF") : QStringLiteral("-INF");
    if (number == 0.0 && std::signbit(number))
        return QStringLiteral("-0"); // Qt drops the sign.
    return QString::number(number, 'g', std::numeric_limits<double>::max_digits10);
}

bool ToNumber(const QString& text, double& number)
{
    // Qt reads these in whatever case.
    bool isNumber = false;
    number = text.toDouble(&isNumber);
    return isNumber;
}

} // namespace tarn
