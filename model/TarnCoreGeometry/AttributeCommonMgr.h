#pragma once

#include "tarncoregeometry_export.h"

#include <string>
#include <unordered_set>

/// The names of the current model's attributes: boundary conditions, loads, properties.
///
/// The dialogs only check whether a name is taken. The host adds the name of an attribute that it
/// accepts and removes it when the attribute is deleted. Names are in the local 8-bit code page and
/// are compared byte for byte.
class TARNCOREGEOMETRY_EXPORT AttributeCommonMgr
{
public:
    /// The registry of the process, created on first use and never freed.
    static AttributeCommonMgr* GetInstance();

    /// True if an attribute with exactly this name is registered.
    bool FindName(std::string name) const;

    /// Registers @p name; does nothing if it is already registered.
    void AddName(const std::string& name);

    /// Removes @p name; ignores a name that is not registered.
    void RemoveName(const std::string& name);

    /// Removes all names.
    void Clear();

private:
    AttributeCommonMgr() = default;

    std::unordered_set<std::string> m_names;
};
