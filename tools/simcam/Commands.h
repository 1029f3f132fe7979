#pragma once

#include "Options.h"

#include <string>

/// The verbs of the command line tool that act on a plugged camera. Each takes its arguments
/// without the verb and without --dir, and raises UserError for what cannot be.
namespace meridax::simcam {

void plugCommand(const std::string &dir, Arguments arguments);
void unplugCommand(const std::string &dir, Arguments arguments);
void listCommand(const std::string &dir, Arguments arguments);
void setCommand(const std::string &dir, Arguments arguments);
void presetCommand(const std::string &dir, Arguments arguments);
void getCommand(const std::string &dir, Arguments arguments);
void truthCommand(const std::string &dir, Arguments arguments);
void turnCommand(const std::string &dir, Arguments arguments);
void autoTurnCommand(const std::string &dir, Arguments arguments);
void playCommand(const std::string &dir, Arguments arguments);

} // namespace meridax::simcam
