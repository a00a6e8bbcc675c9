#pragma once

/// Takes the kernel's messages off the console, for as long as the process lives: what the kernel
/// or the OpenGL driver could not do is posted to the message channel as a warning, the rest is
/// dropped.
void RouteKernelMessages();
