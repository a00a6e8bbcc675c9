#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "DialogFacts.h"
#include "EmptyAnalysisStores.h"
#include "Heap.h"
#include "MaterialTable.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimer>

#include <limits>
#include <memory>

namespace {

enum Page
{
    BarPage,
    BeamPage,
    ShellPage,
    MembranePage,
    SolidPage
};

ShownBox EmptyName()
{
    return ShownBox::Notice("Error", "Property name is empty");
}

CQLTElemPropDef Record(int typeCode)
{
    return {"P1", 77, "Steel", 0.1234567, "Word", typeCode};
}

/// The fields in their order.
QStringList Fields(const CQLTElemPropDef& record)
{
    return {record.m_strName,         QString::number(record.m_nReserved),
            record.m_strMaterialName, QString::number(record.m_dThickness, 'g', 17),
            record.m_strTypeName,     QString::number(record.m_nTypeCode)};
}

QString Text(const QWidget& editor, const char* field)
{
    return Find<QLineEdit>(editor, field).text();
}

int ShownPage(const QWidget& editor)
{
    return Find<QStackedWidget>(editor, "stackedWidget").currentIndex();
}

/// A host may enable a type that this release keeps for itself.
void Choose(const QWidget& editor, const char* button)
{
    Find<QRadioButton>(editor, button).setEnabled(true);
    Click(editor, button);
}

/// Notes the debug lines while it lives.
class DebugLines
{
public:
    DebugLines() { s_before = qInstallMessageHandler(Note); }
    ~DebugLines() { qInstallMessageHandler(s_before); }
    Q_DISABLE_COPY(DebugLines)

    static QStringList s_lines;

private:
    static void Note(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type == QtDebugMsg)
            s_lines << text;
        else
            s_before(type, context, text);
    }

    static QtMessageHandler s_before;
};

QStringList DebugLines::s_lines;
QtMessageHandler DebugLines::s_before = nullptr;

/// A translation as it has to be: every text in other words, except the element words.
class OtherWords : public QTranslator
{
public:
    OtherWords() { QCoreApplication::installTranslator(this); }
    ~OtherWords() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        const QString word = QString::fromUtf8(text);
        const QStringList types = {"Bar", "Beam", "Shell", "Membrane", "Solid"};
        return types.contains(word) ? word : "~" + word;
    }
};

} // namespace

class tst_CQLTElePropertyEditor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheTypesAreOneGroup();
    void TheLabelsLeadToTheirFields();
    void TheWindowIsAsGiven();
    void TheWindowKeepsItsSizeWhenShown();
    void TheTextsBelongToTheForm();
    void TheMessageBelongsToTheClass();
    void TheClassHasItsSlots();
    void TheHostsWindowIsTheParent();
    void ANewEditorShowsAShell();
    void ARecordIsShown_data();
    void ARecordIsShown();
    void TheThicknessHasSixDigits_data();
    void TheThicknessHasSixDigits();
    void NoRecordLeavesTheFields();
    void ShowingARecordChangesNothingElse();
    void ATypeShowsItsPage_data();
    void ATypeShowsItsPage();
    void ATypeIsLoggedByItsWord();
    void TheCheckedTypeIsLoggedAgain();
    void AWordThatIsNoTypeShowsTheFirstPage();
    void ATranslationLeavesTheTypes();
    void OkWritesANewRecord();
    void OkWritesTheGivenRecord();
    void OkStoresTheShownDigits();
    void AnotherTypeBecomesAShell();
    void ASolidKeepsThicknessAndWord();
    void AnyOtherTypeKeepsTheTypeOfTheRecord();
    void TheThicknessIsReadAsTyped_data();
    void TheThicknessIsReadAsTyped();
    void TheNameIsTakenAsTyped_data();
    void TheNameIsTakenAsTyped();
    void AnEmptyNameIsRefused();
    void ARefusalHasWrittenTypeAndName();
    void ALaterOkCompletesTheRefusedRecord();
    void LeavingTouchesNothing_data();
    void LeavingTouchesNothing();
    void ApplyAndTheSpareSlotDoNothing();
    void BrowsePicksAMaterial();
    void BrowseCancelledChangesNothing_data();
    void BrowseCancelledChangesNothing();
    void BrowseWithoutARowEmptiesTheMaterial();
    void BrowseReadsBothFilesAnew();
    void TheHostMayDestroyTheEditorBehindTheLibrary_data();
    void TheHostMayDestroyTheEditorBehindTheLibrary();
    void TheHostMayDestroyTheEditorBehindTheBox();
    void OkTellsTheTypedMaterial_data();
    void OkTellsTheTypedMaterial();
    void TabFollowsReadingOrder();
    void EnterConfirms_data();
    void EnterConfirms();
    void OpeningAndClosingKeepsTheHeap();
};

void tst_CQLTElePropertyEditor::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "QLTElemProperty";
    const QRect free;
    const auto row = [&](const char* name, const char* type, const char* parent, const char* text,
                         bool enabled = true, bool checked = false) {
        QTest::newRow(name) << type << parent << free << text << enabled << checked;
    };
    row("pushbu_OK", "QPushButton", dialog, "OK");
    row("pubut_Cancel", "QPushButton", dialog, "Cancel");
    row("groupBox_4", "QGroupBox", dialog, "Element Type");
    row("groupBox_2", "QGroupBox", "groupBox_4", "2D Element");
    row("rad_Shell", "QRadioButton", "groupBox_2", "Shell", true, true);
    row("radioButton_7", "QRadioButton", "groupBox_2", "Membrane", false);
    row("groupBox", "QGroupBox", "groupBox_4", "1D Element");
    row("rad_Bar", "QRadioButton", "groupBox", "Bar", false);
    row("rad_Beam", "QRadioButton", "groupBox", "Beam", false);
    row("groupBox_3", "QGroupBox", "groupBox_4", "3D Element");
    row("radb_Solid", "QRadioButton", "groupBox_3", "Solid", false);
    row("groupBox_5", "QGroupBox", dialog, "Element Property Parameter");
    row("stackedWidget", "QStackedWidget", "groupBox_5", "");
    row("page_Bar", "QWidget", "stackedWidget", "");
    row("label_6", "QLabel", "page_Bar", "Bar");
    row("page_Beam", "QWidget", "stackedWidget", "");
    row("label_4", "QLabel", "page_Beam", "Beam");
    row("page_Shell", "QWidget", "stackedWidget", "");
    row("label_3", "QLabel", "page_Shell", "Thickness");
    row("lineEdit_thickness", "QLineEdit", "page_Shell", "1");
    row("page_Membrane", "QWidget", "stackedWidget", "");
    row("label_5", "QLabel", "page_Membrane", "Membrane");
    row("page_Solid", "QWidget", "stackedWidget", "");
    row("label_7", "QLabel", "page_Solid", "Solid");
    row("label_2", "QLabel", dialog, "Property Name");
    row("lineEdit_PropName", "QLineEdit", dialog, "");
    row("pubut_Apply", "QPushButton", dialog, "Apply", false);
    row("label", "QLabel", dialog, "Material Name");
    row("lineEdit_mat", "QLineEdit", dialog, "");
    row("pshbuton_Material", "QPushButton", dialog, "Browse");
}

void tst_CQLTElePropertyEditor::TheFormIsAsGiven()
{
    const CQLTElePropertyEditor editor(nullptr);
    CompareFormRow(editor);
}

void tst_CQLTElePropertyEditor::TheFormHoldsNothingElse()
{
    const CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(FormWidgets(editor).size(), 30);
    const auto& pages = Find<QStackedWidget>(editor, "stackedWidget");
    QStringList names;
    for (int page = 0; page < pages.count(); ++page)
        names << pages.widget(page)->objectName();
    QCOMPARE(names,
             QStringList({"page_Bar", "page_Beam", "page_Shell", "page_Membrane", "page_Solid"}));
    for (const char* const field : {"lineEdit_PropName", "lineEdit_mat", "lineEdit_thickness"}) {
        QVERIFY(Find<QLineEdit>(editor, field).validator() == nullptr);
        QVERIFY(!Find<QLineEdit>(editor, field).isReadOnly());
    }
}

void tst_CQLTElePropertyEditor::TheTypesAreOneGroup()
{
    const CQLTElePropertyEditor editor(nullptr);
    const auto* const group = editor.findChild<QButtonGroup*>("element_buttonGroup");
    QVERIFY(group != nullptr);
    QVERIFY(group->exclusive());
    QStringList texts;
    QVector<int> ids;
    const QList<QAbstractButton*> buttons = group->buttons();
    for (QAbstractButton* const button : buttons) {
        texts << button->text();
        ids << group->id(button);
    }
    QCOMPARE(texts, QStringList({"Shell", "Membrane", "Bar", "Beam", "Solid"}));
    QCOMPARE(ids, QVector<int>({-2, -3, -4, -5, -6}));
}

void tst_CQLTElePropertyEditor::TheLabelsLeadToTheirFields()
{
    const CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(Find<QLabel>(editor, "label_2").buddy()->objectName(), "lineEdit_PropName");
    QCOMPARE(Find<QLabel>(editor, "label").buddy()->objectName(), "lineEdit_mat");
    QCOMPARE(Find<QLabel>(editor, "label_3").buddy()->objectName(), "lineEdit_thickness");
}

void tst_CQLTElePropertyEditor::TheWindowIsAsGiven()
{
    const CQLTElePropertyEditor editor(nullptr);
    CompareWindow(editor, "QLTElemProperty", "Element Property", QSize(549, 404));
    const QList<QSize> sizes = editor.windowIcon().availableSizes(QIcon::Normal, QIcon::Off);
    QCOMPARE(sizes, QList<QSize>({QImage(":/images/TopTitle.png").size()}));
    QVERIFY(!sizes.first().isEmpty());
}

void tst_CQLTElePropertyEditor::TheWindowKeepsItsSizeWhenShown()
{
    CQLTElePropertyEditor editor(nullptr);
    editor.show();
    QCOMPARE(editor.size(), QSize(549, 404));
}

void tst_CQLTElePropertyEditor::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(recorder.TextsOf("QLTElemProperty"),
             QStringList({"1", "1D Element", "2D Element", "3D Element", "Apply", "Bar", "Beam",
                          "Browse", "Cancel", "Element Property", "Element Property Parameter",
                          "Element Type", "Material Name", "Membrane", "OK", "Property Name",
                          "Shell", "Solid", "Thickness"}));
}

void tst_CQLTElePropertyEditor::TheMessageBelongsToTheClass()
{
    const TextRecorder recorder;
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(editor.ApplyOk(), -1);
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({EmptyName()}));
    QCOMPARE(recorder.TextsOf("CQLTElePropertyEditor"),
             QStringList({"Error", "Property name is empty"}));
}

void tst_CQLTElePropertyEditor::TheClassHasItsSlots()
{
    const QMetaObject& meta = CQLTElePropertyEditor::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(
        OwnMethods(meta),
        QStringList({"public slot on_okButton_clicked()", "public slot on_CancelButton_clicked()",
                     "public slot on_getMat_brower()",
                     "public slot onButtonClicked(QAbstractButton*)", "public slot on_ApplyOk()"}));
}

void tst_CQLTElePropertyEditor::TheHostsWindowIsTheParent()
{
    QWidget window;
    const CQLTElePropertyEditor editor(&window);
    QCOMPARE(editor.parentWidget(), &window);
}

void tst_CQLTElePropertyEditor::ANewEditorShowsAShell()
{
    const CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(ShownPage(editor), int(ShellPage));
    QCOMPARE(Text(editor, "lineEdit_thickness"), "1");
    QVERIFY(Find<QRadioButton>(editor, "rad_Shell").isChecked());
    QVERIFY(editor.GetPropData() == nullptr);
    QCOMPARE(editor.selectedPropName(), QString());
}

void tst_CQLTElePropertyEditor::ARecordIsShown_data()
{
    QTest::addColumn<int>("typeCode");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("thickness");
    QTest::newRow("a shell") << 2 << int(ShellPage) << "0.123457";
    // The page and the thickness stay as they were.
    QTest::newRow("a solid") << 1 << int(BeamPage) << "9";
    QTest::newRow("no type") << 0 << int(BeamPage) << "9";
    QTest::newRow("an unknown type") << 3 << int(BeamPage) << "9";
}

void tst_CQLTElePropertyEditor::ARecordIsShown()
{
    QFETCH(int, typeCode);
    QFETCH(int, page);
    QFETCH(QString, thickness);
    CQLTElePropertyEditor editor(nullptr);
    Choose(editor, "rad_Beam");
    Find<QLineEdit>(editor, "lineEdit_thickness").setText("9");
    CQLTElemPropDef record = Record(typeCode);
    editor.SetPropData(&record);
    QCOMPARE(editor.GetPropData(), &record);
    QCOMPARE(ShownPage(editor), page);
    QCOMPARE(Text(editor, "lineEdit_thickness"), thickness);
    QCOMPARE(Text(editor, "lineEdit_PropName"), "P1");
    QCOMPARE(Text(editor, "lineEdit_mat"), "Steel");
}

void tst_CQLTElePropertyEditor::TheThicknessHasSixDigits_data()
{
    QTest::addColumn<double>("thickness");
    QTest::addColumn<QString>("text");
    QTest::newRow("six digits") << 0.1234567 << "0.123457";
    QTest::newRow("whole") << 2.0 << "2";
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("negative") << -2.5 << "-2.5";
    QTest::newRow("large") << 12345678.0 << "1.23457e+07";
    QTest::newRow("small") << 0.00001 << "1e-05";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "inf";
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "nan";
}

void tst_CQLTElePropertyEditor::TheThicknessHasSixDigits()
{
    QFETCH(double, thickness);
    QFETCH(QString, text);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    record.m_dThickness = thickness;
    editor.SetPropData(&record);
    QCOMPARE(Text(editor, "lineEdit_thickness"), text);
}

void tst_CQLTElePropertyEditor::NoRecordLeavesTheFields()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    editor.SetPropData(nullptr);
    QVERIFY(editor.GetPropData() == nullptr);
    QCOMPARE(Text(editor, "lineEdit_PropName"), "P1");
}

void tst_CQLTElePropertyEditor::ShowingARecordChangesNothingElse()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    editor.SetPropData(&record);
    QVERIFY(Find<QRadioButton>(editor, "rad_Shell").isChecked());
    QCOMPARE(editor.selectedPropName(), QString());
    QCOMPARE(Fields(record), Fields(Record(1)));
}

void tst_CQLTElePropertyEditor::ATypeShowsItsPage_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("page");
    QTest::newRow("Bar") << QByteArray("rad_Bar") << int(BarPage);
    QTest::newRow("Beam") << QByteArray("rad_Beam") << int(BeamPage);
    QTest::newRow("Shell") << QByteArray("rad_Shell") << int(ShellPage);
    QTest::newRow("Membrane") << QByteArray("radioButton_7") << int(MembranePage);
    QTest::newRow("Solid") << QByteArray("radb_Solid") << int(SolidPage);
}

void tst_CQLTElePropertyEditor::ATypeShowsItsPage()
{
    QFETCH(QByteArray, button);
    QFETCH(int, page);
    CQLTElePropertyEditor editor(nullptr);
    Find<QStackedWidget>(editor, "stackedWidget").setCurrentIndex(page == BarPage ? 1 : 0);
    Choose(editor, button);
    QCOMPARE(ShownPage(editor), page);
    const auto& shown = *Find<QStackedWidget>(editor, "stackedWidget").currentWidget();
    const QString word = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(shown.findChild<QLabel*>()->text(), page == ShellPage ? QString("Thickness") : word);
}

void tst_CQLTElePropertyEditor::ATypeIsLoggedByItsWord()
{
    CQLTElePropertyEditor editor(nullptr);
    DebugLines::s_lines.clear();
    {
        const DebugLines lines;
        for (const char* const button :
             {"rad_Bar", "rad_Beam", "rad_Shell", "radioButton_7", "radb_Solid"})
            Choose(editor, button);
    }
    QCOMPARE(DebugLines::s_lines,
             QStringList({"\"Clicked Button : Bar\"", "\"Clicked Button : Beam\"",
                          "\"Clicked Button : Shell\"", "\"Clicked Button : Membrane\"",
                          "\"Clicked Button : Solid\""}));
}

void tst_CQLTElePropertyEditor::TheCheckedTypeIsLoggedAgain()
{
    CQLTElePropertyEditor editor(nullptr);
    Find<QStackedWidget>(editor, "stackedWidget").setCurrentIndex(BarPage);
    DebugLines::s_lines.clear();
    {
        const DebugLines lines;
        Click(editor, "rad_Shell");
    }
    QCOMPARE(DebugLines::s_lines, QStringList({"\"Clicked Button : Shell\""}));
    QCOMPARE(ShownPage(editor), int(ShellPage));
}

void tst_CQLTElePropertyEditor::AWordThatIsNoTypeShowsTheFirstPage()
{
    CQLTElePropertyEditor editor(nullptr);
    Find<QRadioButton>(editor, "rad_Shell").setText("Schale");
    Click(editor, "rad_Shell");
    QCOMPARE(ShownPage(editor), int(BarPage));
}

void tst_CQLTElePropertyEditor::ATranslationLeavesTheTypes()
{
    const OtherWords translation;
    CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(editor.windowTitle(), "~Element Property");
    Choose(editor, "radb_Solid");
    QCOMPARE(ShownPage(editor), int(SolidPage));
    Click(editor, "rad_Shell");
    QCOMPARE(ShownPage(editor), int(ShellPage));
}

void tst_CQLTElePropertyEditor::OkWritesANewRecord()
{
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "P1");
        Type(shown, "lineEdit_thickness", "2.5");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QVERIFY(record != nullptr);
    QCOMPARE(Fields(*record), QStringList({"P1", "0", "", "2.5", "Shell", "2"}));
    QCOMPARE(editor.selectedPropName(), QString());
}

void tst_CQLTElePropertyEditor::OkWritesTheGivenRecord()
{
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "P2");
        Type(shown, "lineEdit_mat", "Bronze");
        Type(shown, "lineEdit_thickness", "4");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(editor.GetPropData(), &record);
    QCOMPARE(Fields(record), QStringList({"P2", "77", "Bronze", "4", "Shell", "2"}));
}

void tst_CQLTElePropertyEditor::OkStoresTheShownDigits()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(record.m_dThickness, 0.123457);
}

void tst_CQLTElePropertyEditor::AnotherTypeBecomesAShell()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    editor.SetPropData(&record);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditor::ASolidKeepsThicknessAndWord()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = {"P1", 77, "Steel", 0.5, "Word", 2};
    editor.SetPropData(&record);
    Choose(editor, "radb_Solid");
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "0.5", "Word", "1"}));
}

void tst_CQLTElePropertyEditor::AnyOtherTypeKeepsTheTypeOfTheRecord()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = {"P1", 77, "Steel", 0.5, "Word", 9};
    editor.SetPropData(&record);
    Choose(editor, "rad_Bar");
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "0.5", "Word", "9"}));
}

void tst_CQLTElePropertyEditor::TheThicknessIsReadAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("thickness");
    QTest::newRow("a number") << "2.5" << 2.5;
    QTest::newRow("an exponent") << "1e-3" << 0.001;
    QTest::newRow("negative") << "-4" << -4.0;
    QTest::newRow("blanks around") << " 3 " << 3.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("a word") << "thick" << 0.0;
    QTest::newRow("a unit behind") << "2 mm" << 0.0;
    QTest::newRow("a comma") << "2,5" << 0.0;
    QTest::newRow("endless") << "inf" << std::numeric_limits<double>::infinity();
}

void tst_CQLTElePropertyEditor::TheThicknessIsReadAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(double, thickness);
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_thickness", typed);
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(record.m_dThickness, thickness);
}

void tst_CQLTElePropertyEditor::TheNameIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << " ";
    QTest::newRow("blanks around") << " P1 ";
    QTest::newRow("Chinese") << "板";
    QTest::newRow("markup") << "<b>P</b>";
}

void tst_CQLTElePropertyEditor::TheNameIsTakenAsTyped()
{
    QFETCH(QString, name);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record;
    editor.SetPropData(&record);
    Find<QLineEdit>(editor, "lineEdit_PropName").setText(name);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(record.m_strName, name);
}

void tst_CQLTElePropertyEditor::AnEmptyNameIsRefused()
{
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "Steel");
        Type(shown, "lineEdit_thickness", "3");
        Click(shown, "pushbu_OK");
        QVERIFY(shown.isVisible());
        QCOMPARE(Text(shown, "lineEdit_mat"), "Steel");
        QCOMPARE(Text(shown, "lineEdit_thickness"), "3");
        QVERIFY(editor.GetPropData() != nullptr);
        QCOMPARE(Fields(*editor.GetPropData()), QStringList({"", "0", "", "3", "Shell", "2"}));
        QCOMPARE(editor.selectedPropName(), "Steel");
        Click(shown, "pubut_Cancel");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({EmptyName()}));
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QVERIFY(record != nullptr);
}

void tst_CQLTElePropertyEditor::ARefusalHasWrittenTypeAndName()
{
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    editor.SetPropData(&record);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "");
        Type(shown, "lineEdit_mat", "Bronze");
        Click(shown, "pushbu_OK");
        Click(shown, "pubut_Cancel");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({EmptyName()}));
    QCOMPARE(Fields(record), QStringList({"", "77", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditor::ALaterOkCompletesTheRefusedRecord()
{
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    const CQLTElemPropDef* refused = nullptr;
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "Steel");
        Click(shown, "pushbu_OK");
        refused = editor.GetPropData();
        Type(shown, "lineEdit_PropName", "P1");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(record.get(), refused);
    QCOMPARE(Fields(*record), QStringList({"P1", "0", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditor::LeavingTouchesNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("given");
    for (const char* const way : {"Cancel", "Escape", "close"}) {
        QTest::addRow("a given record by %s", way) << way << true;
        QTest::addRow("no record by %s", way) << way << false;
    }
}

void tst_CQLTElePropertyEditor::LeavingTouchesNothing()
{
    QFETCH(QString, way);
    QFETCH(bool, given);
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    if (given)
        editor.SetPropData(&record);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "typed");
        Type(shown, "lineEdit_mat", "typed");
        if (way == "Cancel")
            Click(shown, "pubut_Cancel");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(editor.GetPropData(), given ? &record : nullptr);
    QCOMPARE(Fields(record), Fields(Record(1)));
    QCOMPARE(editor.selectedPropName(), QString());
}

void tst_CQLTElePropertyEditor::ApplyAndTheSpareSlotDoNothing()
{
    CQLTElePropertyEditor editor(nullptr);
    Find<QLineEdit>(editor, "lineEdit_PropName").setText("P1");
    Find<QPushButton>(editor, "pubut_Apply").setEnabled(true);
    Click(editor, "pubut_Apply");
    editor.on_ApplyOk();
    QVERIFY(editor.GetPropData() == nullptr);
    QCOMPARE(editor.result(), 0);
}

void tst_CQLTElePropertyEditor::BrowsePicksAMaterial()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials("./UserMaterial.xml", {{"Bronze", "1", "2", "3"}, {"Copper", "4", "5", "6"}});
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([&](QDialog& shown) {
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "Copper");
        QCOMPARE(editor.selectedPropName(), "Copper");
        Type(shown, "lineEdit_PropName", "P1");
        Click(shown, "pushbu_OK");
    });
    user.Then([](QDialog& library) {
        QCOMPARE(library.objectName(), "KVMaterialLibrary");
        QVERIFY(library.parentWidget() == nullptr);
        // The name in the field is not looked for: nothing is selected beforehand.
        QCOMPARE(Find<QTableWidget>(library, "tableWidget").currentRow(), -1);
        ClickRow(Find<QTableWidget>(library, "tableWidget"), 1);
        Click(library, "pushButton_6");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(record->m_strMaterialName, "Copper");
    QCOMPARE(editor.selectedPropName(), "Copper");
}

void tst_CQLTElePropertyEditor::BrowseCancelledChangesNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_CQLTElePropertyEditor::BrowseCancelledChangesNothing()
{
    QFETCH(QString, way);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials("./UserMaterial.xml", {{"Bronze", "1", "2", "3"}});
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "typed");
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "typed");
        QCOMPARE(editor.selectedPropName(), QString());
        shown.reject();
    });
    user.Then([&](QDialog& library) {
        ClickRow(Find<QTableWidget>(library, "tableWidget"), 0);
        if (way == "Cancel")
            Click(library, "pushButton_8");
        else if (way == "Escape")
            QTest::keyClick(&library, Qt::Key_Escape);
        else
            library.close();
    });
    editor.exec();
    QVERIFY(user.IsDone());
}

void tst_CQLTElePropertyEditor::BrowseWithoutARowEmptiesTheMaterial()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "typed");
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "");
        shown.reject();
    });
    user.Then([](QDialog& library) { Click(library, "pushButton_6"); });
    editor.exec();
    QVERIFY(user.IsDone());
}

void tst_CQLTElePropertyEditor::BrowseReadsBothFilesAnew()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials("./SysMaterial.xml", {{"Glass", "1", "2", "3"}});
    WriteMaterials("./UserMaterial.xml", {{"Bronze", "4", "5", "6"}});
    auto* const unwritten = new KVMaterialInfo;
    unwritten->m_nType = MATERIAL_USER;
    unwritten->m_strName = "not written yet";
    KVMaterialData::GetInstance()->AddMaterialInfo(unwritten);
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pshbuton_Material");
        shown.reject();
    });
    user.Then([](QDialog& library) {
        QCOMPARE(Names(Find<QTableWidget>(library, "tableWidget")),
                 QStringList({"Bronze", "Glass"}));
        library.reject();
    });
    editor.exec();
    QVERIFY(user.IsDone());
    QVERIFY(KVMaterialData::GetInstance()->GetMaterialInfo("not written yet") == nullptr);
}

void tst_CQLTElePropertyEditor::TheHostMayDestroyTheEditorBehindTheLibrary_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("accepted") << QByteArray("pushButton_6");
    QTest::newRow("cancelled") << QByteArray("pushButton_8");
}

void tst_CQLTElePropertyEditor::TheHostMayDestroyTheEditorBehindTheLibrary()
{
    QFETCH(QByteArray, button);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials("./UserMaterial.xml", {{"Bronze", "1", "2", "3"}});
    ModalDriver user;
    auto* const editor = new CQLTElePropertyEditor(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "pshbuton_Material"); });
    user.Then([&](QDialog& library) {
        delete editor;
        ClickRow(Find<QTableWidget>(library, "tableWidget"), 0);
        Click(library, button);
    });
    QCOMPARE(editor->exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

void tst_CQLTElePropertyEditor::TheHostMayDestroyTheEditorBehindTheBox()
{
    ModalDriver user;
    auto* const editor = new CQLTElePropertyEditor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor->SetPropData(&record);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "");
        Click(shown, "pushbu_OK");
    });
    user.WhileBoxOpen([&](QMessageBox&) { delete editor; });
    QCOMPARE(editor->exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({EmptyName()}));
}

void tst_CQLTElePropertyEditor::OkTellsTheTypedMaterial_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("a name") << "nowhere to be found";
    QTest::newRow("emptied") << "";
}

void tst_CQLTElePropertyEditor::OkTellsTheTypedMaterial()
{
    QFETCH(QString, typed);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    Find<QLineEdit>(editor, "lineEdit_mat").setText(typed);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(editor.selectedPropName(), typed);
    QCOMPARE(record.m_strMaterialName, typed);
}

void tst_CQLTElePropertyEditor::TabFollowsReadingOrder()
{
    CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(TabOrder(editor),
             QStringList({"lineEdit_PropName", "lineEdit_mat", "pshbuton_Material", "rad_Shell",
                          "lineEdit_thickness", "pushbu_OK", "pubut_Cancel"}));
}

void tst_CQLTElePropertyEditor::EnterConfirms_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"lineEdit_PropName", "lineEdit_mat", "pshbuton_Material",
                                   "rad_Shell", "lineEdit_thickness", "pushbu_OK", "pubut_Cancel"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_CQLTElePropertyEditor::EnterConfirms()
{
    QFETCH(QByteArray, focus);
    ModalDriver user;
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_CQLTElePropertyEditor::OpeningAndClosingKeepsTheHeap()
{
    CQLTElemPropDef record = Record(2);
    const auto growth = HeapGrowth([&] {
        CQLTElePropertyEditor editor(nullptr);
        editor.SetPropData(&record);
        QTimer::singleShot(0, &editor, &QDialog::reject);
        editor.exec();
    });
    QVERIFY2(growth < 50000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_CQLTElePropertyEditor)
#include "tst_CQLTElePropertyEditor.moc"
