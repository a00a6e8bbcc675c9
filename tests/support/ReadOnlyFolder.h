#pragma once

#include <QtGlobal>

#include <sys/stat.h>
#include <unistd.h>

/// While this lives, nothing can be created or replaced in the working directory, not even by an
/// administrator: the process gets its rights back when this is destroyed.
class ReadOnlyFolder
{
public:
    ReadOnlyFolder()
    {
        constexpr mode_t ReadOnly = 0555;
        constexpr uid_t Nobody = 65534;
        m_holds = chmod(".", ReadOnly) == 0 && (geteuid() != 0 || seteuid(Nobody) == 0);
    }
    ~ReadOnlyFolder()
    {
        constexpr mode_t Private = 0700;
        m_holds = seteuid(getuid()) == 0 && chmod(".", Private) == 0;
    }
    Q_DISABLE_COPY(ReadOnlyFolder)

    bool Holds() const { return m_holds; }

private:
    bool m_holds = false;
};
