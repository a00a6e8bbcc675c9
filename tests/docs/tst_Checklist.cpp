#include "Checklist.h"
#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <MirrorDialog.h>

#include <limits>

// The functions that the manual offers to hosts.
class tst_Checklist : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheProcessIsSetUp();
    void AFolderGetsTheSystemLibrary();
    void TheStoresAreEmptiedAndRead();
    void NumbersAreChecked();
    void ADialogOfAMainWindowIsItsChild();
    void ButtonsCloseTheDialog();
    void ARenamedSupportFreesItsName();
    void AParameterChangesThoseThatUseIt();
    void TicksAreOnTheirRows();
    void APathWithBlanksIsFound();
};

void tst_Checklist::TheProcessIsSetUp()
{
    SetUpTheProcess();
    QCOMPARE(QString::fromLatin1(std::setlocale(LC_NUMERIC, nullptr)), QStringLiteral("C"));
    QVERIFY(!QFont::substitutes(QStringLiteral("微软雅黑")).isEmpty());
}

void tst_Checklist::AFolderGetsTheSystemLibrary()
{
    const QString folder = EnterTemporaryDirectory();
    QVERIFY(EnterFolder(folder));
    QVERIFY(EnterFolder(folder));
    QVERIFY(!EnterFolder(folder + QStringLiteral("/missing")));
    QCOMPARE(KVMaterialData::GetInstance()->ReadXML("SysMaterial.xml", MATERIAL_SYSTEM), 0);
    QCOMPARE(ModulusOf(QStringLiteral("Steel S355")), QStringLiteral("2.1e11"));
    KVMaterialData::GetInstance()->ClearInfo();
    QVERIFY(ModulusOf(QStringLiteral("Steel S355")).isEmpty());
}

void tst_Checklist::TheStoresAreEmptiedAndRead()
{
    const EmptyAnalysisStores analysis;
    const EmptyDesignStores design;
    QVERIFY(EnterFolder(EnterTemporaryDirectory()));
    Put(QStringLiteral("UserMaterial.xml"), "<Materials version=\"99\" units=\"SI\"/>");
    GlobalParaMeterMgr::AddParameter(QStringLiteral("old"), ParametersDef());
    g_mapParaArrays[QStringLiteral("old")].bChecked = 1;
    AttributeCommonMgr::GetInstance()->AddName("old");
    auto* const material = new KVMaterialInfo;
    material->m_strName = QStringLiteral("old");
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
    KVPropertyData::GetInstance()->AddPropInfo(new CQLTElemPropDef);

    QCOMPARE(OpenTheStores(), QStringList(QStringLiteral("UserMaterial.xml")));
    QVERIFY(GlobalParaMeterMgr::m_nameMapParameters.empty());
    QVERIFY(g_mapParaArrays.empty());
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName("old"));
    QVERIFY(KVMaterialData::GetInstance()->GetMaterialInfo(QStringLiteral("old")) == nullptr);
    QVERIFY(KVPropertyData::GetInstance()->GetProptyDataMap().empty());
    QVERIFY(!ModulusOf(QStringLiteral("Steel S355")).isEmpty());
    QVERIFY(QFile::remove(QStringLiteral("UserMaterial.xml")));
    QCOMPARE(OpenTheStores(), QStringList());
}

void tst_Checklist::NumbersAreChecked()
{
    QVERIFY(IsLength(0.5));
    QVERIFY(!IsLength(0.0));
    QVERIFY(!IsLength(QStringLiteral("nan").toDouble()));
    QVERIFY(!IsLength(QStringLiteral("1e999").toDouble()));
    QVERIFY(IsDirection(gp_Dir(0.0, 1.0, 2.0)));
    QVERIFY(!IsDirection(gp_Dir(std::numeric_limits<double>::infinity(), 0.0, 1.0)));
    QVERIFY(!IsDirection(gp_Dir(0.0, std::numeric_limits<double>::quiet_NaN(), 1.0)));
}

void tst_Checklist::ADialogOfAMainWindowIsItsChild()
{
    QWidget window;
    MirrorDialog dialog(nullptr);
    PutOver(dialog, window);
    QCOMPARE(dialog.parentWidget(), &window);
    QVERIFY(dialog.isWindow());
}

void tst_Checklist::ButtonsCloseTheDialog()
{
    SubShapeMeshParameterDlg dialog(nullptr);
    ConnectButtons(dialog);
    dialog.show();
    QTest::mouseClick(dialog.ui.pushButton_OK, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    QTest::mouseClick(dialog.ui.pushButton_Cancel, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_Checklist::ARenamedSupportFreesItsName()
{
    AttributeCommonMgr& names = *AttributeCommonMgr::GetInstance();
    names.AddName("bolts");
    RenameSupport("bolts", "flange");
    QVERIFY(!names.FindName("bolts"));
    QVERIFY(names.FindName("flange"));
    names.Clear();
}

void tst_Checklist::AParameterChangesThoseThatUseIt()
{
    ParametersDef length;
    length.m_strName = QStringLiteral("length");
    length.m_nType = ParametersDef::ScalarType;
    ParametersDef half = length;
    half.m_strName = QStringLiteral("half");
    half.m_strExpression = "length / 2";
    GlobalParaMeterMgr::AddParameter(length.m_strName, length);
    GlobalParaMeterMgr::AddParameter(half.m_strName, half);

    QCOMPARE(SetParameter(length.m_strName, 5.0), QStringList());
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue(half.m_strName).toDouble(), 2.5);
    GlobalParaMeterMgr::m_nameMapParameters.at(half.m_strName).m_strExpression = "missing / 2";
    QCOMPARE(SetParameter(length.m_strName, 6.0).size(), 1);
    GlobalParaMeterMgr::m_nameMapParameters.clear();
}

void tst_Checklist::TicksAreOnTheirRows()
{
    const EmptyDesignStores stores;
    const QString last = QStringLiteral("last");
    for (const QString& name : {QStringLiteral("first"), last})
        GlobalParaMeterMgr::AddParameter(name, ParametersDef());
    for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        record.m_strName = name;
    g_mapParaArrays[last].bChecked = 1;
    g_mapParaArrays[last].strName = last;

    DOEDlg dialog(nullptr);
    ShowTicks(dialog);
    auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
    for (int row = 0; row < 2; ++row) {
        const bool isLast = table.item(row, 0)->text() == last;
        QCOMPARE(qobject_cast<QCheckBox*>(table.cellWidget(row, 1))->isChecked(), isLast);
        QCOMPARE(table.cellWidget(row, 2)->isEnabled(), isLast);
    }
}

void tst_Checklist::APathWithBlanksIsFound()
{
    QVERIFY(IsSplit(QStringLiteral("/x/my tools/nastran")));
    QVERIFY(!IsSplit(QStringLiteral("/x/tools/nastran")));
}

TARN_TEST_MAIN(tst_Checklist)
#include "tst_Checklist.moc"
