#include "ProgramFormTest.h"

#include "Heap.h"
#include "OutsideRun.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>
#include <limits>

namespace {

FormFacts Form(const ProgramFacts& program)
{
    const auto line = [&](const char* text) {
        return QString(text).arg(program.form);
    };
    FormFacts form;
    form.name = program.form;
    form.title = program.title;
    form.lines = {
        line("QLabel label in %1: ") + program.program + ", for lineEdit_Path",
        line("QLineEdit lineEdit_Path in %1: , read-only"),
        line("QPushButton pushButton_Browse in %1: Browse"),
        line("QPushButton pushButton_Run in %1: Run"),
        line("QPushButton pushButton_Close in %1: Close"),
    };
    form.tabOrder = {"lineEdit_Path", "pushButton_Browse", "pushButton_Run", "pushButton_Close"};
    form.enter = "pushButton_Run";
    form.methods = {QString("public slot %1()").arg(program.slot), "public slot RunCommand()"};
    return form;
}

QString ShownPath(const QDialog& dialog)
{
    return Find<QLineEdit>(dialog, "lineEdit_Path").text();
}

} // namespace

ProgramFormChecks::ProgramFormChecks(const ProgramFacts& facts)
    : With(Form(facts))
    , m_program(facts)
{
}

std::unique_ptr<QDialog> ProgramFormChecks::NewDialogWithProgram() const
{
    std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    dialog->show();
    Browse(*dialog, OUTSIDE_PROGRAM);
    return dialog;
}

void ProgramFormChecks::CompareAfterEnter(QDialog& dialog)
{
    QVERIFY(dialog.isVisible());
    // Both kinds of Enter have run the program that is not there.
    QCOMPARE(Boxes(), m_program.ending + m_program.ending);
}

void ProgramFormChecks::CloseRejects()
{
    QCOMPARE(RunAndPress(*NewDialog(nullptr), "pushButton_Close"), int(QDialog::Rejected));
}

void ProgramFormChecks::TheFileDialogIsPlain()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    dialog->show();
    Then([this](QDialog& shown) {
        auto* const picker = qobject_cast<QFileDialog*>(&shown);
        QVERIFY(picker != nullptr);
        QVERIFY(picker->parentWidget() == nullptr);
        QVERIFY(picker->windowTitle() != QString(m_program.caption));
        QCOMPARE(picker->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(picker->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(picker->directory().canonicalPath(), QDir().canonicalPath());
        QCOMPARE(picker->nameFilters(), QFileDialog().nameFilters());
        QCOMPARE(picker->options(), QFileDialog().options());
        picker->reject();
    });
    Click(*dialog, "pushButton_Browse");
}

void ProgramFormChecks::OnlyAHiddenFileDialogHasTheCaption()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    dialog->show();
    for (int selections = 1; selections <= 2; ++selections) {
        Browse(*dialog, QString());
        const auto kept = dialog->findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(kept.size(), selections);
        for (const QFileDialog* const hidden : kept) {
            QCOMPARE(hidden->windowTitle(), QString(m_program.caption));
            QVERIFY(!hidden->isVisible());
            QVERIFY(!hidden->testAttribute(Qt::WA_WState_ExplicitShowHide));
        }
    }
}

void ProgramFormChecks::TheChosenPathIsShown()
{
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    QCOMPARE(ShownPath(*dialog), QString(OUTSIDE_PROGRAM));
    QCOMPARE(Find<QLineEdit>(*dialog, "lineEdit_Path").toolTip(), QString(OUTSIDE_PROGRAM));
}

void ProgramFormChecks::CancellingTheFileDialogClearsThePath()
{
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    Browse(*dialog, QString());
    QCOMPARE(ShownPath(*dialog), QString());
    QCOMPARE(Find<QLineEdit>(*dialog, "lineEdit_Path").toolTip(), QString());
    QCOMPARE(PressRun(*dialog), m_program.ending);
    QCOMPARE(RunRecord(), QString());
}

void ProgramFormChecks::TheHostMayDestroyTheDialogWhileTheFileDialogIsOpen()
{
    const QPointer<QDialog> dialog = NewDialog(nullptr).release();
    Then([dialog](QDialog& picker) {
        delete dialog;
        picker.reject();
    });
    QMetaObject::invokeMethod(dialog, m_program.slot);
    QVERIFY(!dialog);
}

void ProgramFormChecks::TheProgramRunsOnTheModelInTheWorkingDirectory()
{
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    QCOMPARE(PressRun(*dialog), m_program.ending);
    QCOMPARE(RunRecord(),
             QString("in %1\nargument %2\nended\n").arg(QDir().canonicalPath(), m_program.model));
    QVERIFY(dialog->isVisible());
}

void ProgramFormChecks::EveryEndIsReportedAsDesigned_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<bool>("isNormal");
    NewRow("exit code 0", QByteArray(), true);
    NewRow("exit code 3", QByteArray("exit 3"), true);
    NewRow("crash", QByteArray("crash"), false);
    NewRow("much output", QByteArray("write"), true);
    NewRow("asking", QByteArray("read"), true);
}

void ProgramFormChecks::EveryEndIsReportedAsDesigned()
{
    QFETCH(QByteArray, action);
    QFETCH(bool, isNormal);
    const OutsideAction playing(action);
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    for (int run = 1; run <= 2; ++run) {
        QCOMPARE(PressRun(*dialog), isNormal ? m_program.ending : ShownBoxes());
        QCOMPARE(RunRecord().count(QString("argument %1\n").arg(m_program.model)), run);
        QVERIFY(dialog->isVisible());
    }
}

void ProgramFormChecks::AProgramThatCannotStartIsReportedAsDesigned_data()
{
    QTest::addColumn<bool>("pickFile");
    NewRow("no path", false);
    NewRow("no program", true);
}

void ProgramFormChecks::AProgramThatCannotStartIsReportedAsDesigned()
{
    QFETCH(bool, pickFile);
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    dialog->show();
    if (pickFile) {
        QFile file(QDir::current().filePath("text"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        Browse(*dialog, file.fileName());
    }
    QCOMPARE(PressRun(*dialog), m_program.ending);
}

void ProgramFormChecks::TheRunLastsUntilTheProgramEnds()
{
    const WaitForTheWait wait;
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    QString record;
    if (!m_program.ending.isEmpty())
        User().WhileBoxOpen([&record](QMessageBox&) { record = RunRecord(); });
    Click(*dialog, "pushButton_Run");
    if (m_program.ending.isEmpty())
        record = RunRecord();
    QCOMPARE(Boxes(), m_program.ending);
    QVERIFY(wait.IsOver());
    QVERIFY2(record.endsWith("ended\n"), qPrintable(record));
}

// By default the toolkit gives up after half a minute.
void ProgramFormChecks::TheRunHasNoTimeLimit()
{
    const WaitForTheWait wait;
    PressRun(*NewDialogWithProgram());
    QVERIFY(wait.IsOver());
    QVERIFY(!wait.HasTimeLimit());
}

void ProgramFormChecks::TheOutputIsNotKept()
{
    const std::unique_ptr<QDialog> dialog = NewDialogWithProgram();
    // Of three runs the one with the least growth counts: what is made once is not in it.
    const auto growthBy = [&](const char* action) {
        const OutsideAction playing(action);
        auto least = std::numeric_limits<std::ptrdiff_t>::max();
        for (int run = 0; run < 3; ++run) {
            const std::size_t before = HeapInUse();
            PressRun(*dialog);
            least = std::min(least, std::ptrdiff_t(HeapInUse()) - std::ptrdiff_t(before));
        }
        return least;
    };
    // Each run keeps its process, and with it what was read last: at most what two pipes hold.
    constexpr std::ptrdiff_t pipes = 2 * 65536;
    const std::ptrdiff_t silent = growthBy("");
    const std::ptrdiff_t talkative = growthBy("write"); // 20 MB to each channel
    QCOMPARE(RunRecord().count("ended"), 6);
    QVERIFY2(talkative < silent + pipes + 50000, qPrintable(QString::number(talkative - silent)));
}
