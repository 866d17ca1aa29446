// Imports, loads and drawings that run out of memory at any point: each raises, or was one of the two things
// that do without (a reference that is logged and dropped, a literal that is passed over) and gives a valid
// model. The old file stays when nothing new is saved, nothing is left beside it, and the next import is as
// good as ever. Here a part of the allocations fails; `make soak` goes through all.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <limits>
#include <new>

#include "fuzz/SavedBytes.h"
#include "repository/compare/ModelComparison.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/reliability/ImportRun.h"
#include "tests/reliability/Soak.h"
#include "tests/repository/SqliteFile.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/MemoryGrowth.h"
#include "tests/support/TemporaryFile.h"

namespace {

using Extent = FailingAllocation::Extent;

enum class Outcome { done, outOfMemory, refused };

template <class Action>
Outcome outcomeOf(const Action& action) {
  try {
    action();
    return Outcome::done;
  } catch (const KYRException&) {
    return Outcome::refused;
  } catch (const std::bad_alloc&) {
    return Outcome::outOfMemory;
  }
}

template <class Action>
long countAllocations(const Action& action) {
  const FailingAllocation none(std::numeric_limits<long>::max() - 1);
  action();
  return FailingAllocation::getCount();
}

// Between two failing allocations: all of them when soaking, else so many in all, the first ones closer.
long stepFrom(long number, long count, long cases) {
  return isSoaking() || number < cases / 4 ? 1 : std::max(1L, count / cases);
}

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// A reference that could not be made is logged; a literal is missing in silence.
bool isExplained(const ImportRun& import, const std::string& expected) {
  const std::string literal = "\"class\":\"KYRTypeValue\"";
  return import.log().countOf("KBI_UML2XMI_F0005") > 0 ||
         countOf(import.saved(), literal) < countOf(expected, literal);
}

struct Tally {
  int faults = 0;
  int swallowed = 0;
};

// One import that has no memory for that allocation.
Tally importWithout(long number, Extent extent, const std::string& input, const std::string& expected) {
  Tally tally;
  ImportRun import(input);
  Outcome outcome = Outcome::done;
  {
    const FailingAllocation failing(number, extent);
    outcome = outcomeOf([&] { import.run(); });
    tally.faults = failing.hasFailed() ? 1 : 0;
  }
  if (outcome != Outcome::done) {
    EXPECT_TRUE(import.isUntouched()) << number;
    return tally;
  }
  const std::string saved = import.saved();
  EXPECT_EQ(import.filesInFolder(), 1U);
  EXPECT_NO_THROW(checkComesBack(saved)) << number;
  if (tally.faults == 0) {
    EXPECT_EQ(saved, expected) << number;
  } else if (saved != expected) {
    tally.swallowed = 1;
    EXPECT_TRUE(isExplained(import, expected)) << number;
  }
  return tally;
}

void failEachAllocation(const std::string& input, long cases) {
  const std::string expected = ImportRun::resultOf(input);
  long count = 0;
  {
    ImportRun import(input);
    count = countAllocations([&] { import.run(); });
  }
  Tally all;
  for (const Extent extent : {Extent::one, Extent::allFrom}) {
    for (long number = 0; number < count; number += stepFrom(number, count, cases)) {
      Tally tally;
      EXPECT_FALSE(growsEachTime([&] { tally = importWithout(number, extent, input, expected); })) << number;
      all.faults += tally.faults;
      all.swallowed += tally.swallowed;
    }
  }
  EXPECT_EQ(ImportRun::resultOf(input), expected);
  std::cout << "  " << all.faults << " of " << 2 * count << " allocations failed, " << all.swallowed
            << " left out of a model\n";
}

void checkSearch(const std::string& path) {
  const SqliteFile database(path);
  EXPECT_EQ(database.ask("PRAGMA integrity_check"), "ok");
  // By itself: the view of the objects has more rows than are searched.
  EXPECT_EQ(database.ask("INSERT INTO search(search) VALUES ('integrity-check')"), "");
  EXPECT_EQ(database.ask("SELECT count(*) FROM search WHERE search MATCH 'first OR second'"), "9600");
}

class OutOfMemory : public testing::TestWithParam<const char*> {};

TEST_P(OutOfMemory, AnImportRaisesOrGivesAValidModel) { failEachAllocation(samplePath(GetParam()), 40); }

// From few allocations to many.
INSTANTIATE_TEST_SUITE_P(Samples, OutOfMemory,
                         testing::Values("odd/utf-16.xmi", "odd/package-ring.xmi", "magicdraw-module.xmi",
                                         "together.xmi", "visual-paradigm.xmi", "eclipse-papyrus.uml",
                                         "rational-software-architect.emx", "plain.xmi",
                                         "magicdraw-database.xmi", "magicdraw.xmi",
                                         "enterprise-architect.xmi", "enterprise-architect-database.xmi",
                                         "magicdraw-diagrams.xmi"));

// Threads of their own read ahead and save: what fails there comes out here.
TEST(OutOfMemoryInThreads, AnImportRaisesOrGivesAValidModel) {
  const TemporaryFile input(fileOfClasses(4800));
  ASSERT_GT(readWholeFile(input.path).size(), std::size_t{1} << 20);
  const std::string expected = ImportRun::resultOf(input.path);
  long count = 0;
  {
    ImportRun import(input.path);
    count = countAllocations([&] { import.run(); });
  }
  const long cases = isSoaking() ? 200 : 10;
  for (const Extent extent : {Extent::one, Extent::allFrom}) {
    for (long number = 0; number < count; number += std::max(1L, count / cases)) {
      ImportRun import(input.path);
      Outcome outcome = Outcome::done;
      {
        const FailingAllocation failing(number, extent);
        outcome = outcomeOf([&] { import.run(); });
      }
      if (outcome == Outcome::done) {
        EXPECT_NO_THROW(checkComesBack(import.saved())) << number;
      } else {
        EXPECT_TRUE(import.isUntouched()) << number;
      }
    }
  }
}

// A thread gathers the words of a database.
TEST(OutOfMemoryInThreads, ADatabaseIsWholeOrThereIsNone) {
  const TemporaryFile input(fileOfClasses(4800));
  ImportRun import(input.path);
  import.run();
  const std::unique_ptr<KYRStoreModel> model = loadStoreModel(KYRFile(import.output().c_str()));
  const std::string path = import.output() + ".sqlite";
  const auto save = [&] { saveStoreModelFile(KYRFile(path.c_str()), *model, StoreModelFormat::sqlite); };
  const long count = countAllocations(save);
  const std::string expected = readWholeFile(path);
  std::filesystem::remove(path);
  const long cases = isSoaking() ? 1000 : 60;
  for (const Extent extent : {Extent::one, Extent::allFrom}) {
    for (long number = 0; number < count; number += std::max(1L, count / cases)) {
      Outcome outcome = Outcome::done;
      {
        const FailingAllocation failing(number, extent);
        outcome = outcomeOf(save);
      }
      // SQLite does without some allocations, and then may lay the rows out in another way.
      EXPECT_EQ(std::filesystem::exists(path), outcome == Outcome::done) << number;
      if (outcome == Outcome::done) checkSearch(path);
      std::filesystem::remove(path);
      EXPECT_EQ(import.filesInFolder(), 1U) << number;
    }
  }
  save();
  EXPECT_TRUE(readWholeFile(path) == expected);
}

// A saved model, and what is done with it.
struct SavedSample {
  SavedSample() : import(samplePath("magicdraw-diagrams.xmi")) {
    import.run();
    model = loadStoreModel(file());
  }
  KYRFile file(const char* ending = "") const { return KYRFile((import.output() + ending).c_str()); }
  std::string contentOf(const char* ending) const { return readWholeFile(import.output() + ending); }

  ImportRun import;
  std::unique_ptr<KYRStoreModel> model;
};

constexpr const char* databaseEnding = ".db";
constexpr const char* statementsEnding = ".sql";

struct Work {
  const char* name;
  void (*action)(const SavedSample&);
};

constexpr Work works[] = {
    {"Load", [](const SavedSample& sample) { loadStoreModel(sample.file()); }},
    {"Draw", [](const SavedSample& sample) { drawAll(*sample.model); }},
    {"Compare", [](const SavedSample& sample) { const ModelComparison made(*sample.model, *sample.model); }},
    {"SaveAsDatabase",
     [](const SavedSample& sample) {
       saveStoreModelFile(sample.file(databaseEnding), *sample.model, StoreModelFormat::sqlite);
     }},
    {"SaveAsStatements",
     [](const SavedSample& sample) {
       saveStoreModelFile(sample.file(statementsEnding), *sample.model, StoreModelFormat::sql);
     }},
};

class OutOfMemoryWithModels : public testing::TestWithParam<Work> {};

TEST_P(OutOfMemoryWithModels, RaisesAndLeavesTheFiles) {
  const SavedSample sample;
  for (const Work& work : works) work.action(sample);
  const std::string savedDatabase = sample.contentOf(databaseEnding);
  const std::string savedStatements = sample.contentOf(statementsEnding);
  const std::string before = savedBytesOf(*sample.model);
  const long count = countAllocations([&] { GetParam().action(sample); });
  long faults = 0;
  for (const Extent extent : {Extent::one, Extent::allFrom}) {
    for (long number = 0; number < count; number += stepFrom(number, count, 30)) {
      EXPECT_FALSE(growsEachTime([&] {
        const FailingAllocation failing(number, extent);
        outcomeOf([&] { GetParam().action(sample); });
      })) << number;
      ++faults;
    }
  }
  EXPECT_EQ(sample.import.filesInFolder(), 3U);
  EXPECT_EQ(sample.contentOf(databaseEnding), savedDatabase);
  EXPECT_EQ(sample.contentOf(statementsEnding), savedStatements);
  EXPECT_EQ(savedBytesOf(*sample.model), before);
  std::cout << "  " << faults << " of " << 2 * count << " allocations failed\n";
}

INSTANTIATE_TEST_SUITE_P(Works, OutOfMemoryWithModels, testing::ValuesIn(works),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

}  // namespace
