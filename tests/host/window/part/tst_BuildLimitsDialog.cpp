#include "BuildLimitsDialog.h"
#include "HostTestMain.h"
#include "Modelling.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

class tst_BuildLimitsDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheLimitsAreShownWithTheirUnits();
    void TheMenuStoresThem_data();
    void TheMenuStoresThem();
};

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

void tst_BuildLimitsDialog::TheLimitsAreShownWithTheirUnits()
{
    BuildLimits limits;
    limits.megabytes = 2048;
    limits.seconds = 90;
    const BuildLimitsDialog dialog(limits, nullptr);
    QCOMPARE(Find<QSpinBox>(dialog, "spinBox_Memory").text(), QString("2048 MB"));
    QCOMPARE(Find<QSpinBox>(dialog, "spinBox_Time").text(), QString("90 s"));
    QCOMPARE(dialog.Limits().megabytes, 2048);
    QCOMPARE(dialog.Limits().seconds, 90);
}

void tst_BuildLimitsDialog::TheMenuStoresThem_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("button");
    QTest::addColumn<int>("seconds");
    QTest::newRow("OK") << QDialogButtonBox::Ok << 45;
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << 600;
}

void tst_BuildLimitsDialog::TheMenuStoresThem()
{
    QFETCH(QDialogButtonBox::StandardButton, button);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, EnterTemporaryDirectory());
    Modelling modelling;
    modelling.user.Then([button](QDialog& dialog) {
        Find<QSpinBox>(dialog, "spinBox_Time").setValue(45);
        QTest::mouseClick(Find<QDialogButtonBox>(dialog, "buttonBox").button(button),
                          Qt::LeftButton);
    });
    modelling.Trigger("action_BuildLimits");
    QVERIFY(modelling.user.IsDone());
    QTEST(BuildLimits::Stored().seconds, "seconds");
    // The next build obeys them.
    modelling.Trigger("action_Add_box");
    QVERIFY(!modelling.model.HasFailed());
}

TARN_HOST_TEST_MAIN(tst_BuildLimitsDialog)
#include "tst_BuildLimitsDialog.moc"
