#pragma once

/// What the geometry kernel may use for one request; the mesher and the solver have the same limit
/// of memory. A setting of the user, kept between sessions.
struct BuildLimits
{
    static constexpr int MinimumMegabytes = 512;
    static constexpr int MaximumMegabytes = 1024 * 1024;
    static constexpr int MaximumSeconds = 7 * 24 * 3600;

    int megabytes = 4096; ///< Of the address space of each process.
    int seconds = 600;    ///< For one request.

    /// The user's setting. Values out of range are brought into it.
    static BuildLimits Stored();
    void Store() const;
};
