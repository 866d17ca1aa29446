// HostVersion: the version of the program, which is that of the project.
#pragma once

constexpr const char* hostVersion = "10.0.1";
