#include "InputFile.h"
#include "Project.h"

#include <QFile>

// A project that is read can be written, and is then read again as the same one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const InputFile input(data, size);
    const QString copy = QStringLiteral("/dev/shm/fuzz_Project_%1.json").arg(getpid());
    try {
        Project project = Project::Load(QString::fromStdString(input.Path()));
        project.Save(copy);
        const Project again = Project::Load(copy);
        QFile::remove(copy);
        if (again.Features() != project.Features() || again.Title() != project.Title() ||
            again.Parameters().size() != project.Parameters().size())
            __builtin_trap();
    } catch (const ProjectError&) {
        return 0;
    }
    return 0;
}
