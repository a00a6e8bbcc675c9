#pragma once

#include "AttributeCommonMgr.h"

#include <QtGlobal>

/// Empties the registry of attribute names, now and when it goes: it lives as long as the process.
class EmptyAttributeNames
{
public:
    EmptyAttributeNames() { AttributeCommonMgr::GetInstance()->Clear(); }
    ~EmptyAttributeNames() { AttributeCommonMgr::GetInstance()->Clear(); }
    Q_DISABLE_COPY(EmptyAttributeNames)
};
