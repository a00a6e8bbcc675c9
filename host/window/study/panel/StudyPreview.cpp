#include "StudyPreview.h"

#include "GlobalParaMeterMgr.h"
#include "HostError.h"
#include "Project.h"
#include "Study.h"
#include "StudyColumns.h"
#include "StudyFingerprint.h"
#include "StudyFolder.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <cmath>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(StudyPreview)
};

bool IsSampled(const Project& project)
{
    return project.Study().design == StudyDefinition::LatinHypercube ||
           project.Study().design == StudyDefinition::Sobol;
}

// The same study with one run where their number is known and the points are not needed.
Project WithoutPoints(Project project)
{
    if (IsSampled(project)) {
        StudyDefinition definition = project.Study();
        definition.runs = 1;
        project.SetStudy(definition);
    }
    return project;
}

} // namespace

StudyPreview PreviewOf(const Project& project)
{
    const QScopedValueRollback<ParameterMap> store(GlobalParaMeterMgr::m_nameMapParameters);
    StudyPreview preview;
    try {
        preview.runs = Study(WithoutPoints(project)).RunCount();
        if (IsSampled(project) && preview.runs > 0)
            preview.runs = project.Study().runs;
        const StudyColumns columns(project);
        if (preview.runs == 0)
            preview.problem = Text::tr("Tick a parameter that has samples.");
    } catch (const HostError& error) {
        const QString prefix = project.Path() + QStringLiteral(": ");
        preview.problem = error.Reason();
        if (preview.problem.startsWith(prefix))
            preview.problem.remove(0, prefix.size());
    }
    return preview;
}

QString FolderDifference(const Project& project, double density, const QString& path)
{
    const QScopedValueRollback<ParameterMap> store(GlobalParaMeterMgr::m_nameMapParameters);
    const QStringList inputs = Study(WithoutPoints(project)).Inputs();
    return StudyFolder::Difference(path, StudyFingerprint(project, inputs, density));
}

QString DurationText(double seconds)
{
    constexpr double Minute = 60.0;
    constexpr double Hour = 60.0 * Minute;
    constexpr double FewSeconds = 10.0;
    if (seconds < FewSeconds)
        return Text::tr("%1 s").arg(seconds, 0, 'f', 1);
    if (seconds < 2.0 * Minute)
        return Text::tr("%1 s").arg(qRound(seconds));
    if (seconds < 2.0 * Hour)
        return Text::tr("%1 min").arg(qRound(seconds / Minute));
    const qint64 minutes = std::llround(seconds / Minute);
    constexpr int MinutesPerHour = 60;
    return Text::tr("%1 h %2 min").arg(minutes / MinutesPerHour).arg(minutes % MinutesPerHour);
}
