#pragma once

namespace velmar::sample {

/// True if Qt finds a screen to show windows on. Asked in a process of its own, since Qt ends a program that
/// it finds no screen for; so it must be called before there are threads.
bool HasDisplay(int argc, char** argv);

}  // namespace velmar::sample
