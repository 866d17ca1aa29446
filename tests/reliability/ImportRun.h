// ImportRun: imports of a file into a file, as a host runs them, in a folder that goes with the object.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "bridge/KYROmgUml2XmiImportDllInterface.h"
#include "foundation/KYRException.h"
#include "foundation/KYRFile.h"
#include "foundation/KYROption.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryName.h"
#include "xmi/DispatchRows.h"

inline std::string readWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

inline std::string samplePath(const std::string& name) {
  return std::string(KYR_SOURCE_DIR) + "/samples/" + name;
}

/// A plain model file of that many classes, some 250 bytes each.
inline std::string fileOfClasses(int count) {
  std::string text =
      "<xmi:XMI xmlns:xmi='http://schema.omg.org/spec/XMI/2.1' "
      "xmlns:uml='http://schema.omg.org/spec/UML/2.1'>"
      "<uml:Model xmi:id='m' name='Many'><packagedElement xmi:type='uml:Package' xmi:id='p' name='P'>\n";
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    text += "<packagedElement xmi:type='uml:Class' xmi:id='c" + number + "' name='Class" + number + "'>";
    text += "<ownedAttribute xmi:type='uml:Property' xmi:id='a" + number + "' name='first' type='c0'/>";
    text += "<ownedAttribute xmi:type='uml:Property' xmi:id='b" + number +
            "' name='second'/></packagedElement>\n";
  }
  return text + "</packagedElement></uml:Model></xmi:XMI>\n";
}

class ImportRun {
 public:
  explicit ImportRun(const std::string& input) {
    folder_ = temporaryName("run");
    if (mkdtemp(folder_.data()) == nullptr) throw std::runtime_error("no temporary folder");
    getKYROmgUml2XmiImportInterface()->getOptionList(options_);
    options_.get("BP_FILE")->setValue(input.c_str());
    auto time = std::make_unique<KYROption>("BP_MODIFICATION_TIME", "BP_MODIFICATION_TIME", OptionType::text,
                                            KYRString(), KYRString(), false);
    time->setValue("2026-01-01T00:00:00Z");
    options_.add(time.release());
    std::ofstream(output()) << old;
    DispatchRows::resetForTests();
  }
  ImportRun(const ImportRun&) = delete;
  ImportRun& operator=(const ImportRun&) = delete;
  ~ImportRun() { std::filesystem::remove_all(folder_); }

  /// Imports; raises what the import raises.
  void run() {
    KYRFile target(output().c_str());
    getKYROmgUml2XmiImportInterface()->run("test", target, options_, log_);
  }
  /// What an import without a fault saves.
  static std::string resultOf(const std::string& input) {
    ImportRun run(input);
    run.run();
    return run.saved();
  }

  std::string output() const { return folder_ + "/model.json"; }
  std::string saved() const { return readWholeFile(output()); }
  bool isUntouched() const { return filesInFolder() == 1 && saved() == old; }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator all(folder_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }
  const RecordingLog& log() const noexcept { return log_; }
  static constexpr const char* old = "what was there before";

 private:
  std::string folder_;
  KYROptionList options_;
  RecordingLog log_;
};
