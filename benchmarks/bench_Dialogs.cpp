#include "ArcArrayDlg.h"
#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTLoadForceEditor.h"
#include "DOEDlg.h"
#include "ELementPropGUI.h"
#include "ExternalSolverOption.h"
#include "ExtrudInputDlg.h"
#include "KVMaterialLibrary.h"
#include "MatrixArrayDlg.h"
#include "MeshSizeInput.h"
#include "MirrorDialog.h"
#include "MoveInput.h"
#include "OneParameterDlg.h"
#include "ParameterEditor.h"
#include "PolygonNumInputDlg.h"
#include "SubShapeMeshParameterDlg.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "frequencySetting.h"
#include "rotateInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <type_traits>

// Constructing and destroying each dialog, against its form set up in a bare dialog. The stores are
// empty and there are no files, so that what is measured is the dialog itself.

namespace {

// A bare dialog has none of the slots that a form may connect to; being told so is no part of the
// comparison.
void DropMessages(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    Q_UNUSED(type)
    Q_UNUSED(context)
    Q_UNUSED(text)
}

template<class Dialog>
void Construct(benchmark::State& state)
{
    for (auto _ : state) {
        if constexpr (std::is_same_v<Dialog, OneParameterDlg>) {
            Dialog dialog(nullptr, QStringLiteral("a"));
            benchmark::DoNotOptimize(&dialog);
        } else {
            Dialog dialog(nullptr);
            benchmark::DoNotOptimize(&dialog);
        }
    }
}

template<class Form>
void SetUpForm(benchmark::State& state)
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
    const auto run = [&name](const char* side, void (*function)(benchmark::State&)) {
        benchmark::RegisterBenchmark((name + side + "/1").c_str(), function)
            ->Unit(benchmark::kMicrosecond);
    };
    run("/ours", Construct<Dialog>);
    run("/reference", SetUpForm<Form>);
}

void RegisterAll()
{
    Register<ArcArrayDlg, Ui::ArcArrayDlg>("ArcArrayDlg");
    Register<CAnalysisTypeGUI, Ui::CAnalysisTypeGUI>("CAnalysisTypeGUI");
    Register<CQLTConstrainEditor, Ui::QLTConstrainEditor>("CQLTConstrainEditor");
    Register<CQLTElePropertyEditor, Ui::QLTElemProperty>("CQLTElePropertyEditor");
    Register<CQLTLoadForceEditor, Ui::QLTLoadForceEditor>("CQLTLoadForceEditor");
    Register<DOEDlg, Ui::DOEDlg>("DOEDlg");
    Register<ELementPropGUI, Ui::ELementPropGUI>("ELementPropGUI");
    Register<ExternalSolverOption, Ui::ExternalSolverOption>("ExternalSolverOption");
    Register<ExtrudInputDlg, Ui::ExtrudInputDlg>("ExtrudInputDlg");
    Register<KVMaterialLibrary, Ui::KVMaterialLibrary>("KVMaterialLibrary");
    Register<MatrixArrayDlg, Ui::MatrixArrayDlg>("MatrixArrayDlg");
    Register<MeshSizeInput, Ui::MeshSizeInput>("MeshSizeInput");
    Register<MirrorDialog, Ui::MirrorDialog>("MirrorDialog");
    Register<MoveInput, Ui::MoveInput>("MoveInput");
    Register<OneParameterDlg, Ui::OneParameterDlg>("OneParameterDlg");
    Register<ParameterEditor, Ui::ParameterEditor>("ParameterEditor");
    Register<PolygonNumInputDlg, Ui::PolygonNumInputDlg>("PolygonNumInputDlg");
    Register<SubShapeMeshParameterDlg, Ui::SubShapeMeshParameterDlg>("SubShapeMeshParameterDlg");
    Register<TruncatedConeInputDlg, Ui::TruncatedConeInputDlg>("TruncatedConeInputDlg");
    Register<WedgeInputDlg, Ui::WedgeInputDlg>("WedgeInputDlg");
    Register<frequencySetting, Ui::frequencySetting>("frequencySetting");
    Register<rotateInputDlg, Ui::rotateInputDlg>("rotateInputDlg");
    Register<sphereParaInputdlg, Ui::sphereParaInputdlg>("sphereParaInputdlg");
    Register<torusParaInputDlg, Ui::torusParaInputDlg>("torusParaInputDlg");
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(DropMessages);
    QApplication application(argc, argv);
    const QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RegisterAll();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
