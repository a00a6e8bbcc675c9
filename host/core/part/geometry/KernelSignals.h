#pragma once

#include <OSD_Signal.hxx>
#include <Standard_ErrorHandler.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>

#include <new>

/// Turns crashes inside the geometry kernel into exceptions, see GuardKernelCall(). Call it once,
/// at the start of a process that does nothing else: a crash may leave the kernel damaged.
///
/// Ctrl+C and a hang-up still end the program, and floating-point operations still do not trap.
void InstallKernelSignalHandlers();

/// Whether the kernel has crashed in this process, also where the kernel itself caught that.
bool HasKernelCrashed();

/// Returns what @p call returns. A crash of the kernel leaves it as a Standard_Failure, such as
/// OSD_SIGSEGV; the objects on the stack of @p call are then not destroyed. Missing memory leaves
/// it as std::bad_alloc.
///
/// Outside this function a crash ends the program.
template<class Call>
auto GuardKernelCall(const Call& call)
{
    try {
        OCC_CATCH_SIGNALS
        return call();
    } catch (const Standard_OutOfMemory&) {
        throw std::bad_alloc();
    }
}
