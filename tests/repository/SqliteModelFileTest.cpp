#include "repository/storage/SqliteModelFile.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>
#include <vector>

#include "repository/model/KYRMetadataOrigin.h"
#include "repository/storage/SqlSchema.h"
#include "tests/repository/FullModel.h"
#include "tests/repository/ModelFolder.h"
#include "tests/repository/SqliteFile.h"

namespace {

class SqliteModelFile : public ModelFolder {
 protected:
  std::string ask(const std::string& query) const { return SqliteFile(path("m.sqlite")).ask(query); }
  void append() const { appendStoreModelFile(file("m.sqlite"), *makeFullModel()); }
};

// A limit on file sizes stands for a full disk.
class LimitedFiles {
 public:
  explicit LimitedFiles(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limited = before_;
    limited.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  LimitedFiles(const LimitedFiles&) = delete;
  LimitedFiles& operator=(const LimitedFiles&) = delete;
  ~LimitedFiles() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_ = {};
  void (*handler_)(int);
};

TEST_F(SqliteModelFile, AFullDiskLeavesWhatWasThere) {
  write("old", "m.sqlite");
  {
    const LimitedFiles limit(20000);
    EXPECT_THAT(failureOf([this] {
                  saveStoreModelFile(file("m.sqlite"), *makeFullModel(), StoreModelFormat::sqlite);
                }),
                testing::HasSubstr("The file '" + path("m.sqlite") + "' cannot be saved: "));
  }
  EXPECT_EQ(content("m.sqlite"), "old");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SqliteModelFile, AnAppendThatFailsLeavesNothingWhereNothingWas) {
  {
    const LimitedFiles limit(20000);
    EXPECT_THAT(failureOf([this] { append(); }), testing::HasSubstr("cannot be saved: "));
  }
  EXPECT_LE(filesInFolder(), 1U);  // an empty database at most, which the next append fills
  append();
  EXPECT_EQ(ask("SELECT count(*) FROM models"), "1");
  const std::string before = content("m.sqlite");
  auto other = makeFullModel();
  other->metadataOrigin->filePath = "other";
  const std::string longText(before.size(), 'x');
  other->description = KYRString(std::string_view(longText));
  {
    const LimitedFiles limit(static_cast<rlim_t>(before.size()));
    EXPECT_THAT(failureOf([&] { appendStoreModelFile(file("m.sqlite"), *other); }),
                testing::HasSubstr("cannot be saved: "));
  }
  EXPECT_EQ(ask("SELECT count(*) FROM models; PRAGMA integrity_check"), "1\nok");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SqliteModelFile, OnlyRegularFilesAreTargets) {
  EXPECT_EQ(failureOf([] { appendStoreModelFile(KYRFile("/dev/null"), KYRStoreModel()); }),
            "[KYRSTD_F0121] The file '/dev/null' cannot be saved: it is not a regular file");
  EXPECT_THAT(failureOf([this] { appendStoreModelFile(file("no/m.sqlite"), KYRStoreModel()); }),
              testing::HasSubstr("unable to open database file"));
}

TEST_F(SqliteModelFile, ManyProcessesAddToOneFile) {
  constexpr int processes = 6;
  std::vector<pid_t> children;
  for (int i = 0; i < processes; ++i) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      const auto model = makeFullModel();
      model->metadataOrigin->filePath = KYRString(i);
      _exit(failureOf([&] { appendStoreModelFile(file("m.sqlite"), *model); }) == "nothing raised" ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(ask("SELECT group_concat(origin_path, '') FROM (SELECT * FROM models ORDER BY origin_path)"),
            "012345");
  EXPECT_EQ(ask("PRAGMA integrity_check; PRAGMA foreign_key_check"), "ok");
  EXPECT_EQ(ask("SELECT count(*) FROM objects"), ask("SELECT max(last_id) FROM models"));
  EXPECT_EQ(filesInFolder(), 1U);
}

// Another process replaced the file while this one waited for the lock of the old one.
TEST_F(SqliteModelFile, AReplacedFileIsOpenedAnew) {
  append();
  auto old = std::make_unique<SqliteFile>(path("m.sqlite"));
  old->ask("BEGIN IMMEDIATE");
  auto model = makeFullModel();
  model->metadataOrigin->filePath = "late";
  std::thread appending([&] { appendStoreModelFile(file("m.sqlite"), *model); });
  usleep(100000);
  std::filesystem::remove(path("m.sqlite"));
  old->ask("COMMIT");
  appending.join();
  EXPECT_EQ(ask("SELECT origin_path FROM models"), "late");
}

// A process that dies at an append leaves its journal. It belongs to the old file, not to the next one.
TEST_F(SqliteModelFile, AJournalThatWasLeftBehindDoesNoHarmToTheFileThatTakesThePlace) {
  append();
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    SqliteFile dying(path("m.sqlite"));
    dying.ask("PRAGMA cache_size = 1; BEGIN; UPDATE classes SET name = hex(randomblob(9000))");
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  ASSERT_TRUE(std::filesystem::exists(path("m.sqlite-journal")));
  KYRStoreModel model;
  model.setName("new");
  saveStoreModelFile(file("m.sqlite"), model, StoreModelFormat::sqlite);
  EXPECT_EQ(filesInFolder(), 1U);
  EXPECT_EQ(ask("SELECT name FROM models; PRAGMA integrity_check"), "new\nok");
}

TEST_F(SqliteModelFile, AJournalWithoutItsDatabaseIsRemovedAndOtherFilesStay) {
  write("\xD9\xD5\x05\xF9\x20\xA1\x63\xD7 and more", "m.sqlite-journal");
  write("notes", "m.sqlite-wal");
  saveStoreModelFile(file("m.sqlite"), *makeFullModel(), StoreModelFormat::sqlite);
  EXPECT_FALSE(std::filesystem::exists(path("m.sqlite-journal")));
  EXPECT_EQ(content("m.sqlite-wal"), "notes");
}

TEST_F(SqliteModelFile, AFileIsReplacedWhenNobodyWritesToItAnyMore) {
  append();
  auto writing = std::make_unique<SqliteFile>(path("m.sqlite"));
  writing->ask("BEGIN IMMEDIATE; DELETE FROM notes");
  std::atomic<bool> isSaved = false;
  std::thread saving([&] {
    saveStoreModelFile(file("m.sqlite"), KYRStoreModel(), StoreModelFormat::sqlite);
    isSaved = true;
  });
  usleep(100000);
  EXPECT_FALSE(isSaved);
  writing->ask("COMMIT");
  saving.join();
  EXPECT_EQ(ask("SELECT count(*) FROM objects; PRAGMA integrity_check"), "1\nok");
}

TEST_F(SqliteModelFile, ADatabaseWithALogOfItsOwnIsReplacedWithIt) {
  append();
  SqliteFile(path("m.sqlite")).ask("PRAGMA journal_mode = WAL; UPDATE classes SET name = 'x'");
  saveStoreModelFile(file("m.sqlite"), KYRStoreModel(), StoreModelFormat::sqlite);
  EXPECT_EQ(filesInFolder(), 1U);
  EXPECT_EQ(ask("SELECT count(*) FROM objects; PRAGMA integrity_check"), "1\nok");
}

// The signal comes while the lock is waited for, and ends the process without a trace in the file.
TEST_F(SqliteModelFile, ASignalEndsTheWaitAndLeavesTheFileWhole) {
  append();
  const std::string before = content("m.sqlite");
  SqliteFile other(path("m.sqlite"));
  other.ask("BEGIN IMMEDIATE");
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    std::signal(SIGTERM, SIG_DFL);
    failureOf([this] { append(); });
    _exit(0);
  }
  usleep(200000);
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
  other.ask("ROLLBACK");
  EXPECT_EQ(content("m.sqlite"), before);
  EXPECT_EQ(filesInFolder(), 1U);
}

}  // namespace
