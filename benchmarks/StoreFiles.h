#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>

#include <vector>

/// What the benchmarks of the two XML files share: reading and writing them through the store, bare
/// passes of Qt's stream classes over the same file as the reference, and looking up all records. A
/// struct with static members describes the store: File, the file name; Clear(), Add(i), Read(),
/// Write() and LookUpAll().

/// Changes to a temporary working directory for its lifetime.
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

/// The elements of the file: the root, then its children.
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

template<class Store>
void Fill(const benchmark::State& state)
{
    Store::Clear();
    for (int i = 0; i < int(state.range(0)); ++i)
        Store::Add(i);
}

constexpr int LargePiece = 100 * 1024;

template<class Store>
void Read(benchmark::State& state)
{
    const Directory directory;
    Fill<Store>(state);
    Store::Write();
    for (auto _ : state) {
        state.PauseTiming();
        Store::Clear();
        // The allocator merges freed memory only at the next request for a large block. This cost
        // belongs to the clearing, not to the reading that is measured.
        QByteArray(LargePiece, Qt::Uninitialized);
        state.ResumeTiming();
        if (!Store::Read())
            state.SkipWithError("the file was not read");
    }
}

template<class Store>
void BareRead(benchmark::State& state)
{
    const Directory directory;
    Fill<Store>(state);
    Store::Write();
    for (auto _ : state)
        ReadBare(QString::fromLatin1(Store::File));
}

template<class Store>
void Write(benchmark::State& state)
{
    const Directory directory;
    Fill<Store>(state);
    for (auto _ : state) {
        if (!Store::Write())
            state.SkipWithError("the file was not written");
    }
}

template<class Store>
void BareWrite(benchmark::State& state)
{
    const Directory directory;
    Fill<Store>(state);
    Store::Write();
    const BareTokens tokens = LoadTokens(QString::fromLatin1(Store::File));
    for (auto _ : state)
        WriteBare(QStringLiteral("bare.xml"), tokens);
}

template<class Store>
void LookUp(benchmark::State& state)
{
    Fill<Store>(state);
    for (auto _ : state)
        Store::LookUpAll();
}

template<class Store>
int RunStoreBenchmarks(int argc, char** argv)
{
    const auto add = [](const char* name, void (*function)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, function)
            ->Arg(10000)
            ->Arg(100000)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    add("read/ours", Read<Store>);
    add("read/reference", BareRead<Store>);
    add("write/ours", Write<Store>);
    add("write/reference", BareWrite<Store>);
    add("look up all", LookUp<Store>);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
