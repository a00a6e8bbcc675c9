#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FileChoice.h"
#include "MenuUser.h"
#include "ParameterPanel.h"
#include "ParameterRows.h"
#include "TestFiles.h"

#include <QClipboard>
#include <QSignalSpy>

class tst_ParameterPanel : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ANewParameterAwaitsItsName();
    void DeleteAsksForTheRemovalOfTheSelection();
    void SelectedRowsMove_data();
    void SelectedRowsMove();
    void CopiedParametersArePasted();
    void BadTextIsNotPasted();
    void ATableIsExportedAndImported();
    void AFileThatCannotBeReadIsReported();
};

namespace {

struct Shown
{
    Shown()
    {
        model.Open({});
        panel.resize(900, 300);
        panel.show();
        panel.activateWindow();
        if (!QTest::qWaitForWindowActive(&panel))
            FailTest("The panel does not become active");
    }

    QString Names() const
    {
        QString names;
        for (const QString& name : GlobalParaMeterMgr::GetAllParametersName())
            names += name;
        return names;
    }

    DesignModel model;
    ParameterPanel panel{model, nullptr};
    ParameterTable& table = Find<ParameterTable>(panel, "parameterTable");
};

} // namespace

void tst_ParameterPanel::ANewParameterAwaitsItsName()
{
    Store("a", "1");
    Shown shown;
    Trigger(shown.panel, "action_AddParameter");
    QCOMPARE(shown.table.rowCount(), 2);
    auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(edit != nullptr);
    TypeText(*edit, "breite");
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(shown.Names(), QString("abreite"));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("breite").toDouble(), 0.0);
}

void tst_ParameterPanel::DeleteAsksForTheRemovalOfTheSelection()
{
    for (const QString& name : {QString("a"), QString("b,c"), QString("d")})
        Store(name, "1");
    Shown shown;
    const QSignalSpy wanted(&shown.panel, &ParameterPanel::RemovalWanted);
    QVERIFY(!FindAction(shown.panel, "action_RemoveParameters").isEnabled());
    shown.table.SelectNames({"a", "b,c"});
    shown.table.setFocus();
    QTest::keyClick(&shown.table, Qt::Key_Delete);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted[0][0].toStringList(), QStringList({"a", "b,c"}));
}

void tst_ParameterPanel::SelectedRowsMove_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("order");
    const QByteArray up = "action_ParametersUp";
    const QByteArray down = "action_ParametersDown";
    NewRow("up", QStringList({"c"}), up, QString("acbd"));
    NewRow("down", QStringList({"b"}), down, QString("acbd"));
    NewRow("two together", QStringList({"b", "c"}), up, QString("bcad"));
    NewRow("apart", QStringList({"a", "c"}), down, QString("badc"));
    NewRow("at the top", QStringList({"a"}), up, QString("abcd"));
    NewRow("group at the end", QStringList({"c", "d"}), down, QString("abcd"));
}

void tst_ParameterPanel::SelectedRowsMove()
{
    QFETCH(QStringList, names);
    QFETCH(QByteArray, action);
    for (const char* const name : {"a", "b", "c", "d"})
        Store(name, "1");
    Shown shown;
    shown.table.SelectNames(names);
    Trigger(shown.panel, action.constData());
    QTEST(shown.Names(), "order");
    QCOMPARE(shown.table.SelectedNames(), names);
}

void tst_ParameterPanel::CopiedParametersArePasted()
{
    Store("a", "-1.5");
    Store("b", "a*2");
    Store("v", "1, 2, 3", ParametersDef::VectorType);
    Shown shown;
    Trigger(shown.panel, "action_CopyParameters");
    const QString text = QGuiApplication::clipboard()->text();
    QVERIFY2(text.contains("b\tScalar\ta*2\t"), qPrintable(text));
    shown.model.Edit({}, "test");
    Trigger(shown.panel, "action_PasteParameters");
    QCOMPARE(shown.Names(), QString("abv"));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("b").toDouble(), -3.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at("v").m_dZ, 3.0);
}

void tst_ParameterPanel::BadTextIsNotPasted()
{
    Store("a", "1");
    Shown shown;
    const QSignalSpy edited(&shown.model, &DesignModel::Edited);
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QGuiApplication::clipboard()->setText("good\t1\nnot a name\t2\n");
    Trigger(shown.panel, "action_PasteParameters");
    QCOMPARE(edited.count(), 0);
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains("row 2: \"not a name\" is not a name"));
}

void tst_ParameterPanel::ATableIsExportedAndImported()
{
    const QString directory = EnterTemporaryDirectory();
    Store("长", "0.1");
    Shown shown;
    ModalDriver user;
    ChooseFile(user, directory + "/table");
    Trigger(shown.panel, "action_ExportParameters");
    QCOMPARE(QString::fromUtf8(ContentOf("table.csv")),
             QString("name,type,value,unit,description\n长,Scalar,0.1,,\n"));
    Put("table.csv", "name,value,unit\n长,2,mm\nb,长*2,mm\n");
    ChooseFile(user, directory + "/table.csv");
    Trigger(shown.panel, "action_ImportParameters");
    QVERIFY(user.IsDone());
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("b").toDouble(), 4.0);
    QCOMPARE(shown.model.Design()[1].unit, QString("mm"));
}

void tst_ParameterPanel::AFileThatCannotBeReadIsReported()
{
    const QString directory = EnterTemporaryDirectory();
    Put("table.csv", "name,value\na,\n");
    Shown shown;
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    ChooseFile(user, directory + "/table.csv");
    Trigger(shown.panel, "action_ImportParameters");
    QVERIFY(user.IsDone());
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains("row 2: a value is missing"));
    QCOMPARE(shown.Names(), QString());
}

TARN_TEST_MAIN(tst_ParameterPanel)
#include "tst_ParameterPanel.moc"
