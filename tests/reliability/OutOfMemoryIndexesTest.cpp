// Lists and collections of a model keep indexes for speed. Where there is no memory for one, the answers are
// the same without it.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRObjectList.h"
#include "repository/model/KYRUniqueNumbers.h"
#include "tests/support/FailingAllocation.h"

namespace {

using Extent = FailingAllocation::Extent;

constexpr int enoughForAnIndex = 300;

// Does `work` while each of its allocations fails in turn, and those behind it; `check` sees what came of it.
template <class Prepare, class Work, class Check>
void failEach(const Prepare& prepare, const Work& work, const Check& check) {
  for (const Extent extent : {Extent::one, Extent::allFrom}) {
    bool hasFailed = true;
    long number = 0;
    for (; hasFailed; ++number) {
      auto subject = prepare();
      {
        const FailingAllocation failing(number, extent);
        work(*subject);
        hasFailed = failing.hasFailed();
      }
      check(*subject);
    }
    EXPECT_GT(number, 1);
  }
}

struct NotesInAList {
  explicit NotesInAList(bool hasIndex) {
    for (auto& note : notes) {
      note = std::make_unique<KYRNote>();
      if (note != notes.back()) list.add(note.get());
    }
    if (hasIndex) list.contains(notes[100].get());  // neither at the front nor at the end
  }
  std::vector<std::unique_ptr<KYRNote>> notes{enoughForAnIndex};
  KYRObjectList list;
};

TEST(OutOfMemoryIndexes, AListFindsAndRemovesWithoutOne) {
  failEach([] { return std::make_unique<NotesInAList>(false); },
           [](NotesInAList& subject) {
             EXPECT_TRUE(subject.list.contains(subject.notes[150].get()));
             EXPECT_TRUE(subject.list.remove(subject.notes[151].get()));
             EXPECT_FALSE(subject.list.contains(subject.notes.back().get()));
           },
           [](const NotesInAList& subject) {
             EXPECT_EQ(subject.list.getCount(), enoughForAnIndex - 2U);
             EXPECT_FALSE(subject.list.contains(subject.notes[151].get()));
             EXPECT_TRUE(subject.list.contains(subject.notes[152].get()));
           });
}

TEST(OutOfMemoryIndexes, AListTakesAnEntryOrRaises) {
  bool isAdded = false;
  failEach([] { return std::make_unique<NotesInAList>(true); },
           [&isAdded](NotesInAList& subject) {
             isAdded = true;
             try {
               for (int i = 0; i < 600; ++i) subject.list.add(subject.notes.back().get());
             } catch (const std::bad_alloc&) {
               isAdded = false;
             }
           },
           [&isAdded](const NotesInAList& subject) {
             EXPECT_EQ(subject.list.getCount() == enoughForAnIndex - 1U + 600U, isAdded);
             EXPECT_TRUE(subject.list.contains(subject.notes[150].get()));
           });
}

std::unique_ptr<KYRClass> classOf(const std::string& name) {
  auto made = std::make_unique<KYRClass>();
  made->setName(name.c_str());
  return made;
}

std::unique_ptr<KYRDesignPackage> packageWithIndex() {
  auto package = std::make_unique<KYRDesignPackage>();
  for (int i = 0; i < enoughForAnIndex; ++i) {
    package->addNamespaceElementUniqueName(classOf("C" + std::to_string(i)).release(), '/');
  }
  package->addNamespaceElementUniqueName(classOf("C7").release(), '/');
  EXPECT_NE(package->elements.get("C7/1"), nullptr);
  return package;
}

TEST(OutOfMemoryIndexes, ACollectionTakesAnElementUnderAUniqueNameOrRaises) {
  std::unique_ptr<KYRClass> added;
  failEach(
      [&added] {
        added = classOf("C8");
        return packageWithIndex();
      },
      [&added](KYRDesignPackage& package) {
        try {
          package.addNamespaceElementUniqueName(added.get(), '/');
        } catch (const std::bad_alloc&) {
        }
        if (added->getParent() != nullptr) added.release();
      },
      [](const KYRDesignPackage& package) {
        EXPECT_NE(package.elements.get("C8"), nullptr);
        EXPECT_NE(package.elements.get("C299"), nullptr);
        const bool isThere = package.elements.get("C8/1") != nullptr;
        EXPECT_EQ(isThere, package.elements.count() == enoughForAnIndex + 2U);
      });
}

TEST(OutOfMemoryIndexes, AnElementOfACollectionIsRenamedAndRemoved) {
  const KYRString name("D");
  failEach(
      packageWithIndex,
      [&name](KYRDesignPackage& package) {
        try {
          package.elements[5]->setName(name);
        } catch (const std::bad_alloc&) {
        }
      },
      [&name](KYRDesignPackage& package) {
        KYRNamespaceElement* const renamed = package.elements[5];
        EXPECT_EQ(package.elements.get(renamed->getName()), renamed);
        EXPECT_EQ(package.elements.get("C5") == nullptr, renamed->getName() == name);
        delete package.elements[6];
        EXPECT_EQ(package.elements.get("C6"), nullptr);
      });
}

TEST(OutOfMemoryIndexes, NumbersOfNamesAreGivenUpAndFoundAgain) {
  const auto isFree = [](std::string_view) { return false; };
  failEach(
      [&] {
        auto numbers = std::make_unique<KYRUniqueNumbers>();
        for (int i = 0; i < 20; ++i) numbers->makeName("a name that is too long to be short", '/', isFree);
        return numbers;
      },
      [](KYRUniqueNumbers& numbers) { numbers.release("a name that is too long to be short/1"); },
      [&](KYRUniqueNumbers& numbers) {
        EXPECT_EQ(numbers.makeName("a name that is too long to be short", '/', isFree),
                  "a name that is too long to be short/1");
      });
}

}  // namespace
