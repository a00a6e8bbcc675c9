#include "OutsideRun.h"
#include "ProgramFormTest.h"
#include "SolverSetting.h"
#include "TextRecorder.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

namespace {

const ShownBox Done = ShownBox::Notice("Title", "Solver is Done");

} // namespace

class tst_SolverSetting : public ProgramFormTest<SolverSetting>
{
    Q_OBJECT

public:
    tst_SolverSetting()
        : ProgramFormTest({"SolverSetting",
                           "Nastran Solver",
                           "Nastran",
                           "SelectExecuteNas",
                           "Open Nastran.exe",
                           "Model_Active.bdf",
                           {Done}})
    {
    }

private Q_SLOTS:
    void BlanksSplitThePath();
    void TheNoticeIsNotTranslated();
};

void tst_SolverSetting::BlanksSplitThePath()
{
    const QString link = QDir::current().filePath("my solver");
    QVERIFY(QFile::link(OUTSIDE_PROGRAM, QDir::current().filePath("my")));
    QVERIFY(QFile::copy(OUTSIDE_PROGRAM, link));
    SolverSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, link);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Path").text(), link);
    QCOMPARE(PressRun(dialog), ShownBoxes({Done}));
    QCOMPARE(RunRecord(), QString("in %1\nargument solver\nargument Model_Active.bdf\nended\n")
                              .arg(QDir().canonicalPath()));
}

void tst_SolverSetting::TheNoticeIsNotTranslated()
{
    SolverSetting dialog(nullptr);
    dialog.show();
    const TextRecorder recorder;
    QCOMPARE(PressRun(dialog), ShownBoxes({Done}));
    QCOMPARE(recorder.TextsOf("SolverSetting"), QStringList());
}

TARN_TEST_MAIN(tst_SolverSetting)
#include "tst_SolverSetting.moc"
