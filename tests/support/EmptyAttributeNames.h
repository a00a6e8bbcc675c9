#pragma once

#include "AttributeCommonMgr.h"

#include <QtGlobal>

/// Clears the registry of attribute names on construction and destruction, because it lives as long
/// as the process.
class EmptyAttributeNames
{
public:
    EmptyAttributeNames() { AttributeCommonMgr::GetInstance()->Clear(); }
    ~EmptyAttributeNames() { AttributeCommonMgr::GetInstance()->Clear(); }
    Q_DISABLE_COPY(EmptyAttributeNames)
};
