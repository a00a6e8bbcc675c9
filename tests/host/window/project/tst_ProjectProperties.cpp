#include "EmptyAnalysisStores.h"
#include "MaterialLibrary.h"
#include "ModalDriver.h"
#include "ProjectProperties.h"
#include "TestCase.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

class tst_ProjectProperties : public With<TestCase, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheProjectIsShown();
    void WhatIsEnteredIsTaken();
    void AnUnknownMaterialIsKept();
    void WhatIsWrongKeepsTheDialogOpen_data();
    void WhatIsWrongKeepsTheDialogOpen();
};

namespace {

Project Sample()
{
    Project project;
    project.SetTitle("Plate");
    project.SetDensity(1234.5);
    project.SetConditions({{"a > 1", "a is small"}});
    return project;
}

void PressOk(const QDialog& dialog)
{
    QTest::mouseClick(Find<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
}

} // namespace

void tst_ProjectProperties::TheProjectIsShown()
{
    const ProjectProperties dialog(Sample(), nullptr);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Title").text(), QString("Plate"));
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Density").text(), QString("1234.5"));
    QCOMPARE(Find<QComboBox>(dialog, "comboBox_Material").currentText(), QString("none"));
    QCOMPARE(Find<QTableWidget>(dialog, "tableWidget_Conditions").item(0, 0)->text(),
             QString("a > 1"));
}

void tst_ProjectProperties::WhatIsEnteredIsTaken()
{
    ReadMaterials(".");
    ProjectProperties dialog(Sample(), nullptr);
    ModalDriver user;
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Title", "Rib");
        Type(shown, "lineEdit_Density", "2700");
        auto& material = Find<QComboBox>(shown, "comboBox_Material");
        material.setCurrentIndex(material.findText("Steel S355"));
        Click(shown, "pushButton_AddCondition");
        auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(edit != nullptr);
        TypeText(*edit, "b > 2");
        QTest::keyClick(edit, Qt::Key_Return);
        PressOk(shown);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    const Project& edited = dialog.Edited();
    QCOMPARE(edited.Title(), QString("Rib"));
    QCOMPARE(edited.Density(), 2700.0);
    QCOMPARE(edited.Material(), QString("Steel S355"));
    QCOMPARE(edited.Conditions().size(), std::size_t(2));
    QCOMPARE(edited.Conditions()[1].expression, QString("b > 2"));
    QCOMPARE(edited.Conditions()[1].message, QString("The condition b > 2 does not hold."));
}

void tst_ProjectProperties::AnUnknownMaterialIsKept()
{
    Project project = Sample();
    project.SetMaterial("of another library");
    ProjectProperties dialog(project, nullptr);
    dialog.show();
    Find<QTableWidget>(dialog, "tableWidget_Conditions").setCurrentCell(0, 0);
    Click(dialog, "pushButton_RemoveCondition");
    PressOk(dialog);
    QCOMPARE(dialog.Edited().Material(), QString("of another library"));
    QVERIFY(dialog.Edited().Conditions().empty());
}

void tst_ProjectProperties::WhatIsWrongKeepsTheDialogOpen_data()
{
    QTest::addColumn<QString>("density");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("problem");
    NewRow("zero", QString("0"), QString("a"), QString("density"));
    NewRow("no number", QString("12,5"), QString("a"), QString("density"));
    NewRow("infinite", QString("inf"), QString("a"), QString("density"));
    NewRow("no expression", QString("1"), QString(), QString("has no expression"));
}

void tst_ProjectProperties::WhatIsWrongKeepsTheDialogOpen()
{
    QFETCH(QString, density);
    QFETCH(QString, expression);
    QFETCH(QString, problem);
    ProjectProperties dialog(Sample(), nullptr);
    dialog.show();
    Find<QLineEdit>(dialog, "lineEdit_Density").setText(density);
    Find<QTableWidget>(dialog, "tableWidget_Conditions").item(0, 0)->setText(expression);
    PressOk(dialog);
    QVERIFY(dialog.isVisible());
    QVERIFY(Find<QLabel>(dialog, "label_Problem").text().contains(problem));
}

TARN_TEST_MAIN(tst_ProjectProperties)
#include "tst_ProjectProperties.moc"
