#pragma once

#include "GlobalParaMeterMgr.h"
#include "sParaArrayData.h"

/// Empties the parameter store and the sampling registry, now and when it goes: both live as long
/// as the process. The first line of a test function that touches them.
class EmptyDesignStores
{
public:
    EmptyDesignStores() { Clear(); }
    ~EmptyDesignStores() { Clear(); }
    Q_DISABLE_COPY(EmptyDesignStores)

private:
    static void Clear()
    {
        GlobalParaMeterMgr::m_nameMapParameters.clear();
        g_mapParaArrays.clear();
    }
};
