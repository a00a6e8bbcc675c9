#include "FullDisk.h"
#include "NotAFile.h"
#include "ShapeMeasures.h"
#include "StepFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <QDir>
#include <QFile>
#include <STEPControl_Reader.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Shape.hxx>

#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <iostream>

class tst_StepFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WrittenFilesCanBeRead();
    void TheSameShapeGivesTheSameFile();
    void AFileIsReplaced();
    void AMissingFolderIsReported();
    void AFolderIsNotReplacedAndNothingIsLeft();
    void AMissingShapeIsReported();
    void FusedSpheresReadBackAsThePart();
    void WhatWouldNotReadBackIsNotWritten();
    void AFullDiskLeavesTheOldFile();
    void FilesOfOthersStay();
    void AFileIsReadInMillimetres_data();
    void AFileIsReadInMillimetres();
    void SeveralShapesAreReturnedAsACompound();
    void AFileWithoutAShapeIsReportedAndNothingIsPrinted_data();
    void AFileWithoutAShapeIsReportedAndNothingIsPrinted();
    void FilesThatCannotBeReadAreReported();
    void OnlyAFileIsReadAndReplaced_data();
    void OnlyAFileIsReadAndReplaced();
};

static TopoDS_Shape Box(double size)
{
    return BRepPrimAPI_MakeBox(size, size, size).Shape();
}

// Why the access fails.
template<class Access>
static QString Reason(const Access& access)
{
    try {
        access();
    } catch (const StepError& error) {
        return error.Reason();
    }
    return QStringLiteral("it worked");
}

static double VolumeInFile(const char* path)
{
    STEPControl_Reader reader;
    if (reader.ReadFile(path) != IFSelect_RetDone)
        return 0.0;
    reader.TransferRoots();
    return Measure(reader.OneShape()).volume;
}

static QString Reason(const TopoDS_Shape& shape, const QString& path)
{
    return Reason([&] { WriteStepFile(shape, path); });
}

void tst_StepFile::WrittenFilesCanBeRead()
{
    EnterTemporaryDirectory();
    WriteStepFile(Box(10.0), "长 a.step");
    QVERIFY(std::abs(VolumeInFile("长 a.step") - 1000.0) < 1e-6);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("长 a.step"));
}

void tst_StepFile::TheSameShapeGivesTheSameFile()
{
    EnterTemporaryDirectory();
    TopoDS_Compound two;
    const BRep_Builder builder;
    builder.MakeCompound(two);
    builder.Add(two, Box(10));
    builder.Add(two, Box(20));
    const std::vector<TopoDS_Shape> shapes = {Box(10), two};
    for (const TopoDS_Shape& shape : shapes) {
        WriteStepFile(shape, "a.step");
        WriteStepFile(Box(3), "between.step");
        WriteStepFile(shape, "b.step");
        QCOMPARE(ContentOf("a.step"), ContentOf("b.step"));
        QVERIFY(ContentOf("a.step").contains("'1970-01-01T00:00:00'"));
    }
}

void tst_StepFile::AFileIsReplaced()
{
    EnterTemporaryDirectory();
    WriteStepFile(Box(10.0), "a.step");
    WriteStepFile(Box(20.0), "a.step");
    QVERIFY(std::abs(VolumeInFile("a.step") - 8000.0) < 1e-6);
}

void tst_StepFile::AMissingFolderIsReported()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason(Box(10.0), "none/a.step"),
             QString("a.step: cannot be written: No such file or directory"));
}

void tst_StepFile::AFolderIsNotReplacedAndNothingIsLeft()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("a.step"));
    QCOMPARE(Reason(Box(10.0), "a.step"), QString("a.step: is a folder, not a file"));
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("a.step"));
}

void tst_StepFile::AMissingShapeIsReported()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason(TopoDS_Shape(), "a.step"),
             QString("a.step: the geometry kernel cannot translate the part"));
    QVERIFY(!QFile::exists("a.step"));
}

void tst_StepFile::FusedSpheresReadBackAsThePart()
{
    EnterTemporaryDirectory();
    const TopoDS_Shape spheres =
        BRepAlgoAPI_Fuse(BRepPrimAPI_MakeSphere(10.0).Shape(),
                         BRepPrimAPI_MakeSphere(gp_Pnt(5.0, 0.0, 0.0), 10.0).Shape())
            .Shape();
    WriteStepFile(spheres, "a.step");
    // Two spheres less the lens that both have.
    const double pi = std::acos(-1.0);
    const double expected = pi * (8000.0 / 3.0 - 45.0 * 225.0 / 12.0);
    const double volume = Measure(ReadStepFile("a.step")).volume;
    QVERIFY2(std::abs(volume - expected) < 1e-6 * expected, QByteArray::number(volume, 'g', 12));
}

void tst_StepFile::WhatWouldNotReadBackIsNotWritten()
{
    EnterTemporaryDirectory();
    const TopoDS_Shape shell = TopExp_Explorer(Box(10.0), TopAbs_SHELL).Current();
    QCOMPARE(Reason(shell, "a.step"),
             QString("a.step: the file would not read back as the part: its shape 1 is a shell, "
                     "but only closed solids can be used"));
    QCOMPARE(AllFiles(), QStringList());
}

void tst_StepFile::AFullDiskLeavesTheOldFile()
{
    FullDisk disk;
    WriteStepFile(Box(10.0), "a.step");
    const QByteArray before = ContentOf("a.step");
    disk.Fill(1);
    QCOMPARE(Reason(Box(20.0), "a.step"), "a.step: cannot be written: " + disk.Reason());
    disk.Empty();
    QCOMPARE(ContentOf("a.step"), before);
    QCOMPARE(AllFiles(), QStringList("a.step"));
}

void tst_StepFile::FilesOfOthersStay()
{
    EnterTemporaryDirectory();
    Put("a.step.part", "mine");
    WriteStepFile(Box(10.0), "a.step");
    QCOMPARE(ContentOf("a.step.part"), QByteArray("mine"));
    QCOMPARE(AllFiles(), QStringList({"a.step", "a.step.part"}));
}

void tst_StepFile::AFileIsReadInMillimetres_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<double>("factor");
    QTest::newRow("millimetres") << QByteArray("SI_UNIT(.MILLI.,.METRE.)") << 1.0;
    QTest::newRow("centimetres") << QByteArray("SI_UNIT(.CENTI.,.METRE.)") << 10.0;
    QTest::newRow("metres") << QByteArray("SI_UNIT($,.METRE.)") << 1000.0;
}

void tst_StepFile::AFileIsReadInMillimetres()
{
    QFETCH(QByteArray, unit);
    QFETCH(double, factor);
    EnterTemporaryDirectory();
    WriteStepFile(BRepPrimAPI_MakeBox(1.0, 2.0, 3.0).Shape(), "长.step");
    QByteArray content = ContentOf("长.step");
    const QByteArray millimetres = "SI_UNIT(.MILLI.,.METRE.)";
    QVERIFY(content.contains(millimetres));
    Put("长.step", content.replace(millimetres, unit));
    const double volume = Measure(ReadStepFile("长.step")).volume;
    const double expected = 6.0 * factor * factor * factor;
    QVERIFY2(std::abs(volume - expected) <= 1e-9 * expected, QByteArray::number(volume));
}

void tst_StepFile::SeveralShapesAreReturnedAsACompound()
{
    EnterTemporaryDirectory();
    TopoDS_Compound boxes;
    const BRep_Builder builder;
    builder.MakeCompound(boxes);
    builder.Add(boxes, Box(10.0));
    builder.Add(boxes, Box(20.0));
    WriteStepFile(boxes, "a.step");
    const TopoDS_Shape shape = ReadStepFile("a.step");
    QCOMPARE(shape.ShapeType(), TopAbs_COMPOUND);
    QVERIFY(std::abs(Measure(shape).volume - 9000.0) < 1e-6);
}

void tst_StepFile::AFileWithoutAShapeIsReportedAndNothingIsPrinted_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const QByteArray head = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
                            "FILE_NAME('','',(''),(''),'','','');\n"
                            "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n";
    const QByteArray tail = "ENDSEC;\nEND-ISO-10303-21;\n";
    const auto row = [](const char* name, const QByteArray& content, const char* reason) {
        QTest::newRow(name) << content << QString("a.step: %1").arg(reason);
    };
    row("empty", "", "is not a STEP file");
    row("a picture", "\x89PNG\r\n" + QByteArray(5000, '\0'), "is not a STEP file");
    row("cut off", head + "#1=CARTESIAN_POINT('',(0.,0.,0.));\n", "is incomplete");
    row("no data", head + tail, "contains no shape");
    row("an unused point", head + "#1=CARTESIAN_POINT('',(0.,0.,0.));\n" + tail,
        "contains no shape");
    row("nonsense between the marks", head + "%%%% ((( ; '" + tail,
        "cannot be read as a STEP file");
    row("nonsense with a reference", head + "%%%% ((( #1=; '" + tail,
        "refers to entities that it does not contain");
    row("references to nothing", head + "#1=MANIFOLD_SOLID_BREP('',#99);\n" + tail,
        "refers to entities that it does not contain");
}

// The output of @p action to standard output and error.
template<class Action>
static QByteArray Printed(const Action& action)
{
    std::fflush(nullptr);
    QFile caught("printed");
    if (!caught.open(QIODevice::ReadWrite | QIODevice::Truncate))
        FailTest("The test's file could not be written.");
    const int out = dup(STDOUT_FILENO);
    const int error = dup(STDERR_FILENO);
    dup2(caught.handle(), STDOUT_FILENO);
    dup2(caught.handle(), STDERR_FILENO);
    action();
    std::cout.flush();
    std::fflush(nullptr);
    dup2(out, STDOUT_FILENO);
    dup2(error, STDERR_FILENO);
    close(out);
    close(error);
    caught.seek(0);
    return caught.readAll();
}

void tst_StepFile::AFileWithoutAShapeIsReportedAndNothingIsPrinted()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("a.step", content);
    QString reason = "it was read";
    const QByteArray printed = Printed([&] {
        try {
            ReadStepFile("a.step");
        } catch (const StepError& error) {
            reason = error.Reason();
        }
    });
    QTEST(reason, "reason");
    QCOMPARE(printed, QByteArray());
}

void tst_StepFile::FilesThatCannotBeReadAreReported()
{
    EnterTemporaryDirectory();
    const auto reason = [](const QString& path) {
        return Reason([&path] { ReadStepFile(path); });
    };
    QCOMPARE(reason("none.step"),
             QString("none.step: cannot be opened: No such file or directory"));
    WriteStepFile(Box(10.0), "huge.step");
    QByteArray content = ContentOf("huge.step");
    Put("far.step", content.replace("10.,", "1.E7,"));
    QCOMPARE(reason("far.step"), QString("far.step: contains a shape that extends beyond 1000 m"));
    QFile huge("huge.step");
    QVERIFY(huge.open(QIODevice::ReadWrite));
    QVERIFY(huge.resize((qint64(256) << 20) + 1));
    huge.close();
    QCOMPARE(reason("huge.step"), QString("huge.step: exceeds the limit of 256 MB"));
}

void tst_StepFile::OnlyAFileIsReadAndReplaced_data()
{
    AddNotAFileRows();
}

void tst_StepFile::OnlyAFileIsReadAndReplaced()
{
    EnterTemporaryDirectory();
    QFETCH(QString, kind);
    QFETCH(QString, error);
    QVERIFY(PutNotAFile(kind, "a.step"));
    const QStringList before = AllFiles();
    QCOMPARE(Reason([] { ReadStepFile("a.step"); }), "a.step: " + error);
    QCOMPARE(Reason(Box(10.0), "a.step"), "a.step: " + error);
    QCOMPARE(AllFiles(), before);
}

TARN_TEST_MAIN(tst_StepFile)
#include "tst_StepFile.moc"
