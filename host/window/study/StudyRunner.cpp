#include "StudyRunner.h"

#include "DOEDlg.h"
#include "DoeSession.h"
#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "NoticeWatcher.h"
#include "NumberTexts.h"
#include "Project.h"
#include "ResultsTable.h"
#include "StepFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTableWidget>
#include <Standard_Failure.hxx>
#include <TopoDS_Shape.hxx>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

// A stopped study loses the runs of at most this time. Not after each run: in a large study the
// table would be written far longer than the parts take to build.
constexpr qint64 SavePause = 1000; // ms

QStringList ParameterNames()
{
    QStringList names;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        names << entry.first;
    return names;
}

std::vector<double> ParameterValues()
{
    std::vector<double> values;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(entry.first).toDouble());
    return values;
}

// As texts: a value that is not a number is not even equal to itself.
bool HaveSameDigits(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
        return QString::number(x, 'g', 17) == QString::number(y, 'g', 17);
    });
}

/// The study's dialogs, driven as a user does.
class Study
{
public:
    explicit Study(const Project& project)
        : m_project(project)
    {
        m_project.FillStores();
        FailOnNotices();
        m_dialog = std::make_unique<DOEDlg>(nullptr);
        FailOnNotices();
        m_session = std::make_unique<DoeSession>(*m_dialog);
        QObject::connect(m_session.get(), &DoeSession::RunReady, m_session.get(),
                         [this] { m_isReady = true; });
        Button("pushButton_RefreshData").click();
        FailOnNotices();
    }

    int RunCount() const { return Table().rowCount(); }

    /// Puts @p run, from 1, into the parameter store; an empty text, or why that went wrong.
    QString Choose(int run)
    {
        m_isReady = false;
        Table().setCurrentCell(run - 1, 0);
        Button("pushButton_GenGeo").click();
        QStringList problems = m_watcher.TakeNotices();
        for (const QString& problem : m_session->Problems())
            problems << problem;
        if (!m_isReady && problems.isEmpty())
            problems << QStringLiteral("The run could not be chosen.");
        return problems.join(QStringLiteral("; ")).simplified();
    }

    /// The part of what the store holds now. @throws BuildError
    TopoDS_Shape Build() const { return m_project.Build().shape; }

private:
    QTableWidget& Table() const
    {
        return *m_dialog->findChild<QTableWidget*>(QStringLiteral("tableWidget_Final"));
    }

    QPushButton& Button(const char* name) const
    {
        return *m_dialog->findChild<QPushButton*>(QLatin1String(name));
    }

    void FailOnNotices()
    {
        const QStringList notices = m_watcher.TakeNotices();
        if (!notices.isEmpty())
            throw StudyError(
                QStringLiteral("%1: %2").arg(m_project.Path(), notices.join(QStringLiteral("; "))));
    }

    const Project& m_project;
    NoticeWatcher m_watcher;
    std::unique_ptr<DOEDlg> m_dialog;
    std::unique_ptr<DoeSession> m_session;
    bool m_isReady = false;
};

QString StepPath(const QDir& directory, int run)
{
    return directory.filePath(QStringLiteral("run_%1.step").arg(run, 4, 10, QLatin1Char('0')));
}

RunResult BuildRun(Study& study, int run, double density, const QString& stepPath)
{
    RunResult result;
    QFile::remove(stepPath); // Whatever stands there, it is not this run's part.
    result.error = study.Choose(run);
    result.values = ParameterValues();
    if (!result.error.isEmpty())
        return result;
    try {
        const TopoDS_Shape shape = study.Build();
        result.measures = Measure(shape);
        result.mass = Mass(result.measures, density);
        WriteStepFile(shape, stepPath);
        result.ok = true;
    } catch (const Standard_Failure& failure) {
        result.error = QStringLiteral("The geometry kernel failed while measuring the part: %1")
                           .arg(QString::fromLocal8Bit(failure.GetMessageString()));
    } catch (const std::exception& error) {
        result.error = QString::fromUtf8(error.what());
    }
    return result;
}

// Results of a study that has changed since would mix with the new ones unnoticed.
void CheckEarlierRuns(Study& study, const ResultsTable& table, double density, const QString& path)
{
    for (const auto& [run, earlier] : table.Runs()) {
        const bool exists = run <= study.RunCount();
        if (exists)
            study.Choose(run);
        if (!exists || !HaveSameDigits(earlier.values, ParameterValues()) ||
            (earlier.ok && earlier.mass != Mass(earlier.measures, density)))
            throw StudyError(
                QStringLiteral("%1: run %2 there is not of this study; choose another folder")
                    .arg(path)
                    .arg(run));
    }
}

} // namespace

StudyRunner::StudyRunner(const Project& project, Options options,
                         std::function<void(const QString&)> tell)
    : m_project(project)
    , m_options(std::move(options))
    , m_tell(std::move(tell))
{
}

StudyRunner::Summary StudyRunner::Run()
{
    Study study(m_project);
    const int runs = study.RunCount();
    if (runs == 0)
        throw StudyError(QStringLiteral("%1: the study has no runs; it needs a parameter that is "
                                        "ticked and has samples")
                             .arg(m_project.Path()));
    const int first = m_options.firstRun > 0 ? m_options.firstRun : 1;
    const int last = m_options.lastRun > 0 ? m_options.lastRun : runs;
    if (first > last || last > runs)
        throw StudyError(
            QStringLiteral("%1: the study has the runs 1 to %2, so %3-%4 cannot be run")
                .arg(m_project.Path())
                .arg(runs)
                .arg(first)
                .arg(last));

    const QDir directory(m_options.directory);
    if (!directory.mkpath(QStringLiteral(".")))
        throw StudyError(QStringLiteral("%1: the folder cannot be made").arg(m_options.directory));
    const QString tablePath = directory.filePath(QStringLiteral("results.csv"));
    ResultsTable table(ParameterNames());
    if (QFileInfo::exists(tablePath))
        table.Read(tablePath);
    CheckEarlierRuns(study, table, m_project.Density(), tablePath);
    // Now rather than after the first part: a folder that takes no files is soon told.
    table.Write(tablePath);

    Summary summary;
    QElapsedTimer sinceSaved;
    sinceSaved.start();
    for (int run = first; run <= last; ++run) {
        const QString place = QStringLiteral("run %1 of %2").arg(run).arg(runs);
        const QString stepPath = StepPath(directory, run);
        const auto earlier = table.Runs().find(run);
        if (earlier != table.Runs().end() && earlier->second.ok && QFileInfo::exists(stepPath)) {
            ++summary.skipped;
            m_tell(QStringLiteral("%1: done before").arg(place));
            continue;
        }
        const RunResult result = BuildRun(study, run, m_project.Density(), stepPath);
        table.Set(run, result);
        if (result.ok) {
            ++summary.ok;
            m_tell(QStringLiteral("%1: ok, volume %2 mm3, mass %3 kg")
                       .arg(place, ShortText(result.measures.volume), ShortText(result.mass)));
        } else {
            ++summary.failed;
            m_tell(QStringLiteral("%1: failed: %2").arg(place, result.error));
        }
        if (sinceSaved.elapsed() >= SavePause) {
            table.Write(tablePath);
            sinceSaved.restart();
        }
    }
    table.Write(tablePath);
    m_tell(QStringLiteral("%1 ok, %2 failed, %3 done before; see %4")
               .arg(summary.ok)
               .arg(summary.failed)
               .arg(summary.skipped)
               .arg(QDir::toNativeSeparators(tablePath)));
    return summary;
}
