#include "DesignModel.h"
#include "DrawerOutput.h"
#include "EditorSession.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "ModalDriver.h"
#include "ParameterEditor.h"
#include "TestCase.h"

#include <QSignalSpy>
#include <QTableWidget>

class tst_EditorSession : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AnOkWithoutChangesKeepsEverything();
    void ARowBelowARefusedVectorIsTaken();
    void UsedParametersStandBesideTheExpression();
    void ApplyIsOneEdit();

private:
    static void Edit(DesignModel& model, const std::function<void(QDialog&)>& step)
    {
        ParameterEditor editor(nullptr);
        editor.m_Slot_RefreshGUI();
        const EditorSession session(editor, model);
        ModalDriver user;
        user.Then(step);
        editor.exec();
        QVERIFY(user.IsDone());
        user.Boxes();
    }
};

namespace {

enum Column
{
    NameColumn,
    ValueColumn,
    TypeColumn,
    ExpressionColumn
};

ParameterEntry Entry(const QString& name, const QString& value,
                     int type = ParametersDef::ScalarType, const QString& unit = {})
{
    ParameterEntry entry = NewParameter(name);
    entry.SetType(type);
    entry.SetValueText(value);
    entry.unit = unit;
    return entry;
}

} // namespace

void tst_EditorSession::AnOkWithoutChangesKeepsEverything()
{
    DesignModel model;
    model.Replace({Entry("on", "true", ParametersDef::BoolType),
                   Entry("v", "-1.5, 2e-7, 0.30000000000000004", ParametersDef::VectorType),
                   Entry("a", "0.30000000000000004", ParametersDef::ScalarType, "mm"),
                   Entry("b", "a*2"), Entry("t", "1 0; 0 1", ParametersDef::TensorType)});
    const ParameterEntries before = model.Design();
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Edit(model, [](QDialog& editor) { Click(editor, "pushButton_OK"); });
    QVERIFY(model.Design() == before);
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("on").toDouble(), 1.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at("v").m_dX, -1.5);
    QCOMPARE(posted.count(), 0);
}

void tst_EditorSession::ARowBelowARefusedVectorIsTaken()
{
    DesignModel model;
    model.Replace({Entry("v", "1, 2, 3", ParametersDef::VectorType), Entry("a", "4")});
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Edit(model, [](QDialog& editor) {
        auto& table = Find<QTableWidget>(editor, "tableWidget");
        table.item(0, ValueColumn)->setText("");
        table.item(1, ValueColumn)->setText("5");
        Click(editor, "pushButton_OK");
    });
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at("v").m_dZ, 3.0);
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a").toDouble(), 5.0);
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().startsWith("The parameter \"v\" was not changed: "));
}

void tst_EditorSession::UsedParametersStandBesideTheExpression()
{
    DesignModel model;
    model.Replace({Entry("a", "4"), Entry("b", "1")});
    Edit(model, [](QDialog& editor) {
        auto& table = Find<QTableWidget>(editor, "tableWidget");
        table.item(1, ExpressionColumn)->setText("a/2");
        Click(editor, "pushButton_Apply");
        QCOMPARE(table.item(1, ExpressionColumn + 1)->text(), QString("a"));
        QCOMPARE(table.item(1, ValueColumn)->text(), QString("2"));
        Click(editor, "pushButton_Cancel");
    });
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("b").toDouble(), 2.0);
}

void tst_EditorSession::ApplyIsOneEdit()
{
    DesignModel model;
    model.Replace({Entry("a", "4")});
    const QSignalSpy edited(&model, &DesignModel::Edited);
    Edit(model, [](QDialog& editor) {
        Click(editor, "pushButton_Apply");
        Click(editor, "pushButton_OK");
    });
    QCOMPARE(edited.count(), 2);
}

TARN_TEST_MAIN(tst_EditorSession)
#include "tst_EditorSession.moc"
