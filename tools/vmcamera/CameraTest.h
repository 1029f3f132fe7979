#pragma once

/// Uses the program's window with a real mouse while the camera behind the kernel's driver is
/// plugged, frozen, taken by others and pulled out. Prints a line for each step and saves a picture
/// after it; the first step that fails ends the test. Returns whether all passed.
bool runCameraTest();
