#pragma once

#include "tarnguicommon_export.h"

/// Stands for the library: it exists so that the library exports a class of its own name.
class TARNGUICOMMON_EXPORT TarnGUICommon
{
public:
    /// There is nothing to make.
    TarnGUICommon();
    ~TarnGUICommon();
    /// There is nothing to copy.
    TarnGUICommon(const TarnGUICommon& other) = default;
    /// There is nothing to copy.
    TarnGUICommon& operator=(const TarnGUICommon& other);
};
