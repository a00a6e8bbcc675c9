#include "WorkerProcess.h"

#include "BodyContacts.h"
#include "BrepFile.h"
#include "EndWithParent.h"
#include "KernelSignals.h"
#include "Language.h"
#include "MemoryLimit.h"
#include "PartFaces.h"
#include "StepFile.h"
#include "Triangles.h"
#include "WorkerMessages.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>

namespace {

// Who shows the part goes back and forth between its states. The runs of a study never come back;
// all that they share is used again in each run, and stays.
qint64 CacheSize(const PartRequest& request)
{
    constexpr qint64 StudySize = qint64(128) * 1024 * 1024;
    return request.wantsShapes ? ResultCache::DefaultSize : StudySize;
}

/// Standard input and output as messages.
class Channel
{
public:
    // The kernel prints here and there, which must not get among the messages.
    Channel()
    {
        const int output = dup(STDOUT_FILENO);
        const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(null, STDOUT_FILENO);
        close(null);
        m_output.open(output, QIODevice::WriteOnly | QIODevice::Unbuffered,
                      QFileDevice::AutoCloseHandle);
    }

    /// Waits for the next message; nothing if the input has ended.
    std::optional<QByteArray> Read()
    {
        std::optional<QByteArray> message = TakeFrame(m_read);
        while (!message && ReadMore())
            message = TakeFrame(m_read);
        return message;
    }

    bool IsMessageWaiting() const
    {
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        return !m_read.isEmpty() || poll(&input, 1, 0) > 0;
    }

    void Write(const QByteArray& message) { m_output.write(Frame(message)); }

private:
    bool ReadMore()
    {
        std::array<char, 65536> buffer;
        ssize_t count = 0;
        do
            count = read(STDIN_FILENO, buffer.data(), buffer.size());
        while (count < 0 && errno == EINTR);
        if (count > 0)
            m_read.append(buffer.data(), int(count));
        return count > 0;
    }

    QFile m_output;
    QByteArray m_read;
};

// The address sanitizer needs far more address space than memory.
#ifdef __SANITIZE_ADDRESS__
constexpr bool LimitsMemory = false;
#else
constexpr bool LimitsMemory = true;
#endif

// Whether the process has ever used nearly all the memory that it may.
bool IsMemoryAlmostUsedUp(int megabytes)
{
    if (!LimitsMemory)
        return false;
    constexpr double Almost = 0.9;
    constexpr double KilobytesPerMegabyte = 1024.0;
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmPeak:"))
            return line.simplified().split(' ').value(1).toDouble() >
                   Almost * megabytes * KilobytesPerMegabyte;
    }
    return false;
}

double AreaOf(const TopoDS_Shape& face)
{
    GProp_GProps properties;
    BRepGProp::SurfaceProperties(face, properties);
    return properties.Mass();
}

/// Builds what one request asks for.
class Answer
{
    Q_DECLARE_TR_FUNCTIONS(WorkerProcess)

public:
    Answer(const PartRequest& request, Channel& channel, ResultCache& cache, int megabytes)
        : m_request(request)
        , m_channel(channel)
        , m_cache(cache)
        , m_megabytes(megabytes)
    {
    }

    /// Whether the process has to end after the reply: what a crash has damaged, or how memory
    /// that ran out is scattered, would show later.
    bool IsLast() const { return m_reply.isLast; }

    /// The reply.
    QByteArray Bytes()
    {
        try {
            Build();
            return Written();
        } catch (const Abandoned&) {
            m_reply.outcome = PartReply::Abandoned;
        } catch (const FeatureError& error) {
            // The kernel catches most failures to get memory.
            m_reply.isLast = IsMemoryAlmostUsedUp(m_megabytes);
            Fail(m_reply.isLast
                     ? tr("%1 The memory was almost used up: the limit of %2 MB may be too low.")
                           .arg(error.Cause())
                           .arg(m_megabytes)
                     : error.Cause(),
                 error.FeatureName());
        } catch (const HostError& error) {
            Fail(error.Reason());
        } catch (const std::bad_alloc&) {
            m_reply.isLast = true;
            Fail(tr("it needs more memory than the limit of %1 MB.").arg(m_megabytes), StepName());
        } catch (const Standard_Failure& failure) {
            Fail(tr("The geometry kernel failed while it measured the part: %1")
                     .arg(QString::fromLocal8Bit(failure.GetMessageString()).simplified()));
        }
        return Written();
    }

    ~Answer()
    {
        if (m_request.wantsShapes && !m_reply.part.shape.IsNull())
            RemoveTriangles(m_reply.part.shape);
    }
    Q_DISABLE_COPY(Answer)

private:
    struct Abandoned
    {
    };

    void Build()
    {
        m_reply.part =
            FeatureBuilder(m_cache).Build(m_request.plan, [this](int step) { Begin(step); });
        Begin(int(m_request.plan.size()));
        if (m_reply.part.shape.IsNull())
            return;
        m_reply.measures = Measure(m_reply.part.shape, m_cache.Volumes());
        if (!m_request.stepPath.isEmpty())
            WriteStepFile(StepShape(), m_request.stepPath);
        if (!m_request.brepPath.isEmpty()) {
            WriteBrepFile(m_reply.part.shape, m_request.brepPath);
            m_reply.contacts = GuardKernelCall([this] { return FindContacts(m_reply.part.shape); });
        }
        FindTargets();
        if (m_request.wantsLines)
            m_reply.lines = DrawLines(m_reply.part.shape);
        if (m_request.wantsShapes)
            AddTriangles(m_reply.part.shape);
    }

    void FindTargets()
    {
        const PartFaces faces(m_reply.part);
        const auto found = [](const auto& find) {
            FoundTarget answer;
            try {
                answer.numbers = GuardKernelCall(find);
            } catch (const BuildError& error) {
                answer.error = error.Reason();
            }
            return answer;
        };
        TopTools_IndexedMapOfShape map;
        TopExp::MapShapes(m_reply.part.shape, TopAbs_FACE, map);
        for (const FaceTarget& target : m_request.faces) {
            m_reply.faces.push_back(
                found([&] { return faces.Faces(PartFaces::WholePart, target); }));
            for (const int face : m_reply.faces.back().numbers)
                m_reply.faces.back().area += AreaOf(map(face));
        }
        for (const EdgeTarget& target : m_request.edges)
            m_reply.edges.push_back(
                found([&] { return faces.Edges(PartFaces::WholePart, target); }));
        m_reply.solids = m_reply.part.StepsOfSolids();
    }

    QByteArray Written()
    {
        m_reply.isLast |= HasKernelCrashed();
        return ToBytes(m_reply, m_request);
    }

    void Begin(int step)
    {
        if (m_channel.IsMessageWaiting())
            throw Abandoned();
        m_step = step;
        m_channel.Write(ProgressToBytes(step));
    }

    const TopoDS_Shape& StepShape() const
    {
        return m_request.stepFeature == PartRequest::WholePart
                   ? m_reply.part.shape
                   : m_reply.part.shapes.at(std::size_t(m_request.stepFeature));
    }

    QString StepName() const
    {
        return m_step < int(m_request.plan.size()) ? m_request.plan[std::size_t(m_step)].name
                                                   : QString();
    }

    void Fail(const QString& cause, const QString& feature = QString())
    {
        m_reply.outcome = PartReply::Failed;
        m_reply.cause = cause;
        m_reply.failedFeature = feature;
    }

    const PartRequest& m_request;
    Channel& m_channel;
    ResultCache& m_cache;
    int m_megabytes;
    PartReply m_reply;
    int m_step = 0;
};

} // namespace

bool IsWorker(int argc, char** argv)
{
    return argc == 4 && std::strcmp(argv[1], WorkerOption) == 0;
}

int RunWorker(int argc, char** argv)
{
    EndWithParent();
    InstallKernelSignalHandlers();
    Channel channel;
    const int megabytes = std::atoi(argv[3]);
    if (LimitsMemory)
        LimitMemory(megabytes);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const Language language(QString::fromLatin1(argv[2]));

    std::optional<ResultCache> cache;
    while (const std::optional<QByteArray> message = channel.Read()) {
        if (message->isEmpty())
            continue;
        const PartRequest request = RequestFromBytes(*message);
        if (!cache)
            cache.emplace(CacheSize(request));
        Answer answer(request, channel, *cache, megabytes);
        channel.Write(answer.Bytes());
        if (answer.IsLast())
            _exit(EXIT_FAILURE);
    }
    return EXIT_SUCCESS;
}
