#pragma once

/// What the host's programs end with.
enum ExitCode
{
    DoneCode = 0,
    FailedCode = 1,
    BadInputCode = 2, ///< Wrong arguments or a wrong project.
    BadFolderCode = 3 ///< A folder or file of results cannot be written.
};
