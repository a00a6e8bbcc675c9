#pragma once

/// Routes the kernel's messages away from the console until the process ends: posts failures of the
/// kernel and of the OpenGL driver to the message channel as warnings and drops all other messages.
void RouteKernelMessages();
