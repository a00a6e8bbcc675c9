#pragma once

#include "CQLTElemPropDef.h"
#include "tarnfemdata_export.h"

#include <QString>

#include <map>
#include <memory>
#include <string>

/// The process-wide store of element properties and the reader and writer of their file.
///
/// The store owns the records added to it, which must have been created with new. A pointer
/// returned by or passed to the store stays valid until Clear(), even if another record of its name
/// replaces its record meanwhile. Records may be changed in place; a changed name takes effect when
/// the record is passed to AddPropInfo() again. GUI thread only.
class TARNFEMDATA_EXPORT KVPropertyData
{
public:
    /// The store of the process; created on first use and never freed.
    static KVPropertyData* GetInstance();

    KVPropertyData(const KVPropertyData&) = delete;
    KVPropertyData& operator=(const KVPropertyData&) = delete;

    /// Adds the properties of the file @p path (local 8-bit code page) whose names are not in the
    /// store yet. Records already in the store stay as they are.
    ///
    /// Returns 0 on success. Returns another number and changes nothing if the file is missing, not
    /// a regular file, larger than 256 MiB, damaged, of another kind or of a newer format.
    int ReadXML(const std::string& path);

    /// Writes all properties to the file @p path (local 8-bit code page), each under its name in
    /// the store.
    ///
    /// The file is replaced atomically; symbolic links and permissions are preserved. If this
    /// process has neither read its content completely nor written it since the last Clear(), the
    /// old file is first copied to a name with a time stamp in the same folder. Processes that
    /// write the same file wait for each other. Returns 0 on success; otherwise the old file is
    /// unchanged.
    int WriteXML(const std::string& path);

    /// Takes ownership of @p property and enters it under its name, replacing another record of
    /// that name; null is ignored. A record already in the store keeps a single entry, under its
    /// current name.
    void AddPropInfo(CQLTElemPropDef* property);

    /// A copy of the map from name to record. The store keeps the ownership of the records.
    std::map<QString, CQLTElemPropDef*> GetProptyDataMap() const;

    /// The property of that name, or null. The store keeps its ownership.
    CQLTElemPropDef* GetPropertyInfo(QString name) const;

    /// Removes the property of that name; an unknown name is ignored. The store still owns the
    /// record, and a file that is read again may bring the property back.
    void RemovePropInfo(const QString& name);

    /// Removes all properties and frees their records, including those replaced before.
    void Clear();

private:
    KVPropertyData();
    ~KVPropertyData();

    struct TARNFEMDATA_NO_EXPORT Private;
    const std::unique_ptr<Private> m_d;
};
