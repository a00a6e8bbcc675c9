#pragma once

#include "ParametersDef.h"
#include "tarndesign_export.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

/// A hash map from parameter name to record that keeps the order of insertion.
///
/// Iterating gives the records in the order in which their names were first added, and replacing a
/// record keeps its place, so that the rows of a table filled from the map do not jump. The
/// operations mean what they mean in std::unordered_map; look-up, insertion and erasure take
/// constant time. Iterators and references stay valid until their own entry is erased.
class TARNDESIGN_EXPORT ParameterMap
{
public:
    using key_type = QString;
    using mapped_type = ParametersDef;
    using value_type = std::pair<const QString, ParametersDef>;
    using size_type = std::size_t;
    using iterator = std::list<value_type>::iterator;
    using const_iterator = std::list<value_type>::const_iterator;

    ParameterMap() = default;
    ParameterMap(const ParameterMap& other);
    ParameterMap(ParameterMap&& other) noexcept;
    ParameterMap& operator=(const ParameterMap& other);
    ParameterMap& operator=(ParameterMap&& other) noexcept;
    ~ParameterMap() = default;

    size_type size() const { return m_entries.size(); }
    bool empty() const { return m_entries.empty(); }
    void clear();

    iterator begin() { return m_entries.begin(); }
    iterator end() { return m_entries.end(); }
    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

    iterator find(const QString& name);
    const_iterator find(const QString& name) const;
    size_type count(const QString& name) const { return m_index.count(name); }

    /// The record of @p name. @throws std::out_of_range when there is none.
    ParametersDef& at(const QString& name);
    const ParametersDef& at(const QString& name) const;

    /// The record of @p name; a default record is added at the end when there is none.
    ParametersDef& operator[](const QString& name);

    /// Removes the record of @p name and returns how many were removed: 0 or 1.
    size_type erase(const QString& name);

private:
    std::list<value_type> m_entries;
    std::unordered_map<QString, iterator> m_index;
};
