#pragma once

#include "GlobalParaMeterMgr.h"
#include "sParaArrayData.h"

/// Clears the parameter store and the sampling registry on construction and destruction, because
/// both live as long as the process. Put it on the first line of a test function that uses them.
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
