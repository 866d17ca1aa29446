#include "repository/storage/StoreModelSaver.h"

#include <gtest/gtest.h>

#include "foundation/KYRLog.h"
#include "repository/plugin/KYRBridgeDllInterface.h"
#include "tests/repository/ModelFolder.h"
#include "tests/support/RecordingLog.h"

namespace {

// What a plug-in does with its model.
struct Plugin : KYRBridgeDllInterface {
  using KYRBridgeDllInterface::saveStoreModel;
};

class NotingSaver : public StoreModelSaver {
 public:
  void save(const KYRFile& file, const KYRStoreModel& model) override {
    seen = std::string(file.getPath().view()) + " " + std::string(model.getName().view());
  }
  std::string seen;
};

class StoreModelSavers : public ModelFolder {
 protected:
  StoreModelSavers() { model_.setName("Shop"); }
  ~StoreModelSavers() override { StoreModelSaver::install(nullptr); }
  void savePlugin() {
    KYRFile target = file();
    RecordingLog log;
    Plugin::saveStoreModel(target, model_, log);
  }
  KYRStoreModel model_;
};

TEST_F(StoreModelSavers, WithoutOneAPluginSavesJson) {
  EXPECT_EQ(StoreModelSaver::getInstalled(), nullptr);
  savePlugin();
  EXPECT_EQ(content().substr(0, 26), "{\"format\":\"kyr-store-model");
}

TEST_F(StoreModelSavers, TheInstalledOneSavesInstead) {
  NotingSaver saver;
  StoreModelSaver::install(&saver);
  savePlugin();
  EXPECT_EQ(saver.seen, path() + " Shop");
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(StoreModelSavers, WhatItRaisesReachesTheCaller) {
  class RefusingSaver : public StoreModelSaver {
    void save(const KYRFile&, const KYRStoreModel&) override { throw KYRException("no", ""); }
  } saver;
  StoreModelSaver::install(&saver);
  EXPECT_EQ(failureOf([this] { savePlugin(); }), "no");
}

}  // namespace
