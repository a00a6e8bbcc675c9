#include "StudyPreview.h"

#include "GlobalParaMeterMgr.h"
#include "HostError.h"
#include "Project.h"
#include "Study.h"
#include "StudyColumns.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <cmath>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(StudyPreview)
};

} // namespace

StudyPreview PreviewOf(const Project& project)
{
    const QScopedValueRollback<ParameterMap> store(GlobalParaMeterMgr::m_nameMapParameters);
    StudyPreview preview;
    try {
        Project tried = project;
        StudyDefinition definition = project.Study();
        const bool isSampled = definition.design == StudyDefinition::LatinHypercube ||
                               definition.design == StudyDefinition::Sobol;
        // Their number is known; the points are not needed.
        if (isSampled) {
            definition.runs = 1;
            tried.SetStudy(definition);
        }
        preview.runs = Study(tried).RunCount();
        if (isSampled && preview.runs > 0)
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
