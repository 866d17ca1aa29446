// InfoCommand: `kyr info`, what the plug-in tells of itself, or the type names of the data stores.
#pragma once

#include <string>

#include "host/Output.h"

class PluginLibrary;

class InfoCommand {
 public:
  struct Settings {
    std::string plugin;  // empty: the one of this installation
    bool isJson = false;
    bool listsTypes = false;  // instead of the plug-in, the types of the data stores
    std::string store;        // only those of this one
  };

  /// `library` must outlive the handling of an exception, which may come from the plug-in.
  InfoCommand(Settings settings, PluginLibrary& library, Output& output)
      : settings_(std::move(settings)), library_(library), output_(output) {}
  /// Raises KYRException when there is no plug-in to ask.
  void run();

 private:
  void writeTypes();
  void writeText();
  void writeJson();

  Settings settings_;
  PluginLibrary& library_;
  Output& output_;
};
