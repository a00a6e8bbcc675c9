#include "SampleStudy.h"

#include "BuiltInFiles.h"
#include "OptimumPage.h"
#include "OptimumTable.h"
#include "Project.h"
#include "ResultsFile.h"
#include "StudyTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace {

template<class Widget>
Widget& Find(const QWidget& parent, const char* name)
{
    return *parent.findChild<Widget*>(QString::fromLatin1(name));
}

void Choose(const QWidget& plot, const char* box, const QString& column)
{
    auto& choice = Find<QComboBox>(plot, box);
    choice.setCurrentText(column);
    Q_EMIT choice.activated(choice.currentIndex());
}

const QString Bolts = QStringLiteral("bolt_count");
const QString Thickness = QStringLiteral("thickness");
const QString Mass = QStringLiteral("mass_kg");
const QString Frequency = QStringLiteral("f1_hz");

void TakeRuns(StudyTable& table, const QString& file)
{
    const ResultColumns runs = ReadResults(BuiltInPath(QStringLiteral("samples/lightest/") + file));
    const Project project = Project::Load(Project::SamplePath());
    // The file has no units.
    ResultColumns columns(runs.Names().mid(0, runs.ParameterCount()), runs.ResultNames(),
                          project.Units());
    columns.Take(runs);
    table.Take(columns);
}

void FindOptimum(OptimumPage& page)
{
    page.Refresh(); // Lists the columns.
    Choose(page, "comboBox_Goal", Mass);
    auto& rows = Find<OptimumTable>(page, "optimumTable");
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QString name = rows.item(row, OptimumTable::NameColumn)->text();
        if (name == Frequency)
            rows.item(row, OptimumTable::LeastColumn)->setText(QStringLiteral("4000"));
        else if (name == Bolts)
            rows.item(row, OptimumTable::WholeColumn)->setCheckState(Qt::Checked);
    }
    Find<QPushButton>(page, "pushButton_FindOptimum").click();
}

void ChooseColumns(const QWidget& plot, const QStringList& columns)
{
    const QList<QAction*> actions = Find<QToolButton>(plot, "columnPicker").menu()->actions();
    for (QAction* const action : actions) {
        if (action->isChecked() != columns.contains(action->data().toString()))
            action->trigger();
    }
}

} // namespace

void FillSampleStudy(StudyTable& table)
{
    TakeRuns(table, QStringLiteral("results.csv"));
    table.SetInputs({Bolts, Thickness});
}

void AddVerifyingRun(StudyTable& table)
{
    TakeRuns(table, QStringLiteral("verified.csv"));
}

void PrepareSamplePlots(const QWidget& results)
{
    FindOptimum(Find<OptimumPage>(results, "optimumPage"));
    for (const char* const name : {"scatterMatrix", "scatterPlot", "mainEffectsPlot"})
        Find<StudyPlot>(results, name).Refresh();
    ChooseColumns(Find<StudyPlot>(results, "scatterMatrix"), {Bolts, Thickness, Mass, Frequency});
    const auto& scatter = Find<StudyPlot>(results, "scatterPlot");
    Choose(scatter, "comboBox_X", Mass);
    Choose(scatter, "comboBox_Y", Frequency);
    Find<QCheckBox>(scatter, "checkBox_Front").click();
    Find<QComboBox>(scatter, "comboBox_YAim").setCurrentIndex(1); // The greatest.
    Choose(Find<StudyPlot>(results, "mainEffectsPlot"), "comboBox_Response", Frequency);
}
