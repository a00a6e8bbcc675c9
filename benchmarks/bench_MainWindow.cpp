#include "DrilledPlate.h"
#include "HostApplication.h"
#include "MainWindow.h"
#include "PartModel.h"
#include "Project.h"
#include "WorkerProcess.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

// How long the window does not answer while a part is built: the most processor time that it needs
// for one event, from the edit to the part in the view. And how long it takes to cancel a build.
// With a display the part is shown in three dimensions, without one as a line drawing.

namespace {

constexpr int Holes = 66; // 199 features.

/// The application, which remembers the event that took longest.
class TimedApplication : public HostApplication
{
public:
    using HostApplication::HostApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        const double begin = Now();
        const bool isHandled = HostApplication::notify(receiver, event);
        longest = std::max(longest, Now() - begin);
        return isHandled;
    }

    double longest = 0.0; ///< In s.

private:
    static double Now()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
    }
};

void WaitFor(const PartModel& part)
{
    while (part.IsBusy())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Changes the last field of the feature called @p name again and again.
void Edit(benchmark::State& state, TimedApplication& application, MainWindow& window,
          const QString& name, int field)
{
    PartModel& part = window.Part();
    WaitFor(part);
    double value = part.Features().At(part.Features().Find(name)).fields[field].toDouble();
    for (auto _ : state) {
        value += 0.01;
        application.longest = 0.0;
        Feature feature = part.Features().At(part.Features().Find(name));
        feature.fields[field] = QString::number(value);
        part.Change(name, feature);
        WaitFor(part);
        // The view follows.
        QCoreApplication::processEvents();
        if (part.HasFailed())
            state.SkipWithError("a part was not built");
        state.SetIterationTime(application.longest);
    }
}

void Cancel(benchmark::State& state)
{
    PartModel part;
    for (auto _ : state) {
        QEventLoop loop;
        const auto begun =
            QObject::connect(&part, &PartModel::Progressed, &loop, &QEventLoop::quit);
        part.Open(Drilled(Holes, QStringLiteral("8")), {}, {});
        loop.exec();
        QObject::disconnect(begun);
        QElapsedTimer timer;
        timer.start();
        part.Cancel();
        WaitFor(part);
        state.SetIterationTime(1e-9 * double(timer.nsecsElapsed()));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    TimedApplication application(argc, argv);
    MainWindow window;
    window.show();
    window.OpenProject(Project::Load(Project::SamplePath()));
    const auto add = [](const char* name, const auto& run) {
        benchmark::RegisterBenchmark(name, run)
            ->Arg(3 * Holes + 1)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
    };
    add("Answer/ours", [&](benchmark::State& state) {
        window.Part().Open(Drilled(Holes, QStringLiteral("8")), {}, {});
        Edit(state, application, window, QStringLiteral("pin%1").arg(Holes - 1), 0);
    });
    add("Cancel/ours", [](benchmark::State& state) { Cancel(state); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
