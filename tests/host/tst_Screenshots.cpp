#include "AttributeCommonMgr.h"
#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
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
    void TheMaterialEditorIsPicturedInItsLibrary();
    void TheWorkingDirectoryAndTheStoresStayClean();

private:
    const QTemporaryDir m_directory;
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
    // Once for all rows: it takes a while.
    ModalDriver user;
    QCOMPARE(WriteSampleScreenshots(m_directory.path()), 0);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());

    QTest::addColumn<QString>("window");
    for (const char* const name :
         {"CAnalysisTypeGUI", "CQLTConstrainEditor", "CQLTElePropertyEditor", "CQLTLoadForceEditor",
          "DOEDlg", "ELementPropGUI", "KVMaterialLibrary", "MainWindow", "MaterialEditer",
          "MeshSizeInput", "OneParameterDlg", "ParameterEditor", "SubShapeMeshParameterDlg",
          "frequencySetting"})
        QTest::newRow(name) << QString(name);
}

void tst_Screenshots::EveryWindowHasAPicture()
{
    QFETCH(QString, window);
    QFile file(m_directory.filePath(window + ".png"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.peek(8), QByteArray("\x89PNG\r\n\x1a\n"));
    const QImage image = QImage::fromData(file.readAll());
    QVERIFY(image.width() >= 200 && image.height() >= 100);
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

void tst_Screenshots::TheMaterialEditorIsPicturedInItsLibrary()
{
    EnterTemporaryDirectory();
    QCOMPARE(WriteSampleScreenshots("."), 0);
    // As large as its form, which no message box is.
    QCOMPARE(QImage("MaterialEditer.png").size(), QSize(553, 424));
}

void tst_Screenshots::TheWorkingDirectoryAndTheStoresStayClean()
{
    EnterTemporaryDirectory();
    QCOMPARE(WriteSampleScreenshots("pictures"), 0);
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("pictures"));
    QCOMPARE(KVMaterialData::GetInstance()->MapDataRow(), 0);
    QVERIFY(KVPropertyData::GetInstance()->GetProptyDataMap().empty());
    std::string name = "boltPull";
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName(name));
}

TARN_TEST_MAIN(tst_Screenshots, HostApplication)
#include "tst_Screenshots.moc"
