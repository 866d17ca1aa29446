// DiffCommand: `kyr diff`, what has changed from one saved model to another.
#pragma once

#include <string>

#include "host/Output.h"

struct ComparedField;
struct ComparedValue;
class JsonOut;
class ModelComparison;
class TextOut;

class DiffCommand {
 public:
  struct Settings {
    std::string before;
    std::string after;
    bool isJson = false;
  };

  DiffCommand(Settings settings, Output& output) : settings_(std::move(settings)), output_(output) {}
  /// The exit code: done for equal models, else `different`. Raises KYRException for a file that is no
  /// saved model.
  int run();

 private:
  void writeText(const ModelComparison& comparison);
  void writeJson(const ModelComparison& comparison);

  Settings settings_;
  Output& output_;
};
