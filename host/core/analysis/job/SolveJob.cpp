#include "SolveJob.h"

#include "MeshEstimate.h"
#include "MeshFile.h"
#include "ModelBuilder.h"
#include "NastranDeck.h"
#include "NumberTexts.h"
#include "SolverDeck.h"
#include "SolverVerdict.h"

#include <QEventLoop>

#include <algorithm>

namespace {

// A displacement beyond this many sizes of the part is the sign of a mechanism.
constexpr double GreatestDisplacement = 1000.0;

/// The end of a job that was given up.
class Cancelled : public HostError
{
public:
    using HostError::HostError;
};

double SizeOf(const Mesh& mesh)
{
    Vector3 least = mesh.nodes.front();
    Vector3 greatest = least;
    for (const Vector3& node : mesh.nodes) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            least[axis] = std::min(least[axis], node[axis]);
            greatest[axis] = std::max(greatest[axis], node[axis]);
        }
    }
    return Length(greatest - least);
}

} // namespace

SolveJob::SolveJob(KernelWorker& worker, QObject* parent)
    : QObject(parent)
    , m_worker(worker)
{
    connect(&m_worker, &KernelWorker::Finished, this, [this](const PartReply& reply) {
        if (!m_isBuilding)
            return;
        m_isBuilding = false;
        m_result->part = reply;
        Try([&] {
            if (reply.outcome != PartReply::Done)
                throw HostError(reply.Reason());
            MakeMesh();
        });
    });
    connect(&m_tool, &ToolProcess::Finished, this,
            [this](const ToolEnd& end) { Try([&] { m_afterTool(end); }); });
}

SolveJob::~SolveJob()
{
    if (m_isBuilding)
        m_worker.Discard();
}

void SolveJob::Start(const SolveInput& input)
{
    m_input = std::make_unique<SolveInput>(input);
    m_result = std::make_shared<SolveResult>();
    m_folder = SolveFolder(input.folder);
    m_isCancelled = false;
    Try([this] {
        m_folder.Clear();
        Build();
    });
}

void SolveJob::Cancel()
{
    if (!IsBusy())
        return;
    m_isCancelled = true;
    if (m_isBuilding)
        m_worker.Cancel();
    m_tool.Cancel();
}

SolveResultPointer SolveJob::Run(const SolveInput& input)
{
    SolveResultPointer result;
    QEventLoop loop;
    connect(this, &SolveJob::Finished, &loop,
            [target = &result, waiting = &loop](const SolveResultPointer& finished) {
                *target = finished;
                waiting->quit();
            });
    Start(input);
    loop.exec();
    return result;
}

void SolveJob::Enter(SolveStage stage, const QString& line)
{
    Q_EMIT StageChanged(stage);
    Q_EMIT Progressed(line);
}

void SolveJob::Build()
{
    Enter(SolveStage::Building, tr("building the part"));
    PartRequest request = m_input->part;
    request.brepPath = m_folder.PathOf(SolveFolder::ShapeName);
    m_input->analysis.AddTargets(request);
    m_isBuilding = true;
    m_worker.Start(request);
}

void SolveJob::MakeMesh()
{
    m_plan = m_input->analysis.Plan(m_result->part);
    CheckSize();
    Enter(SolveStage::Meshing, tr("meshing with a size of %1 mm").arg(ShortText(m_plan.meshSize)));
    const MeshRequest request{SolveFolder::ShapeName, m_plan.meshSize, m_plan.localMeshes,
                              m_plan.ShellFaces()};
    m_folder.Write(SolveFolder::ScriptName, MeshScript(request));
    const QString dimension = QLatin1String(request.shellFaces.empty() ? "-3" : "-2");
    RunTool(m_input->tools.mesher,
            {dimension, SolveFolder::ScriptName, QStringLiteral("-o"), SolveFolder::MeshName,
             QStringLiteral("-nt"), QStringLiteral("1")},
            SolveFolder::MesherLog, [this](const ToolEnd& end) {
                const QString problem =
                    MesherProblem(end, m_folder.ContentOf(SolveFolder::MesherLog));
                if (!problem.isEmpty())
                    throw HostError(problem);
                MakeModel();
            });
}

void SolveJob::CheckSize() const
{
    const MeshEstimate estimate = m_plan.ShellFaces().empty()
                                      ? MeshEstimate::OfSolids(m_result->part.measures.volume)
                                      : MeshEstimate::OfShells(m_plan.shellArea);
    const QString problem = estimate.Problem(m_plan.meshSize, m_input->tools.maximumFreedoms);
    if (!problem.isEmpty())
        throw HostError(problem);
}

void SolveJob::MakeModel()
{
    Enter(SolveStage::Modelling, tr("reading the mesh"));
    RunLater([this] {
        Mesh mesh = ReadMeshFile(m_folder.PathOf(SolveFolder::MeshName));
        const MeshEstimate estimate =
            mesh.IsSolid() ? MeshEstimate::OfSolids(0.0) : MeshEstimate::OfShells(0.0);
        const QString problem = estimate.Problem(m_plan.meshSize, m_input->tools.maximumFreedoms,
                                                 double(mesh.FreedomCount()));
        if (!problem.isEmpty())
            throw HostError(problem);
        m_result->quality = RepairMesh(mesh);
        const Vector3& place = m_result->quality.worstPlace;
        if (!m_result->quality.isUsable)
            throw HostError(
                tr("The mesh has an element that is folded, near (%1, %2, %3) mm: "
                   "choose another mesh size there.")
                    .arg(ShortText(place[0]), ShortText(place[1]), ShortText(place[2])));
        BuiltModel built = BuildModel(std::move(mesh), m_plan);
        m_result->model = std::move(built.model);
        m_result->warnings = built.warnings;
        WriteDecks();
        const Mesh& made = m_result->model.mesh;
        Q_EMIT Progressed(tr("%1 elements, %2 nodes, %3 degrees of freedom")
                              .arg(made.ElementCount())
                              .arg(made.nodes.size())
                              .arg(made.FreedomCount()));
        if (m_input->isWithoutRun)
            Finish();
        else
            Solve();
    });
}

void SolveJob::WriteDecks()
{
    const FiniteElementModel& model = m_result->model;
    if (m_input->isStatic) {
        CheckStatic(model, m_plan.bodies);
        for (const Vector3& force : model.forces)
            m_result->reaction = m_result->reaction - force;
        m_folder.Write(SolveFolder::InJob(".bdf"), StaticNastranDeck(model));
    } else {
        CheckVibration(model);
        m_search = std::make_unique<ModeSearch>(model, m_plan.frequencies);
        m_folder.Write(SolveFolder::InJob(".bdf"), VibrationNastranDeck(model, m_plan.frequencies));
    }
    WriteSolverDeck();
}

void SolveJob::WriteSolverDeck() const
{
    const DeckStep step{m_input->isStatic, m_input->isStatic ? 0 : m_search->Asked()};
    m_folder.Write(SolveFolder::InJob(".inp"), SolverDeck(m_result->model, step));
}

void SolveJob::Solve()
{
    if (!m_input->resultsFolder.isEmpty())
        return TakeResults();
    Enter(SolveStage::Solving, tr("solving"));
    RunTool(m_input->tools.solver, {SolveFolder::JobName}, SolveFolder::SolverLog,
            [this](const ToolEnd& end) {
                const QString problem =
                    SolverProblem(end, m_folder.ContentOf(SolveFolder::SolverLog));
                if (!problem.isEmpty())
                    throw HostError(problem);
                Read();
            });
}

void SolveJob::TakeResults()
{
    const SolveFolder from(m_input->resultsFolder);
    const QString deck = SolveFolder::InJob(".inp");
    const QByteArray solved = from.ContentOf(deck);
    if (m_search) {
        m_search->GoOnFrom(ModesAskedBy(solved));
        WriteSolverDeck();
    }
    if (solved != m_folder.ContentOf(deck))
        throw HostError(tr("The results in the folder are not those of the part and its set-up as "
                           "they are now: solve again."));
    const QString problem = SolverProblem({}, from.ContentOf(SolveFolder::SolverLog));
    if (!problem.isEmpty())
        throw HostError(problem);
    for (const QString& name : {SolveFolder::InJob(".dat"), SolveFolder::InJob(".frd")})
        m_folder.Write(name, from.ContentOf(name));
    // If the search goes on, the results for its next deck are not there yet.
    m_input->resultsFolder.clear();
    Read();
}

void SolveJob::Read()
{
    Enter(SolveStage::Reading, tr("reading the results"));
    RunLater([this] {
        if (m_input->isStatic) {
            ReadStatic();
            return Finish();
        }
        const ModesTable table = ReadModesTable(m_folder.ContentOf(SolveFolder::InJob(".dat")));
        if (m_search->Take(table)) {
            ReadModes(table);
            return Finish();
        }
        WriteSolverDeck();
        Solve();
    });
}

void SolveJob::ReadModes(const ModesTable& table)
{
    const ResultFile file = ReadResultFile(m_folder.ContentOf(SolveFolder::InJob(".frd")));
    const auto shapes = ModeShapes(file, m_result->model.mesh);
    if (shapes.size() != table.modes.size())
        throw ResultError(ResultError::tr("The solver's results do not belong to this mesh."));
    for (const std::size_t place : m_search->Found()) {
        m_result->modes.push_back(table.modes[place]);
        m_result->shapes.push_back(shapes[place]);
    }
    m_result->totalMass = table.totalMass;
}

void SolveJob::ReadStatic()
{
    m_result->statics = StaticResults(
        ReadResultFile(m_folder.ContentOf(SolveFolder::InJob(".frd"))), m_result->model.mesh);
    const double greatest = m_result->statics.maximumDisplacement;
    if (greatest > GreatestDisplacement * SizeOf(m_result->model.mesh))
        throw ResultError(
            tr("The greatest displacement would be %1 mm: pieces of the part can move "
               "against each other. Add supports, or join the pieces along faces.")
                .arg(ShortText(greatest)));
}

void SolveJob::RunTool(const AnalysisTool& tool, const QStringList& arguments, const QString& log,
                       std::function<void(const ToolEnd&)> then)
{
    m_afterTool = std::move(then);
    m_tool.Start({tool.Executable(), arguments, m_folder.Path(), m_folder.PathOf(log),
                  m_input->tools.seconds, m_input->tools.megabytes});
}

void SolveJob::RunLater(std::function<void()> work)
{
    QMetaObject::invokeMethod(
        this, [this, work = std::move(work)] { Try(work); }, Qt::QueuedConnection);
}

void SolveJob::Try(const std::function<void()>& step)
{
    try {
        if (m_isCancelled)
            throw Cancelled(tr("The analysis was cancelled."));
        step();
    } catch (const Cancelled& error) {
        Fail(SolveResult::Cancelled, error.Reason());
    } catch (const FolderError& error) {
        Fail(SolveResult::FolderFailed, error.Reason());
    } catch (const std::bad_alloc&) {
        Fail(SolveResult::Failed,
             tr("The analysis ran out of memory. Choose a greater mesh size."));
    } catch (const HostError& error) {
        FailUnlessFolder(error.Reason());
    }
}

void SolveJob::FailUnlessFolder(const QString& problem)
{
    // Programs rarely say that the disk was full.
    try {
        m_folder.CheckWritable();
        Fail(SolveResult::Failed, problem);
    } catch (const FolderError& error) {
        Fail(SolveResult::FolderFailed, error.Reason());
    }
}

void SolveJob::Fail(SolveResult::Outcome outcome, const QString& problem)
{
    m_result->outcome = outcome;
    m_result->problem = problem;
    Finish();
}

void SolveJob::Finish()
{
    m_input.reset();
    m_search.reset();
    // Queued: nobody expects the end of a job before Start() returns.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const SolveResultPointer result = std::move(m_result);
            m_result = nullptr;
            Q_EMIT Finished(result);
        },
        Qt::QueuedConnection);
}
