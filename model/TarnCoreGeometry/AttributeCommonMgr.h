#pragma once

#include "tarncoregeometry_export.h"

#include <string>
#include <unordered_set>

/// The names of the current model's attributes: boundary conditions, loads, properties.
///
/// The dialogs only ask whether a name is taken; the host enters the name of what it accepts and
/// takes it out again when the attribute is deleted. Names are byte strings in the local 8-bit code
/// page and compare byte for byte.
class TARNCOREGEOMETRY_EXPORT AttributeCommonMgr
{
public:
    /// The registry of the process; created on first use and never freed.
    static AttributeCommonMgr* GetInstance();

    /// True when an attribute of exactly this name is registered.
    bool FindName(std::string name) const;

    /// Registers @p name; a name that is registered already stays so.
    void AddName(const std::string& name);

    /// Frees @p name; a name that is not registered is passed over.
    void RemoveName(const std::string& name);

    /// Frees all names.
    void Clear();

private:
    AttributeCommonMgr() = default;

    std::unordered_set<std::string> m_names;
};
