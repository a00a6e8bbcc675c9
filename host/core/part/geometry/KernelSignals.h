#pragma once

#include <Standard_ErrorHandler.hxx>
#include <Standard_Failure.hxx>

/// Turns crashes inside the geometry kernel into exceptions, see GuardKernelCall(). Call it once,
/// at the start of the program.
///
/// Ctrl+C and a hang-up still end the program, and floating-point operations still do not trap.
void InstallKernelSignalHandlers();

/// Returns what @p call returns. A crash of the kernel leaves it as a Standard_Failure, such as
/// OSD_SIGSEGV; the objects on the stack of @p call are then not destroyed.
///
/// Outside this function a crash ends the program.
template<class Call>
auto GuardKernelCall(const Call& call)
{
    OCC_CATCH_SIGNALS
    return call();
}
