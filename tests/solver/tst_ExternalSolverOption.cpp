#include "ExternalSolverOption.h"
#include "FormTest.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "ExternalSolverOption";
    form.title = "ExternalSolverOption";
    form.size = {486, 351};
    form.lines = {
        "QGroupBox groupBox in ExternalSolverOption at 10,10 461x291: ",
        "QPushButton pushButton_3 in groupBox at 10,20 75x23: Ansys",
        "QLineEdit lineEdit_Ansys in groupBox at 100,20 321x20: ",
        "QPushButton pushButton_4 in groupBox at 10,50 75x23: Abaqus",
        "QLineEdit lineEdit_Abaqus in groupBox at 100,50 321x20: ",
        "QLabel label_3 in groupBox at 20,80 54x21: Nastran, for lineEdit_Nastran",
        "QLineEdit lineEdit_Nastran in groupBox at 100,80 321x20: ",
        "QLabel label_4 in groupBox at 20,110 54x21: Fluent, for lineEdit_4",
        "QLineEdit lineEdit_4 in groupBox at 100,110 321x20: ",
        "QLabel label_5 in groupBox at 20,140 54x21: openFOAM, for lineEdit_5",
        "QLineEdit lineEdit_5 in groupBox at 100,140 321x20: ",
        "QLabel label_6 in groupBox at 20,170 54x21: OOFEM, for lineEdit_6",
        "QLineEdit lineEdit_6 in groupBox at 100,170 321x20: ",
        "QLabel label_7 in groupBox at 20,200 54x21: HFSS, for lineEdit_7",
        "QLineEdit lineEdit_7 in groupBox at 100,200 321x20: ",
        "QLabel label_8 in groupBox at 20,230 54x21: CST, for lineEdit_8",
        "QLineEdit lineEdit_8 in groupBox at 100,230 321x20: ",
        "QLabel label_9 in groupBox at 20,260 54x21: COMSOL, for lineEdit_9",
        "QLineEdit lineEdit_9 in groupBox at 100,260 321x20: ",
        "QPushButton pushButton in ExternalSolverOption at 300,310 75x23: 确定",
        "QPushButton pushButton_2 in ExternalSolverOption at 390,310 75x23: 取消",
    };
    form.tabOrder = {"pushButton_3",     "lineEdit_Ansys", "pushButton_4", "lineEdit_Abaqus",
                     "lineEdit_Nastran", "lineEdit_4",     "lineEdit_5",   "lineEdit_6",
                     "lineEdit_7",       "lineEdit_8",     "lineEdit_9",   "pushButton",
                     "pushButton_2"};
    form.enter = "pushButton";
    return form;
}

} // namespace

class tst_ExternalSolverOption : public FormTest<ExternalSolverOption>
{
    Q_OBJECT

public:
    tst_ExternalSolverOption()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void TheButtonsDoNothing();
    void ClosingRejects();
    void TheHostReachesTheFields();

private:
    void CompareAfterEnter(QDialog& dialog) override;
};

// All buttons are inert.
void tst_ExternalSolverOption::CompareAfterEnter(QDialog& dialog)
{
    QVERIFY(dialog.isVisible());
}

void tst_ExternalSolverOption::TheButtonsDoNothing()
{
    ExternalSolverOption dialog(nullptr);
    Then([](QDialog& shown) {
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
}

void tst_ExternalSolverOption::ClosingRejects()
{
    ExternalSolverOption dialog(nullptr);
    Then([](QDialog& shown) { shown.close(); });
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
