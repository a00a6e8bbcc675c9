#include "ShapeMeasures.h"
#include "StepFile.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QDir>
#include <QFile>
#include <STEPControl_Reader.hxx>
#include <TopoDS_Shape.hxx>

#include <sys/resource.h>

#include <cmath>
#include <csignal>

class tst_StepFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WhatIsWrittenCanBeRead();
    void AFileIsReplaced();
    void AFolderThatIsNotThereIsTold();
    void WhatCannotBeReplacedIsToldAndNothingIsLeft();
    void NoShapeIsTold();
    void AFullDiskIsToldAndTheOldFileStays();
};

static TopoDS_Shape Box(double size)
{
    return BRepPrimAPI_MakeBox(size, size, size).Shape();
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
    try {
        WriteStepFile(shape, path);
    } catch (const StepError& error) {
        return error.Reason();
    }
    return "it was written";
}

void tst_StepFile::WhatIsWrittenCanBeRead()
{
    EnterTemporaryDirectory();
    WriteStepFile(Box(10.0), "长 a.step");
    QVERIFY(std::abs(VolumeInFile("长 a.step") - 1000.0) < 1e-6);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("长 a.step"));
}

void tst_StepFile::AFileIsReplaced()
{
    EnterTemporaryDirectory();
    WriteStepFile(Box(10.0), "a.step");
    WriteStepFile(Box(20.0), "a.step");
    QVERIFY(std::abs(VolumeInFile("a.step") - 8000.0) < 1e-6);
}

void tst_StepFile::AFolderThatIsNotThereIsTold()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason(Box(10.0), "none/a.step"), QString("a.step: the file could not be written."));
}

void tst_StepFile::WhatCannotBeReplacedIsToldAndNothingIsLeft()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("a.step"));
    QCOMPARE(Reason(Box(10.0), "a.step"), QString("a.step: the file could not be replaced."));
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("a.step"));
}

void tst_StepFile::NoShapeIsTold()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason(TopoDS_Shape(), "a.step"),
             QString("a.step: the kernel could not translate the part."));
    QVERIFY(!QFile::exists("a.step"));
}

void tst_StepFile::AFullDiskIsToldAndTheOldFileStays()
{
    EnterTemporaryDirectory();
    WriteStepFile(Box(10.0), "a.step");

    // A limit on the file size stands for the full disk.
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlim_t former = limit.rlim_cur;
    limit.rlim_cur = 4096;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const QString reason = Reason(Box(20.0), "a.step");
    limit.rlim_cur = former;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, handler);

    QCOMPARE(reason, QString("a.step: the file could not be written."));
    QVERIFY(std::abs(VolumeInFile("a.step") - 1000.0) < 1e-6);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("a.step"));
}

TARN_TEST_MAIN(tst_StepFile)
#include "tst_StepFile.moc"
