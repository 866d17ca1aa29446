// The texts of the command's own messages, and the catalogue that they enter when they are made.
#include "host/KYRHostMessages.h"

#include <algorithm>
#include <vector>

namespace {

const char fatal[] = "FATAL";
const char warning[] = "WARNING";
const char status[] = "STATUS";

constinit const HostLiterals::Link* lastEntered = nullptr;

}  // namespace

void HostLiterals::enter(Link& link) noexcept {
  link.next = lastEntered;
  lastEntered = &link;
}

const HostMessage<2> KYRHostMessages::WRONG_USAGE(1, fatal, "{0}. '{1} --help' tells more.");
const HostMessage<1> KYRHostMessages::OUTPUT_IS_INPUT(
    2, fatal,
    "The model would be written over the file that is to be imported, '{0}'; '-o' names another one");
const HostMessage<1> KYRHostMessages::LOG_FILE_IS_INPUT(
    3, fatal, "The log file '{0}' is the file that is to be imported");
const HostMessage<1> KYRHostMessages::LOG_FILE_IS_OUTPUT(
    4, fatal, "The log file '{0}' is the file that the model is to be written to");

const HostMessage<3> KYRHostMessages::PLUGIN_NOT_FOUND(
    5, fatal,
    "The plug-in '{0}' is missing: it is neither at '{1}' nor at '{2}'; '--plugin PATH' names it elsewhere");
const HostMessage<1> KYRHostMessages::PLUGIN_NOT_A_FILE(6, fatal, "The plug-in '{0}' is no file");
const HostMessage<2> KYRHostMessages::PLUGIN_CANNOT_LOAD(7, fatal, "The plug-in '{0}' cannot be loaded: {1}");
const HostMessage<2> KYRHostMessages::PLUGIN_NO_ENTRY(
    8, fatal, "The library '{0}' is no plug-in for UML files: it does not offer the function '{1}'");
const HostMessage<2> KYRHostMessages::PLUGIN_NO_OPTION(9, fatal, "The plug-in '{0}' has no option '{1}'");
const HostMessage<0> KYRHostMessages::PLUGIN_REFUSED(
    10, fatal, "The plug-in says that the import failed, and does not say why");

const HostMessage<2> KYRHostMessages::LOG_FILE_CANNOT_OPEN(11, fatal,
                                                           "The log file '{0}' cannot be opened: {1}");
const HostMessage<2> KYRHostMessages::LOG_FILE_INCOMPLETE(12, warning,
                                                          "The log file '{0}' is not complete: {1}");
const HostMessage<1> KYRHostMessages::CANNOT_WRITE_OUTPUT(13, fatal,
                                                          "The standard output cannot be written to: {0}");

const HostMessage<0> KYRHostMessages::OUT_OF_MEMORY(14, fatal, outOfMemoryText);
const HostMessage<1> KYRHostMessages::UNEXPECTED_ERROR(15, fatal, "An unexpected error occurred: {0}");

const HostMessage<1> KYRHostMessages::NO_DIAGRAMS(16, fatal, "The model in '{0}' has no class diagrams");
const HostMessage<2> KYRHostMessages::NO_SUCH_DIAGRAM(17, fatal,
                                                      "The model in '{0}' has no class diagram named '{1}'");

const HostMessage<1> KYRHostMessages::PAGE_IS_MODEL(
    50, fatal, "The page would be written over the model '{0}'; '-o' names another file");
const HostMessage<1> KYRHostMessages::PAGE_IS_LOG(
    51, fatal, "The page would be written over the log file '{0}'; '-o' names another file");
const HostMessage<1> KYRHostMessages::MODEL_NOT_IMPORTED(
    52, fatal, "'{0}' is XML and no saved model; 'kyr import' makes one of a model file");
const HostMessage<1> KYRHostMessages::MODEL_IS_DATABASE(
    53, fatal, "'{0}' is a database; what is wanted is the JSON file that 'kyr import -o NAME.json' writes");
const HostMessage<1> KYRHostMessages::PICTURES_NOT_LAID_OUT(
    54, warning, "Graphviz does not lay out the pictures around the classes, so the page does: {0}");
const HostMessage<2> KYRHostMessages::NO_FOLDER(
    30, fatal, "The model cannot be written to '{0}': there is no folder '{1}'");
const HostMessage<0> KYRHostMessages::APPEND_NEEDS_SQLITE(
    31, fatal, "'--append' adds to a file of the format sqlite; '--format' names another one");

const HostMessage<0> KYRHostMessages::DATABASE_TO_OUTPUT(
    38, fatal, "A database cannot be written to the standard output; '-o' names a file for it");

const HostMessage<1> KYRHostMessages::OUTPUT_NOT_A_FOLDER(
    32, fatal, "For several files '-o' names a folder that is there; '{0}' is none");
const HostMessage<3> KYRHostMessages::OUTPUTS_CLASH(
    33, fatal, "The models of '{0}' and '{1}' would be written to one file, '{2}'");
const HostMessage<1> KYRHostMessages::FILE_FAILED(34, fatal, "'{0}' was not imported");
const HostMessage<2> KYRHostMessages::FILE_BROKEN_OFF(
    35, fatal, "'{0}' was not imported: the signal {1} ended the process that was at it");
const HostMessage<2> KYRHostMessages::CANNOT_START(36, fatal, "No process can be started for '{0}': {1}");

const HostMessage<1> KYRHostMessages::FILE_HAS_WARNINGS(
    37, warning, "'{0}' was imported, with the warnings before this one");

const HostMessage<0> KYRHostMessages::TOOL_NAME_FOUND(
    41, warning,
    "The tool that wrote the file is named in an unusual way; it was understood, so the tool's own data are "
    "read as those of that tool");
const HostMessage<1> KYRHostMessages::ATTRIBUTE_RINGS(
    42, warning, "Elements whose attributes hide each other in any order, and stay as they are: {0}");
const HostMessage<1> KYRHostMessages::NORMALIZED_IS_INPUT(
    43, fatal,
    "The rewritten file would be written over the file that it comes from, '{0}'; '-o' names another one");
const HostMessage<1> KYRHostMessages::HINT_NORMALIZE(
    44, status, "The file holds a model, but is not written in the usual form; '{0}' reads it all the same");
const HostMessage<1> KYRHostMessages::HINT_FIRST_XMI(
    45, status, "The file is XMI {0}, which is another language; export the model as XMI 2.1 or later");
const HostMessage<1> KYRHostMessages::TRACE_IS_OTHER_FILE(
    60, fatal,
    "The trace '{0}' would be written over the file that is to be imported, the model or the log file");
const HostMessage<0> KYRHostMessages::TRACE_OF_ONE_FILE(
    61, fatal, "'--trace' tells of the import of one file; several are named");

KYRHostMessages::KYRHostMessages() : KYRTextLiteralsCollection("kyr", HostLiterals::catalogueName) {
  std::vector<KYRTextLiteral*> literals;
  for (const HostLiterals::Link* link = lastEntered; link != nullptr; link = link->next) {
    literals.push_back(link->literal);
  }
  std::for_each(literals.rbegin(), literals.rend(), [this](KYRTextLiteral* literal) { add(literal); });
  init();
}

const KYRHostMessages& KYRHostMessages::initLiterals() {
  static const KYRHostMessages catalogue;
  return catalogue;
}

const KYRTextLiteral* KYRHostMessages::findTextLiteral(const KYRString& identifier) {
  return initLiterals().get(identifier);
}

void KYRHostMessages::getAllLiterals(KYRVector& out) { initLiterals().listAllLiterals(out); }
