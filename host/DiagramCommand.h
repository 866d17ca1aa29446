// DiagramCommand: `kyr diagram`, the class diagrams of a saved model as pictures.
#pragma once

#include <string>
#include <vector>

#include "host/Output.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRStoreModel.h"

class DiagramCommand {
 public:
  struct Settings {
    std::string file;    // a saved model
    std::string name;    // empty: all diagrams
    std::string folder;  // empty: the current one
  };

  DiagramCommand(Settings settings, Output& output) : settings_(std::move(settings)), output_(output) {}
  /// Writes an SVG file for each diagram. Raises KYRException when the model cannot be read, has no such
  /// diagram, or a file cannot be written.
  void run();

 private:
  std::vector<const KYRClassDiagram*> findDiagrams(KYRStoreModel& model) const;

  Settings settings_;
  Output& output_;
};
