// ModelSaver: the format that the user wants a model in, put in the way of the plug-in's saving.
//
// The plug-in makes the model and hands it over to be saved; the host never has it otherwise. So this is
// where it is counted, too.
#pragma once

#include <optional>

#include "host/Output.h"
#include "host/SavedModelCounts.h"
#include "repository/storage/StoreModelFile.h"
#include "repository/storage/StoreModelSaver.h"

class ModelSaver final : public StoreModelSaver {
 public:
  /// Saves the models of this process as long as it lives: each in a file of its own, or each added to
  /// what the SQLite file holds.
  ModelSaver(StoreModelFormat format, bool isAppending);
  /// Writes them to the output, whatever file they are for. The format is a text.
  ModelSaver(StoreModelFormat format, Output& output);
  ~ModelSaver() override;

  void save(const KYRFile& file, const KYRStoreModel& model) override;
  /// Spares a walk over each model where nobody asks for the counts.
  void skipCounting() noexcept { isCounting_ = false; }
  /// Nothing when no model has been counted yet.
  const std::optional<SavedModelCounts>& getCounts() const noexcept { return counts_; }

 private:
  StoreModelFormat format_;
  bool isAppending_ = false;
  bool isCounting_ = true;
  Output* output_ = nullptr;
  std::optional<SavedModelCounts> counts_;
};
