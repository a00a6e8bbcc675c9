#include "CAnalysisTypeGUI.h"
#include "FormTest.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

using Pair = std::pair<int, int>;
Q_DECLARE_METATYPE(Pair)

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "CAnalysisTypeGUI";
    form.title = "Analysis Type";
    form.size = {240, 430};
    form.lines = {
        "QGroupBox grpb_Mechanics in CAnalysisTypeGUI: Solver Type",
        "QWidget layoutWidget in grpb_Mechanics: ",
        "QRadioButton rad_Static in layoutWidget at verticalLayout[0]: Static, disabled",
        "QRadioButton rad_NonLineStatic in layoutWidget at verticalLayout[1]: NonLinear Static, "
        "disabled",
        "QRadioButton radioButton_10 in layoutWidget at verticalLayout[2]: Flow CFD, disabled",
        "QRadioButton rad_Vibration in layoutWidget at verticalLayout[3]: Vibration, checked",
        "QRadioButton rad_HeatTransf in layoutWidget at verticalLayout[4]: Heat Transfer, disabled",
        "QRadioButton rad_Bucking in layoutWidget at verticalLayout[5]: Buckling, disabled",
        "QRadioButton rad_Freq in layoutWidget at verticalLayout[6]: Frequecny Response, disabled",
        "QRadioButton rad_Transient in layoutWidget at verticalLayout[7]: Transient, disabled",
        "QRadioButton rad_ComplexEig in layoutWidget at verticalLayout[8]: Complex EigenValue, "
        "disabled",
        "QPushButton ok_push_button in CAnalysisTypeGUI: OK",
        "QPushButton cancael_push_button in CAnalysisTypeGUI: Cancel",
    };
    form.tabOrder = {"rad_Vibration", "ok_push_button", "cancael_push_button"};
    form.enter = "ok_push_button";
    form.methods = {"public slot OnOKButtonPush()", "public slot OnCloseButtonPush()"};
    form.hasIcon = true;
    return form;
}

Pair SolverType(const CAnalysisTypeGUI& dialog)
{
    Pair pair(-1, -1);
    dialog.getSolverType(pair.first, pair.second);
    return pair;
}

QString CheckedButton(const QWidget& dialog)
{
    QStringList names;
    const QList<QRadioButton*> buttons = dialog.findChildren<QRadioButton*>();
    for (const QRadioButton* const button : buttons) {
        if (button->isChecked())
            names << button->objectName();
    }
    return names.join(QLatin1Char(' '));
}

/// Counts the close events of the object that it watches.
class CloseEvents : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Close ? 1 : 0;
        return false;
    }

    int count = 0;
};

} // namespace

class tst_CAnalysisTypeGUI : public FormTest<CAnalysisTypeGUI>
{
    Q_OBJECT

public:
    tst_CAnalysisTypeGUI()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void TheWindowIconIsReadFromBesideTheWorkingDirectory();
    void AMissingWindowIconIsIgnored();
    void ThePairIsInitiallyZero();
    void OnlyVibrationCanBeChosen_data();
    void OnlyVibrationCanBeChosen();
    void InitDataStoresThePairAndChecksItsButton_data();
    void InitDataStoresThePairAndChecksItsButton();
    void APairWithoutButtonLeavesTheCheckedOne();
    void OkGivesThePairOfTheCheckedButton_data();
    void OkGivesThePairOfTheCheckedButton();
    void OkKeepsThePairOfAButtonWithoutOne_data();
    void OkKeepsThePairOfAButtonWithoutOne();
    void OkAfterInitData_data();
    void OkAfterInitData();
    void TheUserCanReturnToVibration();
    void OkHidesWithoutAcceptingOrRejecting();
    void CancelClosesTheDialog();
    void LeavingKeepsThePair_data();
    void LeavingKeepsThePair();
    void TheDialogCanRunAgain();
    void TabFollowsTheReadingOrderOfEnabledTypes();

private:
    void CompareAfterEnter(QDialog& dialog) override;
};

// OK hides the dialog without accepting it.
void tst_CAnalysisTypeGUI::CompareAfterEnter(QDialog& dialog)
{
    QVERIFY(!dialog.isVisible());
    QCOMPARE(SolverType(static_cast<CAnalysisTypeGUI&>(dialog)), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::TheWindowIconIsReadFromBesideTheWorkingDirectory()
{
    const QDir directory(EnterTemporaryDirectory());
    QVERIFY(directory.mkpath("Varnhollow/images") && directory.mkpath("run"));
    const QString image = directory.filePath("Varnhollow/images/TopTitle.png");
    QVERIFY(QFile::copy(SourcePath("common/images/TopTitle.png"), image));
    QVERIFY(QDir::setCurrent(directory.filePath("run")));

    const CAnalysisTypeGUI dialog(nullptr);
    const QPixmap picture(image);
    QVERIFY(!picture.isNull());
    const QIcon icon = dialog.windowIcon();
    QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>({picture.size()}));
    QVERIFY(icon.availableSizes(QIcon::Normal, QIcon::On).isEmpty());
    QVERIFY(icon.availableSizes(QIcon::Disabled, QIcon::Off).isEmpty());
    QCOMPARE(icon.pixmap(picture.size()).toImage(), picture.toImage());
}

void tst_CAnalysisTypeGUI::AMissingWindowIconIsIgnored()
{
    EnterTemporaryDirectory();
    CAnalysisTypeGUI dialog(nullptr);
    dialog.show();
    QVERIFY(dialog.windowIcon().pixmap(16, 16).isNull());
    dialog.close();
}

void tst_CAnalysisTypeGUI::ThePairIsInitiallyZero()
{
    QCOMPARE(SolverType(CAnalysisTypeGUI(nullptr)), Pair(0, 0));
}

void tst_CAnalysisTypeGUI::OnlyVibrationCanBeChosen_data()
{
    NewNameRows("button", {"rad_Static", "rad_NonLineStatic", "radioButton_10", "rad_HeatTransf",
                           "rad_Bucking", "rad_Freq", "rad_Transient", "rad_ComplexEig"});
}

void tst_CAnalysisTypeGUI::OnlyVibrationCanBeChosen()
{
    QFETCH(QByteArray, button);
    CAnalysisTypeGUI dialog(nullptr);
    Then([&](QDialog& shown) {
        Click(shown, button);
        QCOMPARE(CheckedButton(shown), "rad_Vibration");
        Click(shown, "ok_push_button");
    });
    dialog.exec();
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::InitDataStoresThePairAndChecksItsButton_data()
{
    QTest::addColumn<Pair>("pair");
    QTest::addColumn<QString>("checked");
    NewRow("1, 1", Pair(1, 1), "rad_Static");
    NewRow("1, 2", Pair(1, 2), "rad_Vibration");
    NewRow("1, 3", Pair(1, 3), "rad_Bucking");
    NewRow("1, 4", Pair(1, 4), "rad_Transient");
    NewRow("1, 5 has no button", Pair(1, 5), "rad_Vibration");
    NewRow("1, 6", Pair(1, 6), "rad_Freq");
    NewRow("1, 7", Pair(1, 7), "rad_ComplexEig");
    NewRow("1, 8 has no button", Pair(1, 8), "rad_Vibration");
    NewRow("1, 0 has no button", Pair(1, 0), "rad_Vibration");
    NewRow("1, -1 has no button", Pair(1, -1), "rad_Vibration");
    // The pair that OK gives for Complex EigenValue is deliberately not shown again.
    NewRow("7, 7 has no button", Pair(7, 7), "rad_Vibration");
    NewRow("7, 1 has no button", Pair(7, 1), "rad_Vibration");
    NewRow("0, 1 has no button", Pair(0, 1), "rad_Vibration");
    NewRow("-1, 1 has no button", Pair(-1, 1), "rad_Vibration");
}

void tst_CAnalysisTypeGUI::InitDataStoresThePairAndChecksItsButton()
{
    QFETCH(Pair, pair);
    QFETCH(QString, checked);
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(pair.first, pair.second);
    QCOMPARE(SolverType(dialog), pair);
    QCOMPARE(CheckedButton(dialog), checked);
}

void tst_CAnalysisTypeGUI::APairWithoutButtonLeavesTheCheckedOne()
{
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(1, 6);
    dialog.InitData(1, 5);
    QCOMPARE(CheckedButton(dialog), "rad_Freq");
    dialog.InitData(7, 7);
    QCOMPARE(CheckedButton(dialog), "rad_Freq");
    dialog.InitData(1, 2);
    QCOMPARE(CheckedButton(dialog), "rad_Vibration");
}

void tst_CAnalysisTypeGUI::OkGivesThePairOfTheCheckedButton_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<Pair>("pair");
    NewRow("Static", QByteArray("rad_Static"), Pair(1, 1));
    NewRow("Vibration", QByteArray("rad_Vibration"), Pair(1, 2));
    NewRow("Buckling", QByteArray("rad_Bucking"), Pair(1, 3));
    NewRow("Transient", QByteArray("rad_Transient"), Pair(1, 4));
    NewRow("Frequency", QByteArray("rad_Freq"), Pair(1, 6));
    NewRow("Complex EigenValue", QByteArray("rad_ComplexEig"), Pair(7, 7));
}

void tst_CAnalysisTypeGUI::OkGivesThePairOfTheCheckedButton()
{
    QFETCH(QByteArray, button);
    QFETCH(Pair, pair);
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(3, 9);
    Find<QRadioButton>(dialog, button).setChecked(true);
    RunAndPress(dialog, "ok_push_button");
    QCOMPARE(SolverType(dialog), pair);
}

void tst_CAnalysisTypeGUI::OkKeepsThePairOfAButtonWithoutOne_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("NonLinear Static", QByteArray("rad_NonLineStatic"));
    NewRow("Flow CFD", QByteArray("radioButton_10"));
    NewRow("Heat Transfer", QByteArray("rad_HeatTransf"));
}

void tst_CAnalysisTypeGUI::OkKeepsThePairOfAButtonWithoutOne()
{
    QFETCH(QByteArray, button);
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(3, 9);
    Find<QRadioButton>(dialog, button).setChecked(true);
    RunAndPress(dialog, "ok_push_button");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(SolverType(dialog), Pair(3, 9));
}

void tst_CAnalysisTypeGUI::OkAfterInitData_data()
{
    QTest::addColumn<Pair>("given");
    QTest::addColumn<Pair>("taken");
    NewRow("1, 1", Pair(1, 1), Pair(1, 1));
    NewRow("1, 2", Pair(1, 2), Pair(1, 2));
    NewRow("1, 3", Pair(1, 3), Pair(1, 3));
    NewRow("1, 4", Pair(1, 4), Pair(1, 4));
    NewRow("1, 5 becomes Vibration", Pair(1, 5), Pair(1, 2));
    NewRow("1, 6", Pair(1, 6), Pair(1, 6));
    NewRow("1, 7 becomes 7, 7", Pair(1, 7), Pair(7, 7));
    NewRow("7, 7 becomes Vibration", Pair(7, 7), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::OkAfterInitData()
{
    QFETCH(Pair, given);
    QFETCH(Pair, taken);
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(given.first, given.second);
    RunAndPress(dialog, "ok_push_button");
    QCOMPARE(SolverType(dialog), taken);
}

void tst_CAnalysisTypeGUI::TheUserCanReturnToVibration()
{
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(1, 6);
    Then([](QDialog& shown) {
        Click(shown, "rad_Vibration");
        QCOMPARE(CheckedButton(shown), "rad_Vibration");
        Click(shown, "ok_push_button");
    });
    dialog.exec();
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::OkHidesWithoutAcceptingOrRejecting()
{
    CAnalysisTypeGUI dialog(nullptr);
    const QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    const QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    QCOMPARE(RunAndPress(dialog, "ok_push_button"), int(QDialog::Rejected));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(accepted.count() + rejected.count() + finished.count(), 0);
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::CancelClosesTheDialog()
{
    CAnalysisTypeGUI dialog(nullptr);
    CloseEvents closed;
    dialog.installEventFilter(&closed);
    dialog.show();
    Click(dialog, "cancael_push_button");
    QCOMPARE(closed.count, 1);
    QVERIFY(!dialog.isVisible());
}

void tst_CAnalysisTypeGUI::LeavingKeepsThePair_data()
{
    QTest::addColumn<Pair>("given");
    QTest::addColumn<Pair>("kept");
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"}) {
        QTest::addRow("1, 5 by %s", way) << Pair(1, 5) << Pair(1, 5) << way;
        QTest::addRow("1, 1 by %s", way) << Pair(1, 1) << Pair(1, 1) << way;
        QTest::addRow("0, 0 by %s", way) << Pair(0, 0) << Pair(0, 0) << way;
    }
}

void tst_CAnalysisTypeGUI::LeavingKeepsThePair()
{
    QFETCH(Pair, given);
    QFETCH(Pair, kept);
    QFETCH(QString, way);
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(given.first, given.second);
    Then([&](QDialog& shown) { Leave(shown, way, "cancael_push_button"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(SolverType(dialog), kept);
}

void tst_CAnalysisTypeGUI::TheDialogCanRunAgain()
{
    CAnalysisTypeGUI dialog(nullptr);
    RunAndPress(dialog, "ok_push_button");
    dialog.InitData(1, 4);
    RunAndPress(dialog, "ok_push_button");
    QCOMPARE(SolverType(dialog), Pair(1, 4));
}

void tst_CAnalysisTypeGUI::TabFollowsTheReadingOrderOfEnabledTypes()
{
    CAnalysisTypeGUI dialog(nullptr);
    const QList<QRadioButton*> buttons = dialog.findChildren<QRadioButton*>();
    for (QRadioButton* const button : buttons)
        button->setEnabled(true);
    QCOMPARE(TabOrder(dialog),
             QStringList({"rad_Static", "rad_NonLineStatic", "radioButton_10", "rad_Vibration",
                          "rad_HeatTransf", "rad_Bucking", "rad_Freq", "rad_Transient",
                          "rad_ComplexEig", "ok_push_button", "cancael_push_button"}));
}

TARN_TEST_MAIN(tst_CAnalysisTypeGUI)
#include "tst_CAnalysisTypeGUI.moc"
