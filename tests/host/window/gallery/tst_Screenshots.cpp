#include "AttributeCommonMgr.h"
#include "DialogCatalogue.h"
#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "HostError.h"
#include "HostTestMain.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "ModalDriver.h"
#include "Project.h"
#include "Screenshots.h"

#include <QDir>
#include <QFile>
#include <QImage>

class tst_Screenshots : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryWindowHasAPicture();
    void DarkPicturesAreDark();
    void EveryWindowCanBeVisited();
    void ADirectoryThatCannotBeMadeIsAFailure();
    void AFileThatCannotBeWrittenIsAFailure();
    void TheMaterialEditorIsPicturedInItsLibrary();
    void TheWorkingDirectoryAndTheStoresStayClean();
};

namespace {

QStringList WindowNames()
{
    QStringList names = {
        "BuildLimitsDialog", "MainWindow",   "MaterialEditer", "ParameterPanel", "PositionDock",
        "ProjectProperties", "ResultsDock",  "SetupCheckDock", "ShapePicker",    "SolveDock",
        "StudyMainEffects",  "StudyOptimum", "StudyPanel",     "StudyResults",   "StudyScatter"};
    for (const CatalogueEntry& entry : DialogCatalogue())
        names << entry.name;
    names.sort();
    return names;
}

QString ReasonNotWritten(const QString& directory)
{
    const EmptyDesignStores stores;
    try {
        WriteScreenshots(Project::Load(Project::SamplePath()), directory);
    } catch (const HostError& error) {
        return error.Reason();
    }
    return QString();
}

} // namespace

void tst_Screenshots::EveryWindowHasAPicture()
{
    EnterTemporaryDirectory();
    ModalDriver user;
    QCOMPARE(ReasonNotWritten("a/b"), QString());
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());

    QStringList names = QDir("a/b").entryList(QDir::Files);
    names.sort();
    QCOMPARE(names.replaceInStrings(".png", ""), WindowNames());
    for (const QString& name : qAsConst(names)) {
        QFile file("a/b/" + name + ".png");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.peek(8), QByteArray("\x89PNG\r\n\x1a\n"));
        const QImage image = QImage::fromData(file.readAll());
        QVERIFY2(image.width() >= 150 && image.height() >= 40, qPrintable(name));
        QImage uniform = image;
        uniform.fill(image.pixelColor(0, 0));
        QVERIFY2(image != uniform, qPrintable(name));
    }
}

void tst_Screenshots::DarkPicturesAreDark()
{
    const QPalette dark = DarkPalette();
    const auto lightness = [&dark](QPalette::ColorRole role) {
        return dark.color(QPalette::Active, role).lightness();
    };
    QVERIFY(lightness(QPalette::Window) < 64 && lightness(QPalette::WindowText) > 192);
    QVERIFY(lightness(QPalette::Base) < 80 && lightness(QPalette::Text) > 192);
    QVERIFY(lightness(QPalette::Button) < 64 && lightness(QPalette::ButtonText) > 192);
}

void tst_Screenshots::EveryWindowCanBeVisited()
{
    EnterTemporaryDirectory();
    const EmptyDesignStores stores;
    QStringList names;
    VisitWindows(Project::Load(Project::SamplePath()),
                 [&names](const QString& name, QWidget& window) {
                     QVERIFY(!window.isVisible());
                     names << name;
                 });
    QCOMPARE(names.first(), QString("MainWindow"));
    names.sort();
    QCOMPARE(names, WindowNames());
    QCOMPARE(KVMaterialData::GetInstance()->MapDataRow(), 0);
}

void tst_Screenshots::ADirectoryThatCannotBeMadeIsAFailure()
{
    EnterTemporaryDirectory();
    QFile file("taken");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(ReasonNotWritten("taken/pictures"),
             QString("taken/pictures: cannot create the folder"));
}

void tst_Screenshots::AFileThatCannotBeWrittenIsAFailure()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("pictures/MainWindow.png"));
    QCOMPARE(ReasonNotWritten("pictures"),
             QString("pictures/MainWindow.png: is a folder, not a file"));
}

void tst_Screenshots::TheMaterialEditorIsPicturedInItsLibrary()
{
    EnterTemporaryDirectory();
    QCOMPARE(ReasonNotWritten("."), QString());
    // As large as its form, which no message box is.
    QCOMPARE(QImage("MaterialEditer.png").size(), QSize(553, 424));
}

void tst_Screenshots::TheWorkingDirectoryAndTheStoresStayClean()
{
    EnterTemporaryDirectory();
    QCOMPARE(ReasonNotWritten("pictures"), QString());
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("pictures"));
    QCOMPARE(KVMaterialData::GetInstance()->MapDataRow(), 0);
    QVERIFY(KVPropertyData::GetInstance()->GetProptyDataMap().empty());
    std::string name = "boltPull";
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName(name));
}

TARN_HOST_TEST_MAIN(tst_Screenshots, HostApplication)
#include "tst_Screenshots.moc"
