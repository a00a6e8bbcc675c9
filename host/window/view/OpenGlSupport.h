#pragma once

#include <QString>

/// Why the OpenGL of this system cannot show a PartScene, for the user; empty if it can. Tries it
/// and takes some tenths of a second.
QString OpenGlProblem();
