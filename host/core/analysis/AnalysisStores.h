#pragma once

#include "KVMaterialInfo.h"

#include <QString>

#include <map>

/// The user's materials, which the dialogs share in a store and a file of the working directory, as
/// plain values. Element properties are part of AnalysisDefinition.
struct AnalysisStores
{
    std::map<QString, KVMaterialInfo> materials; ///< By the name in the store.

    static AnalysisStores Current();
    /// Replaces the stores of materials and element properties by the files of the working
    /// directory and the system's library. Writes no file.
    static void Open();

    /// Writes the user's materials to the working directory, if there are any or such a file.
    /// Returns a warning for the user, or an empty text.
    static QString Write();

    /// Makes this the content of the store, and of the file in the working directory if there is
    /// one: the dialogs would read it again. Returns a warning for the user, or an empty text.
    QString Apply() const;

    bool operator==(const AnalysisStores& other) const;
    bool operator!=(const AnalysisStores& other) const { return !(*this == other); }
};
