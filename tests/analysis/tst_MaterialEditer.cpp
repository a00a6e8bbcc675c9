#include "DialogFacts.h"
#include "EmptyAnalysisStores.h"
#include "Heap.h"
#include "MaterialEditer.h"
#include "MaterialTable.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <memory>

namespace {

ShownBox Rename()
{
    return ShownBox::Notice("Warning", "Material rename!");
}

QTableWidget& Table(const QWidget& editor)
{
    return Find<QTableWidget>(editor, "tableWidget");
}

/// What the record of the editor holds, in the order of its fields.
QStringList Record(const MaterialEditer& editor)
{
    const std::unique_ptr<KVMaterialInfo> material(editor.CreateMaterialInfo());
    return {QString::number(material->m_nType),
            material->m_strName,
            material->m_strElasticModulus,
            material->m_strPoisson,
            material->m_strDensity,
            material->m_strLibElasticModulus,
            material->m_strLibPoisson,
            material->m_strLibDensity};
}

void Hold(const QStringList& names, int type = MATERIAL_USER)
{
    for (const QString& name : names) {
        auto* const material = new KVMaterialInfo;
        material->m_nType = type;
        material->m_strName = name;
        KVMaterialData::GetInstance()->AddMaterialInfo(material);
    }
}

/// Types into a cell and leaves it as told: with Enter, or by pressing the button of that name.
void TypeCell(QWidget& editor, int row, int column, const QString& text, const char* leave)
{
    QTableWidget& table = Table(editor);
    QApplication::setActiveWindow(&editor);
    DoubleClickCell(table, row, column);
    auto* const field = table.viewport()->findChild<QLineEdit*>();
    QVERIFY(field != nullptr);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
    if (qstrcmp(leave, "Enter") == 0) {
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } else {
        Click(editor, leave);
    }
}

} // namespace

class tst_MaterialEditer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheWindowIsAsGiven();
    void TheFrameIsSunken();
    void TheTableIsSetUpAsGiven();
    void TheTextsBelongToTheForm();
    void TheNoticeIsNotTranslated();
    void TheClassHasItsTwoSlots();
    void TheHostsWindowIsTheParent();
    void ANewMaterialStartsWithTheDefaults();
    void AMaterialIsShown();
    void MoreThanThreeValuesArePassedOver();
    void AShortListEndsTheProgram_data();
    void AShortListEndsTheProgram();
    void TheRecordHoldsWhatTheFieldsHold();
    void EveryRecordIsANewOne();
    void AnyTextIsAccepted_data();
    void AnyTextIsAccepted();
    void ANameThatTheStoreHoldsIsRefused_data();
    void ANameThatTheStoreHoldsIsRefused();
    void ARefusalRepeatsUntilTheNameChanges();
    void LeavingRejects_data();
    void LeavingRejects();
    void TheStoreIsNotWritten();
    void ACellBeingTypedCounts();
    void AClearedCellIsAnEmptyValue();
    void PropertyNamesCanBeTypedButAreNotRead();
    void TabFollowsReadingOrder();
    void TabLeavesTheTable();
    void EnterPressesNothing_data();
    void EnterPressesNothing();
    void OpeningAndClosingKeepsTheHeap();
};

void tst_MaterialEditer::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "Editconductor";
    QTest::newRow("label") << "QLabel" << dialog << QRect(30, 10, 54, 31) << "Name:" << true
                           << false;
    QTest::newRow("lineEditName") << "QLineEdit" << dialog << QRect(80, 20, 113, 20) << "Material"
                                  << true << false;
    QTest::newRow("groupBox") << "QGroupBox" << dialog << QRect(10, 50, 531, 331)
                              << "Properties of the Material" << true << false;
    QTest::newRow("frame_2") << "QFrame"
                             << "groupBox" << QRect(0, 20, 531, 301) << "" << true << false;
    QTest::newRow("tableWidget") << "QTableWidget"
                                 << "frame_2" << QRect(10, 10, 511, 291) << "" << true << false;
    QTest::newRow("pushButton") << "QPushButton" << dialog << QRect(150, 390, 75, 23) << "OK"
                                << true << false;
    QTest::newRow("pushButton_2") << "QPushButton" << dialog << QRect(310, 390, 75, 23) << "Cancel"
                                  << true << false;
}

void tst_MaterialEditer::TheFormIsAsGiven()
{
    const MaterialEditer editor(nullptr);
    CompareFormRow(editor);
}

void tst_MaterialEditer::TheFormHoldsNothingElse()
{
    const MaterialEditer editor(nullptr);
    QCOMPARE(FormWidgets(editor), QStringList({"frame_2", "groupBox", "label", "lineEditName",
                                               "pushButton", "pushButton_2", "tableWidget"}));
    QCOMPARE(Find<QLabel>(editor, "label").buddy(), &Find<QLineEdit>(editor, "lineEditName"));
}

void tst_MaterialEditer::TheWindowIsAsGiven()
{
    const MaterialEditer editor(nullptr);
    CompareWindow(editor, "Editconductor", "Edit Material", QSize(553, 424));
    QVERIFY(editor.windowIcon().isNull());
}

void tst_MaterialEditer::TheFrameIsSunken()
{
    const MaterialEditer editor(nullptr);
    const auto& frame = Find<QFrame>(editor, "frame_2");
    QCOMPARE(frame.frameShape(), QFrame::WinPanel);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.lineWidth(), 2);
}

void tst_MaterialEditer::TheTableIsSetUpAsGiven()
{
    const MaterialEditer editor(nullptr);
    const QTableWidget& table = Table(editor);
    QCOMPARE(table.columnCount(), 2);
    QCOMPARE(table.rowCount(), 3);
    QCOMPARE(table.horizontalHeaderItem(0)->text(), "Name");
    QCOMPARE(table.horizontalHeaderItem(1)->text(), "Value");
    QCOMPARE(table.horizontalHeader()->defaultAlignment(), Qt::AlignLeft);
    QCOMPARE(table.horizontalHeader()->stretchLastSection(), true);
    QCOMPARE(table.horizontalHeader()->defaultSectionSize(), 270);
    QCOMPARE(table.columnWidth(0), 270);
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table.editTriggers(), QAbstractItemView::DoubleClicked);
    QCOMPARE(table.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QVERIFY(table.verticalHeader()->isHidden());
}

void tst_MaterialEditer::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const MaterialEditer editor(nullptr);
    QCOMPARE(recorder.TextsOf("Editconductor"),
             QStringList({"Cancel", "Edit Material", "Name:", "OK", "Properties of the Material"}));
    // Neither the headers nor the rows are translated.
    QCOMPARE(recorder.TextsOf("MaterialEditer"), QStringList());
}

void tst_MaterialEditer::TheNoticeIsNotTranslated()
{
    const EmptyAnalysisStores stores;
    Hold({"Material"});
    const TextRecorder recorder;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton");
        Click(shown, "pushButton_2");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Rename()}));
    QCOMPARE(recorder.TextsOf("MaterialEditer"), QStringList());
}

void tst_MaterialEditer::TheClassHasItsTwoSlots()
{
    const QMetaObject& meta = MaterialEditer::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList({"private slot onOkButtonClicked()",
                                            "private slot onCancelButtonClicked()"}));
}

void tst_MaterialEditer::TheHostsWindowIsTheParent()
{
    QWidget window;
    const MaterialEditer editor(&window);
    QCOMPARE(editor.parentWidget(), &window);
}

void tst_MaterialEditer::ANewMaterialStartsWithTheDefaults()
{
    const MaterialEditer editor(nullptr);
    QCOMPARE(RowTexts(Table(editor), 0), QStringList({"Elastic Modulus", "58000000"}));
    QCOMPARE(RowTexts(Table(editor), 1), QStringList({"Poisson", "1"}));
    QCOMPARE(RowTexts(Table(editor), 2), QStringList({"Density", "0"}));
    QCOMPARE(Record(editor), QStringList({"1", "Material", "58000000", "1", "0", "", "", ""}));
}

void tst_MaterialEditer::AMaterialIsShown()
{
    MaterialEditer editor(nullptr);
    editor.SetMaterialData("Steel", {"2.1e11", "0.3", "7850"});
    QCOMPARE(Find<QLineEdit>(editor, "lineEditName").text(), "Steel");
    QCOMPARE(RowTexts(Table(editor), 0), QStringList({"Elastic Modulus", "2.1e11"}));
    QCOMPARE(RowTexts(Table(editor), 1), QStringList({"Poisson", "0.3"}));
    QCOMPARE(RowTexts(Table(editor), 2), QStringList({"Density", "7850"}));
}

void tst_MaterialEditer::MoreThanThreeValuesArePassedOver()
{
    MaterialEditer editor(nullptr);
    editor.SetMaterialData("Steel", {"1", "2", "3", "4"});
    QCOMPARE(Table(editor).rowCount(), 3);
    QCOMPARE(Record(editor), QStringList({"1", "Steel", "1", "2", "3", "", "", ""}));
}

void tst_MaterialEditer::AShortListEndsTheProgram_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("no value") << 0;
    QTest::newRow("one value") << 1;
    QTest::newRow("two values") << 2;
}

void tst_MaterialEditer::AShortListEndsTheProgram()
{
    QFETCH(int, count);
    if (qEnvironmentVariableIsSet("TARN_SHORT_LIST")) {
        const QStringList values = {"1", "2"};
        MaterialEditer(nullptr).SetMaterialData("Steel", values.mid(0, count));
        return;
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TARN_SHORT_LIST", "1");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("%1:%2").arg(QTest::currentTestFunction(), QTest::currentDataTag())});
    QVERIFY(child.waitForFinished(60000));
    const QByteArray output = child.readAll();
    QVERIFY2(child.exitStatus() == QProcess::CrashExit || child.exitCode() != 0, output);
    QVERIFY2(output.contains("index out of range"), output);
}

void tst_MaterialEditer::TheRecordHoldsWhatTheFieldsHold()
{
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEditName", "Bronze");
        TypeCell(shown, 0, 1, "1.1e11", "Enter");
        TypeCell(shown, 1, 1, "0.34", "Enter");
        TypeCell(shown, 2, 1, "8800", "Enter");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(Record(editor), QStringList({"1", "Bronze", "1.1e11", "0.34", "8800", "", "", ""}));
}

void tst_MaterialEditer::EveryRecordIsANewOne()
{
    const MaterialEditer editor(nullptr);
    const std::unique_ptr<KVMaterialInfo> one(editor.CreateMaterialInfo());
    const std::unique_ptr<KVMaterialInfo> other(editor.CreateMaterialInfo());
    QVERIFY(one != other);
    QCOMPARE(one->m_nType, int(MATERIAL_USER));
}

void tst_MaterialEditer::AnyTextIsAccepted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("numbers") << "Steel"
                             << "-1e400";
    QTest::newRow("words") << "Steel"
                           << "about 7";
    QTest::newRow("empty value") << "Steel"
                                 << "";
    QTest::newRow("empty name") << ""
                                << "1";
    QTest::newRow("blank name") << " "
                                << "1";
    QTest::newRow("Chinese") << "结构钢"
                             << "约七";
    QTest::newRow("markup") << "<b>x</b>"
                            << "&amp;";
}

void tst_MaterialEditer::AnyTextIsAccepted()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    const EmptyAnalysisStores stores;
    Hold({"other"});
    ModalDriver user;
    MaterialEditer editor(nullptr);
    editor.SetMaterialData(name, {value, value, value});
    user.Then([](QDialog& shown) { Click(shown, "pushButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Record(editor), QStringList({"1", name, value, value, value, "", "", ""}));
}

void tst_MaterialEditer::ANameThatTheStoreHoldsIsRefused_data()
{
    QTest::addColumn<QStringList>("held");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("refused");
    const QStringList three = {"Steel", "Bronze", "Glass"};
    QTest::newRow("an empty store") << QStringList() << 1 << "Steel" << false;
    QTest::newRow("the first") << three << 1 << "Steel" << true;
    QTest::newRow("one between") << three << 1 << "Bronze" << true;
    QTest::newRow("the last") << three << 1 << "Glass" << true;
    QTest::newRow("a system material") << three << 0 << "Bronze" << true;
    QTest::newRow("one that is never shown") << three << 7 << "Bronze" << true;
    QTest::newRow("another case") << three << 1 << "steel" << false;
    QTest::newRow("with a blank") << three << 1 << "Steel " << false;
    QTest::newRow("the beginning of one") << three << 1 << "Stee" << false;
    QTest::newRow("empty and held") << QStringList({""}) << 1 << "" << true;
    QTest::newRow("empty and not held") << three << 1 << "" << false;
}

void tst_MaterialEditer::ANameThatTheStoreHoldsIsRefused()
{
    QFETCH(QStringList, held);
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(bool, refused);
    const EmptyAnalysisStores stores;
    Hold(held, type);
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEditName", name);
        auto& field = Find<QLineEdit>(shown, "lineEditName");
        QStringList texts;
        connect(&field, &QLineEdit::textChanged, [&](const QString& text) { texts << text; });
        Click(shown, "pushButton");
        // Cleared and set again.
        QCOMPARE(texts, name.isEmpty() ? QStringList() : QStringList({"", name}));
        QCOMPARE(field.text(), name);
        if (refused) {
            QVERIFY(shown.isVisible());
            Click(shown, "pushButton_2");
        }
    });
    QCOMPARE(editor.exec(), int(refused ? QDialog::Rejected : QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>(refused ? 1 : 0, Rename()));
}

void tst_MaterialEditer::ARefusalRepeatsUntilTheNameChanges()
{
    const EmptyAnalysisStores stores;
    Hold({"Material"});
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton");
        TypeCell(shown, 2, 1, "7", "pushButton");
        QVERIFY(shown.isVisible());
        Type(shown, "lineEditName", "Material2");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Rename(), Rename()}));
    QCOMPARE(Record(editor), QStringList({"1", "Material2", "58000000", "1", "7", "", "", ""}));
}

void tst_MaterialEditer::LeavingRejects_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_MaterialEditer::LeavingRejects()
{
    QFETCH(QString, way);
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([&](QDialog& shown) {
        if (way == "Cancel")
            Click(shown, "pushButton_2");
        else if (way == "Escape")
            QTest::keyClick(&Find<QLineEdit>(shown, "lineEditName"), Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_MaterialEditer::TheStoreIsNotWritten()
{
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "pushButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    const std::unique_ptr<KVMaterialInfo> material(editor.CreateMaterialInfo());
    QCOMPARE(KVMaterialData::GetInstance()->MapDataRow(), 0);
}

void tst_MaterialEditer::ACellBeingTypedCounts()
{
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) { TypeCell(shown, 1, 1, "0.25", "pushButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(Record(editor).at(3), "0.25");
}

void tst_MaterialEditer::AClearedCellIsAnEmptyValue()
{
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        TypeCell(shown, 0, 1, "", "Enter");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(Record(editor), QStringList({"1", "Material", "", "1", "0", "", "", ""}));
    // A cell that is missing altogether counts as empty, too.
    delete Table(editor).takeItem(1, 1);
    QCOMPARE(Record(editor), QStringList({"1", "Material", "", "", "0", "", "", ""}));
}

void tst_MaterialEditer::PropertyNamesCanBeTypedButAreNotRead()
{
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        TypeCell(shown, 0, 0, "Density", "Enter");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(RowTexts(Table(editor), 0), QStringList({"Density", "58000000"}));
    QCOMPARE(Record(editor), QStringList({"1", "Material", "58000000", "1", "0", "", "", ""}));
}

void tst_MaterialEditer::TabFollowsReadingOrder()
{
    MaterialEditer editor(nullptr);
    QCOMPARE(TabOrder(editor),
             QStringList({"lineEditName", "tableWidget", "pushButton", "pushButton_2"}));
}

void tst_MaterialEditer::TabLeavesTheTable()
{
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([](QDialog& shown) {
        Table(shown).setFocus();
        QTest::keyClick(&Table(shown), Qt::Key_Tab);
        QCOMPARE(shown.focusWidget()->objectName(), "pushButton");
        shown.reject();
    });
    editor.exec();
    QVERIFY(user.IsDone());
}

void tst_MaterialEditer::EnterPressesNothing_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"lineEditName", "tableWidget", "pushButton", "pushButton_2"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_MaterialEditer::EnterPressesNothing()
{
    QFETCH(QByteArray, focus);
    const EmptyAnalysisStores stores;
    ModalDriver user;
    MaterialEditer editor(nullptr);
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
        QTest::keyClick(&widget, Qt::Key_Enter);
        QVERIFY(shown.isVisible());
        shown.done(7);
    });
    QCOMPARE(editor.exec(), 7);
    QVERIFY(user.IsDone());
}

void tst_MaterialEditer::OpeningAndClosingKeepsTheHeap()
{
    const EmptyAnalysisStores stores;
    const auto growth = HeapGrowth([] {
        MaterialEditer editor(nullptr);
        editor.SetMaterialData("Steel", {"1", "2", "3"});
        QTimer::singleShot(0, &editor, &QDialog::reject);
        editor.exec();
    });
    QVERIFY2(growth < 50000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_MaterialEditer)
#include "tst_MaterialEditer.moc"
