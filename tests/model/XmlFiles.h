#pragma once

#include "TestCase.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QTest>

/// Shared by the tests of the XML files.

/// The backups of the file.
inline QStringList CopiesOf(const QString& file)
{
    return QDir().entryList({file + QStringLiteral(".*.bak")}, QDir::Files, QDir::Name);
}

/// The errors that xmllint reports for the file with the given schema; empty if it is valid.
inline QString Complaints(const QString& file, const QString& schema)
{
    QProcess xmllint;
    xmllint.setProcessChannelMode(QProcess::MergedChannels);
    xmllint.start(QStringLiteral("xmllint"),
                  {QStringLiteral("--noout"), QStringLiteral("--nonet"), QStringLiteral("--schema"),
                   SourcePath("docs/schemas/") + schema, file});
    if (!xmllint.waitForFinished())
        return xmllint.errorString();
    return xmllint.exitCode() == 0 ? QString() : QString::fromUtf8(xmllint.readAll());
}

/// Rows of contents that the schema refuses, built from the given root and record.
inline void AddUnfitRows(const QByteArray& root, const QByteArray& units, const QByteArray& record)
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray start = "<" + root + " version=\"1\" units=\"" + units + "\">";
    const QByteArray end = "</" + root + ">";
    const QByteArray one = "<" + record + " name=\"a\"/>";
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << start + one;
    QTest::newRow("another root") << "<x version=\"1\" units=\"" + units + "\">" + one + "</x>";
    QTest::newRow("newer version")
        << "<" + root + " version=\"2\" units=\"" + units + "\">" + one + end;
    QTest::newRow("no version") << "<" + root + " units=\"" + units + "\">" + one + end;
    QTest::newRow("other units") << "<" + root + " version=\"1\" units=\"inch\">" + one + end;
    QTest::newRow("no units") << "<" + root + " version=\"1\">" + one + end;
    QTest::newRow("record without a name") << start + "<" + record + "/>" + end;
    QTest::newRow("a name twice") << start + one + one + end;
    QTest::newRow("unknown element") << start + "<x/>" + end;
    QTest::newRow("element in a record")
        << start + "<" + record + " name=\"a\"><x/></" + record + ">" + end;
    QTest::newRow("unknown attribute") << start + "<" + record + " name=\"a\" x=\"\"/>" + end;
    QTest::newRow("text") << start + "text" + end;
}

/// Rows of texts that are hard to represent in XML.
inline void AddTextRows()
{
    QTest::addColumn<QString>("text");
    QString controls;
    for (ushort c = 0; c < 0x20; ++c)
        controls += QChar(c);
    QTest::newRow("empty") << "";
    QTest::newRow("plain") << "Steel";
    QTest::newRow("blanks around") << "  Steel  ";
    QTest::newRow("only a blank") << " ";
    QTest::newRow("markup") << "<a b='c' d=\"e\">&amp;</a>]]>";
    QTest::newRow("line ends and tabs") << "a\r\nb\nc\rd\te";
    QTest::newRow("all control characters") << controls;
    QTest::newRow("delete and the C1 controls")
        << QString::fromUtf8("\x7f\xc2\x80\xc2\x85\xc2\x9f");
    QTest::newRow("line and paragraph separator") << QString(QChar(0x2028)) + QChar(0x2029);
    QTest::newRow("byte order mark") << QString(QChar(0xFEFF)) + "a";
    QTest::newRow("no characters") << QString(QChar(0xFFFE)) + QChar(0xFFFF) + QChar(0xFDD0);
    QTest::newRow("Chinese") << QStringLiteral("结构钢");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F529");
    QTest::newRow("last code point") << QStringLiteral("\U0010FFFF");
    QTest::newRow("first half of a pair") << QString("a") + QChar(0xD83D);
    QTest::newRow("second half of a pair") << QString(QChar(0xDD29)) + "a";
    QTest::newRow("halves in the wrong order") << QString(QChar(0xDD29)) + QChar(0xD83D);
    QTest::newRow("half before a pair")
        << QString(QChar(0xD83D)) + QStringLiteral("\U0001F529") + QChar(0xDD29);
    QTest::newRow("backslashes") << "C:\\u0041\\\\n\\";
    QTest::newRow("what an escape looks like") << "\\u000a";
    QTest::newRow("equals signs") << "a=b c='d'";
    QTest::newRow("very many equals signs") << QString(100000, '=');
    QTest::newRow("100,000 characters") << QString(100000, 'x');
}

/// The text in UTF-16 with native byte order, without a byte order mark.
inline QByteArray ToUtf16(const QByteArray& text)
{
    const QString wide = QString::fromUtf8(text);
    return {reinterpret_cast<const char*>(wide.utf16()), wide.size() * int(sizeof(QChar))};
}

/// Rows of contents that both readers refuse, built from the given root and record.
inline void AddRefusedRows(const QByteArray& root, const QByteArray& units,
                           const QByteArray& record)
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray attributes = " version=\"1\" units=\"" + units + "\"";
    const QByteArray start = "<" + root + attributes + ">";
    const QByteArray end = "</" + root + ">";
    const QByteArray one = "<" + record + " name=\"new\"/>";
    QByteArray bomb = "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\">";
    QByteArray parameterBomb = "<!DOCTYPE x [<!ENTITY % a \"<!ENTITY b 'bbbbbbbbbb'>\">";
    for (char c = 'b'; c < 'z'; ++c) {
        const QByteArray name(1, c);
        const QByteArray before(1, char(c - 1));
        bomb += "<!ENTITY " + name + " \"" + ("&" + before + ";").repeated(10) + "\">";
        parameterBomb += "<!ENTITY % " + name + " \"" + ("%" + before + ";").repeated(10) + "\">";
    }
    QByteArray manyAttributes = "<" + record + " name=\"new\"";
    QByteArray manyNamespaces;
    QByteArray manyDeclarations = "<!DOCTYPE x [<!ATTLIST x";
    for (int i = 0; i < 100000; ++i) {
        const QByteArray number = QByteArray::number(i);
        manyAttributes += " a" + number + "=\"\"";
        manyNamespaces += "<x xmlns:p" + number + "=\"u\">";
        manyDeclarations += " a" + number + " CDATA \"\"";
    }

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("only blanks") << QByteArray("  \n");
    QTest::newRow("no XML") << QByteArray("name;value\n");
    QTest::newRow("zeros") << QByteArray(100, '\0');
    QTest::newRow("truncated after a record") << start + one;
    QTest::newRow("truncated in a record") << start + one + "<" + record + " name=\"n";
    QTest::newRow("truncated in the end tag") << start + one + end.chopped(1);
    QTest::newRow("wrong end tag") << start + one + "</x>";
    QTest::newRow("a second root") << start + one + end + start + end;
    QTest::newRow("text after the end") << start + one + end + "x";
    QTest::newRow("another root") << "<x" + attributes + ">" + one + "</x>";
    QTest::newRow("root of another namespace")
        << "<" + root + attributes + " xmlns=\"urn:x\">" + one + end;
    QTest::newRow("newer version")
        << "<" + root + " version=\"2\" units=\"" + units + "\">" + one + end;
    QTest::newRow("version 0") << "<" + root + " version=\"0\" units=\"" + units + "\">" + one +
                                      end;
    QTest::newRow("version that is no number")
        << "<" + root + " version=\"1.0\" units=\"" + units + "\">" + one + end;
    QTest::newRow("no version") << "<" + root + " units=\"" + units + "\">" + one + end;
    QTest::newRow("other units") << "<" + root + " version=\"1\" units=\"inch\">" + one + end;
    QTest::newRow("no units") << "<" + root + " version=\"1\">" + one + end;
    QTest::newRow("record without a name") << start + one + "<" + record + "/>" + end;
    QTest::newRow("attribute twice") << start + "<" + record + " name=\"a\" name=\"b\"/>" + end;
    QTest::newRow("wrong bytes") << start + "<" + record + " name=\"\xff\xfe\"/>" + end;
    QTest::newRow("control character") << start + "<" + record + " name=\"\x01\"/>" + end;
    QTest::newRow("unknown entity") << start + "<" + record + " name=\"&a;\"/>" + end;
    QTest::newRow("document type") << "<!DOCTYPE " + root + ">" + start + one + end;
    QTest::newRow("entity bomb") << bomb + "]>" + start + "&y;" + end;
    QTest::newRow("entity bomb in a name")
        << bomb + "]>" + start + "<" + record + " name=\"&y;\"/>" + end;
    QTest::newRow("parameter entity bomb") << parameterBomb + "%y;]>" + start + one + end;
    QTest::newRow("deep nesting") << start + QByteArray("<a>").repeated(1000000) +
                                         QByteArray("</a>").repeated(1000000) + end;
    QTest::newRow("huge name") << start + "<" + record + " name=\"" + QByteArray(20000000, 'x') +
                                      "\"/>" + end;
    QTest::newRow("huge text") << start + QByteArray(20000000, 'x') + end;
    QTest::newRow("huge comment") << start + "<!--" + QByteArray(20000000, 'x') + "-->" + end;
    QTest::newRow("huge element name") << start + "<" + QByteArray(20000000, 'x');
    QTest::newRow("very many attributes") << start + manyAttributes + "/>" + end;
    QTest::newRow("very many attributes in 16 bits")
        << "\xff\xfe" + ToUtf16(start + manyAttributes + "/>" + end);
    QTest::newRow("more attributes than any record")
        << start + manyAttributes.left(manyAttributes.indexOf(" a2000=")) + "/>" + end;
    QTest::newRow("more namespaces than any file")
        << start + "<x" + QByteArray(manyNamespaces).replace("<x", "").replace('>', "") + "/>" +
               end;
    QTest::newRow("many open namespaces")
        << start + manyNamespaces.left(manyNamespaces.indexOf("<x xmlns:p99=")) +
               "<x xmlns:q=\"u\" xmlns:r=\"u\"/>" + QByteArray("</x>").repeated(99) + end;
    QTest::newRow("many namespaces one after the other")
        << start + QByteArray("<x xmlns:p=\"u\"/>").repeated(101) + end;
    QTest::newRow("very many declared attributes") << manyDeclarations + ">]>" + start + one + end;
    QTest::newRow("zero in a name") << start + "<" + record + " name=\"a" + '\0' + "\"/>" + end;
    QTest::newRow("zero in a tag") << start + "<" + record + '\0' + " name=\"a\"/>" + end;
    QTest::newRow("zero as text") << start + '\0' + end;
    QTest::newRow("zeros after the end") << start + one + end + QByteArray(4096, '\0');
    QTest::newRow("zeros for the end") << start + one + QByteArray(4096, '\0');
    QTest::newRow("zero as a reference") << start + "<" + record + " name=\"&#0;\"/>" + end;
    QTest::newRow("half a pair in 8 bits")
        << start + "<" + record + " name=\"\xed\xa0\xbd\"/>" + end;
    QTest::newRow("half a pair as a reference")
        << start + "<" + record + " name=\"&#xD83D;\"/>" + end;
    QTest::newRow("half a code unit in 16 bits") << "\xff\xfe" + ToUtf16(start + one).chopped(1);
    QTest::newRow("unknown encoding")
        << "<?xml version=\"1.0\" encoding=\"x-none\"?>" + start + one + end;
    QTest::newRow("wrong encoding")
        << "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + start + one + end;
    QTest::newRow("external entity")
        << "<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" + start + "&e;" + end;
    QTest::newRow("very many records")
        << start + ("<" + record + " name=\"\"/>").repeated(1000001) + end;
}

/// A row for each file in the corpus of the fuzz target @p target.
inline void AddCorpusRows(const QString& target)
{
    QTest::addColumn<QString>("file");
    const QDir corpus(SourcePath("tests/fuzz/corpus/") + target);
    const QFileInfoList files = corpus.entryInfoList(QDir::Files, QDir::Name);
    QVERIFY(!files.isEmpty());
    for (const QFileInfo& file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.absoluteFilePath();
}

/// The name of a corpus file says whether it is accepted; names that the fuzzer gave do not.
inline void CheckCorpusResult(const QString& file, int result)
{
    const QString name = QFileInfo(file).fileName();
    if (name.startsWith(QLatin1String("good-")))
        QCOMPARE(result, 0);
    if (name.startsWith(QLatin1String("bad-")))
        QVERIFY(result != 0);
}
