#pragma once

#include "tarnguicommon_export.h"

/// Has no function: it exists so that the library exports a class of its own name.
class TARNGUICOMMON_EXPORT TarnGUICommon
{
public:
    /// Does nothing.
    TarnGUICommon();
    ~TarnGUICommon();
    /// Does nothing: there are no members.
    TarnGUICommon(const TarnGUICommon& other) = default;
    /// Does nothing: there are no members.
    TarnGUICommon& operator=(const TarnGUICommon& other);
};
