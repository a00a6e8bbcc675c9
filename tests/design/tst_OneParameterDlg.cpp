#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "OneParameterDlg.h"
#include "TestCase.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <limits>

namespace {

const ShownBox BadInput = ShownBox::Notice("Error", "Check input data!");
const ShownBox NoGauss = ShownBox::Notice("Error", "Not implement yet");
const ShownBox NoRow = ShownBox::Notice("Notify", "Select one row first!");

using Boxes = QVector<ShownBox>;
using Values = std::vector<double>;

enum SampleType
{
    Linear,
    Log10,
    Ln,
    Gauss
};

const char* const TypeButtons[] = {"radioButton_Linear", "radioButton_Log", "radioButton_Ln",
                                   "radioButton_Gauss"};

QTableWidget& Table(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget");
}

QStringList Rows(const QWidget& dialog)
{
    QStringList texts;
    for (int row = 0; row < Table(dialog).rowCount(); ++row) {
        const QTableWidgetItem* const item = Table(dialog).item(row, 0);
        texts << (item != nullptr ? item->text() : QStringLiteral("(no item)"));
    }
    return texts;
}

QStringList Fields(const QWidget& dialog)
{
    QStringList texts;
    for (const char* const name : {"lineEdit_Min", "lineEdit_Max", "lineEdit_Deta"})
        texts << Find<QLineEdit>(dialog, name).text();
    return texts;
}

QStringList CheckedTypes(const QWidget& dialog)
{
    QStringList texts;
    for (const char* const name : TypeButtons) {
        if (Find<QRadioButton>(dialog, name).isChecked())
            texts << Find<QRadioButton>(dialog, name).text();
    }
    return texts;
}

void SetFields(const QWidget& dialog, const QString& min, const QString& max, const QString& step)
{
    Find<QLineEdit>(dialog, "lineEdit_Min").setText(min);
    Find<QLineEdit>(dialog, "lineEdit_Max").setText(max);
    Find<QLineEdit>(dialog, "lineEdit_Deta").setText(step);
}

// Leaves a field, as it stands, with Tab.
void FinishEdit(const QWidget& dialog, const char* name)
{
    auto& edit = Find<QLineEdit>(dialog, name);
    edit.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(edit.window()));
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
}

void StoreRange(const QString& name, double min, double max, double step, int type = Linear)
{
    sParaArrayData& record = g_mapParaArrays[name];
    record.dMin = min;
    record.dMax = max;
    record.dDelta = step;
    record.nSampleType = type;
}

} // namespace

class tst_OneParameterDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormHoldsItsWidgets_data();
    void TheFormHoldsItsWidgets();
    void TheWindowHasItsTitleAndFont();
    void TheGroupsStandInTheirGrid_data();
    void TheGroupsStandInTheirGrid();
    void TheTypesStandOneAboveTheOther();
    void TheFieldsHaveNoValidators();
    void TheLabelsHaveTheirFieldsAsBuddies();
    void TabFollowsTheReadingOrder();
    void NoButtonIsPressedByEnter();
    void TheSlotsStandInTheirOrder();

    void AnEmptyNameIsRefused();
    void TheDialogOfAnEmptyNameIsInert();
    void ANewParameterOpensWithTheDefaults();
    void TheEntryIsMadeByTheOpeningAlone_data();
    void TheEntryIsMadeByTheOpeningAlone();
    void TheStoredRangeIsShownWithSixDigits();
    void TheStoredTypeIsChecked_data();
    void TheStoredTypeIsChecked();
    void StoredValuesAreNotShownAgain();

    void TheRangeGeneratesTheSamples_data();
    void TheRangeGeneratesTheSamples();
    void ABadRangeIsRefused_data();
    void ABadRangeIsRefused();
    void AStoredBadRangeIsRefusedAtTheOpening_data();
    void AStoredBadRangeIsRefusedAtTheOpening();
    void AMillionRowsAreTheLimit();
    void EachFieldRegeneratesWhenItIsLeft_data();
    void EachFieldRegeneratesWhenItIsLeft();
    void LinearAndLogRegenerateAtOnce();
    void LnAndGaussWaitForTheNextEdit();
    void GaussIsRememberedWithoutRows();
    void WithoutATypeNothingIsGenerated();
    void ARefusedRangeLeavesTheTypeAsItWas();

    void ABadEditShowsOneBox_data();
    void ABadEditShowsOneBox();
    void TheNextBadEditIsReportedAgain();
    void LeavingWithABadEditShowsNoFurtherBox_data();
    void LeavingWithABadEditShowsNoFurtherBox();
    void EnterInAFieldFinishesTheEditOnly();
    void EnterInACellFinishesTheEditOnly();

    void AddAppendsAnEmptyRow();
    void DeleteRemovesTheCurrentRow();
    void DeleteWithoutACurrentRowIsRefused();

    void OkStoresTheRecord();
    void OkChecksNothing_data();
    void OkChecksNothing();
    void OkStoresEditedRows();
    void ARowWithoutItemCountsAsZero();
    void OkStoresTheRowsAsShown();
    void OkOfGaussStoresTheRowsThatAreThere();
    void CancelLeavesTheRegistryAlone_data();
    void CancelLeavesTheRegistryAlone();
    void TheHostMayChangeTheRegistryBehindABox();
    void TheHostMayDestroyTheDialogBehindABox_data();
    void TheHostMayDestroyTheDialogBehindABox();
};

void tst_OneParameterDlg::TheFormHoldsItsWidgets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("text");
    QTest::newRow("groupBox") << "QGroupBox"
                              << "OneParameterDlg"
                              << "Type";
    QTest::newRow("groupBox_2") << "QGroupBox"
                                << "OneParameterDlg"
                                << "Range";
    QTest::newRow("groupBox_3") << "QGroupBox"
                                << "OneParameterDlg"
                                << "Table";
    QTest::newRow("radioButton_Log") << "QRadioButton"
                                     << "groupBox"
                                     << "Log10";
    QTest::newRow("radioButton_Linear") << "QRadioButton"
                                        << "groupBox"
                                        << "Linear";
    QTest::newRow("radioButton_Ln") << "QRadioButton"
                                    << "groupBox"
                                    << "Ln";
    QTest::newRow("radioButton_Gauss") << "QRadioButton"
                                       << "groupBox"
                                       << "Gauss";
    QTest::newRow("label") << "QLabel"
                           << "groupBox_2"
                           << "Min";
    QTest::newRow("label_2") << "QLabel"
                             << "groupBox_2"
                             << "Max";
    QTest::newRow("label_3") << "QLabel"
                             << "groupBox_2"
                             << "Delta";
    QTest::newRow("lineEdit_Min") << "QLineEdit"
                                  << "groupBox_2"
                                  << "0";
    QTest::newRow("lineEdit_Max") << "QLineEdit"
                                  << "groupBox_2"
                                  << "1";
    QTest::newRow("lineEdit_Deta") << "QLineEdit"
                                   << "groupBox_2"
                                   << "1";
    QTest::newRow("pushButton_Add") << "QPushButton"
                                    << "groupBox_3"
                                    << "Add";
    QTest::newRow("pushButton_Delete") << "QPushButton"
                                       << "groupBox_3"
                                       << "Delete";
    QTest::newRow("pushButton_OK") << "QPushButton"
                                   << "OneParameterDlg"
                                   << "OK";
    QTest::newRow("pushButton_Cancel") << "QPushButton"
                                       << "OneParameterDlg"
                                       << "Cancel";
}

void tst_OneParameterDlg::TheFormHoldsItsWidgets()
{
    const EmptyDesignStores stores;
    QFETCH(QString, type);
    QFETCH(QString, parent);
    QFETCH(QString, text);
    const OneParameterDlg dialog(nullptr, "a");
    const auto& widget = Find<QWidget>(dialog, QTest::currentDataTag());
    QCOMPARE(QString(widget.metaObject()->className()), type);
    QCOMPARE(widget.parentWidget()->objectName(), parent);
    const char* const property = type == "QGroupBox" ? "title" : "text";
    QCOMPARE(widget.property(property).toString(), text);
}

void tst_OneParameterDlg::TheWindowHasItsTitleAndFont()
{
    const EmptyDesignStores stores;
    QWidget parent;
    const OneParameterDlg dialog(&parent, "a");
    QCOMPARE(dialog.objectName(), QStringLiteral("OneParameterDlg"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("OneParameterDlg"));
    QCOMPARE(dialog.font().family(), QStringLiteral("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(!dialog.isModal());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(Table(dialog).columnCount(), 1);
    QCOMPARE(Table(dialog).horizontalHeaderItem(0)->text(), QStringLiteral("Value"));
}

void tst_OneParameterDlg::TheGroupsStandInTheirGrid_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QRect>("cells"); // column, row, columns, rows
    QTest::newRow("groupBox") << "gridLayout_4" << QRect(0, 0, 1, 1);
    QTest::newRow("groupBox_2") << "gridLayout_4" << QRect(1, 0, 2, 1);
    QTest::newRow("groupBox_3") << "gridLayout_4" << QRect(0, 1, 3, 1);
    QTest::newRow("pushButton_OK") << "gridLayout_4" << QRect(1, 2, 1, 1);
    QTest::newRow("pushButton_Cancel") << "gridLayout_4" << QRect(2, 2, 1, 1);
    QTest::newRow("label") << "gridLayout" << QRect(0, 0, 1, 1);
    QTest::newRow("lineEdit_Min") << "gridLayout" << QRect(1, 0, 1, 1);
    QTest::newRow("label_2") << "gridLayout" << QRect(0, 1, 1, 1);
    QTest::newRow("lineEdit_Max") << "gridLayout" << QRect(1, 1, 1, 1);
    QTest::newRow("label_3") << "gridLayout" << QRect(0, 2, 1, 1);
    QTest::newRow("lineEdit_Deta") << "gridLayout" << QRect(1, 2, 1, 1);
    QTest::newRow("tableWidget") << "gridLayout_2" << QRect(0, 0, 2, 1);
    QTest::newRow("pushButton_Add") << "gridLayout_2" << QRect(0, 1, 1, 1);
    QTest::newRow("pushButton_Delete") << "gridLayout_2" << QRect(1, 1, 1, 1);
}

void tst_OneParameterDlg::TheGroupsStandInTheirGrid()
{
    const EmptyDesignStores stores;
    QFETCH(QString, grid);
    QFETCH(QRect, cells);
    const OneParameterDlg dialog(nullptr, "a");
    auto& widget = Find<QWidget>(dialog, QTest::currentDataTag());
    const auto* const layout = qobject_cast<QGridLayout*>(widget.parentWidget()->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->objectName(), grid);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    layout->getItemPosition(layout->indexOf(&widget), &row, &column, &rows, &columns);
    QCOMPARE(QRect(column, row, columns, rows), cells);
}

void tst_OneParameterDlg::TheTypesStandOneAboveTheOther()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    const auto* const layout =
        qobject_cast<QVBoxLayout*>(Find<QGroupBox>(dialog, "groupBox").layout());
    QVERIFY(layout != nullptr);
    QStringList texts;
    for (int i = 0; i < layout->count(); ++i)
        texts << qobject_cast<QRadioButton*>(layout->itemAt(i)->widget())->text();
    QCOMPARE(texts, QStringList({"Log10", "Linear", "Ln", "Gauss"}));
}

void tst_OneParameterDlg::TheFieldsHaveNoValidators()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    for (const char* const name : {"lineEdit_Min", "lineEdit_Max", "lineEdit_Deta"})
        QVERIFY(Find<QLineEdit>(dialog, name).validator() == nullptr);
}

void tst_OneParameterDlg::TheLabelsHaveTheirFieldsAsBuddies()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Find<QLabel>(dialog, "label").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Min"));
    QCOMPARE(Find<QLabel>(dialog, "label_2").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Max"));
    QCOMPARE(Find<QLabel>(dialog, "label_3").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Deta"));
}

void tst_OneParameterDlg::TabFollowsTheReadingOrder()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(
        TabOrder(dialog),
        QStringList({"radioButton_Log", "radioButton_Linear", "radioButton_Ln", "radioButton_Gauss",
                     "lineEdit_Min", "lineEdit_Max", "lineEdit_Deta", "tableWidget",
                     "pushButton_Add", "pushButton_Delete", "pushButton_OK", "pushButton_Cancel"}));
}

void tst_OneParameterDlg::NoButtonIsPressedByEnter()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 4);
    for (const QPushButton* const button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->text()));
}

void tst_OneParameterDlg::TheSlotsStandInTheirOrder()
{
    const QMetaObject& meta = OneParameterDlg::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods, QStringList({"RefreshTableData()", "m_Slot_OK()", "m_Slot_Cancel()",
                                   "InitGUIData()", "m_Slot_Add()", "m_Slot_Delete()"}));
}

void tst_OneParameterDlg::AnEmptyNameIsRefused()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, QString());
    QCOMPARE(user.Boxes(), Boxes({ShownBox::Notice("Error", "No parameter input")}));
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlg::TheDialogOfAnEmptyNameIsInert()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "");
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Max", "-5");
        for (const char* const name : {"radioButton_Log", "pushButton_Add", "pushButton_Delete",
                                       "pushButton_OK", "pushButton_Cancel"})
            Click(shown, name);
        QVERIFY(shown.isVisible());
        QCOMPARE(Rows(shown), QStringList());
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(g_mapParaArrays.empty());
}

void tst_OneParameterDlg::ANewParameterOpensWithTheDefaults()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::TheEntryIsMadeByTheOpeningAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("letters") << "height";
    QTest::newRow("Chinese") << "长度";
    QTest::newRow("a blank") << " ";
}

void tst_OneParameterDlg::TheEntryIsMadeByTheOpeningAlone()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, name);
    user.Then([](QDialog& shown) { Click(shown, "pushButton_Cancel"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    const sParaArrayData& record = g_mapParaArrays.at(name);
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QString());
    QVERIFY(record.vecValues.empty());
}

void tst_OneParameterDlg::TheStoredRangeIsShownWithSixDigits()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0.123456789, 1234567.0, 200000.0);
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0.123457", "1.23457e+06", "200000"}));
}

void tst_OneParameterDlg::TheStoredTypeIsChecked_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("Linear") << 0 << "Linear" << QStringList({"1", "10"});
    QTest::newRow("Log10") << 1 << "Log10" << QStringList({"0", "1"});
    QTest::newRow("Ln") << 2 << "Ln" << QStringList({"0", "2.30259"});
    QTest::newRow("Gauss") << 3 << "Gauss" << QStringList();
    QTest::newRow("unknown") << 4 << "Linear" << QStringList({"1", "10"});
    QTest::newRow("negative") << -1 << "Linear" << QStringList({"1", "10"});
}

void tst_OneParameterDlg::TheStoredTypeIsChecked()
{
    const EmptyDesignStores stores;
    QFETCH(int, type);
    QFETCH(QString, checked);
    QFETCH(QStringList, rows);
    StoreRange("a", 1, 10, 9, type);
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(CheckedTypes(dialog), QStringList(checked));
    QCOMPARE(Rows(dialog), rows);
    QCOMPARE(user.Boxes(), type == Gauss ? Boxes({NoGauss}) : Boxes());
}

void tst_OneParameterDlg::StoredValuesAreNotShownAgain()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 2, 1);
    g_mapParaArrays["a"].vecValues = {7, 8};
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "2"}));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({7, 8}));
}

void tst_OneParameterDlg::TheRangeGeneratesTheSamples_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("the end is reached")
        << "0"
        << "1"
        << "0.25" << int(Linear) << QStringList({"0", "0.25", "0.5", "0.75", "1"});
    QTest::newRow("the end is not reached")
        << "0"
        << "1"
        << "0.3" << int(Linear) << QStringList({"0", "0.3", "0.6", "0.9"});
    // Ten steps of 0.1 add up to a little less than 1, three steps to a little more than 0.3.
    QTest::newRow("added up below the end")
        << "0"
        << "1"
        << "0.1" << int(Linear)
        << QStringList({"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1"});
    QTest::newRow("added up beyond the end")
        << "0"
        << "0.3"
        << "0.1" << int(Linear) << QStringList({"0", "0.1", "0.2"});
    QTest::newRow("step as wide as the range") << "5"
                                               << "6"
                                               << "1" << int(Linear) << QStringList({"5", "6"});
    QTest::newRow("negative") << "-2"
                              << "0"
                              << "1" << int(Linear) << QStringList({"-2", "-1", "0"});
    QTest::newRow("six digits") << "0.1234567"
                                << "2"
                                << "1.5" << int(Linear) << QStringList({"0.123457", "1.62346"});
    QTest::newRow("exponents") << "1e6"
                               << "3e6"
                               << "1234567" << int(Linear) << QStringList({"1e+06", "2.23457e+06"});
    QTest::newRow("text is 0") << "min"
                               << "1"
                               << "1" << int(Linear) << QStringList({"0", "1"});
    QTest::newRow("huge range") << "-1.7e308"
                                << "1.7e308"
                                << "1.7e308" << int(Linear)
                                << QStringList({"-1.7e+308", "0", "1.7e+308"});
    QTest::newRow("Log10") << "1"
                           << "100"
                           << "99" << int(Log10) << QStringList({"0", "2"});
    QTest::newRow("Log10 is spaced linearly")
        << "10"
        << "30"
        << "10" << int(Log10) << QStringList({"1", "1.30103", "1.47712"});
    QTest::newRow("Log10 of 0") << "0"
                                << "1"
                                << "1" << int(Log10) << QStringList({"-inf", "0"});
    QTest::newRow("Ln") << "1"
                        << "2"
                        << "1" << int(Ln) << QStringList({"0", "0.693147"});
    QTest::newRow("Ln of 0") << "0"
                             << "1"
                             << "1" << int(Ln) << QStringList({"-inf", "0"});
}

void tst_OneParameterDlg::TheRangeGeneratesTheSamples()
{
    const EmptyDesignStores stores;
    QFETCH(QString, min);
    QFETCH(QString, max);
    QFETCH(QString, step);
    QFETCH(int, type);
    QFETCH(QStringList, rows);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        SetFields(shown, min, max, step);
        Find<QRadioButton>(shown, TypeButtons[type]).setChecked(true);
        FinishEdit(shown, "lineEdit_Deta");
        QCOMPARE(Rows(shown), rows);
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(g_mapParaArrays["a"].nSampleType, type);
}

namespace {

void AddBadRanges()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step");
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("max below min") << 2.0 << 1.0 << 0.5;
    QTest::newRow("max below min, step wide") << 2.0 << 1.0 << 1.0;
    QTest::newRow("empty range") << 1.0 << 1.0 << 0.0;
    QTest::newRow("step too wide") << 0.0 << 1.0 << 2.0;
    QTest::newRow("step 0") << 0.0 << 1.0 << 0.0;
    QTest::newRow("step negative") << 0.0 << 1.0 << -1.0;
    QTest::newRow("step cannot move the start") << 1e17 << 2e17 << 1.0;
    QTest::newRow("step cannot reach the end") << 9007.0 << 1e17 << 1e11 / 7.0;
    QTest::newRow("step cannot move a large negative start") << -1e17 << 1.0 << 1.0;
    QTest::newRow("step tiny") << 0.0 << 1.0 << 1e-300;
    QTest::newRow("too many rows") << 0.0 << 1e6 << 1.0;
    QTest::newRow("min not finite") << -inf << 1.0 << 1.0;
    QTest::newRow("max not finite") << 0.0 << inf << 1.0;
    QTest::newRow("step not finite") << 0.0 << 1.0 << inf;
    QTest::newRow("all infinite") << -inf << inf << inf;
    QTest::newRow("min not a number") << nan << 1.0 << 1.0;
    QTest::newRow("max not a number") << 0.0 << nan << 1.0;
    QTest::newRow("step not a number") << 0.0 << 1.0 << nan;
}

} // namespace

void tst_OneParameterDlg::ABadRangeIsRefused_data()
{
    AddBadRanges();
}

void tst_OneParameterDlg::ABadRangeIsRefused()
{
    const EmptyDesignStores stores;
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    for (const int type : {Linear, Log10, Ln, Gauss}) {
        ModalDriver user;
        OneParameterDlg dialog(nullptr, "a");
        SetFields(dialog, QString::number(min), QString::number(max), QString::number(step));
        Find<QRadioButton>(dialog, TypeButtons[type]).setChecked(true);
        dialog.RefreshTableData();
        QCOMPARE(user.Boxes(), Boxes({BadInput}));
        QCOMPARE(Rows(dialog), QStringList());
    }
}

void tst_OneParameterDlg::AStoredBadRangeIsRefusedAtTheOpening_data()
{
    AddBadRanges();
}

void tst_OneParameterDlg::AStoredBadRangeIsRefusedAtTheOpening()
{
    const EmptyDesignStores stores;
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    StoreRange("a", min, max, step);
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
    QCOMPARE(Fields(dialog),
             QStringList({QString::number(min), QString::number(max), QString::number(step)}));
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlg::AMillionRowsAreTheLimit()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, "1", "1000000", "1");
    dialog.RefreshTableData();
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Table(dialog).rowCount(), 1000000);
    QCOMPARE(Table(dialog).item(999998, 0)->text(), QStringLiteral("999999"));
    SetFields(dialog, "0", "1000000", "1");
    dialog.RefreshTableData();
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
    QCOMPARE(Table(dialog).rowCount(), 0);
}

void tst_OneParameterDlg::EachFieldRegeneratesWhenItIsLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("lineEdit_Min") << "-1" << QStringList({"-1", "0", "1"});
    QTest::newRow("lineEdit_Max") << "2" << QStringList({"0", "1", "2"});
    QTest::newRow("lineEdit_Deta") << "0.5" << QStringList({"0", "0.5", "1"});
}

void tst_OneParameterDlg::EachFieldRegeneratesWhenItIsLeft()
{
    const EmptyDesignStores stores;
    QFETCH(QString, text);
    QFETCH(QStringList, rows);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Type(shown, QTest::currentDataTag(), text);
        QCOMPARE(Rows(shown), rows);
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::LinearAndLogRegenerateAtOnce()
{
    const EmptyDesignStores stores;
    StoreRange("a", 1, 100, 99);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        Click(shown, "radioButton_Log");
        QCOMPARE(Rows(shown), QStringList({"0", "2"}));
        Click(shown, "radioButton_Linear");
        QCOMPARE(Rows(shown), QStringList({"1", "100"}));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_OneParameterDlg::LnAndGaussWaitForTheNextEdit()
{
    const EmptyDesignStores stores;
    StoreRange("a", 1, 2, 1);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Click(shown, "radioButton_Ln");
        QCOMPARE(CheckedTypes(shown), QStringList({"Ln"}));
        QCOMPARE(Rows(shown), QStringList({"1", "2"}));
        FinishEdit(shown, "lineEdit_Min");
        QCOMPARE(Rows(shown), QStringList({"0", "0.693147"}));
        Click(shown, "radioButton_Gauss");
        QCOMPARE(Rows(shown), QStringList({"0", "0.693147"}));
        QCOMPARE(user.Boxes(), Boxes());
        // The type of the last generation counts, and not the button that is checked by now.
        Click(shown, "pushButton_OK");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Ln));
}

void tst_OneParameterDlg::GaussIsRememberedWithoutRows()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Click(shown, "radioButton_Gauss");
        FinishEdit(shown, "lineEdit_Max");
        QCOMPARE(user.Boxes(), Boxes({NoGauss}));
        QCOMPARE(Rows(shown), QStringList());
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Gauss));
    QVERIFY(g_mapParaArrays["a"].vecValues.empty());
    QCOMPARE(g_mapParaArrays["a"].bChecked, 1);
}

void tst_OneParameterDlg::WithoutATypeNothingIsGenerated()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    auto& linear = Find<QRadioButton>(dialog, "radioButton_Linear");
    linear.setAutoExclusive(false);
    linear.setChecked(false);
    dialog.RefreshTableData();
    QCOMPARE(Rows(dialog), QStringList());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::ARefusedRangeLeavesTheTypeAsItWas()
{
    const EmptyDesignStores stores;
    StoreRange("a", 1, 2, 1, Ln);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, "3", "2", "1");
    Find<QRadioButton>(dialog, "radioButton_Log").setChecked(true);
    dialog.RefreshTableData();
    dialog.m_Slot_OK();
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Ln));
}

void tst_OneParameterDlg::ABadEditShowsOneBox_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_OneParameterDlg::ABadEditShowsOneBox()
{
    const EmptyDesignStores stores;
    QFETCH(int, key);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Max");
        edit.setFocus();
        QVERIFY(edit.hasFocus());
        edit.selectAll();
        QTest::keyClicks(&edit, "-5");
        user.WhileBoxOpen([&](QMessageBox& box) {
            QVERIFY(QTest::qWaitForWindowActive(&box));
            QVERIFY(!edit.hasFocus());
        });
        QTest::keyClick(&edit, Qt::Key(key));
        QCOMPARE(user.Boxes(), Boxes({BadInput}));
        QCOMPARE(Fields(shown), QStringList({"0", "-5", "1"}));
        QCOMPARE(Rows(shown), QStringList());
        edit.setText("2");
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
}

void tst_OneParameterDlg::TheNextBadEditIsReportedAgain()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_Max", "-5");
        QCOMPARE(user.Boxes(), Boxes({BadInput}));
        Type(shown, "lineEdit_Deta", "7");
        QCOMPARE(user.Boxes(), Boxes({BadInput, BadInput}));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_OneParameterDlg::LeavingWithABadEditShowsNoFurtherBox_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Escape") << true;
    QTest::newRow("window closed") << false;
}

void tst_OneParameterDlg::LeavingWithABadEditShowsNoFurtherBox()
{
    const EmptyDesignStores stores;
    QFETCH(bool, escape);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Max");
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, "-5");
        if (escape)
            QTest::keyClick(&edit, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QTest::qWait(50);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::EnterInAFieldFinishesTheEditOnly()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Deta");
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, "0.5");
        QCOMPARE(Rows(shown), QStringList({"0", "1"}));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(Rows(shown), QStringList({"0", "0.5", "1"}));
        QTest::keyClick(&edit, Qt::Key_Enter);
        QCOMPARE(Rows(shown), QStringList({"0", "0.5", "1"}));
        QVERIFY(shown.isVisible());
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_OneParameterDlg::EnterInACellFinishesTheEditOnly()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QTableWidget& table = Table(shown);
        table.setFocus();
        table.setCurrentCell(1, 0);
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* const editor = QApplication::focusWidget();
        QVERIFY(editor != &table);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, "7.50");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(Rows(shown), QStringList({"0", "7.50"}));
        QTest::keyClick(&table, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(Rows(shown), QStringList({"0", "7.50"}));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_OneParameterDlg::AddAppendsAnEmptyRow()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Add");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "(no item)"}));
}

void tst_OneParameterDlg::DeleteRemovesTheCurrentRow()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 3, 1);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(1, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2", "3"}));
    Table(dialog).setCurrentCell(2, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2"}));
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::DeleteWithoutACurrentRowIsRefused()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Delete");
    QCOMPARE(user.Boxes(), Boxes({NoRow}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
}

void tst_OneParameterDlg::OkStoresTheRecord()
{
    const EmptyDesignStores stores;
    g_mapParaArrays["b"].bChecked = 0;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Min", "1");
        Type(shown, "lineEdit_Max", "2");
        Type(shown, "lineEdit_Deta", "0.25");
        Click(shown, "radioButton_Log");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_OK");
    });
    // The first edit leaves min = max, which is refused on the way.
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.bChecked, 1);
    QCOMPARE(record.strName, QStringLiteral("a"));
    QCOMPARE(record.vecValues, Values({1, 1.25, 1.5, 1.75, 2}));
    QCOMPARE(record.dMin, 1.0);
    QCOMPARE(record.dMax, 2.0);
    QCOMPARE(record.dDelta, 0.25);
    QCOMPARE(record.nSampleType, int(Linear));
    QCOMPARE(g_mapParaArrays.at("b").bChecked, 0);
    QCOMPARE(g_mapParaArrays.size(), std::size_t(2));
}

void tst_OneParameterDlg::OkChecksNothing_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<Values>("stored");
    QTest::newRow("max below min") << QStringList({"2", "1", "0.5"}) << Values({2, 1, 0.5});
    QTest::newRow("step 0") << QStringList({"0", "1", "0"}) << Values({0, 1, 0});
    QTest::newRow("text") << QStringList({"a", "", "1,5"}) << Values({0, 0, 0});
    QTest::newRow("many digits") << QStringList({"0.123456789", "1e9", "1"})
                                 << Values({0.123456789, 1e9, 1});
}

void tst_OneParameterDlg::OkChecksNothing()
{
    const EmptyDesignStores stores;
    QFETCH(QStringList, fields);
    QFETCH(Values, stored);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, fields[0], fields[1], fields[2]);
    Click(dialog, "pushButton_OK");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(user.Boxes(), Boxes());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), stored);
    QCOMPARE(record.vecValues, Values({0, 1}));
}

void tst_OneParameterDlg::OkStoresEditedRows()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).item(0, 0)->setText("0.123456789");
    Table(dialog).item(1, 0)->setText("none");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0.123456789, 0}));
}

void tst_OneParameterDlg::ARowWithoutItemCountsAsZero()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(3, 0, new QTableWidgetItem("5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1, 0, 5}));
}

void tst_OneParameterDlg::OkStoresTheRowsAsShown()
{
    // What is shown with six digits is stored with six digits.
    const EmptyDesignStores stores;
    StoreRange("a", 1, 3, 2, Ln);
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1.09861}));
}

void tst_OneParameterDlg::OkOfGaussStoresTheRowsThatAreThere()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 1, 1, Gauss);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(0, 0, new QTableWidgetItem("4.5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(user.Boxes(), Boxes({NoGauss}));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Gauss));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({4.5}));
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone()
{
    const EmptyDesignStores stores;
    QFETCH(bool, escape);
    g_mapParaArrays["a"] = {0, "kept", {4, 5}, 1, 2, 0.5, Log10};
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_Max", "3");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_Add");
        if (escape)
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            Click(shown, "pushButton_Cancel");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QStringLiteral("kept"));
    QCOMPARE(record.vecValues, Values({4, 5}));
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), Values({1, 2, 0.5}));
    QCOMPARE(record.nSampleType, int(Log10));
}

void tst_OneParameterDlg::TheHostMayChangeTheRegistryBehindABox()
{
    const EmptyDesignStores stores;
    StoreRange("a", 2, 1, 0.5);
    ModalDriver user;
    user.WhileBoxOpen([](QMessageBox&) { g_mapParaArrays.clear(); });
    OneParameterDlg dialog(nullptr, "a");
    QVERIFY(user.IsDone());
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"2", "1", "0.5"}));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays.at("a").dMin, 2.0);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 1);
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogBehindABox_data()
{
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("RefreshTableData, bad range") << "-1" << BadInput.text;
    QTest::newRow("RefreshTableData, Gauss") << "1" << NoGauss.text;
    QTest::newRow("m_Slot_Delete") << "1" << NoRow.text;
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogBehindABox()
{
    const EmptyDesignStores stores;
    QFETCH(QString, max);
    QFETCH(QString, text);
    auto* const dialog = new OneParameterDlg(nullptr, "a");
    SetFields(*dialog, "0", max, "1");
    Find<QRadioButton>(*dialog, "radioButton_Gauss").setChecked(true);
    ModalDriver user;
    user.WhileBoxOpen([dialog](QMessageBox&) { delete dialog; });
    const QByteArray slot = QByteArray(QTest::currentDataTag()).split(',').first();
    QVERIFY(QMetaObject::invokeMethod(dialog, slot.constData()));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QCOMPARE(user.Boxes().first().text, text);
}

TARN_TEST_MAIN(tst_OneParameterDlg)
#include "tst_OneParameterDlg.moc"
