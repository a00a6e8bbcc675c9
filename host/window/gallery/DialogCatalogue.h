#pragma once

#include <QWidget>

#include <memory>
#include <vector>

/// One dialog of the library, for everything that goes through all of them: pictures, tests,
/// benchmarks and the long run.
struct CatalogueEntry
{
    const char* name;                   ///< The dialog's class.
    std::unique_ptr<QWidget> (*make)(); ///< Constructs the dialog, hidden and without parent.
    void (*makeForm)();                 ///< Constructs and destroys a bare window with the dialog's
                                        ///< form; null if the library does not export the class.
    void (*fill)(QWidget& dialog);      ///< Enters sample data; null if there are none.
};

/// Every dialog that a host can construct, in alphabetical order. MaterialEditer is not among them:
/// KVMaterialLibrary constructs and runs it.
const std::vector<CatalogueEntry>& DialogCatalogue();
