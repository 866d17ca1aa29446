// An import that runs out of memory at any point: it ends with an exception, frees what it holds, and
// the next import in the process is as good as ever. The leak check of a sanitizer build holds the
// second half.
#include <gtest/gtest.h>

#include <new>

#include "foundation/KYRException.h"
#include "tests/convert/ImportedModel.h"
#include "tests/support/FailingAllocation.h"

namespace {

// Everything that the conversion knows, for a tool whose file is read as a tree too.
std::string richFile() {
  return xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Class", "xmi:id='c1' name='One'",
                      "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'/>"
                      "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'>"
                      "<ownedParameter xmi:type='uml:Parameter' xmi:id='pa' name='pa'/></ownedOperation>"
                      "<generalization xmi:type='uml:Generalization' xmi:id='g' general='c2'/>"
                      "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r' supplier='i' "
                      "client='c1'/>") +
                  element("Class", "xmi:id='c2' name='Two'") + element("Interface", "xmi:id='i' name='I'") +
                  element("Dependency", "xmi:id='d' supplier='c1' client='c2'") +
                  element("AssociationClass", "xmi:id='ac'",
                          "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='c1'/>"
                          "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c2'/>") +
                  element("Association", "xmi:id='as'",
                          "<ownedEnd xmi:type='uml:Property' xmi:id='v' type='c1'/>"
                          "<ownedEnd xmi:type='uml:Property' xmi:id='w' type='c2'/>") +
                  "<ownedComment xmi:type='uml:Comment' xmi:id='k1' annotatedElement='c1' body='One'/>"
                  "<ownedComment xmi:type='uml:Comment' xmi:id='k2' annotatedElement='c1' body='Two'/>") +
          element("AssociationClass", "xmi:id='loose' name='Loose'") +
          element("Package", "xmi:id='e' name='Empty'"),
      "Model", "<xmi:Documentation exporter='Enterprise Architect' exporterVersion='6.5'/>");
}

}  // namespace

TEST(FailingImport, AnyAllocationMayFailAndTheImportEndsWithAnException) {
  const TemporaryFile file(richFile());
  KYROptionList options;
  getKYROmgUml2XmiImportInterface()->getOptionList(options);
  options.get("BP_FILE")->setValue(file.path.c_str());
  const auto import = [&] {
    RecordingLog log;
    KYRStoreModel model;
    KYROmgUml2XmiImportBridge bridge(&log);
    bridge.importModel(model, options, "origin");
  };
  import();  // builds what lives as long as the process
  bool isFailing = true;
  int treeFailures = 0;
  for (long number = 0; isFailing; ++number) {
    const FailingAllocation failing(number);
    try {
      import();
      isFailing = failing.hasFailed();
    } catch (const KYRException& exception) {
      // Out of the reading of the tree anything else than the library's own exception comes as this one.
      EXPECT_EQ(
          text(exception.getMessage()).find("[KBI_UML2XMI_F0007] An XML parsing error occurred 'Unknown"),
          0U);
      ++treeFailures;
    } catch (const std::bad_alloc&) {
      continue;
    }
  }
  EXPECT_GT(treeFailures, 0);
  import();
}
