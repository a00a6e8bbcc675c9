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

void tst_Screenshots::EveryWindowHasAPicture()
{
    EnterTemporaryDirectory();
    ModalDriver user;
    QCOMPARE(WriteSampleScreenshots("."), 0);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());

    const QStringList files =
        QString("ArcArrayDlg.png DOEDlg.png ExternalSolverOption.png ExtrudInputDlg.png "
                "MainWindow.png MatrixArrayDlg.png MirrorDialog.png MoveInput.png "
                "OneParameterDlg.png ParameterEditor.png PolygonNumInputDlg.png PosInputDlg.png "
                "ResultSetting.png SolverSetting.png TruncatedConeInputDlg.png WedgeInputDlg.png "
                "rotateInputDlg.png sphereParaInputdlg.png torusParaInputDlg.png")
            .split(' ');
    QCOMPARE(QDir().entryList(QDir::Files, QDir::Name), files);
    for (const QString& file : files) {
        const QImage image(file, "PNG");
        QImage uniform = image;
        uniform.fill(image.pixelColor(0, 0));
        QVERIFY2(image.width() >= 150 && image.height() >= 40 && image != uniform,
                 qPrintable(file));
    }
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
