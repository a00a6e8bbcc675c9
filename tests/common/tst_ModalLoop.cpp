#include "ArcArrayDlg.h"
#include "ExtrudInputDlg.h"
#include "KernelText.h"
#include "MirrorDialog.h"
#include "ModalDriver.h"
#include "TestCase.h"
#include "rotateInputDlg.h"

#include <QApplication>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>
#include <Standard_ConstructionError.hxx>

#include <cstdio>
#include <functional>
#include <map>

namespace {

using Fields = std::map<const char*, const char*>;

// A dialog that builds a direction, and how it is used.
struct Subject
{
    std::function<QDialog*(QDialog*)> make;
    const char* ok;
    Fields fields;
    const char* zDirection;
    std::function<QString(const QDialog&)> read;
    const char* before;
    const char* afterRaise;
    const char* afterOK;
};

template<class Dialog>
const Dialog& As(const QDialog& dialog)
{
    return static_cast<const Dialog&>(dialog);
}

const std::map<QString, Subject>& Subjects()
{
    static const std::map<QString, Subject> subjects = {
        {"rotateInputDlg",
         {[](QDialog* parent) { return new rotateInputDlg(parent); },
          "pushButton_OK",
          {{"lineEdit_Degree", "180"},
           {"lineEdit_xPt", "1"},
           {"lineEdit_yPt", "2"},
           {"lineEdit_zPt", "3"}},
          "lineEdit_zDir",
          [](const QDialog& dialog) {
              const auto& rotate = As<rotateInputDlg>(dialog);
              return QString("%1 | %2 | %3 | %4")
                  .arg(rotate.GetAngle())
                  .arg(KernelText(rotate.GetBasePt()), KernelText(rotate.GetRotateDir()),
                       KernelText(rotate.GetRotateAxis()));
          },
          "0 | (0, 0, 0) | (1, 0, 0) | (0, 0, 0) along (0, 0, 1)",
          "3.14159 | (1, 2, 3) | (1, 0, 0) | (0, 0, 0) along (0, 0, 1)",
          "3.14159 | (1, 2, 3) | (0, 0, -1) | (1, 2, 3) along (0, 0, -1)"}},
        {"MirrorDialog",
         {[](QDialog* parent) { return new MirrorDialog(parent); },
          "pushButton_OK",
          {{"lineEdit_axisPtX", "1"}, {"lineEdit_axisPtY", "2"}, {"lineEdit_axisPtZ", "3"}},
          "lineEdit_axisZ",
          [](const QDialog& dialog) {
              gp_Trsf transform;
              As<MirrorDialog>(dialog).GetMirrorData(transform);
              return KernelText(transform);
          },
          "(0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)",
          "(0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)",
          "(2, 4, 0) (1, 4, 0) (2, 3, 0) (2, 4, 1)"}},
        {"ArcArrayDlg",
         {[](QDialog* parent) { return new ArcArrayDlg(parent); },
          "pushButtonOK",
          {{"lineEdit_Angle", "45"},
           {"lineEdit_Num", "7"},
           {"lineEdit_AxisPtx", "1"},
           {"lineEdit_AxisPty", "2"},
           {"lineEdit_AxisPtz", "3"}},
          "lineEdit_Dirz",
          [](const QDialog& dialog) {
              const sMatrixArcdata record = As<ArcArrayDlg>(dialog).GetArrayParameter();
              return QString("%1 | %2 | %3")
                  .arg(record.m_dAngle)
                  .arg(record.m_nNumber)
                  .arg(KernelText(record.m_axis));
          },
          "0 | 0 | (0, 0, 0) along (0, 0, 1)",
          "45 | 7 | (0, 0, 0) along (0, 0, 1)",
          "45 | 7 | (1, 2, 3) along (0, 0, -1)"}},
        {"ExtrudInputDlg",
         {[](QDialog* parent) { return new ExtrudInputDlg(parent); },
          "pushButton_OK",
          {{"lineEdit_Height", "25"}},
          "lineEdit_ZDir",
          [](const QDialog& dialog) {
              const auto& extrude = As<ExtrudInputDlg>(dialog);
              return QString("%1 | %2")
                  .arg(extrude.GetHeightValue())
                  .arg(KernelText(extrude.GetExtrudeDirection()));
          },
          "0 | (1, 0, 0)",
          "25 | (1, 0, 0)",
          "25 | (0, 0, -1)"}},
    };
    return subjects;
}

// --- The host: a program of its own, so that a crash is a failure of the test. ---

class HostApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (!m_catches)
            return QApplication::notify(receiver, event);
        try {
            return QApplication::notify(receiver, event);
        } catch (const Standard_ConstructionError&) {
            ++m_caught;
            return true;
        }
    }

    bool m_catches = false;
    int m_caught = 0;
};

class Host
{
public:
    Host(HostApplication& application, const QStringList& arguments)
        : m_application(application)
        , m_subject(Subjects().at(arguments[0]))
        , m_byEnter(arguments[2] == "enter")
        , m_afterwards(arguments[4])
        , m_button("Count", &m_window)
    {
        m_application.m_catches = arguments[1] == "notify";
        m_window.resize(300, 200);
        m_window.move(700, 500);
        QObject::connect(&m_button, &QPushButton::clicked, &m_button, [this] { ++m_clicks; });
        m_window.show();
        m_dialog.reset(m_subject.make(arguments[3] == "parent" ? &m_window : nullptr));
    }

    int Run()
    {
        QTimer::singleShot(0, &m_window, [this] {
            Check(QTest::qWaitForWindowExposed(&m_window), "the host's window is shown");
            CheckWindowIsUsable(true, "before the dialog");
            m_application.m_catches ? CatchInNotify() : CatchAroundExec();
            m_dialog.reset();
            CheckWindowIsUsable(true, "at the end");
            Check(QApplication::activeModalWidget() == nullptr, "nothing is modal at the end");
            m_application.quit();
        });
        m_application.exec();
        return m_failures;
    }

private:
    void Check(bool holds, const QString& what)
    {
        if (holds)
            return;
        ++m_failures;
        std::printf("FAILED: %s\n", qPrintable(what));
    }

    void CheckState(const char* expected, const char* when)
    {
        const QString state = m_subject.read(*m_dialog);
        Check(state == expected, QString("%1 the getters say %2").arg(when, state));
    }

    // Through the window, as an event of the user: a blocked window does not get it.
    void CheckWindowIsUsable(bool usable, const QString& when)
    {
        const int before = m_clicks;
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {},
                          m_button.geometry().center());
        Check((m_clicks > before) == usable,
              QString("%1 the host's window is %2").arg(when, usable ? "usable" : "blocked"));
    }

    void Fill(const char* zDirection)
    {
        for (const auto& [name, text] : m_subject.fields)
            Find<QLineEdit>(*m_dialog, name).setText(text);
        Find<QLineEdit>(*m_dialog, m_subject.zDirection).setText(zDirection);
    }

    void PressOK()
    {
        QWindow* const window = m_dialog->windowHandle();
        if (m_byEnter) {
            QTest::keyClick(window, Qt::Key_Return);
            return;
        }
        const auto& button = Find<QPushButton>(*m_dialog, m_subject.ok);
        QTest::mouseClick(window, Qt::LeftButton, {},
                          button.mapTo(m_dialog.get(), button.rect().center()));
    }

    void PressOKLater()
    {
        QTimer::singleShot(50, m_dialog.get(), [this] {
            Check(QTest::qWaitForWindowExposed(m_dialog.get()), "the dialog is shown");
            CheckWindowIsUsable(false, "behind the dialog");
            PressOK();
        });
    }

    void ExecAndCatch()
    {
        Fill("0");
        PressOKLater();
        bool caught = false;
        try {
            m_dialog->exec();
        } catch (const Standard_ConstructionError&) {
            caught = true;
        }
        Check(caught, "the kernel's error comes out of exec()");
        Check(m_dialog->isVisible(), "the dialog stays open");
        Check(m_dialog->isModal(), "the dialog stays modal");
        CheckState(m_subject.afterRaise, "after the error");
    }

    void ExecAndAccept()
    {
        Fill("-2");
        PressOKLater();
        Check(m_dialog->exec() == QDialog::Accepted, "the next exec() accepts");
        Check(!m_dialog->isVisible(), "the accepted dialog is closed");
        Check(!m_dialog->isModal(), "the accepted dialog is no longer modal");
        CheckState(m_subject.afterOK, "after OK");
        CheckWindowIsUsable(true, "after OK");
    }

    void CatchAroundExec()
    {
        CheckState(m_subject.before, "before the run");
        ExecAndCatch();
        if (m_afterwards == "again") {
            ExecAndAccept();
        } else if (m_afterwards == "raise again") {
            ExecAndCatch();
            ExecAndCatch();
            ExecAndAccept();
        } else if (m_afterwards == "hide") {
            m_dialog->hide();
            Check(!m_dialog->isModal(), "the hidden dialog is no longer modal");
            CheckWindowIsUsable(true, "after hide()");
            ExecAndAccept();
        } else if (m_afterwards == "leave to the user") {
            QTest::qWait(50);
            Check(m_dialog->isVisible(), "the dialog is left open");
            CheckWindowIsUsable(false, "behind the open dialog");
            QSignalSpy rejected(m_dialog.get(), SIGNAL(rejected()));
            QTest::keyClick(m_dialog->windowHandle(), Qt::Key_Escape);
            Check(rejected.count() == 1 && !m_dialog->isVisible(), "Escape closes the dialog");
            Check(!m_dialog->isModal(), "the closed dialog is no longer modal");
            CheckWindowIsUsable(true, "after Escape");
            ExecAndAccept();
        } else if (m_afterwards != "destroy") {
            Check(false, m_afterwards);
        }
    }

    void CatchInNotify()
    {
        Fill("0");
        QTimer::singleShot(50, m_dialog.get(), [this] {
            Check(QTest::qWaitForWindowExposed(m_dialog.get()), "the dialog is shown");
            PressOK();
            Check(m_application.m_caught == 1, "notify() catches the kernel's error");
            Check(m_dialog->isVisible() && m_dialog->isModal(), "the dialog stays open and modal");
            CheckState(m_subject.afterRaise, "after the error");
            CheckWindowIsUsable(false, "behind the open dialog");
            Fill("-2");
            PressOK();
        });
        Check(m_dialog->exec() == QDialog::Accepted, "exec() goes on until OK");
        Check(!m_dialog->isVisible() && !m_dialog->isModal(), "the accepted dialog is closed");
        CheckState(m_subject.afterOK, "after OK");
        CheckWindowIsUsable(true, "after OK");
    }

    HostApplication& m_application;
    const Subject& m_subject;
    const bool m_byEnter;
    const QString m_afterwards;
    QDialog m_window;
    QPushButton m_button;
    std::unique_ptr<QDialog> m_dialog;
    int m_clicks = 0;
    int m_failures = 0;
};

} // namespace

class tst_ModalLoop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AHostSurvivesTheKernelsError_data();
    void AHostSurvivesTheKernelsError();
    void TheResultIsTheUsualOne_data() { AddSubjects(); }
    void TheResultIsTheUsualOne();
    void TheDialogIsModalWhileItRunsOnly_data() { AddSubjects(); }
    void TheDialogIsModalWhileItRunsOnly();
    void AModalDialogStaysModal();
    void AnOpenDialogRunsAsUsual_data();
    void AnOpenDialogRunsAsUsual();
    void OpeningTheDialogAfterTheErrorLeavesItNotModal();
    void TheErrorPassesThroughTheRunOfAnotherDialog();
    void AfterTheErrorADialogToBeDeletedOnCloseIsDeletedWhenItIsClosed();
    void AnEarlierResultIsForgotten();
    void TheSignalsAreTheUsualOnes();
    void ASecondRunInsideTheFirstIsRefused();
    void DestroyingTheRunningDialogRejects_data();
    void DestroyingTheRunningDialogRejects();
    void ADialogToBeDeletedOnCloseIsDeletedAfterTheRun();
    void TheDialogRunsAsOftenAsTheHostLikes();

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
        QTest::newRow(qPrintable(entry.first)) << entry.first;
}

std::unique_ptr<QDialog> tst_ModalLoop::MakeSubject()
{
    QFETCH(QString, name);
    return std::unique_ptr<QDialog>(Subjects().at(name).make(nullptr));
}

void tst_ModalLoop::AHostSurvivesTheKernelsError_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const auto& entry : Subjects()) {
        for (const char* const press : {"mouse", "enter"}) {
            for (const char* const parent : {"parent", "alone"}) {
                const auto add = [&](const char* where, const char* afterwards) {
                    const QStringList arguments = {entry.first, where, press, parent, afterwards};
                    QTest::newRow(qPrintable(arguments.join(", "))) << arguments;
                };
                add("exec", "again");
                add("exec", "destroy");
                add("notify", "");
            }
        }
    }
    for (const char* const afterwards : {"raise again", "hide", "leave to the user"}) {
        for (const char* const parent : {"parent", "alone"}) {
            const QStringList arguments = {"ExtrudInputDlg", "exec", "mouse", parent, afterwards};
            QTest::newRow(qPrintable(arguments.join(", "))) << arguments;
        }
    }
}

void tst_ModalLoop::AHostSurvivesTheKernelsError()
{
    QFETCH(QStringList, arguments);
    QProcess host;
    // An error that passes the window system's events leaves the one at hand behind.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(), QStringList("--host") + arguments);
    QVERIFY(host.waitForFinished(30000));
    QCOMPARE(QString::fromLocal8Bit(host.readAllStandardOutput()), QString());
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, host.readAllStandardError().constData());
    QCOMPARE(host.exitCode(), 0);
}

void tst_ModalLoop::TheResultIsTheUsualOne()
{
    const auto dialog = MakeSubject();
    ModalDriver user;
    user.Then([](QDialog& shown) { shown.accept(); });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    user.Then([](QDialog& shown) { shown.reject(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    user.Then([](QDialog& shown) { shown.done(7); });
    QCOMPARE(dialog->exec(), 7);
    user.Then([](QDialog& shown) { shown.close(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    user.Then([](QDialog& shown) { shown.hide(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

void tst_ModalLoop::TheDialogIsModalWhileItRunsOnly()
{
    const auto dialog = MakeSubject();
    ModalDriver user;
    user.Then([](QDialog& shown) {
        QVERIFY(shown.isModal());
        QCOMPARE(shown.windowModality(), Qt::ApplicationModal);
        QCOMPARE(QApplication::activeModalWidget(), &shown);
        shown.accept();
    });
    QVERIFY(!dialog->isModal());
    dialog->exec();
    QVERIFY(user.IsDone());
    QVERIFY(!dialog->isModal());
    QCOMPARE(dialog->windowModality(), Qt::NonModal);
    QVERIFY(!dialog->isVisible());
}

void tst_ModalLoop::AModalDialogStaysModal()
{
    ExtrudInputDlg dialog(nullptr);
    dialog.setModal(true);
    ModalDriver user;
    user.Then([](QDialog& shown) { shown.accept(); });
    dialog.exec();
    QVERIFY(dialog.isModal());
}

void tst_ModalLoop::AnOpenDialogRunsAsUsual_data()
{
    QTest::addColumn<bool>("modal");
    QTest::newRow("modal before open()") << true;
    QTest::newRow("not modal before open()") << false;
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
        ModalDriver user;
        user.Then([](QDialog& shown) {
            QCOMPARE(shown.windowModality(), Qt::ApplicationModal);
            shown.accept();
        });
        QCOMPARE(dialog->exec(), int(QDialog::Accepted));
        QVERIFY(user.IsDone());
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
    ModalDriver user;
    user.Then([](QDialog& shown) {
        Find<QLineEdit>(shown, "lineEdit_ZDir").setText("0");
        Click(shown, "pushButton_OK");
    });
    QVERIFY_EXCEPTION_THROWN(dialog.exec(), Standard_ConstructionError);
    QVERIFY(user.IsDone());
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

void tst_ModalLoop::TheErrorPassesThroughTheRunOfAnotherDialog()
{
    ExtrudInputDlg outer(nullptr);
    ExtrudInputDlg inner(nullptr);
    ModalDriver user;
    user.Then([&inner](QDialog&) { inner.exec(); });
    user.Then([](QDialog& shown) {
        Find<QLineEdit>(shown, "lineEdit_ZDir").setText("0");
        Click(shown, "pushButton_OK");
    });
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    QVERIFY_EXCEPTION_THROWN(outer.exec(), Standard_ConstructionError);
    QVERIFY(user.IsDone());
    QVERIFY(outer.isVisible() && inner.isVisible());
    QCOMPARE(QApplication::activeModalWidget(), &inner);
    inner.reject();
    QCOMPARE(QApplication::activeModalWidget(), &outer);
    outer.reject();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!outer.isModal() && !inner.isModal());
}

void tst_ModalLoop::AfterTheErrorADialogToBeDeletedOnCloseIsDeletedWhenItIsClosed()
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
    ModalDriver user;
    user.Then([](QDialog& shown) {
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
    ModalDriver user;
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    dialog.exec();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 0);
    QCOMPARE(finished.count(), 1);
    user.Then([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    dialog.exec();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(finished.count(), 2);
}

void tst_ModalLoop::ASecondRunInsideTheFirstIsRefused()
{
    ExtrudInputDlg dialog(nullptr);
    ModalDriver user;
    user.Then([this](QDialog& shown) {
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
    QTest::newRow("at once") << false;
    QTest::newRow("by deleteLater()") << true;
}

void tst_ModalLoop::DestroyingTheRunningDialogRejects()
{
    QFETCH(bool, later);
    auto* const dialog = new ExtrudInputDlg(nullptr);
    const QPointer<QDialog> guard = dialog;
    ModalDriver user;
    user.Then([later](QDialog& shown) {
        if (later)
            shown.deleteLater();
        else
            delete &shown;
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!guard);
}

void tst_ModalLoop::ADialogToBeDeletedOnCloseIsDeletedAfterTheRun()
{
    auto* const dialog = new ExtrudInputDlg(nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QDialog> guard = dialog;
    ModalDriver user;
    user.Then([&guard](QDialog& shown) {
        shown.accept();
        QVERIFY(guard);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QVERIFY(!guard);
}

void tst_ModalLoop::TheDialogRunsAsOftenAsTheHostLikes()
{
    ExtrudInputDlg dialog(nullptr);
    ModalDriver user;
    for (int run = 0; run < 3; ++run) {
        user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    QVERIFY(user.IsDone());
}

int main(int argc, char** argv)
{
    if (argc == 7 && qstrcmp(argv[1], "--host") == 0) {
        QStringList arguments;
        for (int i = 2; i < argc; ++i)
            arguments << argv[i];
        HostApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        return Host(application, arguments).Run();
    }
    return RunTest<tst_ModalLoop>(argc, argv);
}

#include "tst_ModalLoop.moc"
