#pragma once

#include <QString>

/// What the soak is told by its environment.
struct SoakOptions
{
    QString cameraTool; ///< command line tool of the simulated camera
    QString picture;    ///< file for a picture of where it stuck
    int cycles = 300;
    unsigned seed = 1; ///< of everything that is left to chance
};

SoakOptions soakOptionsFromEnvironment();

/// Pulls the camera out of the running program and plugs it in again, time after time, at any
/// moment while it streams, calibrates or searches the focus, and starts it anew with a real mouse.
/// Prints a table. Returns whether nothing was wrong.
bool runSoakScript(const SoakOptions &options);
