#include "OutsideRun.h"
#include "ProgramFormTest.h"
#include "ResultSetting.h"

#include <QDir>
#include <QFile>

class tst_ResultSetting : public ProgramFormTest<ResultSetting>
{
    Q_OBJECT

public:
    // No end is reported.
    tst_ResultSetting()
        : ProgramFormTest({"ResultSetting",
                           "HyperView Result Viewer",
                           "HyperView",
                           "SelectExecuteHyper",
                           "Open HyperView.exe",
                           "Model_Active.op2",
                           {}})
    {
    }

private Q_SLOTS:
    void APathWithBlanksRuns();
};

void tst_ResultSetting::APathWithBlanksRuns()
{
    const QString viewer = QDir::current().filePath("my own viewer");
    QVERIFY(QFile::copy(OUTSIDE_PROGRAM, viewer));
    ResultSetting dialog(nullptr);
    dialog.show();
    Browse(dialog, viewer);
    QCOMPARE(PressRun(dialog), ShownBoxes());
    QCOMPARE(RunRecord(),
             QString("in %1\nargument Model_Active.op2\nended\n").arg(QDir().canonicalPath()));
}

TARN_TEST_MAIN(tst_ResultSetting)
#include "tst_ResultSetting.moc"
