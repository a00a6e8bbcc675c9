#include "ResultFile.h"
#include "TestCase.h"

class tst_ResultFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ElementsAndFieldsAreRead();
    void NumbersWithoutBlanksBetweenAreRead();
    void DamagedFilesAreRefused_data();
    void DamagedFilesAreRefused();
    void ACutFileIsRefused();
};

namespace {

const QByteArray File =
    "    1C\n    1UUSER\n"
    "    2C                             2                                     1\n"
    " -1         1 0.00000E+00 0.00000E+00 1.00000E+00\n"
    " -1         2 0.00000E+00 0.00000E+00 2.00000E+00\n"
    " -3\n"
    "    3C                             1                                     1\n"
    " -1         7    4    0    1\n"
    " -2       571       532       586       460       573       534       588"
    "       462       613       616\n"
    " -2       619       622\n"
    " -3\n"
    "    1PSTEP                         1           1           1          \n"
    "  100CL  101 173.2780092           2                     2    1MODAL      1\n"
    " -4  DISP        4    1\n"
    " -5  D1          1    2    1    0\n"
    " -5  ALL         1    2    0    0    1ALL\n"
    " -1         1-1.00000E+00-2.00000E-16 3.00000E+00\n"
    " -1         2 4.00000E+00 5.00000E+00-6.00000E+00\n"
    " -3\n"
    "  100CL  101 1.000000000           1                     0    1           1\n"
    " -4  STRESS      6    1\n"
    " -5  SXX         1    4    1    1\n"
    " -1         1-1.93227E+01-4.63291E+00-7.18662E+00-2.94942E+00 7.73171E-02"
    " 2.17255E+00\n"
    " -3\n"
    "  100CL  101 1.000000000           1                     0    1           1\n"
    " -4  ERROR       1    1\n"
    " -5  STR(%)      1    1    0    0\n"
    " -1         1 8.77907E+01\n"
    " -3\n"
    " 9999\n";

QString Refusal(const QByteArray& text)
{
    try {
        ReadResultFile(text);
        return "read";
    } catch (const ResultError& error) {
        return error.Reason();
    }
}

const QString Damaged = "The solver's file of results is damaged or not complete.";

} // namespace

void tst_ResultFile::ElementsAndFieldsAreRead()
{
    const ResultFile file = ReadResultFile(File);
    QCOMPARE(file.elements.size(), std::size_t(1));
    QCOMPARE(file.elements[0].id, 7);
    QVERIFY((file.elements[0].nodes ==
             std::vector<int>{571, 532, 586, 460, 573, 534, 588, 462, 613, 616, 619, 622}));
    QCOMPARE(file.fields.size(), std::size_t(2));
    QCOMPARE(file.fields[0].name, QString("DISP"));
    QCOMPARE(file.fields[0].step, 173.2780092);
    QVERIFY((file.fields[0].nodes == std::vector<int>{1, 2}));
    QCOMPARE(file.fields[1].name, QString("STRESS"));
    QCOMPARE(file.fields[1].components, std::size_t(6));
}

void tst_ResultFile::NumbersWithoutBlanksBetweenAreRead()
{
    const ResultFile file = ReadResultFile(File);
    QVERIFY((file.fields[0].values == std::vector<double>{-1, -2e-16, 3, 4, 5, -6}));
    QCOMPARE(file.fields[1].values[1], -4.63291);
}

void tst_ResultFile::DamagedFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    const auto row = [](const char* name, const char* from, const char* to) {
        NewRow(name, QByteArray(from), QByteArray(to));
    };
    row("empty value", "-2.00000E-16", "            ");
    row("not a number", "-2.00000E-16", "         NaN");
    row("infinite", "-2.00000E-16", "         inf");
    row("comma", "-2.00000E-16", "-2,00000E-16");
    row("node without number", " -1         2 4.0", " -1           4.0");
    row("short line", " 5.00000E+00-6.00000E+00", " 5.00000E+00");
    row("short format", "    1MODAL      1", "    1MODAL      0");
    row("binary elements", "1                                     1\n -1         7",
        "1                                     2\n -1         7");
    row("element without number", " -1         7 ", " -1         x ");
    row("element's node", "       532", "       5x2");
    row("nodes before an element", " -1         7    4    0    1\n", "");
    row("no name of the field", " -4  DISP        4    1\n", "");
    row("no step", "173.2780092", "           ");
    row("line of another kind", " -1         2 4.0", " -2         2 4.0");
    row("no end", " 9999", "");
}

void tst_ResultFile::DamagedFilesAreRefused()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QByteArray text = File;
    QVERIFY(text.contains(from));
    QCOMPARE(Refusal(text.replace(from, to)), Damaged);
}

void tst_ResultFile::ACutFileIsRefused()
{
    QCOMPARE(Refusal(File), QString("read"));
    for (int length = 0; length < File.size() - 1; ++length)
        QCOMPARE(Refusal(File.left(length)), Damaged);
}

TARN_TEST_MAIN(tst_ResultFile)
#include "tst_ResultFile.moc"
