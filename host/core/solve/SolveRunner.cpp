#include "SolveRunner.h"

#include "GlobalParaMeterMgr.h"
#include "MaterialLibrary.h"
#include "NumberTexts.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "SolveFolder.h"
#include "SolveTables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

const QLatin1String SolveRunner::ModesName("modes.csv");
const QLatin1String SolveRunner::StaticName("static.csv");

SolveRunner::SolveRunner(const Project& project, Options options,
                         std::function<void(const QString&)> tell)
    : m_project(project)
    , m_options(std::move(options))
    , m_tell(std::move(tell))
{
}

SolveResultPointer SolveRunner::Run()
{
    ChooseParameters();
    const QString folder = QFileInfo(m_options.directory).absoluteFilePath();
    ReadMaterials(m_project.Folder());
    PartRequest part;
    part.wantsShapes = false;
    part.plan = m_project.Plan();
    const SolveInput input{part,
                           AnalysisPlanner(m_project.Analysis(), m_project.Material()),
                           folder,
                           m_options.isStatic,
                           m_options.isWithoutRun,
                           AnalysisTools::Stored(),
                           m_options.resultsFolder};

    auto result = std::make_shared<SolveResult>();
    if (!QDir().mkpath(folder)) {
        result->outcome = SolveResult::FolderFailed;
        result->problem = QStringLiteral("%1: cannot create the folder").arg(m_options.directory);
        return result;
    }
    const SolveFolder files(folder);
    for (const QLatin1String name : {ModesName, StaticName})
        QFile::remove(files.PathOf(name));

    KernelWorker worker;
    SolveJob job(worker);
    QObject::connect(&job, &SolveJob::StageChanged, &job, m_options.enter);
    QObject::connect(&job, &SolveJob::Progressed, &job, m_tell);
    *result = *job.Run(input);
    for (const QString& warning : qAsConst(result->warnings))
        m_tell(tr("warning: %1").arg(warning));
    if (result->outcome == SolveResult::Done && !m_options.isWithoutRun) {
        WriteTables(files, *result);
        TellResult(*result);
    }
    return result;
}

void SolveRunner::ChooseParameters() const
{
    m_project.FillParameterStore();
    ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    for (const auto& [name, value] : m_options.values) {
        const auto refuse = [chosen = name](const QString& reason) {
            throw HostError(QStringLiteral("--set %1: %2").arg(chosen.simplified(), reason));
        };
        const auto found = store.find(name);
        if (found == store.end())
            refuse(QStringLiteral("the project has no parameter of that name"));
        ParametersDef& record = found->second;
        if (!record.m_strExpression.empty())
            refuse(QStringLiteral("the parameter has an expression; set one that it depends on"));
        if (record.m_nType != ParametersDef::ScalarType &&
            record.m_nType != ParametersDef::BoolType)
            refuse(QStringLiteral("the parameter is not a number"));
        record.m_dValue = value;
        record.m_varRawValue = value;
        record.m_strValue = ExactText(value);
    }
    const std::vector<QString> problems = ParameterEvaluator::Evaluate().messages;
    if (!problems.empty())
        throw HostError(QStringLiteral("%1: %2").arg(
            m_project.Path(),
            QStringList(problems.begin(), problems.end()).join(QStringLiteral("; ")).simplified()));
}

void SolveRunner::WriteTables(const SolveFolder& files, SolveResult& result) const
{
    try {
        if (m_options.isStatic)
            files.Write(StaticName, StaticCsv(result));
        else
            files.Write(ModesName, ModesCsv(result));
    } catch (const FolderError& error) {
        result.outcome = SolveResult::FolderFailed;
        result.problem = error.Reason();
    }
}

void SolveRunner::TellResult(const SolveResult& result) const
{
    if (m_options.isStatic) {
        m_tell(tr("greatest displacement %1 mm, greatest von Mises stress %2 MPa")
                   .arg(ShortText(result.statics.maximumDisplacement),
                        ShortText(result.statics.maximumStress)));
        return;
    }
    int number = 0;
    for (const Mode& mode : result.modes)
        m_tell(tr("mode %1: %2 Hz").arg(++number).arg(ShortText(mode.frequency)));
    if (result.modes.empty())
        m_tell(tr("no modes in the range of frequencies"));
}
