#include "EmptyAnalysisStores.h"
#include "FormTest.h"
#include "MaterialEditer.h"
#include "MaterialFiles.h"
#include "Tables.h"
#include "TextRecorder.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QProcess>

#include <memory>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "Editconductor";
    form.title = "Edit Material";
    form.size = {553, 424};
    form.lines = {
        "QLabel label in Editconductor at 30,10 54x31: Name:, for lineEditName",
        "QLineEdit lineEditName in Editconductor at 80,20 113x20: Material",
        "QGroupBox groupBox in Editconductor at 10,50 531x331: Properties of the Material",
        "QFrame frame_2 in groupBox at 0,20 531x301: ",
        "QTableWidget tableWidget in frame_2 at 10,10 511x291: ",
        "QPushButton pushButton in Editconductor at 150,390 75x23: OK",
        "QPushButton pushButton_2 in Editconductor at 310,390 75x23: Cancel",
    };
    form.tabOrder = {"lineEditName", "tableWidget", "pushButton", "pushButton_2"};
    form.methods = {"private slot onOkButtonClicked()", "private slot onCancelButtonClicked()"};
    form.untranslated = {"Material", "Name", "Value"};
    return form;
}

ShownBox Rename()
{
    return ShownBox::Notice("Warning", "Material rename!");
}

QTableWidget& Table(const QWidget& editor)
{
    return Find<QTableWidget>(editor, "tableWidget");
}

/// The contents of the editor's record, in the order of its fields.
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

} // namespace

class tst_MaterialEditer : public With<FormTest<MaterialEditer>, EmptyAnalysisStores>
{
    Q_OBJECT

public:
    tst_MaterialEditer()
        : With(Form())
    {
    }

private Q_SLOTS:
    void TheFrameIsSunken();
    void TheTableIsSetUpAsDesigned();
    void TheNoticeIsNotTranslated();
    void ANewMaterialStartsWithTheDefaults();
    void AMaterialIsShown();
    void ValuesBeyondTheThirdAreIgnored();
    void AShortListEndsTheProgram_data();
    void AShortListEndsTheProgram();
    void TheRecordHoldsTheFields();
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
    void TabLeavesTheTable();
};

void tst_MaterialEditer::TheFrameIsSunken()
{
    const MaterialEditer editor(nullptr);
    const auto& frame = Find<QFrame>(editor, "frame_2");
    QCOMPARE(frame.frameShape(), QFrame::WinPanel);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.lineWidth(), 2);
}

void tst_MaterialEditer::TheTableIsSetUpAsDesigned()
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

void tst_MaterialEditer::TheNoticeIsNotTranslated()
{
    HoldMaterial("Material");
    const TextRecorder recorder;
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton");
        Click(shown, "pushButton_2");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Rename()}));
    QCOMPARE(recorder.TextsOf("MaterialEditer"), QStringList());
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

void tst_MaterialEditer::ValuesBeyondTheThirdAreIgnored()
{
    MaterialEditer editor(nullptr);
    editor.SetMaterialData("Steel", {"1", "2", "3", "4"});
    QCOMPARE(Table(editor).rowCount(), 3);
    QCOMPARE(Record(editor), QStringList({"1", "Steel", "1", "2", "3", "", "", ""}));
}

void tst_MaterialEditer::AShortListEndsTheProgram_data()
{
    QTest::addColumn<int>("count");
    NewRow("no value", 0);
    NewRow("one value", 1);
    NewRow("two values", 2);
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

void tst_MaterialEditer::TheRecordHoldsTheFields()
{
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        Type(shown, "lineEditName", "Bronze");
        TypeIntoCell(Table(shown), 0, 1, "1.1e11");
        TypeIntoCell(Table(shown), 1, 1, "0.34");
        TypeIntoCell(Table(shown), 2, 1, "8800");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
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
    NewRow("numbers", "Steel", "-1e400");
    NewRow("words", "Steel", "about 7");
    NewRow("empty value", "Steel", "");
    NewRow("empty name", "", "1");
    NewRow("blank name", " ", "1");
    NewRow("Chinese", "结构钢", "约七");
    NewRow("markup", "<b>x</b>", "&amp;");
}

void tst_MaterialEditer::AnyTextIsAccepted()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    HoldMaterial("other");
    MaterialEditer editor(nullptr);
    editor.SetMaterialData(name, {value, value, value});
    QCOMPARE(RunAndPress(editor, "pushButton"), int(QDialog::Accepted));
    QCOMPARE(Record(editor), QStringList({"1", name, value, value, value, "", "", ""}));
}

void tst_MaterialEditer::ANameThatTheStoreHoldsIsRefused_data()
{
    QTest::addColumn<QStringList>("held");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("refused");
    const QStringList three = {"Steel", "Bronze", "Glass"};
    NewRow("an empty store", QStringList(), 1, "Steel", false);
    NewRow("the first", three, 1, "Steel", true);
    NewRow("one between", three, 1, "Bronze", true);
    NewRow("the last", three, 1, "Glass", true);
    NewRow("a system material", three, 0, "Bronze", true);
    NewRow("one that is never shown", three, 7, "Bronze", true);
    NewRow("another case", three, 1, "steel", false);
    NewRow("with a blank", three, 1, "Steel ", false);
    NewRow("the beginning of one", three, 1, "Stee", false);
    NewRow("empty and held", QStringList({""}), 1, "", true);
    NewRow("empty and not held", three, 1, "", false);
}

void tst_MaterialEditer::ANameThatTheStoreHoldsIsRefused()
{
    QFETCH(QStringList, held);
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(bool, refused);
    for (const QString& other : held)
        HoldMaterial(other, type);
    MaterialEditer editor(nullptr);
    Then([&](QDialog& shown) {
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
    QCOMPARE(Boxes(), ShownBoxes(refused ? 1 : 0, Rename()));
}

void tst_MaterialEditer::ARefusalRepeatsUntilTheNameChanges()
{
    HoldMaterial("Material");
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton");
        TypeInCell(Table(shown), 2, 1, "7");
        Click(shown, "pushButton");
        QVERIFY(shown.isVisible());
        Type(shown, "lineEditName", "Material2");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes({Rename(), Rename()}));
    QCOMPARE(Record(editor), QStringList({"1", "Material2", "58000000", "1", "7", "", "", ""}));
}

void tst_MaterialEditer::LeavingRejects_data()
{
    AddWaysToLeave();
}

void tst_MaterialEditer::LeavingRejects()
{
    QFETCH(QString, way);
    MaterialEditer editor(nullptr);
    Then([&](QDialog& shown) { Leave(shown, way, "pushButton_2"); });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
}

void tst_MaterialEditer::TheStoreIsNotWritten()
{
    MaterialEditer editor(nullptr);
    QCOMPARE(RunAndPress(editor, "pushButton"), int(QDialog::Accepted));
    const std::unique_ptr<KVMaterialInfo> material(editor.CreateMaterialInfo());
    QCOMPARE(KVMaterialData::GetInstance()->MapDataRow(), 0);
}

void tst_MaterialEditer::ACellBeingTypedCounts()
{
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        TypeInCell(Table(shown), 1, 1, "0.25");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(Record(editor).at(3), "0.25");
}

void tst_MaterialEditer::AClearedCellIsAnEmptyValue()
{
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        TypeIntoCell(Table(shown), 0, 1, "");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(Record(editor), QStringList({"1", "Material", "", "1", "0", "", "", ""}));
    // A missing cell also counts as empty.
    delete Table(editor).takeItem(1, 1);
    QCOMPARE(Record(editor), QStringList({"1", "Material", "", "", "0", "", "", ""}));
}

void tst_MaterialEditer::PropertyNamesCanBeTypedButAreNotRead()
{
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        TypeIntoCell(Table(shown), 0, 0, "Density");
        Click(shown, "pushButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(RowTexts(Table(editor), 0), QStringList({"Density", "58000000"}));
    QCOMPARE(Record(editor), QStringList({"1", "Material", "58000000", "1", "0", "", "", ""}));
}

void tst_MaterialEditer::TabLeavesTheTable()
{
    MaterialEditer editor(nullptr);
    Then([](QDialog& shown) {
        Table(shown).setFocus();
        QTest::keyClick(&Table(shown), Qt::Key_Tab);
        QCOMPARE(shown.focusWidget()->objectName(), "pushButton");
        shown.reject();
    });
    editor.exec();
}

TARN_TEST_MAIN(tst_MaterialEditer)
#include "tst_MaterialEditer.moc"
