#include "Expressions.h"
#include "TestCase.h"

#include <QFile>
#include <QRegularExpression>

#include <cmath>
#include <limits>

using namespace expressions;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

struct Example
{
    QString expression;
    QString result;
};

QString UserDocument()
{
    QFile file(SourcePath("docs/expressions.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The tables of the document escape the bar with a backslash.
QString WithoutEscapes(QString text)
{
    return text.replace("\\|", "|");
}

QVector<Example> ExamplesOfDocument()
{
    QVector<Example> examples;
    static const QRegularExpression pattern("`([^`]+)` = `([^`]+)`");
    auto match = pattern.globalMatch(UserDocument());
    while (match.hasNext()) {
        const auto found = match.next();
        if (found.captured(1) != "formula")
            examples.append({WithoutEscapes(found.captured(1)), found.captured(2)});
    }
    return examples;
}

} // namespace

class tst_ExpressionDocument : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryExampleOfTheDocumentIsRight_data();
    void EveryExampleOfTheDocumentIsRight();
    void EveryReasonOfTheDocumentIsGiven_data();
    void EveryReasonOfTheDocumentIsGiven();
    void TheDocumentHasAnExampleOfEverything_data();
    void TheDocumentHasAnExampleOfEverything();
};

void tst_ExpressionDocument::EveryExampleOfTheDocumentIsRight_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("result");
    const QVector<Example> examples = ExamplesOfDocument();
    QVERIFY(examples.size() > 60);
    for (const Example& example : examples)
        QTest::newRow(qPrintable(example.expression)) << example.expression << example.result;
}

void tst_ExpressionDocument::EveryExampleOfTheDocumentIsRight()
{
    QFETCH(QString, expression);
    QFETCH(QString, result);
    bool isNumber = false;
    const double value = result.toDouble(&isNumber);
    QVERIFY(isNumber);
    COMPARE_VALUE(Calculate(expression), value);
}

void tst_ExpressionDocument::EveryReasonOfTheDocumentIsGiven_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("reason");
    static const QRegularExpression pattern(
        "^\\|[^|]*\\| `([^`]+)`[^|]*\\| (Position [^|]*[^| ]) \\|$",
        QRegularExpression::MultilineOption);
    auto match = pattern.globalMatch(UserDocument());
    int count = 0;
    while (match.hasNext()) {
        const auto found = match.next();
        QTest::newRow(qPrintable(found.captured(1))) << found.captured(1) << found.captured(2);
        ++count;
    }
    QVERIFY(count > 15);
}

void tst_ExpressionDocument::EveryReasonOfTheDocumentIsGiven()
{
    QFETCH(QString, expression);
    QFETCH(QString, reason);
    QVERIFY(std::isnan(
        Calculate(expression, {{"min", 1.0}, {"width", 1.0}, {"a", 1.0}, {"x", NotANumber}})));
    QCOMPARE(ExpressionEngine::LastError(), reason);
}

void tst_ExpressionDocument::TheDocumentHasAnExampleOfEverything_data()
{
    QTest::addColumn<QRegularExpression>("wanted");
    for (const QString& name : Functions())
        QTest::newRow(qPrintable(name)) << QRegularExpression("\\b" + name + "\\(");
    for (const char* const name : {"pi", "e"})
        QTest::newRow(name) << QRegularExpression(QString("\\b%1\\b").arg(name));
    for (const char* const sign :
         {"+", "-", "*", "/", "^", "<", "<=", ">", ">=", "==", "!=", "&&", "||", "?", ":"})
        QTest::newRow(sign) << QRegularExpression(QRegularExpression::escape(sign));
}

void tst_ExpressionDocument::TheDocumentHasAnExampleOfEverything()
{
    QFETCH(QRegularExpression, wanted);
    const QVector<Example> examples = ExamplesOfDocument();
    for (const Example& example : examples) {
        if (wanted.match(example.expression).hasMatch())
            return;
    }
    QFAIL("there is no example");
}

TARN_TEST_MAIN(tst_ExpressionDocument)
#include "tst_ExpressionDocument.moc"
