#include "ModalDriver.h"
#include "TestCase.h"

#include <QPointer>

class tst_ModalDriver : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachDialogTakesTheNextStep();
    void ABoxIsRecordedAndAnswered();
    void ABoxMayGoWhileItIsOpen();
    void BoxesAreUnseenUntilTheyAreLookedAt();
    void TheLatestDriverWorks();
};

void tst_ModalDriver::EachDialogTakesTheNextStep()
{
    ModalDriver user;
    QDialog first;
    QDialog second;
    user.Then([&](QDialog& shown) {
        QCOMPARE(&shown, &first);
        second.exec();
        shown.done(1);
    });
    user.Then([&](QDialog& shown) {
        QCOMPARE(&shown, &second);
        shown.done(2);
    });
    QVERIFY(!user.IsDone());
    QCOMPARE(first.exec(), 1);
    QCOMPARE(second.result(), 2);
    QVERIFY(user.IsDone());
}

void tst_ModalDriver::ABoxIsRecordedAndAnswered()
{
    ModalDriver user;
    user.Answer(QMessageBox::No);
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    QCOMPARE(QMessageBox::question(nullptr, "title", "text", buttons), QMessageBox::No);
    QCOMPARE(user.Boxes(),
             ShownBoxes({{"title", "text", QMessageBox::Question, buttons, nullptr}}));
    QVERIFY(user.IsDone());
}

void tst_ModalDriver::ABoxMayGoWhileItIsOpen()
{
    ModalDriver user;
    const QPointer<QMessageBox> box = new QMessageBox;
    user.WhileBoxOpen([](QMessageBox& shown) { delete &shown; });
    box->exec();
    QVERIFY(!box);
    QVERIFY(user.IsDone());
}

void tst_ModalDriver::BoxesAreUnseenUntilTheyAreLookedAt()
{
    ModalDriver user;
    QMessageBox::information(nullptr, "title", "first");
    QCOMPARE(user.UnseenBoxes().size(), 1);
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(user.UnseenBoxes().isEmpty());
    QMessageBox::information(nullptr, "title", "second");
    QCOMPARE(user.UnseenBoxes(), ShownBoxes({ShownBox::Notice("title", "second")}));
    user.Answer(QMessageBox::Ok);
    QMessageBox::information(nullptr, "title", "third");
    QCOMPARE(user.UnseenBoxes().size(), 1);
}

void tst_ModalDriver::TheLatestDriverWorks()
{
    ModalDriver outer;
    outer.Then([](QDialog& shown) { shown.done(1); });
    QDialog dialog;
    {
        ModalDriver inner;
        inner.Then([](QDialog& shown) { shown.done(2); });
        QCOMPARE(dialog.exec(), 2);
    }
    QCOMPARE(dialog.exec(), 1);
    QVERIFY(outer.IsDone());
}

TARN_TEST_MAIN(tst_ModalDriver)
#include "tst_ModalDriver.moc"
