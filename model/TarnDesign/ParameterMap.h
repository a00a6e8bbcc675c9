#pragma once

#include "ParametersDef.h"
#include "tarndesign_export.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

/// A hash map from parameter name to record that preserves the order of insertion.
///
/// Iteration follows the order in which the names were first added. Replacing a record keeps its
/// place, so the rows of a table filled from the map do not move. The operations behave as in
/// std::unordered_map; look-up, insertion and erasure take constant time. Iterators and references
/// stay valid until their entry is erased.
class TARNDESIGN_EXPORT ParameterMap
{
public:
    /// A parameter's name.
    using key_type = QString;
    /// A parameter's record.
    using mapped_type = ParametersDef;
    /// An entry: name and record.
    using value_type = std::pair<const QString, ParametersDef>;
    /// The number of entries.
    using size_type = std::size_t;
    /// A bidirectional iterator in the order of insertion.
    using iterator = std::list<value_type>::iterator;
    /// Like iterator, for read-only access.
    using const_iterator = std::list<value_type>::const_iterator;

    /// An empty map.
    ParameterMap() = default;
    /// A copy of all records, in the same order.
    ParameterMap(const ParameterMap& other);
    /// Moves the records from @p other and leaves it empty; iterators stay valid.
    ParameterMap(ParameterMap&& other) noexcept;
    /// Replaces all records with copies of those of @p other.
    ParameterMap& operator=(const ParameterMap& other);
    /// Replaces all records with those of @p other, and leaves it empty.
    ParameterMap& operator=(ParameterMap&& other) noexcept;
    ~ParameterMap() = default;

    /// The number of records.
    size_type size() const { return m_entries.size(); }
    /// True if there are no records.
    bool empty() const { return m_entries.empty(); }
    /// Removes all records.
    void clear();

    /// The entry that was first added.
    iterator begin() { return m_entries.begin(); }
    /// Past the entry that was last added.
    iterator end() { return m_entries.end(); }
    /// The entry that was first added.
    const_iterator begin() const { return m_entries.begin(); }
    /// Past the entry that was last added.
    const_iterator end() const { return m_entries.end(); }

    /// The entry of @p name, or end().
    iterator find(const QString& name);
    /// The entry of @p name, or end().
    const_iterator find(const QString& name) const;
    /// The number of records with this name: 0 or 1.
    size_type count(const QString& name) const { return m_index.count(name); }

    /// The record of @p name. @throws std::out_of_range if there is none.
    ParametersDef& at(const QString& name);
    /// The record of @p name. @throws std::out_of_range if there is none.
    const ParametersDef& at(const QString& name) const;

    /// The record of @p name. If there is none, appends a default record.
    ParametersDef& operator[](const QString& name);

    /// Removes the record of @p name and returns the number of removed records: 0 or 1.
    size_type erase(const QString& name);

private:
    std::list<value_type> m_entries;
    std::unordered_map<QString, iterator> m_index;
};
