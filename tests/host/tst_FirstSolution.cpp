#include "HostTestMain.h"
#include "MenuUser.h"
#include "OpenWindow.h"
#include "PartView.h"
#include "TestFiles.h"

#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QImage>
#include <QScreen>

/// A user opens the flange, meshes it, looks at its modes, and at its stresses. The pictures of the
/// manual are made on the way, into the folder TARN_PICTURES.
class tst_FirstSolution : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFlangeIsSolved();
};

namespace {

/// The flange of the samples, as a user handles it.
class Desk : public OpenWindow
{
public:
    Desk()
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
        window.resize(1270, 900);
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            FailTest("The window does not become active");
    }

    void Solve(const char* action)
    {
        Trigger(action);
        const auto& dock = Find<QDockWidget>(window, "solveDock");
        QTRY_VERIFY_WITH_TIMEOUT(!Find<QWidget>(dock, "cancelButton").isEnabled(), 120000);
        QCoreApplication::processEvents();
    }
    void Choose(const QString& content) const
    {
        auto& box = Find<QComboBox>(window, "showBox");
        box.setCurrentText(content);
        QCOMPARE(box.currentText(), content);
    }
    QTableWidget& Table() const
    {
        return Find<QTableWidget>(Find<QDockWidget>(window, "resultsDock"), "table");
    }
    QImage View() const { return Find<PartView>(window, "modelView").grab().toImage(); }

    void Picture(const QString& name)
    {
        const QString folder = qEnvironmentVariable("TARN_PICTURES");
        if (!folder.isEmpty())
            QVERIFY(window.grab().save(QDir(folder).filePath(name + ".png")));
    }
};

} // namespace

void tst_FirstSolution::TheFlangeIsSolved()
{
    Desk desk;
    const PostedMessages posted;
    const QImage part = desk.View();

    desk.Solve("action_Mesh");
    QVERIFY(desk.View() != part);
    desk.Picture("solving-1-mesh");

    desk.Solve("action_SolveVibration");
    QCOMPARE(desk.Table().rowCount(), 5);
    QVERIFY(std::abs(desk.Table().item(0, 1)->text().toDouble() / 5139.0 - 1.0) < 1e-3);
    const QImage first = desk.View();
    desk.Picture("solving-2-mode");
    QTest::mouseClick(desk.Table().viewport(), Qt::LeftButton, {},
                      desk.Table().visualItemRect(desk.Table().item(3, 0)).center());
    QVERIFY(desk.View() != first);

    const QImage still = desk.View();
    Click(desk.window, "animateButton");
    QTRY_VERIFY(desk.View() != still);
    Click(desk.window, "animateButton");
    QCOMPARE(desk.View(), still);

    desk.Solve("action_SolveStatic");
    const QImage displacement = desk.View();
    desk.Choose("Von Mises stress");
    QVERIFY(desk.View() != displacement);
    desk.Picture("solving-3-stress");
    QCOMPARE(posted.At(ErrorLevel), QStringList());
}

TARN_HOST_TEST_MAIN(tst_FirstSolution)
#include "tst_FirstSolution.moc"
