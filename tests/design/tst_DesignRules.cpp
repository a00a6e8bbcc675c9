#include "DOEDlg.h"
#include "FullFactorial.h"
#include "OneParameterDlgTable.h"
#include "SampleRange.h"
#include "SampleSpacing.h"

// The sampling and DOE dialogs show what SampleRange and FullFactorial calculate: the tests drive
// the dialogs as a user does and compare them with the rules.

namespace {

// A range as typed.
struct TypedRange
{
    QString min;
    QString max;
    QString step;
    int spacing = SampleSpacing::Linear;

    SampleRange Range() const { return {min.toDouble(), max.toDouble(), step.toDouble(), spacing}; }
};

enum Column
{
    TickColumn = 1,
    SetColumn
};

using Lists = std::vector<std::vector<double>>;

QString SixDigits(double value)
{
    return QString::number(value, 'g', 6);
}

QStringList Texts(const std::vector<double>& values)
{
    QStringList texts;
    for (const double value : values)
        texts << SixDigits(value);
    return texts;
}

void TypeRange(const QWidget& dialog, const TypedRange& range)
{
    Click(dialog, TypeButtons[range.spacing]);
    Type(dialog, "lineEdit_Min", range.min);
    Type(dialog, "lineEdit_Max", range.max);
    Type(dialog, "lineEdit_Deta", range.step);
}

// Clicks the left end, where a check box has its indicator.
void ClickCell(const QWidget& dialog, int row, int column)
{
    QWidget& widget = *Find<QTableWidget>(dialog, "tableWidget_Parameters").cellWidget(row, column);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {3, widget.height() / 2});
}

QStringList Runs(const QWidget& dialog)
{
    const auto& table = Find<QTableWidget>(dialog, "tableWidget_Final");
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column)
            texts << table.item(row, column)->text();
        rows << texts.join(' ');
    }
    return rows;
}

QStringList Runs(const FullFactorial& design)
{
    QStringList rows;
    for (std::size_t run = 0; run < design.RunCount(); ++run)
        rows << Texts(design.Run(run)).join(' ');
    return rows;
}

} // namespace

Q_DECLARE_METATYPE(TypedRange)

class tst_DesignRules : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheSamplingDialogShowsTheSamplesOfTheRange_data();
    void TheSamplingDialogShowsTheSamplesOfTheRange();
    void TheSamplingDialogRefusesTheSameRanges_data();
    void TheSamplingDialogRefusesTheSameRanges();
    void TheDoeDialogShowsTheRunsOfTheDesign_data();
    void TheDoeDialogShowsTheRunsOfTheDesign();
    void TheDoeDialogRefusesTheSameDesigns();
};

namespace {

void AddRange(const QString& min, const QString& max, const QString& step)
{
    const QString range = QStringLiteral("%1 to %2 by %3, ").arg(min, max, step);
    const char* const names[] = {"Linear", "Log10", "Ln"};
    for (int spacing = SampleSpacing::Linear; spacing <= SampleSpacing::Ln; ++spacing)
        QTest::newRow(qPrintable(range + names[spacing])) << TypedRange{min, max, step, spacing};
}

} // namespace

void tst_DesignRules::TheSamplingDialogShowsTheSamplesOfTheRange_data()
{
    QTest::addColumn<TypedRange>("range");
    AddRange("0", "1", "0.1");
    AddRange("0", "0.3", "0.1");
    AddRange("0.1", "0.7", "0.1");
    AddRange("1", "2", "0.01");
    AddRange("0", "1", "0.3");
    AddRange("1", "2", "0.7");
    AddRange("0", "100", "7");
    AddRange("0", "3", "1");
    AddRange("-1", "1", "0.5");
    AddRange("-5", "-1", "1.5");
    AddRange("-0.3", "0.3", "0.1");
    AddRange("200.0001", "200.0003", "0.0001");
    AddRange("1e-300", "3e-300", "1e-300");
    AddRange("5e-324", "2e-323", "5e-324");
    AddRange("1e16", "1.0000000000000008e16", "3");
    AddRange("1e300", "9e300", "1e300");
    AddRange("-1.7e308", "1.7e308", "1.7e308");
    AddRange("0", "1000", "0.37");
    AddRange("words", "1", "1");
}

void tst_DesignRules::TheSamplingDialogShowsTheSamplesOfTheRange()
{
    const EmptyDesignStores stores;
    QFETCH(TypedRange, range);
    const std::vector<double> samples = range.Range().Samples();
    QVERIFY(!samples.empty());
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        TypeRange(shown, range);
        QCOMPARE(Rows(shown), Texts(samples));
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(Texts(record.vecValues), Texts(samples));
    QCOMPARE(record.nSampleType, range.spacing);
}

void tst_DesignRules::TheSamplingDialogRefusesTheSameRanges_data()
{
    QTest::addColumn<TypedRange>("range");
    QTest::addColumn<QString>("notice");
    const auto row = [](const char* name, const TypedRange& range, const ShownBox& box) {
        QTest::newRow(name) << range << box.text;
    };
    row("maximum below minimum", {"2", "1", "1"}, BadInput);
    row("maximum at minimum", {"1", "1", "1"}, BadInput);
    row("step 0", {"0", "1", "0"}, BadInput);
    row("step negative", {"0", "1", "-1"}, BadInput);
    row("step is text", {"0", "1", "one"}, BadInput);
    row("step too wide", {"0", "1", "1.1"}, BadInput);
    row("step a little too wide", {"0", "0.3", "0.30000000000000004"}, BadInput);
    row("infinite", {"0", "inf", "1"}, BadInput);
    row("no number", {"nan", "1", "1"}, BadInput);
    row("beyond all numbers", {"0", "1e999", "1"}, BadInput);
    row("too many samples", {"0", "1", "1e-9"}, BadInput);
    row("one sample too many", {"0", "1000000", "1"}, BadInput);
    row("step without effect", {"1e300", "2e300", "1"}, BadInput);
    row("Gauss", {"0", "1", "0.5", SampleSpacing::Gauss}, NoGauss);
    row("Gauss of a bad range", {"2", "1", "1", SampleSpacing::Gauss}, BadInput);
}

void tst_DesignRules::TheSamplingDialogRefusesTheSameRanges()
{
    const EmptyDesignStores stores;
    QFETCH(TypedRange, range);
    QFETCH(QString, notice);
    QVERIFY(range.Range().FindFault() != SampleRange::Fault::None);
    QVERIFY(range.Range().Samples().empty());
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        TypeRange(shown, range);
        QCOMPARE(Rows(shown), QStringList());
        Click(shown, "pushButton_Cancel");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    // Leaving a field may be refused before the range is complete.
    QVERIFY(!user.Boxes().isEmpty());
    QCOMPARE(user.Boxes().last().text, notice);
}

void tst_DesignRules::TheDoeDialogShowsTheRunsOfTheDesign_data()
{
    using Ranges = QVector<TypedRange>;
    QTest::addColumn<Ranges>("ranges");
    QTest::newRow("one parameter") << Ranges{{"0", "1", "0.1"}};
    QTest::newRow("two parameters") << Ranges{{"0", "0.3", "0.1"}, {"10", "30", "10"}};
    QTest::newRow("four parameters") << Ranges{
        {"-1", "1", "0.7"}, {"0", "2", "1"}, {"1e300", "2e300", "1e300"}, {"0", "1", "0.3"}};
    QTest::newRow("logarithms of 0")
        << Ranges{{"0", "2", "1", SampleSpacing::Log10}, {"-1", "1", "1", SampleSpacing::Ln}};
    QTest::newRow("neighbours") << Ranges{{"200.0001", "200.0003", "0.0001"}, {"0", "1", "1"}};
    QTest::newRow("many runs") << Ranges{{"0", "20", "1"}, {"0", "20", "1"}, {"0", "1", "0.1"}};
}

void tst_DesignRules::TheDoeDialogShowsTheRunsOfTheDesign()
{
    const EmptyDesignStores stores;
    QFETCH(QVector<TypedRange>, ranges);
    Lists lists;
    for (int index = 0; index < ranges.size(); ++index) {
        ParametersDef record;
        record.m_strName = QStringLiteral("p%1").arg(index);
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);
        lists.push_back(ranges[index].Range().Samples());
    }
    const FullFactorial design(lists);
    QVERIFY(design.RunCount() > 0);

    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        for (int row = 0; row < ranges.size(); ++row) {
            user.Then([&, row](QDialog& sampling) {
                TypeRange(sampling, ranges[row]);
                Click(sampling, "pushButton_OK");
            });
            ClickCell(shown, row, TickColumn);
            ClickCell(shown, row, SetColumn);
        }
        Click(shown, "pushButton_RefreshData");
        QCOMPARE(Runs(shown), Runs(design));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_DesignRules::TheDoeDialogRefusesTheSameDesigns()
{
    const EmptyDesignStores stores;
    Lists lists(2, std::vector<double>(1001, 1.0));
    QVERIFY(FullFactorial(lists).IsTooLarge());
    for (const char* const name : {"a", "b"}) {
        g_mapParaArrays[name].bChecked = 1;
        g_mapParaArrays[name].vecValues = lists.back();
    }
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    QCOMPARE(user.Boxes(), ShownBoxes({ShownBox::Notice("Notify", "Too many runs")}));
    QCOMPARE(Runs(dialog), QStringList());
}

TARN_TEST_MAIN(tst_DesignRules)
#include "tst_DesignRules.moc"
