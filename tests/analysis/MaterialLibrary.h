#pragma once

#include "DialogTest.h"
#include "EmptyAnalysisStores.h"
#include "KVMaterialLibrary.h"
#include "MaterialFiles.h"
#include "Tables.h"

#include <functional>

/// Shared by the tests of the material library.

/// A test class whose functions start with both files of materials.
class MaterialLibraryTest : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
protected:
    void SetUp() override
    {
        With::SetUp();
        WriteBothFiles();
    }

    /// Runs a library that shows both files; @p step is what the user does before Cancel.
    void RunLibrary(const std::function<void(QDialog&)>& step)
    {
        KVMaterialLibrary library;
        library.Reset();
        Then([&](QDialog& shown) {
            step(shown);
            Click(shown, "pushButton_8");
        });
        QCOMPARE(library.exec(), int(QDialog::Rejected));
    }
};

inline KVMaterialData& Store()
{
    return *KVMaterialData::GetInstance();
}

inline QTableWidget& Table(const QWidget& library)
{
    return Find<QTableWidget>(library, "tableWidget");
}
