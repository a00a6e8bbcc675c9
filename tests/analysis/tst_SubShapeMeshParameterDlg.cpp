#include "FormTest.h"
#include "SubShapeMeshParameterDlg.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "SubShapeMeshParameterDlg";
    form.title = "SubShapeMeshParameterDlg";
    form.size = {400, 188};
    form.lines = {
        "QLabel label in SubShapeMeshParameterDlg at 30,50 71x16: Mesh Size, for lineEdit_MeshSize",
        "QLabel label_2 in SubShapeMeshParameterDlg at 30,80 91x16: Mesh number, for "
        "lineEdit_MeshNumber",
        "QLineEdit lineEdit_MeshSize in SubShapeMeshParameterDlg at 130,50 113x20: ",
        "QLineEdit lineEdit_MeshNumber in SubShapeMeshParameterDlg at 130,80 113x20: ",
        "QPushButton pushButton_OK in SubShapeMeshParameterDlg at 200,140 75x23: 确定",
        "QPushButton pushButton_Cancel in SubShapeMeshParameterDlg at 280,140 75x23: 取消",
    };
    form.tabOrder = {"lineEdit_MeshSize", "lineEdit_MeshNumber", "pushButton_OK",
                     "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    return form;
}

} // namespace

class tst_SubShapeMeshParameterDlg : public FormTest<SubShapeMeshParameterDlg>
{
    Q_OBJECT

public:
    tst_SubShapeMeshParameterDlg()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void NeitherButtonDoesAnything_data();
    void NeitherButtonDoesAnything();
    void ClosingRejects();
    void TheHostWorksWithTheForm();

private:
    void CompareAfterEnter(QDialog& dialog) override;
};

// Enter presses OK, as in every dialog, and OK is inert.
void tst_SubShapeMeshParameterDlg::CompareAfterEnter(QDialog& dialog)
{
    QVERIFY(dialog.isVisible());
}

void tst_SubShapeMeshParameterDlg::NeitherButtonDoesAnything_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("OK", QByteArray("pushButton_OK"));
    NewRow("Cancel", QByteArray("pushButton_Cancel"));
}

void tst_SubShapeMeshParameterDlg::NeitherButtonDoesAnything()
{
    QFETCH(QByteArray, button);
    SubShapeMeshParameterDlg dialog(nullptr);
    const QSignalSpy clicked(&Find<QPushButton>(dialog, button), SIGNAL(clicked()));
    const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", "a");
        Type(shown, "lineEdit_MeshNumber", "b");
        Click(shown, button);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(finished.count(), 0);
        QVERIFY(shown.isVisible());
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshSize").text(), "a");
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshNumber").text(), "b");
        shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_SubShapeMeshParameterDlg::ClosingRejects()
{
    SubShapeMeshParameterDlg dialog(nullptr);
    Then([](QDialog& shown) { shown.close(); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_SubShapeMeshParameterDlg::TheHostWorksWithTheForm()
{
    SubShapeMeshParameterDlg dialog(nullptr);
    connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", "0.5");
        Type(shown, "lineEdit_MeshNumber", "12");
        QTest::keyClick(&Find<QLineEdit>(shown, "lineEdit_MeshNumber"), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.ui.lineEdit_MeshSize->text(), "0.5");
    QCOMPARE(dialog.ui.lineEdit_MeshNumber->text(), "12");
}

TARN_TEST_MAIN(tst_SubShapeMeshParameterDlg)
#include "tst_SubShapeMeshParameterDlg.moc"
