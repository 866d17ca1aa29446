// CommandLine: the words behind "kyr", and the one place where errors become messages and exit codes.
#pragma once

/// Runs the command that the arguments name, and returns the exit code. Raises nothing.
int runCommandLine(int argumentCount, const char* const* arguments) noexcept;

/// Says on the standard error that there is no memory, and asks for none. May be called before static objects
/// are made.
void sayOutOfMemory() noexcept;
