// Opens, fills, accepts and cancels every dialog in random order; see run. A warning, a crash, a
// hang or growing memory ends the run, which then prints the seed and the step.
#include "DialogCatalogue.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "EmptyDesignStores.h"
#include "MaterialEditer.h"
#include "RandomUser.h"
#include "TestCase.h"

#include <QFile>
#include <Standard_Failure.hxx>

#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

#ifdef __SANITIZE_ADDRESS__
// Part of the sanitizer library; the compiler does not provide its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include "Heap.h"
#endif

namespace {

constexpr int StepsBetweenFreshStores = 50;
constexpr unsigned SecondsForOneStep = 120;
constexpr double WarmUp = 0.2; // By then, all one-time allocations have been made.
// Allowed growth in bytes after that. The heap is the memory in use; resident memory includes the
// peaks of the largest tables and the memory that the sanitizer holds back.
constexpr double MostHeapGrowth = 16e6;
constexpr double MostResidentGrowth = 128e6;

quint64 g_seed = 1;
int g_step = 0;
const char* g_dialog = "start";

void PrintPlace(const char* what)
{
    std::fprintf(stderr, "longrun: %s; seed %llu, step %d, %s\n", what,
                 static_cast<unsigned long long>(g_seed), g_step, g_dialog);
}

[[noreturn]] void Fail(const char* what)
{
    PrintPlace(what);
    std::_Exit(1);
}

void FailOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    // The offscreen platform warns about size hints and about the lists of combo boxes.
    const bool isPlatformNoise = text.startsWith(QLatin1String("This plugin does not support"));
    if (type == QtDebugMsg || type == QtInfoMsg || isPlatformNoise)
        return;
    Fail(qPrintable(text));
}

std::size_t AllocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return HeapInUse();
#endif
}

std::size_t ResidentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        Fail("the resident memory cannot be read");
    return file.readAll().split(' ').at(1).toULong() * std::size_t(sysconf(_SC_PAGESIZE));
}

// The geometry dialogs let kernel errors propagate; a host catches them here.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const Standard_Failure&) {
            return true;
        }
    }
};

std::unique_ptr<QWidget> MakeMaterialEditor()
{
    return std::make_unique<MaterialEditer>(nullptr);
}

void FillMaterialEditor(QWidget& editor)
{
    static_cast<MaterialEditer&>(editor).SetMaterialData(QStringLiteral("Steel"), {"1", "2", "3"});
}

std::vector<CatalogueEntry> Dialogs()
{
    std::vector<CatalogueEntry> dialogs = DialogCatalogue();
    dialogs.push_back({"MaterialEditer", MakeMaterialEditor, nullptr, FillMaterialEditor});
    return dialogs;
}

// Clears what users have entered so far: memory that it takes is not a leak.
void FillStores(Dice& dice)
{
    {
        const EmptyAnalysisStores analysis;
        const EmptyAttributeNames names;
        const EmptyDesignStores design;
    }
    for (const char* const name : {"a", "b", "c"}) {
        ParametersDef record;
        record.m_strName = QString::fromLatin1(name);
        record.m_nType = ParametersDef::ScalarType;
        record.m_dValue = 1 + dice.Below(9);
        record.m_strValue = QString::number(record.m_dValue);
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);
    }
    for (const char* const file : {"SysMaterial.xml", "UserMaterial.xml", "ElementProperty.xml"})
        QFile::remove(QString::fromLatin1(file));
    if (!dice.OneIn(4))
        QFile::copy(SourcePath("model/TarnFEMData/SysMaterial.xml"),
                    QStringLiteral("SysMaterial.xml"));
    std::setlocale(LC_ALL, dice.OneIn(2) ? "C.UTF-8" : "de_DE.UTF-8");
}

// The maximum memory after the warm-up, compared with the memory at its end.
class Memory
{
public:
    explicit Memory(int steps)
        : m_steps(steps)
    {
    }

    void Sample()
    {
        const double heap = double(AllocatedBytes());
        const double resident = double(ResidentBytes());
        if (g_step % std::max(1, m_steps / 20) == 0) {
            std::printf("%6d dialogs: heap %4.0f MB, resident %4.0f MB\n", g_step, heap / 1e6,
                        resident / 1e6);
            std::fflush(stdout);
        }
        if (g_step <= m_steps * WarmUp) {
            m_heap = std::max(m_heap, heap);
            m_resident = std::max(m_resident, resident);
        } else if (heap - m_heap > MostHeapGrowth) {
            Fail("the heap grows");
        } else if (resident - m_resident > MostResidentGrowth) {
            Fail("the resident memory grows");
        }
    }

private:
    const int m_steps;
    double m_heap = 0;
    double m_resident = 0;
};

void Run(int steps)
{
    Dice dice(g_seed);
    RandomUser user(dice, {QString(), QStringLiteral("missing"), QStringLiteral(OUTSIDE_PROGRAM)});
    Memory memory(steps);
    const std::vector<CatalogueEntry> dialogs = Dialogs();
    for (g_step = 0; g_step < steps;) {
        if (g_step % StepsBetweenFreshStores == 0)
            FillStores(dice);
        ++g_step;
        const CatalogueEntry entry = dice.Pick(dialogs);
        g_dialog = entry.name;
        alarm(SecondsForOneStep);
        {
            const std::unique_ptr<QWidget> window = entry.make();
            if (entry.fill != nullptr && dice.OneIn(2))
                entry.fill(*window);
            do {
                user.Use(*window);
            } while (dice.OneIn(4));
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QApplication::activeModalWidget() != nullptr)
            Fail("a modal window was left behind");
        memory.Sample();
    }
    alarm(0);
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
// The sanitizer holds back freed memory for a while, but not so much that it looks like growth.
// Returning it to the system again and again would take most of the time.
extern "C" Q_DECL_EXPORT const char* __asan_default_options()
{
    return "quarantine_size_mb=32:allocator_release_to_os_interval_ms=-1";
}

extern "C" Q_DECL_EXPORT void __asan_on_error()
{
    PrintPlace("a memory error");
}
#endif

int main(int argc, char** argv)
{
    g_seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
    const int steps = argc > 2 ? std::atoi(argv[2]) : 10000;
    if (argc > 3 || steps <= 0) {
        std::fprintf(stderr, "usage: longrun [seed [number of dialogs]]\n");
        return 2;
    }
    std::signal(SIGALRM, [](int) { Fail("a dialog hangs"); });
    std::signal(SIGABRT, [](int) { Fail("a crash"); });
#ifndef __SANITIZE_ADDRESS__
    std::signal(SIGSEGV, [](int) { Fail("a crash"); });
#endif
    PrepareTestProgram();
    qputenv("PATH", ""); // So that running a random text starts nothing.
    QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    Application application(argc, argv);
    // Not earlier: the lines above warn about limits of the system.
    qInstallMessageHandler(FailOnWarning);
    std::printf("seed %llu, %d dialogs\n", static_cast<unsigned long long>(g_seed), steps);
    Run(steps);
    std::printf("passed\n");
    return 0;
}
