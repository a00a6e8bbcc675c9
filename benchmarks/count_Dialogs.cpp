#include "DialogCatalogue.h"
#include "Offscreen.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <valgrind/callgrind.h>

#include <string>

// Run this under callgrind. It dumps the instruction counts of constructing and destroying each
// dialog and its bare form once, after a first time that is not counted.

namespace {

template<class Result>
void Count(const std::string& name, Result (*construct)())
{
    construct();
    CALLGRIND_ZERO_STATS;
    construct();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    RunOffscreen();
    const QApplication application(argc, argv);
    const QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    for (const CatalogueEntry& entry : DialogCatalogue()) {
        if (entry.makeForm == nullptr)
            continue;
        const std::string name = entry.name;
        Count(name + "/ours/1", entry.make);
        Count(name + "/reference/1", entry.makeForm);
    }
    return 0;
}
