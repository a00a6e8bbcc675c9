#include "PropertyRecord.h"

#include <QButtonGroup>
#include <QLabel>
#include <QStackedWidget>
#include <QTranslator>

#include <limits>
#include <memory>

// The form, the record that it shows, and the pages of the element types.

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "QLTElemProperty";
    form.title = "Element Property";
    form.size = {549, 404};
    form.lines = {
        "QLabel label_2 in QLTElemProperty: Property Name, for lineEdit_PropName",
        "QLineEdit lineEdit_PropName in QLTElemProperty: ",
        "QLabel label in QLTElemProperty: Material Name, for lineEdit_mat",
        "QLineEdit lineEdit_mat in QLTElemProperty: ",
        "QPushButton pshbuton_Material in QLTElemProperty: Browse",
        "QGroupBox groupBox_4 in QLTElemProperty: Element Type",
        "QGroupBox groupBox_2 in groupBox_4: 2D Element",
        "QRadioButton rad_Shell in groupBox_2: Shell, checked",
        "QRadioButton radioButton_7 in groupBox_2: Membrane, disabled",
        "QGroupBox groupBox in groupBox_4: 1D Element",
        "QRadioButton rad_Bar in groupBox: Bar, disabled",
        "QRadioButton rad_Beam in groupBox: Beam, disabled",
        "QGroupBox groupBox_3 in groupBox_4: 3D Element",
        "QRadioButton radb_Solid in groupBox_3: Solid, disabled",
        "QGroupBox groupBox_5 in QLTElemProperty: Element Property Parameter",
        "QStackedWidget stackedWidget in groupBox_5: ",
        "QWidget page_Solid in stackedWidget: ",
        "QLabel label_7 in page_Solid: Solid",
        "QWidget page_Membrane in stackedWidget: ",
        "QLabel label_5 in page_Membrane: Membrane",
        "QWidget page_Beam in stackedWidget: ",
        "QLabel label_4 in page_Beam: Beam",
        "QWidget page_Bar in stackedWidget: ",
        "QLabel label_6 in page_Bar: Bar",
        "QWidget page_Shell in stackedWidget: ",
        "QLabel label_3 in page_Shell: Thickness, for lineEdit_thickness",
        "QLineEdit lineEdit_thickness in page_Shell: 1",
        "QPushButton pushbu_OK in QLTElemProperty: OK",
        "QPushButton pubut_Cancel in QLTElemProperty: Cancel",
        "QPushButton pubut_Apply in QLTElemProperty: Apply, disabled",
    };
    form.tabOrder = {"lineEdit_PropName",  "lineEdit_mat", "pshbuton_Material", "rad_Shell",
                     "lineEdit_thickness", "pushbu_OK",    "pubut_Cancel"};
    form.enter = "pushbu_OK";
    form.methods = {"public slot on_okButton_clicked()", "public slot on_CancelButton_clicked()",
                    "public slot on_getMat_brower()",
                    "public slot onButtonClicked(QAbstractButton*)", "public slot on_ApplyOk()"};
    form.hasIcon = true;
    return form;
}

enum Page
{
    BarPage,
    BeamPage,
    ShellPage,
    MembranePage,
    SolidPage
};

int ShownPage(const QWidget& editor)
{
    return Find<QStackedWidget>(editor, "stackedWidget").currentIndex();
}

/// Records the lines of the debug log while it lives.
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

/// A translation that changes every text.
class OtherWords : public QTranslator
{
public:
    OtherWords() { QCoreApplication::installTranslator(this); }
    ~OtherWords() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return "~" + QString::fromUtf8(text);
    }
};

} // namespace

class tst_CQLTElePropertyEditor
    : public With<FormTest<CQLTElePropertyEditor>, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

public:
    tst_CQLTElePropertyEditor()
        : With(Form())
    {
    }

private Q_SLOTS:
    void ThePagesAreInTheirOrder();
    void TheTypesAreOneGroup();
    void TheWindowKeepsItsSizeWhenShown();
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
    void AnUnknownWordShowsTheFirstPage();
    void ATranslationKeepsThePages_data();
    void ATranslationKeepsThePages();

private:
    std::unique_ptr<QDialog> NewFilledDialog() const override;

    mutable CQLTElemPropDef m_record = Record(2);
};

std::unique_ptr<QDialog> tst_CQLTElePropertyEditor::NewFilledDialog() const
{
    auto editor = std::make_unique<CQLTElePropertyEditor>(nullptr);
    editor->SetPropData(&m_record);
    return editor;
}

void tst_CQLTElePropertyEditor::ThePagesAreInTheirOrder()
{
    const CQLTElePropertyEditor editor(nullptr);
    const auto& pages = Find<QStackedWidget>(editor, "stackedWidget");
    QStringList names;
    for (int page = 0; page < pages.count(); ++page)
        names << pages.widget(page)->objectName();
    QCOMPARE(names,
             QStringList({"page_Bar", "page_Beam", "page_Shell", "page_Membrane", "page_Solid"}));
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

void tst_CQLTElePropertyEditor::TheWindowKeepsItsSizeWhenShown()
{
    CQLTElePropertyEditor editor(nullptr);
    editor.show();
    QCOMPARE(editor.size(), QSize(549, 404));
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
    NewRow("a shell", 2, int(ShellPage), "0.123457");
    // The page and the thickness are unchanged.
    NewRow("a solid", 1, int(BeamPage), "9");
    NewRow("no type", 0, int(BeamPage), "9");
    NewRow("an unknown type", 3, int(BeamPage), "9");
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
    NewRow("six digits", 0.1234567, "0.123457");
    NewRow("whole", 2.0, "2");
    NewRow("zero", 0.0, "0");
    NewRow("negative", -2.5, "-2.5");
    NewRow("large", 12345678.0, "1.23457e+07");
    NewRow("small", 0.00001, "1e-05");
    NewRow("infinite", std::numeric_limits<double>::infinity(), "inf");
    NewRow("no number", std::numeric_limits<double>::quiet_NaN(), "nan");
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
    NewRow("Bar", QByteArray("rad_Bar"), int(BarPage));
    NewRow("Beam", QByteArray("rad_Beam"), int(BeamPage));
    NewRow("Shell", QByteArray("rad_Shell"), int(ShellPage));
    NewRow("Membrane", QByteArray("radioButton_7"), int(MembranePage));
    NewRow("Solid", QByteArray("radb_Solid"), int(SolidPage));
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

void tst_CQLTElePropertyEditor::AnUnknownWordShowsTheFirstPage()
{
    CQLTElePropertyEditor editor(nullptr);
    Find<QRadioButton>(editor, "rad_Shell").setText("Schale");
    Click(editor, "rad_Shell");
    QCOMPARE(ShownPage(editor), int(BarPage));
}

void tst_CQLTElePropertyEditor::ATranslationKeepsThePages_data()
{
    ATypeShowsItsPage_data();
}

void tst_CQLTElePropertyEditor::ATranslationKeepsThePages()
{
    QFETCH(QByteArray, button);
    QFETCH(int, page);
    const OtherWords translation;
    CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(editor.windowTitle(), "~Element Property");
    QCOMPARE(Find<QRadioButton>(editor, "rad_Shell").text(), "~Shell");
    Choose(editor, button);
    QCOMPARE(ShownPage(editor), page);
}

TARN_TEST_MAIN(tst_CQLTElePropertyEditor)
#include "tst_CQLTElePropertyEditor.moc"
