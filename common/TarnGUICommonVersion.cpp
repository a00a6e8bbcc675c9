#include "TarnGUICommonVersion.h"

const char* TarnGUICommonVersion()
{
    return TarnGUICommon_VERSION;
}
