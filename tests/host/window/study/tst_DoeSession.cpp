#include "DOEDlg.h"
#include "DesignModel.h"
#include "DoeSession.h"
#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "ModalDriver.h"
#include "TestCase.h"
#include "sParaArrayData.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

class tst_DoeSession : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TicksAreInTheRowsOfTheirParameters();
    void ParametersOutsideTheRunGetTheirRecordsBack();
    void ExpressionsFollowTheRun();
    void ATickedParameterWithAnExpressionKeepsTheRunsValue();
    void ParametersOutsideEveryRunStayThroughSeveralRuns();
    void ATickTakenInTheDialogCounts();
    void TheRunIsCompleteBeforeTheHostHears();
    void TheChannelReportsARunOnce();
    void ProblemsAreReportedAndKept();
    void AParameterRemovedMeanwhileStaysRemoved();
    void AnUntickedParameterGetsItsDesignValueInASecondSession();
    void SetArrayStartsAroundTheValue();
};

static void Add(const QString& name, double value, const char* expression = "",
                const QString& uses = {})
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    record.m_strValue = QString::number(value);
    record.m_strExpression = expression;
    record.m_strExpressPara = uses;
    record.m_strDescription = "about " + name;
    GlobalParaMeterMgr::AddParameter(name, record);
}

/// Four parameters, one of them an expression. Not in the order of their names, which is the
/// registry's.
class BoxInStores : public EmptyDesignStores
{
public:
    BoxInStores()
    {
        Add("width", 10.0);
        Add("depth", 20.0);
        Add("area", 200.0, "width*depth", "width,depth");
        Add("height", 5.0);
    }
};

static void Tick(const QString& name, const std::vector<double>& values)
{
    g_mapParaArrays[name].bChecked = 1;
    g_mapParaArrays[name].strName = name;
    g_mapParaArrays[name].vecValues = values;
}

static double Value(const char* name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

static QCheckBox& TickOf(const QDialog& dialog, int row)
{
    auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
    return *qobject_cast<QCheckBox*>(table.cellWidget(row, 1));
}

// Chooses the run and presses "Generate".
static void Generate(const QDialog& dialog, int row)
{
    Find<QTableWidget>(dialog, "tableWidget_Final").setCurrentCell(row, 0);
    Click(dialog, "pushButton_GenGeo");
}

/// Shows the dialog modally, as a host does, and takes the step in it.
static void Run(DOEDlg& dialog, const std::function<void(QDialog&)>& step)
{
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        step(shown);
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_DoeSession::TicksAreInTheRowsOfTheirParameters()
{
    const BoxInStores stores;
    Tick("depth", {1.0});
    g_mapParaArrays["width"].bChecked = 0;
    DOEDlg dialog(nullptr);
    DesignModel design;
    const DoeSession session(dialog, design);
    auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
    for (int row = 0; row < table.rowCount(); ++row) {
        const bool ticked = table.item(row, 0)->text() == "depth";
        QCOMPARE(TickOf(dialog, row).isChecked(), ticked);
        QCOMPARE(table.cellWidget(row, 2)->isEnabled(), ticked);
    }
}

void tst_DoeSession::ParametersOutsideTheRunGetTheirRecordsBack()
{
    const BoxInStores stores;
    Tick("width", {11.0, 12.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) { Generate(shown, 1); });
    QCOMPARE(Value("width"), 12.0);
    QCOMPARE(Value("depth"), 20.0);
    QCOMPARE(Value("height"), 5.0);
    const ParametersDef& height = GlobalParaMeterMgr::m_nameMapParameters.at("height");
    QCOMPARE(height.m_strValue, QString("5"));
    QVERIFY(!height.m_varRawValue.isValid());
}

void tst_DoeSession::ExpressionsFollowTheRun()
{
    const BoxInStores stores;
    Tick("width", {11.0, 12.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    QCOMPARE(Value("area"), 220.0);
}

void tst_DoeSession::ATickedParameterWithAnExpressionKeepsTheRunsValue()
{
    const BoxInStores stores;
    Add("volume", 0.0, "area*height", "area,height");
    Tick("area", {7.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    QCOMPARE(Value("area"), 7.0);
    QCOMPARE(Value("volume"), 35.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at("area").m_strExpression,
             std::string("width*depth"));
}

void tst_DoeSession::ParametersOutsideEveryRunStayThroughSeveralRuns()
{
    const BoxInStores stores;
    Tick("width", {11.0, 12.0});
    Tick("depth", {21.0, 22.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) {
        Generate(shown, 0);
        Generate(shown, 3);
    });
    QCOMPARE(Value("width"), 12.0);
    QCOMPARE(Value("depth"), 22.0);
    QCOMPARE(Value("area"), 264.0);
    QCOMPARE(Value("height"), 5.0);
}

void tst_DoeSession::ATickTakenInTheDialogCounts()
{
    const BoxInStores stores;
    Tick("width", {11.0});
    g_mapParaArrays["height"].strName = "height";
    g_mapParaArrays["height"].vecValues = {6.0};
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) {
        QTest::mouseClick(&TickOf(shown, 3), Qt::LeftButton, {}, QPoint(5, 10));
        Generate(shown, 0);
    });
    QCOMPARE(g_mapParaArrays["height"].bChecked, 1);
    QCOMPARE(Value("height"), 6.0);
    QCOMPARE(Value("width"), 11.0);
}

void tst_DoeSession::TheRunIsCompleteBeforeTheHostHears()
{
    const BoxInStores stores;
    Tick("width", {11.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    QVector<double> heard;
    connect(&design, &DesignModel::Changed, this,
            [&] { heard << Value("width") << Value("area") << Value("height"); });
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    QCOMPARE(heard, QVector<double>({11.0, 220.0, 5.0}));
}

void tst_DoeSession::TheChannelReportsARunOnce()
{
    const BoxInStores stores;
    Tick("width", {11.5});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    const QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages[0][0].toInt(), 0);
    QCOMPARE(messages[0][1].toString(),
             QString("Run taken: width = 11.5. The other parameters, 3 of them, have their values "
                     "of the design."));
}

void tst_DoeSession::ProblemsAreReportedAndKept()
{
    const BoxInStores stores;
    Add("bad", 1.0, "x", "x");
    Tick("width", {11.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    const QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    const QString problem = "bad: its expression uses \"x\", which is not a parameter";
    QCOMPARE(design.ReasonFor("bad"), problem.mid(5));
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages[0][0].toInt(), 2);
    QCOMPARE(messages[0][1].toString(), problem);
}

void tst_DoeSession::AParameterRemovedMeanwhileStaysRemoved()
{
    const BoxInStores stores;
    Tick("width", {11.0});
    DOEDlg dialog(nullptr);
    DesignModel design;
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) {
        GlobalParaMeterMgr::m_nameMapParameters.erase("height");
        Generate(shown, 0);
    });
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(),
             std::vector<QString>({"width", "depth", "area"}));
    QCOMPARE(Value("area"), 220.0);
}

void tst_DoeSession::AnUntickedParameterGetsItsDesignValueInASecondSession()
{
    const BoxInStores stores;
    Tick("width", {11.0, 12.0});
    DesignModel design;
    {
        DOEDlg dialog(nullptr);
        DoeSession session(dialog, design);
        Run(dialog, [](QDialog& shown) { Generate(shown, 1); });
    }
    g_mapParaArrays["width"].bChecked = 0;
    Tick("depth", {30.0});
    DOEDlg dialog(nullptr);
    DoeSession session(dialog, design);
    Run(dialog, [](QDialog& shown) { Generate(shown, 0); });
    QCOMPARE(Value("width"), 10.0);
    QCOMPARE(Value("depth"), 30.0);
    QCOMPARE(Value("area"), 300.0);
    QCOMPARE(Value("height"), 5.0);
}

void tst_DoeSession::SetArrayStartsAroundTheValue()
{
    const BoxInStores stores;
    g_mapParaArrays["height"].bChecked = 1;
    DesignModel design;
    DOEDlg dialog(nullptr);
    DoeSession session(dialog, design);
    const QSignalSpy edited(&session, &DoeSession::SamplesEdited);
    ModalDriver user;
    user.Then([](QDialog& shown) {
        auto& table = Find<QTableWidget>(shown, "tableWidget_Parameters");
        QTest::mouseClick(table.cellWidget(3, 2), Qt::LeftButton);
        shown.reject();
    });
    user.Then([](QDialog& sampling) {
        QCOMPARE(Find<QLineEdit>(sampling, "lineEdit_Min").text(), QString("4"));
        QCOMPARE(Find<QLineEdit>(sampling, "lineEdit_Max").text(), QString("6"));
        Click(sampling, "pushButton_OK");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(g_mapParaArrays["height"].vecValues, std::vector<double>({4, 5, 6}));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited[0][0].toString(), QString("Samples of \"height\""));
}

TARN_TEST_MAIN(tst_DoeSession)
#include "tst_DoeSession.moc"
