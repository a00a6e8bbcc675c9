#include "CAnalysisTypeGUI.h"
#include "DialogFacts.h"
#include "Heap.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QVBoxLayout>

using Pair = std::pair<int, int>;
Q_DECLARE_METATYPE(Pair)

namespace {

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

/// Counts the requests to close that reach what it watches.
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

class tst_CAnalysisTypeGUI : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheButtonsAreStackedInOrder();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheClassHasItsTwoSlots();
    void TheHostsWindowIsTheParent();
    void TheWindowIconIsReadFromBesideTheWorkingDirectory();
    void AMissingWindowIconIsPassedOver();
    void ThePairIsZeroAtFirst();
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
    void TheUserMayGoBackToVibration();
    void OkHidesWithoutAcceptingOrRejecting();
    void CancelClosesTheDialog();
    void LeavingKeepsThePair_data();
    void LeavingKeepsThePair();
    void TheDialogCanRunAgain();
    void TabFollowsReadingOrder();
    void EnterConfirmsFromEverywhere_data();
    void EnterConfirmsFromEverywhere();
    void OpeningAThousandTimesTakesNoMemory();
};

void tst_CAnalysisTypeGUI::TheFormIsAsGiven_data()
{
    AddFormColumns();
    QTest::newRow("grpb_Mechanics")
        << "QGroupBox"
        << "CAnalysisTypeGUI" << QRect() << "Solver Type" << true << false;
    QTest::newRow("layoutWidget") << "QWidget"
                                  << "grpb_Mechanics" << QRect() << "" << true << false;
    const char* const radio = "QRadioButton";
    const char* const box = "layoutWidget";
    QTest::newRow("rad_Static") << radio << box << QRect() << "Static" << false << false;
    QTest::newRow("rad_NonLineStatic")
        << radio << box << QRect() << "NonLinear Static" << false << false;
    QTest::newRow("radioButton_10") << radio << box << QRect() << "Flow CFD" << false << false;
    QTest::newRow("rad_Vibration") << radio << box << QRect() << "Vibration" << true << true;
    QTest::newRow("rad_HeatTransf") << radio << box << QRect() << "Heat Transfer" << false << false;
    QTest::newRow("rad_Bucking") << radio << box << QRect() << "Buckling" << false << false;
    QTest::newRow("rad_Freq") << radio << box << QRect() << "Frequecny Response" << false << false;
    QTest::newRow("rad_Transient") << radio << box << QRect() << "Transient" << false << false;
    QTest::newRow("rad_ComplexEig")
        << radio << box << QRect() << "Complex EigenValue" << false << false;
    QTest::newRow("ok_push_button") << "QPushButton"
                                    << "CAnalysisTypeGUI" << QRect() << "OK" << true << false;
    QTest::newRow("cancael_push_button")
        << "QPushButton"
        << "CAnalysisTypeGUI" << QRect() << "Cancel" << true << false;
}

void tst_CAnalysisTypeGUI::TheFormIsAsGiven()
{
    const CAnalysisTypeGUI dialog(nullptr);
    CompareFormRow(dialog);
}

void tst_CAnalysisTypeGUI::TheFormHoldsNothingElse()
{
    const CAnalysisTypeGUI dialog(nullptr);
    QCOMPARE(FormWidgets(dialog),
             QStringList({"cancael_push_button", "grpb_Mechanics", "layoutWidget", "ok_push_button",
                          "rad_Bucking", "rad_ComplexEig", "rad_Freq", "rad_HeatTransf",
                          "rad_NonLineStatic", "rad_Static", "rad_Transient", "rad_Vibration",
                          "radioButton_10"}));
}

void tst_CAnalysisTypeGUI::TheButtonsAreStackedInOrder()
{
    const CAnalysisTypeGUI dialog(nullptr);
    const auto* const layout =
        qobject_cast<QVBoxLayout*>(Find<QWidget>(dialog, "layoutWidget").layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->objectName(), "verticalLayout");
    QStringList names;
    for (int i = 0; i < layout->count(); ++i)
        names << layout->itemAt(i)->widget()->objectName();
    QCOMPARE(names, QStringList({"rad_Static", "rad_NonLineStatic", "radioButton_10",
                                 "rad_Vibration", "rad_HeatTransf", "rad_Bucking", "rad_Freq",
                                 "rad_Transient", "rad_ComplexEig"}));
}

void tst_CAnalysisTypeGUI::TheWindowIsAsGiven()
{
    CompareWindow(CAnalysisTypeGUI(nullptr), "CAnalysisTypeGUI", "Analysis Type", QSize(240, 430));
}

void tst_CAnalysisTypeGUI::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const CAnalysisTypeGUI dialog(nullptr);
    QCOMPARE(recorder.TextsOf("CAnalysisTypeGUI"),
             QStringList({"Analysis Type", "Buckling", "Cancel", "Complex EigenValue", "Flow CFD",
                          "Frequecny Response", "Heat Transfer", "NonLinear Static", "OK",
                          "Solver Type", "Static", "Transient", "Vibration"}));
}

void tst_CAnalysisTypeGUI::TheClassHasItsTwoSlots()
{
    const QMetaObject& meta = CAnalysisTypeGUI::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta),
             QStringList({"public slot OnOKButtonPush()", "public slot OnCloseButtonPush()"}));
}

void tst_CAnalysisTypeGUI::TheHostsWindowIsTheParent()
{
    QWidget window;
    const CAnalysisTypeGUI dialog(&window);
    QCOMPARE(dialog.parentWidget(), &window);
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

void tst_CAnalysisTypeGUI::AMissingWindowIconIsPassedOver()
{
    EnterTemporaryDirectory();
    CAnalysisTypeGUI dialog(nullptr);
    dialog.show();
    QVERIFY(dialog.windowIcon().pixmap(16, 16).isNull());
    dialog.close();
}

void tst_CAnalysisTypeGUI::ThePairIsZeroAtFirst()
{
    QCOMPARE(SolverType(CAnalysisTypeGUI(nullptr)), Pair(0, 0));
}

void tst_CAnalysisTypeGUI::OnlyVibrationCanBeChosen_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char* const name :
         {"rad_Static", "rad_NonLineStatic", "radioButton_10", "rad_HeatTransf", "rad_Bucking",
          "rad_Freq", "rad_Transient", "rad_ComplexEig"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_CAnalysisTypeGUI::OnlyVibrationCanBeChosen()
{
    QFETCH(QByteArray, button);
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    user.Then([&](QDialog& shown) {
        Click(shown, button);
        QCOMPARE(CheckedButton(shown), "rad_Vibration");
        Click(shown, "ok_push_button");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::InitDataStoresThePairAndChecksItsButton_data()
{
    QTest::addColumn<Pair>("pair");
    QTest::addColumn<QString>("checked");
    QTest::newRow("1, 1") << Pair(1, 1) << "rad_Static";
    QTest::newRow("1, 2") << Pair(1, 2) << "rad_Vibration";
    QTest::newRow("1, 3") << Pair(1, 3) << "rad_Bucking";
    QTest::newRow("1, 4") << Pair(1, 4) << "rad_Transient";
    QTest::newRow("1, 5 has no button") << Pair(1, 5) << "rad_Vibration";
    QTest::newRow("1, 6") << Pair(1, 6) << "rad_Freq";
    QTest::newRow("1, 7") << Pair(1, 7) << "rad_ComplexEig";
    QTest::newRow("1, 8 has no button") << Pair(1, 8) << "rad_Vibration";
    QTest::newRow("1, 0 has no button") << Pair(1, 0) << "rad_Vibration";
    QTest::newRow("1, -1 has no button") << Pair(1, -1) << "rad_Vibration";
    // What OK gives for Complex EigenValue is deliberately not shown again.
    QTest::newRow("7, 7 has no button") << Pair(7, 7) << "rad_Vibration";
    QTest::newRow("7, 1 has no button") << Pair(7, 1) << "rad_Vibration";
    QTest::newRow("0, 1 has no button") << Pair(0, 1) << "rad_Vibration";
    QTest::newRow("-1, 1 has no button") << Pair(-1, 1) << "rad_Vibration";
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
    QTest::newRow("Static") << QByteArray("rad_Static") << Pair(1, 1);
    QTest::newRow("Vibration") << QByteArray("rad_Vibration") << Pair(1, 2);
    QTest::newRow("Buckling") << QByteArray("rad_Bucking") << Pair(1, 3);
    QTest::newRow("Transient") << QByteArray("rad_Transient") << Pair(1, 4);
    QTest::newRow("Frequency") << QByteArray("rad_Freq") << Pair(1, 6);
    QTest::newRow("Complex EigenValue") << QByteArray("rad_ComplexEig") << Pair(7, 7);
}

void tst_CAnalysisTypeGUI::OkGivesThePairOfTheCheckedButton()
{
    QFETCH(QByteArray, button);
    QFETCH(Pair, pair);
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(3, 9);
    Find<QRadioButton>(dialog, button).setChecked(true);
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), pair);
}

void tst_CAnalysisTypeGUI::OkKeepsThePairOfAButtonWithoutOne_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("NonLinear Static") << QByteArray("rad_NonLineStatic");
    QTest::newRow("Flow CFD") << QByteArray("radioButton_10");
    QTest::newRow("Heat Transfer") << QByteArray("rad_HeatTransf");
}

void tst_CAnalysisTypeGUI::OkKeepsThePairOfAButtonWithoutOne()
{
    QFETCH(QByteArray, button);
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(3, 9);
    Find<QRadioButton>(dialog, button).setChecked(true);
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    dialog.exec();
    QVERIFY(user.IsDone());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(SolverType(dialog), Pair(3, 9));
}

void tst_CAnalysisTypeGUI::OkAfterInitData_data()
{
    QTest::addColumn<Pair>("given");
    QTest::addColumn<Pair>("taken");
    QTest::newRow("1, 1") << Pair(1, 1) << Pair(1, 1);
    QTest::newRow("1, 2") << Pair(1, 2) << Pair(1, 2);
    QTest::newRow("1, 3") << Pair(1, 3) << Pair(1, 3);
    QTest::newRow("1, 4") << Pair(1, 4) << Pair(1, 4);
    QTest::newRow("1, 5 becomes Vibration") << Pair(1, 5) << Pair(1, 2);
    QTest::newRow("1, 6") << Pair(1, 6) << Pair(1, 6);
    QTest::newRow("1, 7 becomes 7, 7") << Pair(1, 7) << Pair(7, 7);
    QTest::newRow("7, 7 becomes Vibration") << Pair(7, 7) << Pair(1, 2);
}

void tst_CAnalysisTypeGUI::OkAfterInitData()
{
    QFETCH(Pair, given);
    QFETCH(Pair, taken);
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(given.first, given.second);
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), taken);
}

void tst_CAnalysisTypeGUI::TheUserMayGoBackToVibration()
{
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(1, 6);
    user.Then([](QDialog& shown) {
        Click(shown, "rad_Vibration");
        QCOMPARE(CheckedButton(shown), "rad_Vibration");
        Click(shown, "ok_push_button");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::OkHidesWithoutAcceptingOrRejecting()
{
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    const QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    const QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
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
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    dialog.InitData(given.first, given.second);
    user.Then([&](QDialog& shown) {
        if (way == "Cancel")
            Click(shown, "cancael_push_button");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(SolverType(dialog), kept);
}

void tst_CAnalysisTypeGUI::TheDialogCanRunAgain()
{
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    dialog.exec();
    dialog.InitData(1, 4);
    user.Then([](QDialog& shown) { Click(shown, "ok_push_button"); });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), Pair(1, 4));
}

void tst_CAnalysisTypeGUI::TabFollowsReadingOrder()
{
    CAnalysisTypeGUI dialog(nullptr);
    const QList<QRadioButton*> buttons = dialog.findChildren<QRadioButton*>();
    QCOMPARE(TabOrder(dialog),
             QStringList({"rad_Vibration", "ok_push_button", "cancael_push_button"}));
    // As it would be if a host enabled the others.
    for (QRadioButton* const button : buttons)
        button->setEnabled(true);
    QCOMPARE(TabOrder(dialog),
             QStringList({"rad_Static", "rad_NonLineStatic", "radioButton_10", "rad_Vibration",
                          "rad_HeatTransf", "rad_Bucking", "rad_Freq", "rad_Transient",
                          "rad_ComplexEig", "ok_push_button", "cancael_push_button"}));
}

void tst_CAnalysisTypeGUI::EnterConfirmsFromEverywhere_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"rad_Vibration", "ok_push_button", "cancael_push_button"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_CAnalysisTypeGUI::EnterConfirmsFromEverywhere()
{
    QFETCH(QByteArray, focus);
    ModalDriver user;
    CAnalysisTypeGUI dialog(nullptr);
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(SolverType(dialog), Pair(1, 2));
}

void tst_CAnalysisTypeGUI::OpeningAThousandTimesTakesNoMemory()
{
    const std::ptrdiff_t growth = HeapGrowth([] {
        CAnalysisTypeGUI dialog(nullptr);
        dialog.show();
        dialog.close();
    });
    QVERIFY2(growth < 16 * 1000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_CAnalysisTypeGUI)
#include "tst_CAnalysisTypeGUI.moc"
