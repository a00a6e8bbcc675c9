#include "ExternalSolverOption.h"
#include "FeatureList.h"
#include "FieldValues.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "Language.h"
#include "MainWindow.h"
#include "MatrixArrayDlg.h"
#include "NewFeature.h"
#include "StepFile.h"

#include <QAbstractButton>
#include <QAction>
#include <QJsonArray>
#include <QJsonObject>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <TopoDS_Shape.hxx>

#include <functional>

class tst_Language : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutALanguageTheFormsSpeakAsTheyAre();
    void EveryKnownLanguageIsSpoken_data();
    void EveryKnownLanguageIsSpoken();
    void TheToolkitsButtonsSpeakTheLanguage();
    void TheToolBarShowsNoAccessKeys_data();
    void TheToolBarShowsNoAccessKeys();
    void ReasonsSpeakTheLanguage_data();
    void ReasonsSpeakTheLanguage();
    void TheBestOfTheUsersLanguagesIsTaken_data();
    void TheBestOfTheUsersLanguagesIsTaken();
};

namespace {

QString Reason(const std::function<void()>& act)
{
    try {
        act();
    } catch (const HostError& error) {
        return error.Reason();
    }
    return QString();
}

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

void tst_Language::TheToolBarShowsNoAccessKeys_data()
{
    QTest::addColumn<QString>("inMenu");
    QTest::addColumn<QString>("onToolBar");
    QTest::newRow("en") << "F&ront"
                        << "Front";
    QTest::newRow("zh_CN") << "前视(&R)"
                           << "前视";
}

void tst_Language::TheToolBarShowsNoAccessKeys()
{
    const Language language(QTest::currentDataTag());
    const MainWindow window;
    const auto* const front = window.findChild<QAction*>("action_FrontView");
    QVERIFY(front != nullptr);
    QTEST(front->text(), "inMenu");
    const QToolButton* button = nullptr;
    const auto buttons = window.findChildren<QToolButton*>();
    for (const QToolButton* const candidate : buttons) {
        if (candidate->defaultAction() == front)
            button = candidate;
    }
    QVERIFY(button != nullptr);
    QTEST(button->text(), "onToolBar");
    QTEST(button->toolTip(), "onToolBar");
}

void tst_Language::ReasonsSpeakTheLanguage_data()
{
    QTest::addColumn<QStringList>("reasons");
    QTest::newRow("en") << QStringList(
        {"it: Size x is 0, but has to be from 0.0001 to 1000000 mm.",
         "it: Number (\"5 / 2\") is 2.5, but has to be a whole number from 1 to 10000.",
         "it: a feature of kind \"box\" takes no input, but has 1.", "feature 1 has no \"name\"",
         "none.step: cannot be opened: No such file or directory",
         "it: Size x (\"2 * wall\") has no value: Position 5: the name 'wall' is unknown."});
    QTest::newRow("zh_CN") << QStringList(
        {"it: 尺寸 x 为 0，但必须为 0.0001 至 1000000 mm。",
         "it: 数量 (\"5 / 2\") 为 2.5，但必须为 1 至 10000 的整数。",
         "it: 类型为“box”的特征不需要输入，但现有 1 个。", "特征 1 缺少“name”",
         "none.step: 无法打开：No such file or directory",
         "it: 尺寸 x（\"2 * wall\"）没有值：位置 5：名称 'wall' 未知。"});
}

void tst_Language::ReasonsSpeakTheLanguage()
{
    const Language language(QTest::currentDataTag());
    Feature flat(KindOf("box"));
    flat.name = "it";
    flat.fields[0] = "0";
    Feature dangling = flat;
    dangling.fields[0] = "2 * wall";
    Feature halves(KindOf("polarArray"));
    halves.name = "it";
    halves.fields.last() = "5 / 2";
    Feature user(KindOf("box"));
    user.name = "it";
    user.inputs << "other";
    FeatureList list;
    Feature other(KindOf("sphere"));
    other.name = "other";
    list.Append(other);
    list.Append(user);

    const QStringList reasons = {Reason([&] { FieldValues().Of(flat); }),
                                 Reason([&] { FieldValues().Of(halves); }),
                                 Reason([&] { list.Check(); }),
                                 Reason([] { FeatureList::FromJson({QJsonObject()}); }),
                                 Reason([] { ReadStepFile("none.step"); }),
                                 Reason([&] { FieldValues().Of(dangling); })};
    QTEST(reasons, "reasons");
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

TARN_HOST_TEST_MAIN(tst_Language, HostApplication)
#include "tst_Language.moc"
