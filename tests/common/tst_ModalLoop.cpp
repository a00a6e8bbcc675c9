#include "DialogTest.h"
#include "DirectionDialogs.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <Standard_ConstructionError.hxx>

// exec() of the dialogs that let an error of the kernel pass, through RunModalLoop().

class tst_ModalLoop : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void TheResultIsTheUsualOne_data() { AddSubjects(); }
    void TheResultIsTheUsualOne();
    void TheDialogIsModalWhileItRunsOnly_data() { AddSubjects(); }
    void TheDialogIsModalWhileItRunsOnly();
    void AModalDialogStaysModal();
    void AnOpenDialogRunsAsUsual_data();
    void AnOpenDialogRunsAsUsual();
    void OpeningTheDialogAfterTheErrorLeavesItNotModal();
    void TheErrorPropagatesThroughTheRunOfAnotherDialog();
    void AfterTheErrorADialogWithDeleteOnCloseIsDeletedWhenClosed();
    void AnEarlierResultIsForgotten();
    void TheSignalsAreTheUsualOnes();
    void ASecondRunInsideTheFirstIsRefused();
    void DestroyingTheRunningDialogRejects_data();
    void DestroyingTheRunningDialogRejects();
    void ADialogWithDeleteOnCloseIsDeletedAfterTheRun();
    void TheDialogCanRunRepeatedly();

private:
    // Presses OK with a zero direction.
    void ExecAndCatch(QDialog& dialog);
    static void AddSubjects();
    static std::unique_ptr<QDialog> MakeSubject();
};

void tst_ModalLoop::AddSubjects()
{
    QTest::addColumn<QString>("name");
    for (const auto& entry : Subjects())
        NewRow(qPrintable(entry.first), entry.first);
}

std::unique_ptr<QDialog> tst_ModalLoop::MakeSubject()
{
    QFETCH(QString, name);
    return std::unique_ptr<QDialog>(Subjects().at(name).make(nullptr));
}

void tst_ModalLoop::TheResultIsTheUsualOne()
{
    const auto dialog = MakeSubject();
    Then([](QDialog& shown) { shown.accept(); });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    Then([](QDialog& shown) { shown.reject(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    Then([](QDialog& shown) { shown.done(7); });
    QCOMPARE(dialog->exec(), 7);
    Then([](QDialog& shown) { shown.close(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    Then([](QDialog& shown) { shown.hide(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
}

void tst_ModalLoop::TheDialogIsModalWhileItRunsOnly()
{
    const auto dialog = MakeSubject();
    Then([](QDialog& shown) {
        QVERIFY(shown.isModal());
        QCOMPARE(shown.windowModality(), Qt::ApplicationModal);
        QCOMPARE(QApplication::activeModalWidget(), &shown);
        shown.accept();
    });
    QVERIFY(!dialog->isModal());
    dialog->exec();
    QVERIFY(!dialog->isModal());
    QCOMPARE(dialog->windowModality(), Qt::NonModal);
    QVERIFY(!dialog->isVisible());
}

void tst_ModalLoop::AModalDialogStaysModal()
{
    ExtrudInputDlg dialog(nullptr);
    dialog.setModal(true);
    Then([](QDialog& shown) { shown.accept(); });
    dialog.exec();
    QVERIFY(dialog.isModal());
}

void tst_ModalLoop::AnOpenDialogRunsAsUsual_data()
{
    QTest::addColumn<bool>("modal");
    NewRow("modal before open()", true);
    NewRow("not modal before open()", false);
}

void tst_ModalLoop::AnOpenDialogRunsAsUsual()
{
    QFETCH(bool, modal);
    QDialog usual;
    ExtrudInputDlg ours(nullptr);
    for (QDialog* const dialog : {&usual, static_cast<QDialog*>(&ours)}) {
        dialog->setModal(modal);
        dialog->open();
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        Then([](QDialog& shown) {
            QCOMPARE(shown.windowModality(), Qt::ApplicationModal);
            shown.accept();
        });
        QCOMPARE(dialog->exec(), int(QDialog::Accepted));
        QCOMPARE(dialog->isModal(), modal);
        dialog->open();
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        dialog->accept();
        QCOMPARE(dialog->isModal(), modal);
    }
}

void tst_ModalLoop::ExecAndCatch(QDialog& dialog)
{
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    Then([](QDialog& shown) {
        Find<QLineEdit>(shown, "lineEdit_ZDir").setText("0");
        Click(shown, "pushButton_OK");
    });
    QVERIFY_EXCEPTION_THROWN(dialog.exec(), Standard_ConstructionError);
    QVERIFY(dialog.isVisible());
}

void tst_ModalLoop::OpeningTheDialogAfterTheErrorLeavesItNotModal()
{
    ExtrudInputDlg dialog(nullptr);
    ExecAndCatch(dialog);
    dialog.open();
    dialog.accept();
    QVERIFY(!dialog.isModal());
}

void tst_ModalLoop::TheErrorPropagatesThroughTheRunOfAnotherDialog()
{
    ExtrudInputDlg outer(nullptr);
    ExtrudInputDlg inner(nullptr);
    Then([&inner](QDialog&) { inner.exec(); });
    Then([](QDialog& shown) {
        Find<QLineEdit>(shown, "lineEdit_ZDir").setText("0");
        Click(shown, "pushButton_OK");
    });
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    QVERIFY_EXCEPTION_THROWN(outer.exec(), Standard_ConstructionError);
    QVERIFY(outer.isVisible() && inner.isVisible());
    QCOMPARE(QApplication::activeModalWidget(), &inner);
    inner.reject();
    QCOMPARE(QApplication::activeModalWidget(), &outer);
    outer.reject();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!outer.isModal() && !inner.isModal());
}

void tst_ModalLoop::AfterTheErrorADialogWithDeleteOnCloseIsDeletedWhenClosed()
{
    const QPointer<QDialog> dialog = new ExtrudInputDlg(nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    ExecAndCatch(*dialog);
    QTest::keyClick(dialog.data(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog);
}

void tst_ModalLoop::AnEarlierResultIsForgotten()
{
    ExtrudInputDlg dialog(nullptr);
    dialog.setResult(QDialog::Accepted);
    Then([](QDialog& shown) {
        QCOMPARE(shown.result(), int(QDialog::Rejected));
        shown.hide();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_ModalLoop::TheSignalsAreTheUsualOnes()
{
    ExtrudInputDlg dialog(nullptr);
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    dialog.exec();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 0);
    QCOMPARE(finished.count(), 1);
    Then([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    dialog.exec();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(finished.count(), 2);
}

void tst_ModalLoop::ASecondRunInsideTheFirstIsRefused()
{
    ExtrudInputDlg dialog(nullptr);
    Then([this](QDialog& shown) {
        ExpectWarning("QDialog::exec: Recursive call detected");
        QCOMPARE(shown.exec(), -1);
        QVERIFY(shown.isVisible());
        shown.accept();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void tst_ModalLoop::DestroyingTheRunningDialogRejects_data()
{
    QTest::addColumn<bool>("later");
    NewRow("at once", false);
    NewRow("by deleteLater()", true);
}

void tst_ModalLoop::DestroyingTheRunningDialogRejects()
{
    QFETCH(bool, later);
    auto* const dialog = new ExtrudInputDlg(nullptr);
    const QPointer<QDialog> guard = dialog;
    Then([later](QDialog& shown) {
        if (later)
            shown.deleteLater();
        else
            delete &shown;
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!guard);
}

void tst_ModalLoop::ADialogWithDeleteOnCloseIsDeletedAfterTheRun()
{
    auto* const dialog = new ExtrudInputDlg(nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QDialog> guard = dialog;
    Then([&guard](QDialog& shown) {
        shown.accept();
        QVERIFY(guard);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QVERIFY(!guard);
}

void tst_ModalLoop::TheDialogCanRunRepeatedly()
{
    ExtrudInputDlg dialog(nullptr);
    for (int run = 0; run < 3; ++run) {
        Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
}

TARN_TEST_MAIN(tst_ModalLoop)
#include "tst_ModalLoop.moc"
