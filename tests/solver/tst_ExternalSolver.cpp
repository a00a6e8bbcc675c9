#include "ExternalSolver.h"
#include "TestCase.h"

#include <QDialog>
#include <QPointer>

class tst_ExternalSolver : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheDialogsAreMade_data();
    void TheDialogsAreMade();
    void TheCallerOwnsTheDialog_data() { TheDialogsAreMade_data(); }
    void TheCallerOwnsTheDialog();
};

using Create = QDialog* (*)(QWidget*);
Q_DECLARE_METATYPE(Create)

void tst_ExternalSolver::TheDialogsAreMade_data()
{
    QTest::addColumn<Create>("create");
    QTest::addColumn<QString>("className");
    NewRow("solver", &CreateSolverSetting, "SolverSetting");
    NewRow("result viewer", &CreateResultSetting, "ResultSetting");
}

void tst_ExternalSolver::TheDialogsAreMade()
{
    QFETCH(Create, create);
    QFETCH(QString, className);
    const std::unique_ptr<QDialog> dialog(create(nullptr));
    QCOMPARE(QString(dialog->metaObject()->className()), className);
    QVERIFY(dialog->parentWidget() == nullptr);
    QVERIFY(!dialog->isVisible());
}

void tst_ExternalSolver::TheCallerOwnsTheDialog()
{
    QFETCH(Create, create);
    QPointer<QDialog> dialog;
    {
        QWidget parent;
        dialog = create(&parent);
        QCOMPARE(dialog->parentWidget(), &parent);
    }
    QVERIFY(!dialog);
}

TARN_TEST_MAIN(tst_ExternalSolver)
#include "tst_ExternalSolver.moc"
