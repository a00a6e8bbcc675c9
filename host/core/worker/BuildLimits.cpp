#include "BuildLimits.h"

#include "UserSettings.h"

namespace {

const QLatin1String MegabytesKey("limits/megabytes");
const QLatin1String SecondsKey("limits/seconds");

} // namespace

BuildLimits BuildLimits::Stored()
{
    const UserSettings settings;
    BuildLimits limits;
    limits.megabytes = qBound(
        MinimumMegabytes, settings.value(MegabytesKey, limits.megabytes).toInt(), MaximumMegabytes);
    limits.seconds = qBound(1, settings.value(SecondsKey, limits.seconds).toInt(), MaximumSeconds);
    return limits;
}

void BuildLimits::Store() const
{
    UserSettings settings;
    settings.setValue(MegabytesKey, megabytes);
    settings.setValue(SecondsKey, seconds);
}
