#include "FileChoice.h"
#include "ReportSamples.h"
#include "ResultDisplay.h"
#include "ShownView.h"
#include "TestFiles.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QSpinBox>

class tst_ResultDisplay : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void WhatThereIsCanBeChosen();
    void EachContentHasAPictureOfItsOwn();
    void EachModeHasAPictureOfItsOwn();
    void TheGreatestValueIsNamed();
    void TheDeformationCanBeScaled();
    void AModeIsAnimated();
    void PickingShowsThePart();
    void ThePictureIsExported();
    void WithoutAViewItSaysSo();
};

namespace {

/// Beside a view that looks from the front: the moves go up.
struct Shown : ShownView
{
    Shown()
    {
        display.show();
        view->SetStandardView(PartView::FrontView);
    }

    QStringList Contents() const
    {
        QStringList texts;
        for (int i = 0; i < Box().count(); ++i)
            texts << Box().itemText(i);
        return texts;
    }
    QComboBox& Box() const { return Find<QComboBox>(display, "showBox"); }
    QString Value() const { return Find<QLabel>(display, "valueLabel").text(); }

    ResultDisplay display{view, nullptr};
};

/// Two modes that bend other corners.
SolveReport TwoModes()
{
    SolveReport report = ModesReport();
    report.moves[1][1] = {0, 0, 0};
    report.moves[1][2] = {0, 0, -2};
    return report;
}

} // namespace

void tst_ResultDisplay::WhatThereIsCanBeChosen()
{
    Shown shown;
    QVERIFY(!shown.Box().isEnabled());
    shown.display.SetReport(Shared(MeshReport()));
    QCOMPARE(shown.Contents(), QStringList({"Part", "Mesh"}));
    QCOMPARE(shown.Box().currentText(), QString("Mesh"));
    shown.display.SetReport(Shared(ModesReport()));
    QCOMPARE(shown.Contents(), QStringList({"Part", "Mesh", "Displacement"}));
    QCOMPARE(shown.Box().currentText(), QString("Displacement"));
    shown.display.SetReport(Shared(StaticReport()));
    QCOMPARE(shown.Contents(), QStringList({"Part", "Mesh", "Displacement", "Von Mises stress"}));
    shown.display.ShowPart();
    QCOMPARE(shown.Box().currentText(), QString("Part"));
    shown.display.SetReport({});
    QVERIFY(!shown.Box().isEnabled());
}

void tst_ResultDisplay::EachContentHasAPictureOfItsOwn()
{
    Shown shown;
    const QImage part = shown.Picture();
    shown.display.SetReport(Shared(StaticReport()));
    QList<QImage> pictures;
    for (int index = 0; index < 4; ++index) {
        shown.Box().setCurrentIndex(index);
        const QImage picture = shown.Picture();
        QVERIFY(!pictures.contains(picture));
        pictures << picture;
    }
    QCOMPARE(pictures[0], part);
}

void tst_ResultDisplay::EachModeHasAPictureOfItsOwn()
{
    Shown shown;
    shown.display.SetReport(Shared(TwoModes()));
    const QImage first = shown.Picture();
    QVERIFY(shown.Value().startsWith("Mode 1 at 1234.57 Hz."));
    shown.display.SetMode(1);
    QVERIFY(shown.Value().startsWith("Mode 2 at 2000 Hz."));
    QVERIFY(shown.Picture() != first);
    // From the part, too.
    shown.display.ShowPart();
    shown.display.SetMode(0);
    QCOMPARE(shown.Picture(), first);
    shown.display.SetMode(7);
    shown.display.SetMode(-1);
    QCOMPARE(shown.Picture(), first);
}

void tst_ResultDisplay::TheGreatestValueIsNamed()
{
    Shown shown;
    shown.display.SetReport(Shared(StaticReport()));
    // 10 % of the diagonal, for 0.5 mm.
    QCOMPARE(shown.Value(), QString("Greatest displacement 0.5 mm near (20, 0, 0) mm, marked. "
                                    "Displacements are drawn 5.66 times as large."));
    shown.Box().setCurrentIndex(3);
    QVERIFY(shown.Value().startsWith("Greatest stress 40 MPa near (0, 20, 0) mm, marked."));
}

void tst_ResultDisplay::TheDeformationCanBeScaled()
{
    Shown shown;
    shown.display.SetReport(Shared(ModesReport()));
    const QImage tenth = shown.Picture();
    auto& spin = Find<QSpinBox>(shown.display, "scaleSpin");
    spin.setValue(60);
    QVERIFY(shown.Picture() != tenth);
    spin.setValue(10);
    QCOMPARE(shown.Picture(), tenth);
}

void tst_ResultDisplay::AModeIsAnimated()
{
    Shown shown;
    shown.display.SetReport(Shared(ModesReport()));
    Find<QSpinBox>(shown.display, "scaleSpin").setValue(60);
    const QImage still = shown.Picture();
    Click(shown.display, "animateButton");
    QTRY_VERIFY(shown.Picture() != still);
    Click(shown.display, "animateButton");
    QCOMPARE(shown.Picture(), still);
    // What does not move is not animated.
    Click(shown.display, "animateButton");
    shown.Box().setCurrentIndex(1);
    QVERIFY(!Find<QAbstractButton>(shown.display, "animateButton").isChecked());
}

void tst_ResultDisplay::PickingShowsThePart()
{
    Shown shown;
    shown.display.SetReport(Shared(ModesReport()));
    shown.view->PickFace();
    QCOMPARE(shown.Box().currentText(), QString("Part"));
}

void tst_ResultDisplay::ThePictureIsExported()
{
    Shown shown;
    shown.display.SetReport(Shared(ModesReport()));
    ModalDriver user;
    ChooseFile(user, QDir::current().filePath("mode.png"));
    Click(shown.display, "pictureButton");
    QVERIFY(user.IsDone());
    const QImage picture("mode.png");
    QCOMPARE(picture.size(), shown.Picture().size());
    QCOMPARE(picture.pixelColor(shown.Middle()), At(shown.Picture(), shown.Middle()));
}

void tst_ResultDisplay::WithoutAViewItSaysSo()
{
    ResultDisplay display(nullptr, nullptr);
    display.SetReport(Shared(StaticReport()));
    QVERIFY(!display.isEnabled());
    QVERIFY(Find<QLabel>(display, "valueLabel").text().startsWith("Results are not drawn"));
}

TARN_TEST_MAIN(tst_ResultDisplay)
#include "tst_ResultDisplay.moc"
