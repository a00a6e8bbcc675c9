#include "ExternalSolverOption.h"
#include "HostApplication.h"
#include "Language.h"
#include "MainWindow.h"
#include "MatrixArrayDlg.h"
#include "TestCase.h"

#include <QAbstractButton>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

class tst_Language : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutALanguageTheFormsSpeakAsTheyAre();
    void EveryKnownLanguageIsSpoken_data();
    void EveryKnownLanguageIsSpoken();
    void TheToolkitsButtonsSpeakTheLanguage();
    void TheBestOfTheUsersLanguagesIsTaken_data();
    void TheBestOfTheUsersLanguagesIsTaken();
};

namespace {

QStringList Spoken()
{
    const MatrixArrayDlg dialog(nullptr);
    const ExternalSolverOption solver(nullptr);
    const MainWindow window;
    return {dialog.windowTitle(), Find<QAbstractButton>(dialog, "pushButtonCancel").text(),
            Find<QAbstractButton>(solver, "pushButton").text(),
            window.menuBar()->actions().constFirst()->text()};
}

} // namespace

void tst_Language::WithoutALanguageTheFormsSpeakAsTheyAre()
{
    {
        const Language language("zh_CN");
    }
    QCOMPARE(Spoken(), QStringList({"矩形阵列参数输入", "Cancel", "确定", "&File"}));
}

void tst_Language::EveryKnownLanguageIsSpoken_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("en") << QStringList({"Matrix Array Input", "Cancel", "OK", "&File"});
    QTest::newRow("zh_CN") << QStringList({"矩形阵列参数输入", "取消", "确定", "文件(&F)"});
}

void tst_Language::EveryKnownLanguageIsSpoken()
{
    const QString name = QTest::currentDataTag();
    QVERIFY(Language::Known().contains(name));
    const Language language(name);
    QTEST(Spoken(), "texts");
}

void tst_Language::TheToolkitsButtonsSpeakTheLanguage()
{
    const Language language("zh_CN");
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(box.button(QMessageBox::Ok)->text(), QString("确定"));
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), QString("取消"));
}

void tst_Language::TheBestOfTheUsersLanguagesIsTaken_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("taken");
    QTest::newRow("English") << QStringList({"en-US"}) << "en";
    QTest::newRow("Chinese") << QStringList({"zh-CN"}) << "zh_CN";
    QTest::newRow("Chinese, script and all") << QStringList({"zh-Hans-CN"}) << "zh_CN";
    QTest::newRow("Chinese of another country") << QStringList({"zh-SG"}) << "zh_CN";
    QTest::newRow("the first that is known") << QStringList({"de-DE", "zh-CN", "en-US"}) << "zh_CN";
    QTest::newRow("in the user's order") << QStringList({"en-GB", "zh-CN"}) << "en";
    QTest::newRow("none that is known") << QStringList({"de-DE"}) << "en";
    QTest::newRow("no language") << QStringList({"C"}) << "en";
    QTest::newRow("none") << QStringList() << "en";
}

void tst_Language::TheBestOfTheUsersLanguagesIsTaken()
{
    QFETCH(QStringList, wanted);
    QTEST(Language::BestOf(wanted), "taken");
}

TARN_TEST_MAIN(tst_Language, HostApplication)
#include "tst_Language.moc"
