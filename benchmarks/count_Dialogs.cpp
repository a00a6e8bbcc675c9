#include "DialogList.h"
#include "Offscreen.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <valgrind/callgrind.h>

#include <string>

// Run this under callgrind. It dumps the instruction counts of constructing and destroying each
// dialog and its bare form once, after a first time that is not counted.

namespace {

void Count(const std::string& name, void (*construct)())
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
    ForEachDialog([](const std::string& name, void (*dialog)(), void (*form)()) {
        Count(name + "/ours/1", dialog);
        Count(name + "/reference/1", form);
    });
    return 0;
}
