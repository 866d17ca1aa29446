// Where the plug-in is looked for, and what makes a library a plug-in.
#include "host/PluginLibrary.h"

#include <dlfcn.h>

#include <filesystem>

#include "foundation/KYRFile.h"
#include "host/KYRHostMessages.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"

class KYROmgUml2XmiImportDllInterface;  // known to the plug-in alone

namespace {

using Entry = KYROmgUml2XmiImportDllInterface* (*)();

constexpr const char* fileName = "libKYROmgUml2XmiImport.so";
constexpr const char* entryName = "getKYROmgUml2XmiImportInterface";
constexpr const char* pluginFolder = "kyr";

bool isFile(const std::string& path) { return KYRFile(KYRString(path)).exists(); }

std::filesystem::path folderOfProgram() {
  std::error_code failure;
  return std::filesystem::read_symlink("/proc/self/exe", failure).parent_path();
}

// The folder of libkyr, asked of the loader by the address of an object in it: the one place from which
// the plug-ins are found under every prefix and every name of the folder of libraries.
std::filesystem::path folderOfLibrary() {
  Dl_info library = {};
  if (dladdr(&KYRString::getEmptyString(), &library) == 0 || library.dli_fname == nullptr) return {};
  return std::filesystem::path(library.dli_fname).parent_path();
}

std::string lastLoaderError() {
  const char* const reason = dlerror();
  return reason != nullptr ? reason : "";
}

}  // namespace

PluginLibrary::~PluginLibrary() {
  if (handle_ != nullptr) dlclose(handle_);
}

void PluginLibrary::load(const std::string& path) {
  path_ = path.empty() ? findOwn() : path;
  if (!isFile(path_)) KYRHostMessages::PLUGIN_NOT_A_FILE.throwException(KYRString(path_));
  // A name without a folder would be looked for in the folders of the system.
  const std::string place = path_.find('/') == std::string::npos ? "./" + path_ : path_;
  handle_ = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle_ == nullptr) {
    KYRHostMessages::PLUGIN_CANNOT_LOAD.throwException(KYRString(path_), KYRString(lastLoaderError()));
  }
  const auto entry = reinterpret_cast<Entry>(dlsym(handle_, entryName));
  if (entry == nullptr) {
    KYRHostMessages::PLUGIN_NO_ENTRY.throwException(KYRString(path_), KYRString(entryName));
  }
  // The import interface is the one base of the object's class, so both have one address.
  plugin_ = reinterpret_cast<KYRImportBridgeDllInterface*>(entry());
}

std::string PluginLibrary::findOwn() {
  std::string beside = folderOfProgram() / fileName;
  if (isFile(beside)) return beside;
  std::string installed = (folderOfLibrary() / pluginFolder / fileName).lexically_normal();
  if (isFile(installed)) return installed;
  KYRHostMessages::PLUGIN_NOT_FOUND.throwException(KYRString(fileName), KYRString(beside),
                                                   KYRString(installed));
}
