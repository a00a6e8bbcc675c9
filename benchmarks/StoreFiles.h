#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>

#include <vector>

/// What the benchmarks of the two XML files share: bare passes of Qt's stream classes over the same
/// file, as the measure of ours.

/// A temporary working directory, while it lives.
class Directory
{
public:
    Directory()
        : m_before(QDir::currentPath())
    {
        QDir::setCurrent(m_directory.path());
    }
    ~Directory() { QDir::setCurrent(m_before); }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

private:
    QTemporaryDir m_directory;
    QString m_before;
};

struct BareElement
{
    QString name;
    QXmlStreamAttributes attributes;
};
using BareTokens = std::vector<BareElement>;

inline void ReadBare(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        benchmark::DoNotOptimize(xml.readNext());
}

/// The elements of the file: the root, then what is in it.
inline BareTokens LoadTokens(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    BareTokens tokens;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement)
            tokens.push_back({xml.name().toString(), xml.attributes()});
    }
    return tokens;
}

inline void WriteBare(const QString& path, const BareTokens& tokens)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (i == 0)
            xml.writeStartElement(tokens[i].name);
        else
            xml.writeEmptyElement(tokens[i].name);
        xml.writeAttributes(tokens[i].attributes);
    }
    xml.writeEndDocument();
}
