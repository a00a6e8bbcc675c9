#pragma once

#include "KVMaterialData.h"
#include "KVPropertyData.h"

#include <QtGlobal>

/// Empties the stores of materials and element properties, now and when it goes: they live as long
/// as the process.
class EmptyAnalysisStores
{
public:
    EmptyAnalysisStores() { Clear(); }
    ~EmptyAnalysisStores() { Clear(); }
    Q_DISABLE_COPY(EmptyAnalysisStores)

private:
    static void Clear()
    {
        KVMaterialData::GetInstance()->ClearInfo();
        KVMaterialData::GetInstance()->setCurrentMaterialName(QString());
        KVPropertyData::GetInstance()->Clear();
    }
};
