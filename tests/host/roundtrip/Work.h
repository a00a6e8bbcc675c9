#pragma once

#include <QString>

// What the child process does for one seed. The result is one word, and for some a reason after it.

/// Writes a random part to a STEP file and reads it back: "same", "different", "unbuilt" or
/// "refused".
QString RoundTrip(unsigned seed);

/// Damages a STEP file at random and reads it: "sound", "unsound" or "refused".
QString ReadDamagedFile(unsigned seed);
