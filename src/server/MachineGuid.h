#pragma once

#include <QString>

namespace meridax {

/// The identifier of this installation: random, made once and kept in the file "machine-guid" of
/// the data folder, which only its owner can read. It says nothing about the machine. Where it
/// cannot be written, each call gives a new one.
QString machineGuid();

} // namespace meridax
