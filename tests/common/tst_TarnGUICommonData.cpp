#include "MoveInput.h"
#include "TarnGUICommonData.h"
#include "TestCase.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

class tst_TarnGUICommonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFilesAreThere();
    void TheFolderDoesNotDependOnTheWorkingDirectory();
    void ADialogSpeaksTheLanguage_data();
    void ADialogSpeaksTheLanguage();
};

void tst_TarnGUICommonData::TheFilesAreThere()
{
    QVERIFY(QFileInfo(TarnGUICommonData::Folder()).isAbsolute());
    QVERIFY(QFileInfo(TarnGUICommonData::SystemMaterials()).isFile());
    QVERIFY(!QImage(TarnGUICommonData::WindowIcon()).isNull());
}

void tst_TarnGUICommonData::TheFolderDoesNotDependOnTheWorkingDirectory()
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(QDir::tempPath());
    const bool isThere = QFileInfo(TarnGUICommonData::SystemMaterials()).isFile();
    QDir::setCurrent(before);
    QVERIFY(isThere);
}

void tst_TarnGUICommonData::ADialogSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("title");
    QTest::newRow("Chinese") << "zh_CN"
                             << "移动参数输入";
    QTest::newRow("English") << "en_GB"
                             << "Input Move Parameter";
    QTest::newRow("Chinese again") << "zh_CN"
                                   << "移动参数输入";
    QTest::newRow("a language without texts") << "fi_FI"
                                              << "Input Move Parameter";
}

// Each row follows the one before it in the same process: a call replaces the texts.
void tst_TarnGUICommonData::ADialogSpeaksTheLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, title);
    QVERIFY(TarnGUICommonData::InstallTranslations(QLocale(locale)));
    QCOMPARE(MoveInput(nullptr).windowTitle(), title);
}

TARN_TEST_MAIN(tst_TarnGUICommonData)
#include "tst_TarnGUICommonData.moc"
