#include "ProgramFormTest.h"

#include "DialogChecks.h"
#include "OutsideRun.h"

#include <QDir>
#include <QFileDialog>

ProgramFormChecks::ProgramFormChecks(const Facts& facts)
    : m_facts(facts)
{
}

void ProgramFormChecks::TheFormHasAPathAndThreeButtons()
{
    const TextRecorder recorder;
    const std::unique_ptr<QDialog> dialog(NewDialog());
    CompareForm(*dialog, m_facts.name, QDialog(), recorder.TextsOf(m_facts.name));
    QCOMPARE(dialog->windowTitle(), QString(m_facts.title));
    QStringList widgets = {
        "QLabel label in %1: %2",
        "QLineEdit lineEdit_Path in %1: ", "QPushButton pushButton_Browse in %1: Browse",
        "QPushButton pushButton_Close in %1: Close", "QPushButton pushButton_Run in %1: Run"};
    widgets.replaceInStrings("%1", m_facts.name).replaceInStrings("%2", m_facts.program);
    QCOMPARE(DescribeForm(*dialog, false), widgets);
    QCOMPARE(dialog->font(), QApplication::font());
    QVERIFY(Find<QLineEdit>(*dialog, "lineEdit_Path").isReadOnly());
}

void ProgramFormChecks::TabFollowsTheReadingOrder()
{
    const std::unique_ptr<QDialog> dialog(NewDialog());
    QCOMPARE(TabOrder(*dialog), QStringList({"lineEdit_Path", "pushButton_Browse", "pushButton_Run",
                                             "pushButton_Close"}));
}

void ProgramFormChecks::CloseRejects()
{
    const std::unique_ptr<QDialog> dialog(NewDialog());
    QCOMPARE(FillAndPress(*dialog, {}, "pushButton_Close"), int(QDialog::Rejected));
}

void ProgramFormChecks::TheSlotsAreAsGiven()
{
    const std::unique_ptr<QDialog> dialog(NewDialog());
    QCOMPARE(
        OwnMethods(*dialog->metaObject()),
        QStringList({QString("public slot %1()").arg(m_facts.slot), "public slot RunCommand()"}));
    QCOMPARE(dialog->metaObject()->superClass(), &QDialog::staticMetaObject);
}

void ProgramFormChecks::TheFileDialogIsPlain()
{
    EnterTemporaryDirectory();
    const std::unique_ptr<QDialog> dialog(NewDialog());
    dialog->show();
    ModalDriver user;
    user.Then([this](QDialog& shown) {
        auto* const picker = qobject_cast<QFileDialog*>(&shown);
        QVERIFY(picker != nullptr);
        QVERIFY(picker->parentWidget() == nullptr);
        QVERIFY(picker->windowTitle() != QString(m_facts.caption));
        QCOMPARE(picker->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(picker->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(picker->directory().canonicalPath(), QDir().canonicalPath());
        QCOMPARE(picker->nameFilters(), QFileDialog().nameFilters());
        QCOMPARE(picker->options(), QFileDialog().options());
        picker->reject();
    });
    Click(*dialog, "pushButton_Browse");
    QVERIFY(user.IsDone());
}

void ProgramFormChecks::TheCaptionReachesAHiddenDialogOnly()
{
    const std::unique_ptr<QDialog> dialog(NewDialog());
    dialog->show();
    for (int selections = 1; selections <= 2; ++selections) {
        Browse(*dialog, QString());
        const auto kept = dialog->findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(kept.size(), selections);
        for (const QFileDialog* const hidden : kept) {
            QCOMPARE(hidden->windowTitle(), QString(m_facts.caption));
            QVERIFY(!hidden->isVisible());
            QVERIFY(!hidden->testAttribute(Qt::WA_WState_ExplicitShowHide));
        }
    }
}

void ProgramFormChecks::TheChosenPathIsShown()
{
    const std::unique_ptr<QDialog> dialog(NewDialog());
    dialog->show();
    Browse(*dialog, OUTSIDE_PROGRAM);
    const auto& path = Find<QLineEdit>(*dialog, "lineEdit_Path");
    QCOMPARE(path.text(), QString(OUTSIDE_PROGRAM));
    QCOMPARE(path.toolTip(), QString(OUTSIDE_PROGRAM));
}

void ProgramFormChecks::TheHostMayDestroyTheDialogBehindTheFileDialog()
{
    QDialog* const dialog = NewDialog();
    ModalDriver user;
    user.Then([dialog](QDialog& picker) {
        delete dialog;
        picker.reject();
    });
    QMetaObject::invokeMethod(dialog, m_facts.slot);
    QVERIFY(user.IsDone());
}
