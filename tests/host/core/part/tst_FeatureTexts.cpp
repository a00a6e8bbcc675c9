#include "FeatureTexts.h"
#include "TestCase.h"

class tst_FeatureTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ACornerIsReadAsItIsWritten_data();
    void ACornerIsReadAsItIsWritten();
    void AFaceIsReadAsItIsWritten_data();
    void AFaceIsReadAsItIsWritten();
    void EdgesAreReadAsTheyAreWritten_data();
    void EdgesAreReadAsTheyAreWritten();
    void OtherTextsAreRefused_data();
    void OtherTextsAreRefused();
};

void tst_FeatureTexts::ACornerIsReadAsItIsWritten_data()
{
    NewNameRows("text", {"0; -10", "max(a; b); 2 * (b + 1)", "1; 2; 3; t / 4"});
}

void tst_FeatureTexts::ACornerIsReadAsItIsWritten()
{
    QFETCH(QByteArray, text);
    QCOMPARE(TextOf(CornerOf(" " + text)), QString(text));
    QCOMPARE(CornerOf(text).IsArc(), text.startsWith("1"));
}

void tst_FeatureTexts::AFaceIsReadAsItIsWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPoint");
    NewRow("name", QString("right_arm/arm.xmax"), false);
    NewRow("odd name", QString("a (1).xmax"), false);
    NewRow("point", QString("(1, max(a, b), -2.5)"), true);
}

void tst_FeatureTexts::AFaceIsReadAsItIsWritten()
{
    QFETCH(QString, text);
    const FaceReference face = FaceOf(text);
    QCOMPARE(face.Text(), text);
    QTEST(face.IsPoint(), "isPoint");
}

void tst_FeatureTexts::EdgesAreReadAsTheyAreWritten_data()
{
    NewNameRows("text", {"", "a.xmin | a.ymin", "(1, 2, 3); a.xmin | (0, max(a; b), t)"});
}

void tst_FeatureTexts::EdgesAreReadAsTheyAreWritten()
{
    QFETCH(QByteArray, text);
    QCOMPARE(TextOf(EdgesOf(text)), QString(text));
    QCOMPARE(int(EdgesOf(text).size()), text.isEmpty() ? 0 : 1 + text.count("; a"));
}

void tst_FeatureTexts::OtherTextsAreRefused_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("text");
    for (const char* const text : {"", "1", "1; 2; 3", "1;; 2; 3", "1; 2; 3; 4; 5"})
        NewRow(qPrintable(QString("corner %1").arg(text)), QString("corner"), QString(text));
    for (const char* const text : {" ", "(1, 2)", "(1, , 3)", "(1, 2, 3"})
        NewRow(qPrintable(QString("face %1").arg(text)), QString("face"), QString(text));
    for (const char* const text : {"a.xmin", "a.xmin | ", "a.xmin | b.x | c.x", "(1, 2, 3);"})
        NewRow(qPrintable(QString("edge %1").arg(text)), QString("edge"), QString(text));
}

void tst_FeatureTexts::OtherTextsAreRefused()
{
    QFETCH(QString, what);
    QFETCH(QString, text);
    try {
        if (what == "corner")
            CornerOf(text);
        else if (what == "face")
            FaceOf(text);
        else
            EdgesOf(text);
        QFAIL("It was read.");
    } catch (const FeatureTextError& error) {
        QVERIFY2(error.Reason().contains(": write "), qPrintable(error.Reason()));
    }
}

TARN_TEST_MAIN(tst_FeatureTexts)
#include "tst_FeatureTexts.moc"
