#pragma once

#include "KVMaterialInfo.h"
#include "tarnfemdata_export.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>

/// The process-wide store of materials and the reader and writer of their files.
///
/// Materials keep the order in which their names were entered. Each name is in the store once: a
/// user material replaces a system material of its name and is never replaced by one; of two
/// materials of the same type the later one replaces the earlier one. GUI thread only.
///
/// The store owns its records. A pointer returned by or passed to the store stays valid until
/// ClearInfo(), even if its record is replaced, refused or removed meanwhile. The material library
/// clears the store in KVMaterialLibrary::Reset(). Do not keep pointers across that dialog; look
/// the material up again by name.
class TARNFEMDATA_EXPORT KVMaterialData
{
public:
    /// The store of the process; created on first use and never freed.
    static KVMaterialData* GetInstance();

    KVMaterialData(const KVMaterialData&) = delete;
    KVMaterialData& operator=(const KVMaterialData&) = delete;

    /// Enters the materials of the file @p path (local 8-bit code page) with @p type. A system file
    /// fills the library triple, a user file the first triple. Records already in the store take
    /// the new values in place.
    ///
    /// Returns 0 on success. Returns another number and changes nothing if the file is missing, not
    /// a regular file, larger than 256 MiB, damaged, of another kind or of a newer format.
    int ReadXML(const std::string& path, MATERIAL_TYPE type);

    /// Writes the user materials, and only these, to the file @p path (local 8-bit code page).
    ///
    /// The file is replaced atomically; symbolic links and permissions are preserved. If this
    /// process has neither read its content completely as a user file nor written it since the last
    /// ClearInfo(), the old file is first copied to a name with a time stamp in the same folder.
    /// Processes that write the same file wait for each other. Returns 0 on success; otherwise the
    /// old file is unchanged.
    int WriteXML(const std::string& path);

    /// Removes all materials and frees their records, including those replaced or removed before.
    /// The current name stays.
    void ClearInfo();

    /// The number of materials, which is the number of names in GetMaterialNameList().
    int MapDataRow() const;

    /// All names, in the order in which they were entered.
    QStringList GetMaterialNameList() const;

    /// The material of that name, or null. The store keeps its ownership.
    KVMaterialInfo* GetMaterialInfo(const QString& name) const;

    /// Takes ownership of @p material and enters it under its name; null is ignored. A record
    /// already in the store is re-filed under its current name. A record is refused if a user
    /// material of its name exists and it is not a user material itself; the store owns it as well.
    void AddMaterialInfo(KVMaterialInfo* material);

    /// Removes the material of that name; an unknown name is ignored.
    void RemoveItem(const QString& name);

    /// Remembers the name of the material that the user is pointing at.
    void setCurrentMaterialName(const QString& name);

    /// The name remembered last; initially empty.
    QString CurrentMaterialName() const;

private:
    KVMaterialData();
    ~KVMaterialData();

    struct TARNFEMDATA_NO_EXPORT Private;
    const std::unique_ptr<Private> m_d;
};
