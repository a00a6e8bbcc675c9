#pragma once

/// The option that makes the program a worker: `tarnhost --worker LANGUAGE MEGABYTES`. It is for
/// KernelWorker alone, so --help does not show it.
constexpr char WorkerOption[] = "--worker";

/// Whether the program was started as a worker.
bool IsWorker(int argc, char** argv);

/// Answers the requests from standard input on standard output, until the input ends or the kernel
/// crashes. Returns the exit code.
///
/// Each reply is complete before the next request is read. A message that arrives earlier ends the
/// request at hand before its next feature; an empty one does nothing else.
int RunWorker(int argc, char** argv);
