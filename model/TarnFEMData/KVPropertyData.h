#pragma once

#include "CQLTElemPropDef.h"
#include "tarnfemdata_export.h"

#include <QString>

#include <map>
#include <memory>
#include <string>

/// The process-wide store of element properties and the reader and writer of their file.
///
/// The store owns the records given to it, each of which must have been made with new. A pointer
/// that it gave or was given stays valid until Clear(), also when its record is replaced by another
/// of its name meanwhile. Records are open to in-place changes; a changed name counts once the
/// record is given to AddPropInfo() again. GUI thread only.
class TARNFEMDATA_EXPORT KVPropertyData
{
public:
    /// The store of the process; created on first use and never freed.
    static KVPropertyData* GetInstance();

    KVPropertyData(const KVPropertyData&) = delete;
    KVPropertyData& operator=(const KVPropertyData&) = delete;

    /// Adds the properties of the file @p path (local 8-bit code page) whose names are not held
    /// yet; records that are held stay as they are.
    ///
    /// Returns 0 on success. Otherwise the file is missing, no regular file, damaged, of another
    /// kind or of a newer format, and the store is as it was.
    int ReadXML(const std::string& path);

    /// Writes all properties to the file @p path (local 8-bit code page), each under the name by
    /// which the store knows it.
    ///
    /// The file is replaced at once or not at all; a symbolic link and the permissions stay. A file
    /// whose content was not read since the last Clear(), or not in full, is first copied beside
    /// itself under a name with a time stamp. Returns 0 on success; otherwise the old file is as it
    /// was.
    int WriteXML(const std::string& path);

    /// Takes ownership of @p property and enters it under its name, in place of another record of
    /// that name; null is ignored. A record held already keeps one entry, under its name of now.
    void AddPropInfo(CQLTElemPropDef* property);

    /// A copy of the map from name to record. The store keeps owning the records.
    std::map<QString, CQLTElemPropDef*> GetProptyDataMap() const;

    /// The property of that name, or null. The store keeps owning the record.
    CQLTElemPropDef* GetPropertyInfo(QString name) const;

    /// Forgets all properties and frees their records, also those replaced before.
    void Clear();

private:
    KVPropertyData();
    ~KVPropertyData();

    struct TARNFEMDATA_NO_EXPORT Private;
    const std::unique_ptr<Private> m_d;
};
