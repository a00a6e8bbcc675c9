#include "Conversions.h"
#include "FormTest.h"
#include "KernelText.h"
#include "MirrorDialog.h"

#include <QRadioButton>
#include <Standard_ConstructionError.hxx>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "MirrorDialog";
    form.title = "Input";
    form.size = {437, 226};
    form.lines = {
        "QRadioButton radioButton in MirrorDialog: Mirror By Point",
        "QGroupBox groupBox in MirrorDialog: ",
        "QLineEdit lineEdit_Ptx in groupBox: 0",
        "QLineEdit lineEdit_Pty in groupBox: 0",
        "QLineEdit lineEdit_Ptz in groupBox: 0",
        "QRadioButton radioButton_2 in MirrorDialog: Mirror By Axis, checked",
        "QGroupBox groupBox_2 in MirrorDialog: ",
        "QLabel label in groupBox_2: Direction, for lineEdit_axisX",
        "QLineEdit lineEdit_axisX in groupBox_2: 0",
        "QLineEdit lineEdit_axisY in groupBox_2: 0",
        "QLineEdit lineEdit_axisZ in groupBox_2: 1",
        "QLabel label_2 in groupBox_2: Point On Axis, for lineEdit_axisPtX",
        "QLineEdit lineEdit_axisPtX in groupBox_2: 0",
        "QLineEdit lineEdit_axisPtY in groupBox_2: 0",
        "QLineEdit lineEdit_axisPtZ in groupBox_2: 0",
        "QRadioButton radioButton_3 in MirrorDialog: Pick One Face",
        "QPushButton pushButton_OK in MirrorDialog: OK",
        "QPushButton pushButton_Cancel in MirrorDialog: Cancel",
    };
    form.tabOrder = {"radioButton",      "lineEdit_Ptx",     "lineEdit_Pty",     "lineEdit_Ptz",
                     "radioButton_2",    "lineEdit_axisX",   "lineEdit_axisY",   "lineEdit_axisZ",
                     "lineEdit_axisPtX", "lineEdit_axisPtY", "lineEdit_axisPtZ", "radioButton_3",
                     "pushButton_OK",    "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK_Pushed()"};
    form.hasFont = true;
    return form;
}

// The images of the origin and of the three unit points.
const char* const Identity = "(0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)";
const char* const ThroughOrigin = "(0, 0, 0) (-1, 0, 0) (0, -1, 0) (0, 0, -1)";
const char* const AboutZAxis = "(0, 0, 0) (-1, 0, 0) (0, -1, 0) (0, 0, 1)";

QString MirrorData(const MirrorDialog& dialog)
{
    gp_Trsf transform;
    transform.SetTranslation(gp_Vec(7, 7, 7)); // must not survive
    dialog.GetMirrorData(transform);
    return KernelText(transform);
}

} // namespace

class tst_MirrorDialog : public FormTest<MirrorDialog>
{
    Q_OBJECT

public:
    tst_MirrorDialog()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void TheModesExcludeOneAnother();
    void TheTransformIsTheIdentityBeforeOK();
    void TheDefaultIsTheSymmetryAboutTheZAxis();
    void ThePointModeAlwaysMirrorsThroughTheOrigin_data();
    void ThePointModeAlwaysMirrorsThroughTheOrigin();
    void TheAxisModeMirrorsAboutTheEnteredAxis();
    void TheFaceModeLeavesTheIdentity();
    void TheFaceModeLeavesTheResultOfAnEarlierOK();
    void CancelDoesNothing();
    void LeavingStoresNothing_data();
    void LeavingStoresNothing();
    void AxisTextIsConverted_data() { AddConversionRows(); }
    void AxisTextIsConverted();
    void AZeroAxisDirectionThrowsTheKernelsError();
    void TheOtherModesIgnoreAZeroAxisDirection();

private:
    void CompareAfterEnter(QDialog& dialog) override;

    /// Runs the dialog as a user who selects a mode, fills the fields and presses OK.
    int PickFillAndOK(MirrorDialog& dialog, const char* mode, const FieldTexts& fields);
};

void tst_MirrorDialog::CompareAfterEnter(QDialog& dialog)
{
    FormTest::CompareAfterEnter(dialog);
    QCOMPARE(MirrorData(static_cast<MirrorDialog&>(dialog)), QString(AboutZAxis));
}

int tst_MirrorDialog::PickFillAndOK(MirrorDialog& dialog, const char* mode,
                                    const FieldTexts& fields)
{
    Then([&](QDialog& shown) {
        Click(shown, mode);
        Fill(shown, fields);
        Click(shown, "pushButton_OK");
    });
    return dialog.exec();
}

void tst_MirrorDialog::TheModesExcludeOneAnother()
{
    MirrorDialog dialog(nullptr);
    for (const char* const picked : {"radioButton", "radioButton_2", "radioButton_3"}) {
        Click(dialog, picked);
        for (const char* const mode : {"radioButton", "radioButton_2", "radioButton_3"})
            QCOMPARE(Find<QRadioButton>(dialog, mode).isChecked(), qstrcmp(mode, picked) == 0);
    }
}

void tst_MirrorDialog::TheTransformIsTheIdentityBeforeOK()
{
    const MirrorDialog dialog(nullptr);
    QCOMPARE(MirrorData(dialog), QString(Identity));
}

void tst_MirrorDialog::TheDefaultIsTheSymmetryAboutTheZAxis()
{
    MirrorDialog dialog(nullptr);
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(MirrorData(dialog), QString(AboutZAxis));
}

void tst_MirrorDialog::ThePointModeAlwaysMirrorsThroughTheOrigin_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text : {"0", "5", "-1e6", "abc", "", "nan", "inf"})
        QTest::newRow(text) << text;
}

void tst_MirrorDialog::ThePointModeAlwaysMirrorsThroughTheOrigin()
{
    QFETCH(QString, text);
    MirrorDialog dialog(nullptr);
    const FieldTexts fields = {
        {"lineEdit_Ptx", text}, {"lineEdit_Pty", text}, {"lineEdit_Ptz", text}};
    QCOMPARE(PickFillAndOK(dialog, "radioButton", fields), int(QDialog::Accepted));
    QCOMPARE(MirrorData(dialog), QString(ThroughOrigin));
}

void tst_MirrorDialog::TheAxisModeMirrorsAboutTheEnteredAxis()
{
    MirrorDialog dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_axisX", "5"},    {"lineEdit_axisZ", "0"},
                               {"lineEdit_axisPtX", "1"},  {"lineEdit_axisPtY", "2"},
                               {"lineEdit_axisPtZ", "-3"}, {"lineEdit_Ptx", "9"}};
    QCOMPARE(PickFillAndOK(dialog, "radioButton_2", fields), int(QDialog::Accepted));
    QCOMPARE(MirrorData(dialog), QString("(0, 4, -6) (1, 4, -6) (0, 3, -6) (0, 4, -7)"));
}

void tst_MirrorDialog::TheFaceModeLeavesTheIdentity()
{
    MirrorDialog dialog(nullptr);
    QCOMPARE(PickFillAndOK(dialog, "radioButton_3", {}), int(QDialog::Accepted));
    QCOMPARE(MirrorData(dialog), QString(Identity));
}

void tst_MirrorDialog::TheFaceModeLeavesTheResultOfAnEarlierOK()
{
    MirrorDialog dialog(nullptr);
    PickFillAndOK(dialog, "radioButton", {});
    QCOMPARE(PickFillAndOK(dialog, "radioButton_3", {}), int(QDialog::Accepted));
    QCOMPARE(MirrorData(dialog), QString(ThroughOrigin));
}

void tst_MirrorDialog::CancelDoesNothing()
{
    MirrorDialog dialog(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton_Cancel");
        QVERIFY(shown.isVisible());
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_MirrorDialog::LeavingStoresNothing_data()
{
    QTest::addColumn<QString>("way");
    // The dialog cannot be cancelled here.
    NewRow("Escape", "Escape");
    NewRow("close", "close");
}

void tst_MirrorDialog::LeavingStoresNothing()
{
    QFETCH(QString, way);
    MirrorDialog dialog(nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_axisPtX", "9");
        Leave(shown, way, nullptr);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(MirrorData(dialog), QString(Identity));
}

void tst_MirrorDialog::AxisTextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    UseLocale(locale);
    MirrorDialog dialog(nullptr);
    QCOMPARE(PickFillAndOK(dialog, "radioButton_2", {{"lineEdit_axisPtY", text}}),
             int(QDialog::Accepted));
    gp_Trsf transform;
    dialog.GetMirrorData(transform);
    // About the axis (0, y, 0) along z, the image of the origin is (0, 2 y, 0).
    const double image = transform.TranslationPart().Y();
    if (std::isfinite(number))
        QCOMPARE(AllDigits(image), AllDigits(2.0 * number));
    else
        QVERIFY(!std::isfinite(image));
}

void tst_MirrorDialog::AZeroAxisDirectionThrowsTheKernelsError()
{
    MirrorDialog dialog(nullptr);
    PickFillAndOK(dialog, "radioButton", {});
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    const FieldTexts fields = {{"lineEdit_axisZ", "0"}, {"lineEdit_axisPtX", "4"}};
    QVERIFY_EXCEPTION_THROWN(PickFillAndOK(dialog, "radioButton_2", fields),
                             Standard_ConstructionError);
    QVERIFY(dialog.isVisible());
    QCOMPARE(MirrorData(dialog), QString(ThroughOrigin));
}

void tst_MirrorDialog::TheOtherModesIgnoreAZeroAxisDirection()
{
    MirrorDialog dialog(nullptr);
    QCOMPARE(PickFillAndOK(dialog, "radioButton", {{"lineEdit_axisZ", "0"}}),
             int(QDialog::Accepted));
    QCOMPARE(PickFillAndOK(dialog, "radioButton_3", {}), int(QDialog::Accepted));
}

TARN_TEST_MAIN(tst_MirrorDialog)
#include "tst_MirrorDialog.moc"
