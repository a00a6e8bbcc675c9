#pragma once

#include "KVMaterialData.h"
#include "KVPropertyData.h"

#include <QtGlobal>

/// Clears the stores of materials and element properties on construction and destruction, because
/// they live as long as the process.
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
