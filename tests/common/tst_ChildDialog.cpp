#include "ChildDialog.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QMessageBox>

class tst_ChildDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ItTellsWhetherTheUserAccepted_data();
    void ItTellsWhetherTheUserAccepted();
    void ItGoesWithItsScope();
    void ItSurvivesItsParent_data();
    void ItSurvivesItsParent();
    void ItPassesTheArgumentsOn();
};

void tst_ChildDialog::ItTellsWhetherTheUserAccepted_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::newRow("accepted") << true;
    QTest::newRow("rejected") << false;
}

void tst_ChildDialog::ItTellsWhetherTheUserAccepted()
{
    QFETCH(bool, accepts);
    QDialog parent;
    ModalDriver user;
    user.Then([accepts](QDialog& shown) { shown.done(int(accepts)); });
    tarn::ChildDialog<QDialog> child(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QCOMPARE(child.RunToAccept(), accepts);
    QVERIFY(user.IsDone());
}

void tst_ChildDialog::ItGoesWithItsScope()
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
    QTest::newRow("accepted before") << true;
    QTest::newRow("still open") << false;
}

void tst_ChildDialog::ItSurvivesItsParent()
{
    QFETCH(bool, accepts);
    auto* const parent = new QDialog;
    ModalDriver user;
    user.Then([parent, accepts](QDialog& shown) {
        if (accepts)
            shown.accept();
        delete parent;
    });
    tarn::ChildDialog<QDialog> child(parent);
    QVERIFY(!child.RunToAccept());
    QVERIFY(child.Get() == nullptr);
    QVERIFY(user.IsDone());
}

void tst_ChildDialog::ItPassesTheArgumentsOn()
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
