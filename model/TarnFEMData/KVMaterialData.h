#pragma once

#include "KVMaterialInfo.h"
#include "tarnfemdata_export.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>

/// The process-wide store of materials and the reader and writer of their files.
///
/// Materials keep the order in which their names were entered, and a name is held once: a user
/// material takes the place of a system material of its name and is never displaced by one; of two
/// of the same type the later one takes the earlier one's place. GUI thread only.
///
/// The store owns its records. A pointer that it gave or was given stays valid until ClearInfo(),
/// also when its record is replaced, refused or removed meanwhile. The material library clears the
/// store whenever it is opened, so hold no pointer across that dialog: ask again by name.
class TARNFEMDATA_EXPORT KVMaterialData
{
public:
    /// The store of the process; created on first use and never freed.
    static KVMaterialData* GetInstance();

    KVMaterialData(const KVMaterialData&) = delete;
    KVMaterialData& operator=(const KVMaterialData&) = delete;

    /// Enters the materials of the file @p path (local 8-bit code page) as being of @p type; a
    /// system file fills the library triple, a user file the first. Records that are held already
    /// take on the new values in place.
    ///
    /// Returns 0 on success. Otherwise the file is missing, no regular file, damaged, of another
    /// kind or of a newer format, and the store is as it was.
    int ReadXML(const std::string& path, MATERIAL_TYPE type);

    /// Writes the user materials, and only these, to the file @p path (local 8-bit code page).
    ///
    /// The file is replaced at once or not at all; a symbolic link and the permissions stay. A file
    /// whose content was not read as a user file since the last ClearInfo(), or not in full, is
    /// first copied beside itself under a name with a time stamp. Returns 0 on success; otherwise
    /// the old file is as it was.
    int WriteXML(const std::string& path);

    /// Forgets all materials and frees their records, also those replaced or removed before. The
    /// current name stays.
    void ClearInfo();

    /// The number of materials; that of the names in GetMaterialNameList().
    int MapDataRow() const;

    /// All names, in the order in which they were entered.
    QStringList GetMaterialNameList() const;

    /// The material of that name, or null. The store keeps owning it.
    KVMaterialInfo* GetMaterialInfo(const QString& name) const;

    /// Takes ownership of @p material and enters it under its name; null is ignored. A record held
    /// already, also under an earlier name, moves to its name of now. A record that is refused,
    /// being of the name of a user material and none itself, is owned by the store, too.
    void AddMaterialInfo(KVMaterialInfo* material);

    /// Removes the material of that name; an unknown name is passed over.
    void RemoveItem(const QString& name);

    /// Remembers the name of the material that the user is pointing at.
    void setCurrentMaterialName(const QString& name);

    /// The name remembered last; empty at first.
    QString CurrentMaterialName() const;

private:
    KVMaterialData();
    ~KVMaterialData();

    struct TARNFEMDATA_NO_EXPORT Private;
    const std::unique_ptr<Private> m_d;
};
