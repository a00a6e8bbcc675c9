#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTLoadForceEditor.h"
#include "MeshSizeInput.h"
#include "SubShapeMeshParameterDlg.h"
#include "frequencySetting.h"

#include <QApplication>

#include <benchmark/benchmark.h>

// Making and destroying each dialog, against its bare form on a plain QDialog.

namespace {

template<class Dialog>
void Make(benchmark::State& state)
{
    for (auto _ : state) {
        Dialog dialog(nullptr);
        benchmark::DoNotOptimize(&dialog);
    }
}

template<class Form>
void SetUp(benchmark::State& state)
{
    for (auto _ : state) {
        QDialog dialog;
        Form form;
        form.setupUi(&dialog);
        benchmark::DoNotOptimize(&form);
    }
}

template<class Dialog, class Form>
void Register(const std::string& name)
{
    benchmark::RegisterBenchmark((name + "/ours").c_str(), Make<Dialog>);
    benchmark::RegisterBenchmark((name + "/reference").c_str(), SetUp<Form>);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Register<CAnalysisTypeGUI, Ui::CAnalysisTypeGUI>("CAnalysisTypeGUI");
    Register<CQLTConstrainEditor, Ui::QLTConstrainEditor>("CQLTConstrainEditor");
    Register<CQLTLoadForceEditor, Ui::QLTLoadForceEditor>("CQLTLoadForceEditor");
    Register<MeshSizeInput, Ui::MeshSizeInput>("MeshSizeInput");
    Register<SubShapeMeshParameterDlg, Ui::SubShapeMeshParameterDlg>("SubShapeMeshParameterDlg");
    Register<frequencySetting, Ui::frequencySetting>("frequencySetting");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
