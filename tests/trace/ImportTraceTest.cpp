// The records of a trace, their order and their sum.
#include "trace/ImportTrace.h"

#include "tests/trace/TracedImport.h"

namespace {

std::string manyElements() {
  return inPackage(
      classNamed("A", property("xmi:id='a' name='a' type='gone'")) + element("Actor", "xmi:id='u' name='U'") +
      "\n<packagedElement xmi:type='uml:Strange' xmi:id='s1'/>\n<packagedElement xmi:type='uml:Strange'/>"
      "<oddity/>\n<oddity/>" +
      element("Class", "xmi:id='x'"));
}

TEST(ImportTrace, TheSumIsThatOfTheElementsRead) {
  const TracedImport import(manyElements());
  EXPECT_EQ(import.finished, 1);
  EXPECT_EQ(import.totals.read, 6U);
  EXPECT_EQ(import.totals.converted, 4U);
  EXPECT_EQ(import.totals.absorbed, 0U);
  EXPECT_EQ(import.totals.lost, 2U);
}

TEST(ImportTrace, ElementsComeFirstThenReferencesTypesAndTags) {
  const TracedImport import(manyElements());
  std::vector<std::string> codes;
  for (const KYRTraceRecord& told : import.records) codes.push_back(TracedImport::codeOf(told));
  EXPECT_EQ(codes, (std::vector<std::string>{"kind-not-converted", "no-name", "reference-not-found",
                                             "type-unknown", "tag-ignored"}));
}

TEST(ImportTrace, AReferenceTellsWhereItStandsAndWhereItLeads) {
  const TracedImport import(manyElements());
  const auto notes = import.notesOf(KYRTraceReason::referenceNotFound);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_EQ(text(notes[0].id), "a");
  EXPECT_STREQ(notes[0].kind, "UMLProperty");
  EXPECT_EQ(text(notes[0].missingId), "gone");
  EXPECT_EQ(notes[0].line, 1U);
}

TEST(ImportTrace, AReferenceToAnElementThatDoesNotFitNamesIt) {
  const TracedImport import(inPackage(classNamed("A", property("xmi:id='a' name='a' type='p'"))));
  const auto notes = import.notesOf(KYRTraceReason::referenceWrongClass);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_NE(text(notes[0].sentence).find("UMLP"), std::string::npos);
}

TEST(ImportTrace, TypesAndTagsTellHowOftenAndWhereFirst) {
  const TracedImport import(manyElements());
  const auto types = import.notesOf(KYRTraceReason::typeUnknown);
  ASSERT_EQ(types.size(), 1U);
  EXPECT_EQ(text(types[0].name), "uml:Strange");
  EXPECT_EQ(types[0].count, 2U);
  EXPECT_EQ(types[0].line, 2U);
  const auto tags = import.notesOf(KYRTraceReason::tagIgnored);
  ASSERT_EQ(tags.size(), 1U);
  EXPECT_EQ(text(tags[0].name), "oddity");
  EXPECT_EQ(tags[0].count, 2U);
  EXPECT_EQ(tags[0].line, 3U);
}

TEST(ImportTrace, ModelAndMessagesAreTheSameWithoutOne) {
  const ImportedModel plain(manyElements());
  class Silent : public KYRImportTrace {
    void record(const KYRTraceRecord&) override {}
    void finish(const KYRTraceTotals&) override {}
  } silent;
  KYRImportTrace::setCurrent(&silent);
  const ImportedModel traced(manyElements());
  KYRImportTrace::setCurrent(nullptr);
  ASSERT_EQ(plain.log.lines.size(), traced.log.lines.size());
  for (std::size_t i = 1; i < plain.log.lines.size(); ++i) EXPECT_EQ(plain.log.lines[i], traced.log.lines[i]);
  EXPECT_EQ(plain.all<KYRObject>().size(), traced.all<KYRObject>().size());
}

TEST(ImportTrace, AnImportThatFailsTellsNothing) {
  class Counting : public KYRImportTrace {
   public:
    void record(const KYRTraceRecord&) override { ++calls; }
    void finish(const KYRTraceTotals&) override { ++calls; }
    int calls = 0;
  } counting;
  KYRImportTrace::setCurrent(&counting);
  EXPECT_ANY_THROW(ImportedModel("<xmi:XMI xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'/>"));
  KYRImportTrace::setCurrent(nullptr);
  EXPECT_EQ(counting.calls, 0);
}

}  // namespace
