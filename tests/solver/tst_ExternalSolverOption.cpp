#include "DialogChecks.h"
#include "DialogFacts.h"
#include "ExternalSolverOption.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

class tst_ExternalSolverOption : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void NoFontIsSet();
    void TabFollowsTheReadingOrder();
    void ItHasNoSlotsAndNoSignals();
    void TheButtonsDoNothing();
    void EscapeAndTheTitleBarLeave();
    void TheHostReachesTheFields();
};

void tst_ExternalSolverOption::TheFormIsAsGiven()
{
    CompareForm<ExternalSolverOption>("ExternalSolverOption");
    const ExternalSolverOption dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("ExternalSolverOption"));
    QCOMPARE(dialog.size(), QSize(486, 351));
    QCOMPARE(DescribeForm(dialog, true),
             QStringList({
                 "QGroupBox groupBox in ExternalSolverOption at 10,10 461x291: ",
                 "QLabel label_3 in groupBox at 20,80 54x21: Nastran",
                 "QLabel label_4 in groupBox at 20,110 54x21: Fluent",
                 "QLabel label_5 in groupBox at 20,140 54x21: openFOAM",
                 "QLabel label_6 in groupBox at 20,170 54x21: OOFEM",
                 "QLabel label_7 in groupBox at 20,200 54x21: HFSS",
                 "QLabel label_8 in groupBox at 20,230 54x21: CST",
                 "QLabel label_9 in groupBox at 20,260 54x21: COMSOL",
                 "QLineEdit lineEdit_4 in groupBox at 100,110 321x20: ",
                 "QLineEdit lineEdit_5 in groupBox at 100,140 321x20: ",
                 "QLineEdit lineEdit_6 in groupBox at 100,170 321x20: ",
                 "QLineEdit lineEdit_7 in groupBox at 100,200 321x20: ",
                 "QLineEdit lineEdit_8 in groupBox at 100,230 321x20: ",
                 "QLineEdit lineEdit_9 in groupBox at 100,260 321x20: ",
                 "QLineEdit lineEdit_Abaqus in groupBox at 100,50 321x20: ",
                 "QLineEdit lineEdit_Ansys in groupBox at 100,20 321x20: ",
                 "QLineEdit lineEdit_Nastran in groupBox at 100,80 321x20: ",
                 "QPushButton pushButton in ExternalSolverOption at 300,310 75x23: 确定",
                 "QPushButton pushButton_2 in ExternalSolverOption at 390,310 75x23: 取消",
                 "QPushButton pushButton_3 in groupBox at 10,20 75x23: Ansys",
                 "QPushButton pushButton_4 in groupBox at 10,50 75x23: Abaqus",
             }));
}

void tst_ExternalSolverOption::NoFontIsSet()
{
    const ExternalSolverOption dialog(nullptr);
    QCOMPARE(dialog.font(), QApplication::font());
    QVERIFY(!dialog.testAttribute(Qt::WA_SetFont));
}

void tst_ExternalSolverOption::TabFollowsTheReadingOrder()
{
    ExternalSolverOption dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"pushButton_3", "lineEdit_Ansys", "pushButton_4", "lineEdit_Abaqus",
                          "lineEdit_Nastran", "lineEdit_4", "lineEdit_5", "lineEdit_6",
                          "lineEdit_7", "lineEdit_8", "lineEdit_9", "pushButton", "pushButton_2"}));
}

void tst_ExternalSolverOption::ItHasNoSlotsAndNoSignals()
{
    QCOMPARE(OwnMethods(ExternalSolverOption::staticMetaObject), QStringList());
    QCOMPARE(ExternalSolverOption::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_ExternalSolverOption::TheButtonsDoNothing()
{
    ExternalSolverOption dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton*"}));
    ModalDriver user;
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Nastran", "/opt/nastran");
        for (const char* const name :
             {"pushButton", "pushButton_2", "pushButton_3", "pushButton_4"}) {
            Click(shown, name);
            QVERIFY(shown.isVisible());
        }
        QTest::keyClick(&Find<QLineEdit>(shown, "lineEdit_Nastran"), Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_Nastran").text(), QString("/opt/nastran"));
        shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_ExternalSolverOption::EscapeAndTheTitleBarLeave()
{
    ExternalSolverOption dialog(nullptr);
    QCOMPARE(PressKey(dialog, "lineEdit_Ansys", Qt::Key_Escape), int(QDialog::Rejected));
    ModalDriver user;
    user.Then([](QDialog& shown) { shown.close(); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_ExternalSolverOption::TheHostReachesTheFields()
{
    ExternalSolverOption dialog(nullptr);
    dialog.ui.lineEdit_Nastran->setText("/opt/nastran");
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Nastran").text(), QString("/opt/nastran"));
    QCOMPARE(dialog.ui.label_9->buddy(), dialog.ui.lineEdit_9);
}

TARN_TEST_MAIN(tst_ExternalSolverOption)
#include "tst_ExternalSolverOption.moc"
