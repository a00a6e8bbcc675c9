#include "DialogFacts.h"
#include "Heap.h"
#include "ModalDriver.h"
#include "SubShapeMeshParameterDlg.h"
#include "TestCase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

class tst_SubShapeMeshParameterDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void LabelsLeadToTheirFields();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheClassHasNoSlots();
    void TheHostsWindowIsTheParent();
    void NeitherButtonDoesAnything_data();
    void NeitherButtonDoesAnything();
    void EnterDoesNothing_data();
    void EnterDoesNothing();
    void TheDialogIsLeft_data();
    void TheDialogIsLeft();
    void TheHostWorksWithTheForm();
    void TabFollowsReadingOrder();
    void OpeningAThousandTimesTakesNoMemory();
};

void tst_SubShapeMeshParameterDlg::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "SubShapeMeshParameterDlg";
    QTest::newRow("label") << "QLabel" << dialog << QRect(30, 50, 71, 16) << "Mesh Size" << true
                           << false;
    QTest::newRow("label_2") << "QLabel" << dialog << QRect(30, 80, 91, 16) << "Mesh number" << true
                             << false;
    QTest::newRow("lineEdit_MeshSize")
        << "QLineEdit" << dialog << QRect(130, 50, 113, 20) << "" << true << false;
    QTest::newRow("lineEdit_MeshNumber")
        << "QLineEdit" << dialog << QRect(130, 80, 113, 20) << "" << true << false;
    QTest::newRow("pushButton_OK")
        << "QPushButton" << dialog << QRect(200, 140, 75, 23) << "确定" << true << false;
    QTest::newRow("pushButton_Cancel")
        << "QPushButton" << dialog << QRect(280, 140, 75, 23) << "取消" << true << false;
}

void tst_SubShapeMeshParameterDlg::TheFormIsAsGiven()
{
    const SubShapeMeshParameterDlg dialog(nullptr);
    CompareFormRow(dialog);
}

void tst_SubShapeMeshParameterDlg::TheFormHoldsNothingElse()
{
    const SubShapeMeshParameterDlg dialog(nullptr);
    QCOMPARE(FormWidgets(dialog),
             QStringList({"label", "label_2", "lineEdit_MeshNumber", "lineEdit_MeshSize",
                          "pushButton_Cancel", "pushButton_OK"}));
}

void tst_SubShapeMeshParameterDlg::LabelsLeadToTheirFields()
{
    const SubShapeMeshParameterDlg dialog(nullptr);
    QCOMPARE(dialog.ui.label->buddy(), dialog.ui.lineEdit_MeshSize);
    QCOMPARE(dialog.ui.label_2->buddy(), dialog.ui.lineEdit_MeshNumber);
}

void tst_SubShapeMeshParameterDlg::TheWindowIsAsGiven()
{
    const SubShapeMeshParameterDlg dialog(nullptr);
    CompareWindow(dialog, "SubShapeMeshParameterDlg", "SubShapeMeshParameterDlg", QSize(400, 188));
    QVERIFY(dialog.windowIcon().isNull());
}

void tst_SubShapeMeshParameterDlg::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const SubShapeMeshParameterDlg dialog(nullptr);
    QCOMPARE(recorder.TextsOf("SubShapeMeshParameterDlg"),
             QStringList({"Mesh Size", "Mesh number", "SubShapeMeshParameterDlg", "取消", "确定"}));
}

void tst_SubShapeMeshParameterDlg::TheClassHasNoSlots()
{
    const QMetaObject& meta = SubShapeMeshParameterDlg::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList());
}

void tst_SubShapeMeshParameterDlg::TheHostsWindowIsTheParent()
{
    QWidget window;
    const SubShapeMeshParameterDlg dialog(&window);
    QCOMPARE(dialog.parentWidget(), &window);
}

void tst_SubShapeMeshParameterDlg::NeitherButtonDoesAnything_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("OK") << QByteArray("pushButton_OK");
    QTest::newRow("Cancel") << QByteArray("pushButton_Cancel");
}

void tst_SubShapeMeshParameterDlg::NeitherButtonDoesAnything()
{
    QFETCH(QByteArray, button);
    ModalDriver user;
    SubShapeMeshParameterDlg dialog(nullptr);
    const QSignalSpy clicked(&Find<QPushButton>(dialog, button), SIGNAL(clicked()));
    const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    user.Then([&](QDialog& shown) {
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
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_SubShapeMeshParameterDlg::EnterDoesNothing_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name :
         {"lineEdit_MeshSize", "lineEdit_MeshNumber", "pushButton_OK", "pushButton_Cancel"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_SubShapeMeshParameterDlg::EnterDoesNothing()
{
    QFETCH(QByteArray, focus);
    ModalDriver user;
    SubShapeMeshParameterDlg dialog(nullptr);
    // It presses OK, as in every dialog, and OK is inert.
    const QSignalSpy confirmed(dialog.ui.pushButton_OK, SIGNAL(clicked()));
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
        QCOMPARE(confirmed.count(), 1);
        QVERIFY(shown.isVisible());
        shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

void tst_SubShapeMeshParameterDlg::TheDialogIsLeft_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_SubShapeMeshParameterDlg::TheDialogIsLeft()
{
    QFETCH(QString, way);
    ModalDriver user;
    SubShapeMeshParameterDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

void tst_SubShapeMeshParameterDlg::TheHostWorksWithTheForm()
{
    ModalDriver user;
    SubShapeMeshParameterDlg dialog(nullptr);
    connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", "0.5");
        Type(shown, "lineEdit_MeshNumber", "12");
        QTest::keyClick(&Find<QLineEdit>(shown, "lineEdit_MeshNumber"), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(dialog.ui.lineEdit_MeshSize->text(), "0.5");
    QCOMPARE(dialog.ui.lineEdit_MeshNumber->text(), "12");
}

void tst_SubShapeMeshParameterDlg::TabFollowsReadingOrder()
{
    SubShapeMeshParameterDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_MeshSize", "lineEdit_MeshNumber",
                                            "pushButton_OK", "pushButton_Cancel"}));
}

void tst_SubShapeMeshParameterDlg::OpeningAThousandTimesTakesNoMemory()
{
    const std::ptrdiff_t growth = HeapGrowth([] {
        SubShapeMeshParameterDlg dialog(nullptr);
        dialog.show();
        dialog.close();
    });
    QVERIFY2(growth < 16 * 1000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_SubShapeMeshParameterDlg)
#include "tst_SubShapeMeshParameterDlg.moc"
