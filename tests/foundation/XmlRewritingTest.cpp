// A host's rewriter stands between the file and all its readers, for one file and for its life.
#include "foundation/xml/XmlRewriting.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "foundation/KYRDOM.h"
#include "foundation/KYRException.h"
#include "foundation/KYRSAX2Parser.h"
#include "foundation/xml/XmlDocumentEditor.h"
#include "foundation/xml/XmlTokenizer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"

namespace {

// Renames the root element.
class Renaming : public XmlRewriter {
 public:
  std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) override {
    ++calls;
    XmlDocumentEditor editor(document);
    editor.setName(0, editor.intern("renamed"));
    return editor.build();
  }
  int calls = 0;
};

class Watching : public XmlRewriter {
 public:
  std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) override {
    seen = document;
    return nullptr;
  }
  bool watchesOnly() const noexcept override { return true; }
  std::shared_ptr<const XmlDocument> seen;
};

class XmlRewritingTest : public ::testing::Test {
 protected:
  XmlRewritingTest() : parser(this, &log, &start, nullptr, nullptr, nullptr), dom(&log) {}
  static void start(void* self, const KYRString& tag, const KYRStringArray&) {
    static_cast<XmlRewritingTest*>(self)->tags += std::string(tag.view()) + " ";
  }
  std::string streamed(const KYRFile& input) {
    tags.clear();
    parser.parseFile(input);
    return tags;
  }
  std::string rootOf(KYRDOMElement* root) {
    const std::unique_ptr<KYRDOMElement> owner(root);
    return std::string(root->getTagName().view());
  }

  TemporaryFile file{"<a>\n <b/></a>"};
  RecordingLog log;
  KYRSAX2Parser parser;
  KYRDOM dom;
  std::string tags;
};

TEST_F(XmlRewritingTest, StreamAndTreesReadWhatTheRewriterHandsOn) {
  Renaming renaming;
  const XmlRewriting rewriting(file.file(), renaming);
  const std::uint64_t runs = XmlTokenizer::getRunCount();
  EXPECT_EQ(streamed(file.file()), "renamed b ");
  EXPECT_EQ(rootOf(dom.parseFile(file.file())), "renamed");
  EXPECT_EQ(renaming.calls, 1);
  EXPECT_EQ(XmlTokenizer::getRunCount(), runs + 1);
  EXPECT_EQ(std::string(parser.getPosition().view()), "line 2, column 2");
}

TEST_F(XmlRewritingTest, ItHoldsForItsLifeAlone) {
  {
    Renaming renaming;
    const XmlRewriting rewriting(file.file(), renaming);
    EXPECT_EQ(streamed(file.file()), "renamed b ");
  }
  // The parser still has the rewritten document.
  EXPECT_EQ(rootOf(dom.parseFile(file.file())), "a");
  EXPECT_EQ(streamed(file.file()), "a b ");
}

TEST_F(XmlRewritingTest, ASecondOneDoesNotGetTheResultOfTheFirst) {
  Renaming first;
  Renaming second;
  const XmlRewriting outer(file.file(), first);
  streamed(file.file());
  {
    const XmlRewriting inner(file.file(), second);
    streamed(file.file());
    EXPECT_EQ(second.calls, 1);
  }
  EXPECT_EQ(streamed(file.file()), "renamed b ");
}

TEST_F(XmlRewritingTest, OtherFilesAndReadingsAsWrittenAreNotTouched) {
  const TemporaryFile other("<o/>");
  Renaming renaming;
  const XmlRewriting rewriting(file.file(), renaming);
  EXPECT_EQ(streamed(other.file()), "o ");
  EXPECT_EQ(streamed(file.file()), "renamed b ");
  EXPECT_EQ(rootOf(dom.parseFileAsWritten(file.file())), "a");
  EXPECT_EQ(rootOf(dom.parseFile(other.file())), "o");
}

TEST_F(XmlRewritingTest, AFileIsKnownByWhateverPath) {
  const std::string link = file.path + "-link";
  ASSERT_EQ(symlink(file.path.c_str(), link.c_str()), 0);
  Renaming renaming;
  const XmlRewriting rewriting(KYRFile(link.c_str()), renaming);
  EXPECT_EQ(streamed(file.file()), "renamed b ");
  unlink(link.c_str());
}

TEST_F(XmlRewritingTest, OneThatWatchesSeesTheDocumentAndChangesNothing) {
  Watching watching;
  const XmlRewriting rewriting(file.file(), watching);
  EXPECT_EQ(streamed(file.file()), "a b ");
  EXPECT_EQ(watching.seen, parser.getDocument());
  EXPECT_EQ(rootOf(dom.parseFile(file.file())), "a");
}

TEST_F(XmlRewritingTest, AWatchedFileIsStreamedUpToItsError) {
  const TemporaryFile broken("<a><b/></c>");
  Watching watching;
  const XmlRewriting rewriting(broken.file(), watching);
  EXPECT_THROW(streamed(broken.file()), KYRException);
  EXPECT_EQ(tags, "a b ");
  EXPECT_EQ(watching.seen, nullptr);
}

TEST_F(XmlRewritingTest, AnExceptionOfTheRewriterEndsTheReading) {
  class Failing : public XmlRewriter {
   public:
    std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>&) override {
      throw KYRException("no", "");
    }
  };
  Failing failing;
  const XmlRewriting rewriting(file.file(), failing);
  EXPECT_THROW(streamed(file.file()), KYRException);
  EXPECT_EQ(tags, "");
}

}  // namespace
