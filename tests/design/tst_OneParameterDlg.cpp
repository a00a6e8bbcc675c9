#include "ModalDriver.h"
#include "OneParameterDlg.h"
#include "TestCase.h"
#include "sParaArrayData.h"

#include <QLineEdit>
#include <QTableWidget>

class tst_OneParameterDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyNameIsRefused();
    void TheRangeGeneratesTheSamples();
};

void tst_OneParameterDlg::AnEmptyNameIsRefused()
{
    ModalDriver user;
    OneParameterDlg dialog(nullptr, QString());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({ShownBox::Notice("Error", "No parameter input")}));
}

void tst_OneParameterDlg::TheRangeGeneratesTheSamples()
{
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Deta", "0.25");
        QCOMPARE(Find<QTableWidget>(shown, "tableWidget").rowCount(), 5);
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(g_mapParaArrays["a"].vecValues, std::vector<double>({0.0, 0.25, 0.5, 0.75, 1.0}));
}

TARN_TEST_MAIN(tst_OneParameterDlg)
#include "tst_OneParameterDlg.moc"
