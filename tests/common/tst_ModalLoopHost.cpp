#include "DirectionDialogs.h"
#include "TestCase.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>
#include <Standard_ConstructionError.hxx>

#include <cstdio>

// A host that catches the kernel's error around exec() or in notify(). The host is a program of its
// own, so that a crash is a failure of the test.

namespace {

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

    // Through the window, like a user event: a blocked window does not receive it.
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
        QTimer::singleShot(0, m_dialog.get(), [this] {
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
            DeliverEvents();
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
        QTimer::singleShot(0, m_dialog.get(), [this] {
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

class tst_ModalLoopHost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AHostSurvivesTheKernelsError_data();
    void AHostSurvivesTheKernelsError();
};

void tst_ModalLoopHost::AHostSurvivesTheKernelsError_data()
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

void tst_ModalLoopHost::AHostSurvivesTheKernelsError()
{
    QFETCH(QStringList, arguments);
    QProcess host;
    // An exception that passes through the window system's event loop leaks the current event.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(), QStringList("--host") + arguments);
    QVERIFY(host.waitForFinished(30000));
    QCOMPARE(QString::fromLocal8Bit(host.readAllStandardOutput()), QString());
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, host.readAllStandardError().constData());
    QCOMPARE(host.exitCode(), 0);
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
    return RunTest<tst_ModalLoopHost>(argc, argv);
}

#include "tst_ModalLoopHost.moc"
