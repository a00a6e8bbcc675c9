#include "ChildDialog.h"
#include "DialogTest.h"

#include <QMessageBox>

class tst_ChildDialog : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void ItReturnsWhetherTheUserAccepted_data();
    void ItReturnsWhetherTheUserAccepted();
    void ItIsDestroyedWithItsScope();
    void ItSurvivesItsParent_data();
    void ItSurvivesItsParent();
    void ItPassesOnTheArguments();
};

void tst_ChildDialog::ItReturnsWhetherTheUserAccepted_data()
{
    QTest::addColumn<bool>("accepts");
    NewRow("accepted", true);
    NewRow("rejected", false);
}

void tst_ChildDialog::ItReturnsWhetherTheUserAccepted()
{
    QFETCH(bool, accepts);
    QDialog parent;
    Then([accepts](QDialog& shown) { shown.done(int(accepts)); });
    tarn::ChildDialog<QDialog> child(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QCOMPARE(child.RunToAccept(), accepts);
}

void tst_ChildDialog::ItIsDestroyedWithItsScope()
{
    QDialog parent;
    QPointer<QDialog> dialog;
    {
        const tarn::ChildDialog<QDialog> child(&parent);
        dialog = child.Get();
        QVERIFY(dialog != nullptr);
    }
    QVERIFY(dialog == nullptr);
}

void tst_ChildDialog::ItSurvivesItsParent_data()
{
    QTest::addColumn<bool>("accepts");
    NewRow("accepted before", true);
    NewRow("still open", false);
}

void tst_ChildDialog::ItSurvivesItsParent()
{
    QFETCH(bool, accepts);
    auto* const parent = new QDialog;
    Then([parent, accepts](QDialog& shown) {
        if (accepts)
            shown.accept();
        delete parent;
    });
    tarn::ChildDialog<QDialog> child(parent);
    QVERIFY(!child.RunToAccept());
    QVERIFY(child.Get() == nullptr);
}

void tst_ChildDialog::ItPassesOnTheArguments()
{
    QDialog parent;
    const tarn::ChildDialog<QMessageBox> box(QMessageBox::Warning, QString("Title"),
                                             QString("Text"), QMessageBox::Ok, &parent);
    QCOMPARE(box->windowTitle(), QString("Title"));
    QCOMPARE(box->text(), QString("Text"));
    QCOMPARE(box->icon(), QMessageBox::Warning);
    QCOMPARE(box->parentWidget(), &parent);
}

TARN_TEST_MAIN(tst_ChildDialog)
#include "tst_ChildDialog.moc"
