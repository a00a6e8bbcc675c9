#include "FormDescription.h"
#include "PosInputDlg.h"
#include "TestCase.h"
#include "TextRecorder.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

class tst_PosInputDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindowIsAsDesigned();
    void TheFieldsAreInOneRow();
    void TabFollowsTheReadingOrder();
    void ItHasNoSlotsAndNoSignals();
    void EveryCallOfGetInstanceGivesTheOneObject();
    void TheInstanceIsAHiddenWindow();
    void AnOwnWidgetIsIndependentOfTheInstance();
    void WithAParentItIsAnOrdinaryChild();
    void TheFieldsTakeAnyText();
    void TheHostReachesTheFields();
};

void tst_PosInputDlg::TheWindowIsAsDesigned()
{
    const TextRecorder recorder;
    const PosInputDlg input(nullptr);
    const QWidget plain;
    QCOMPARE(input.objectName(), QString("PosInputDlg"));
    QCOMPARE(input.windowTitle(), QString("PosInputDlg"));
    QCOMPARE(input.size(), QSize(400, 46));
    QCOMPARE(input.font(), QApplication::font());
    QCOMPARE(input.windowFlags(), plain.windowFlags());
    QCOMPARE(input.windowModality(), plain.windowModality());
    QVERIFY(!input.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(input.windowIcon().isNull());
    QCOMPARE(recorder.TextsOf("PosInputDlg"), ShownTexts(input));
}

void tst_PosInputDlg::TheFieldsAreInOneRow()
{
    const PosInputDlg input(nullptr);
    QCOMPARE(DescribeForm(input).filter("gridLayout"),
             QStringList({
                 "QLabel label in PosInputDlg at gridLayout[0,0]: x, for lineEdit",
                 "QLineEdit lineEdit in PosInputDlg at gridLayout[0,1]: ",
                 "QLabel label_2 in PosInputDlg at gridLayout[0,2]: y, for lineEdit_2",
                 "QLineEdit lineEdit_2 in PosInputDlg at gridLayout[0,3]: ",
                 "QLabel label_3 in PosInputDlg at gridLayout[0,4]: z, for lineEdit_3",
                 "QLineEdit lineEdit_3 in PosInputDlg at gridLayout[0,5]: ",
                 "QGridLayout gridLayout: spacing 6, margins 11 11 11 11",
             }));
    QCOMPARE(WidgetNames(input).size(), 6);
}

void tst_PosInputDlg::TabFollowsTheReadingOrder()
{
    PosInputDlg input(nullptr);
    QCOMPARE(TabOrder(input), QStringList({"lineEdit", "lineEdit_2", "lineEdit_3"}));
}

void tst_PosInputDlg::ItHasNoSlotsAndNoSignals()
{
    QCOMPARE(OwnMethods(PosInputDlg::staticMetaObject), QStringList());
    QCOMPARE(PosInputDlg::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_PosInputDlg::EveryCallOfGetInstanceGivesTheOneObject()
{
    PosInputDlg* const first = PosInputDlg::GetInstance();
    QVERIFY(first != nullptr);
    QCOMPARE(PosInputDlg::GetInstance(), first);
}

void tst_PosInputDlg::TheInstanceIsAHiddenWindow()
{
    const PosInputDlg* const input = PosInputDlg::GetInstance();
    QVERIFY(input->parentWidget() == nullptr);
    QVERIFY(input->isWindow());
    QVERIFY(!input->isVisible());
}

void tst_PosInputDlg::AnOwnWidgetIsIndependentOfTheInstance()
{
    PosInputDlg* const shared = PosInputDlg::GetInstance();
    {
        PosInputDlg own(nullptr);
        QVERIFY(&own != shared);
        QCOMPARE(PosInputDlg::GetInstance(), shared);
    }
    QCOMPARE(PosInputDlg::GetInstance(), shared);
}

void tst_PosInputDlg::WithAParentItIsAnOrdinaryChild()
{
    QWidget parent;
    const auto* const input = new PosInputDlg(&parent);
    QCOMPARE(input->parentWidget(), &parent);
    QVERIFY(!input->isWindow());
    QCOMPARE(input->windowType(), Qt::Widget);
}

void tst_PosInputDlg::TheFieldsTakeAnyText()
{
    PosInputDlg input(nullptr);
    input.show();
    for (const char* const name : {"lineEdit", "lineEdit_2", "lineEdit_3"}) {
        QVERIFY(Find<QLineEdit>(input, name).validator() == nullptr);
        Type(input, name, "1,5 mm");
        QCOMPARE(Find<QLineEdit>(input, name).text(), QString("1,5 mm"));
    }
}

void tst_PosInputDlg::TheHostReachesTheFields()
{
    PosInputDlg input(nullptr);
    input.ui.lineEdit->setText("1");
    input.ui.lineEdit_2->setText("2");
    input.ui.lineEdit_3->setText("3");
    QCOMPARE(Find<QLineEdit>(input, "lineEdit").text(), QString("1"));
    QCOMPARE(Find<QLineEdit>(input, "lineEdit_3").text(), QString("3"));
    QCOMPARE(input.ui.label_3->buddy(), input.ui.lineEdit_3);
}

TARN_TEST_MAIN(tst_PosInputDlg)
#include "tst_PosInputDlg.moc"
