// PluginLibrary: the plug-in, loaded from its shared library.
//
// The library belongs to the installation that this program is part of, or is named by the user. No
// environment variable plays a part. It stays loaded as long as the object lives, so whatever handles
// an exception out of the plug-in must stand inside the object's life.
#pragma once

#include <string>

class KYRImportBridgeDllInterface;

class PluginLibrary {
 public:
  PluginLibrary() = default;
  PluginLibrary(const PluginLibrary&) = delete;
  PluginLibrary& operator=(const PluginLibrary&) = delete;
  ~PluginLibrary();

  /// Loads the library at that path. An empty path stands for the plug-in of this installation: the one
  /// beside the program, else the one in the folder `kyr` beside the library libkyr. Raises KYRException
  /// when there is none, when it cannot be loaded, and when it is no import plug-in. Called once.
  void load(const std::string& path);

  const std::string& getPath() const noexcept { return path_; }
  /// The plug-in object, borrowed from the library. `load` comes first.
  KYRImportBridgeDllInterface& getPlugin() const noexcept { return *plugin_; }

 private:
  static std::string findOwn();

  std::string path_;
  void* handle_ = nullptr;
  KYRImportBridgeDllInterface* plugin_ = nullptr;
};
