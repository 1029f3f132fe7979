#pragma once

#include <QString>

/// What the unattended demo is told by its environment.
struct DemoOptions
{
    QString name; ///< of this run; begins the names of its pictures
    QString pictureFolder;
    QString cameraTool; ///< command line tool of the simulated camera
    QString resolution; ///< as the resolution list shows it, without the frame rate
    int positions = 8;
    bool mends = false; ///< the mark is found only with the values that the program offers
};

DemoOptions demoOptionsFromEnvironment();

/// Runs one whole calibration in the program's window with a real mouse: start the camera, turn it
/// position by position, take over the detector values offered where the mark is not found, measure
/// each position, accept the centre. Saves a picture at each stage and prints
/// one line with the result. Returns whether the centre is right.
bool runDemoScript(const DemoOptions &options);
