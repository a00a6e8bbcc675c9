#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "ModalDriver.h"
#include "Project.h"
#include "Screenshots.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QImage>

class tst_Screenshots : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryWindowHasAPicture_data();
    void EveryWindowHasAPicture();
    void ADirectoryIsMade();
    void ADirectoryThatCannotBeMadeIsAFailure();
    void AFileThatCannotBeWrittenIsAFailure();
};

namespace {

int WriteSampleScreenshots(const QString& directory)
{
    const EmptyDesignStores stores;
    return WriteScreenshots(Project::Load(Project::SamplePath()), directory);
}

} // namespace

void tst_Screenshots::EveryWindowHasAPicture_data()
{
    QTest::addColumn<QString>("window");
    for (const char* const name : {"DOEDlg", "MainWindow", "OneParameterDlg", "ParameterEditor"})
        QTest::newRow(name) << QString(name);
}

void tst_Screenshots::EveryWindowHasAPicture()
{
    QFETCH(QString, window);
    EnterTemporaryDirectory();
    ModalDriver user;
    QCOMPARE(WriteSampleScreenshots("."), 0);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());

    QFile file(window + ".png");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.peek(8), QByteArray("\x89PNG\r\n\x1a\n"));
    const QImage image = QImage::fromData(file.readAll());
    QVERIFY(image.width() >= 200 && image.height() >= 150);
    QImage uniform = image;
    uniform.fill(image.pixelColor(0, 0));
    QVERIFY(image != uniform);
}

void tst_Screenshots::ADirectoryIsMade()
{
    EnterTemporaryDirectory();
    QCOMPARE(WriteSampleScreenshots("a/b"), 0);
    QVERIFY(QFile::exists("a/b/MainWindow.png"));
}

void tst_Screenshots::ADirectoryThatCannotBeMadeIsAFailure()
{
    EnterTemporaryDirectory();
    QFile file("taken");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(WriteSampleScreenshots("taken/pictures"), 1);
}

void tst_Screenshots::AFileThatCannotBeWrittenIsAFailure()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("pictures/MainWindow.png"));
    QCOMPARE(WriteSampleScreenshots("pictures"), 1);
}

TARN_TEST_MAIN(tst_Screenshots, HostApplication)
#include "tst_Screenshots.moc"
