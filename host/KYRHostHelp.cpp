// The help of the command line, for readers who have never seen the program.
#include "host/KYRHostTexts.h"

namespace KYRHostTexts {

const HostText<0> HELP(
    "HELP",
    "Imports UML models from XMI files.\n"
    "\n"
    "Design tools write their models as XMI files, each in its own manner. kyr reads such a\n"
    "file (XMI 2.x with UML 2.x), and saves its packages, classes, interfaces, attributes,\n"
    "operations and what ties them together as one JSON document or in an SQLite database.\n"
    "Of a saved model it makes a page to look at and pictures, and tells what has changed.");
const HostText<0> HELP_EXAMPLES(
    "HELP_EXAMPLES",
    "Examples:\n"
    "  kyr inspect shop.xmi                    what is in the file\n"
    "  kyr import shop.xmi -o shop.json        the model as a document\n"
    "  kyr report shop.json                    a page of it for a browser\n"
    "\n"
    "'kyr COMMAND --help' tells more of a command.\n"
    "\n"
    "Exit codes: 0 done, 1 failed (the reason is on the standard error output), 2 wrong\n"
    "usage.");
const HostText<0> HELP_ARGUMENTS("HELP_ARGUMENTS", "Arguments");
const HostText<0> HELP_COMMANDS("HELP_COMMANDS", "Commands");
const HostText<0> HELP_COMMAND("HELP_COMMAND", "COMMAND");
const HostText<0> HELP_VERSION("HELP_VERSION", "Print the version and end");
const HostText<0> HELP_HELP("HELP_HELP", "Print this help and end");
const HostText<0> HELP_ENCODING(
    "HELP_ENCODING", "Read the file in this encoding, such as windows-1252, whatever it says of itself");
const HostText<1> HELP_MAX_DEPTH("HELP_MAX_DEPTH", "Refuse files that nest elements deeper than so ({0})");
const HostText<1> HELP_MAX_ATTRIBUTE("HELP_MAX_ATTRIBUTE",
                                     "Refuse files with an attribute value or a text longer than so ({0})");
const HostText<1> HELP_MAX_ATTRIBUTE_COUNT("HELP_MAX_ATTRIBUTE_COUNT",
                                           "Refuse files with more attributes on one element than so ({0})");
const HostText<1> HELP_MAX_NAME("HELP_MAX_NAME",
                                "Refuse files with a name of an element or attribute longer than so ({0})");
const HostText<0> HELP_PLUGIN("HELP_PLUGIN", "Use the plug-in in this file instead of the installed one");

const HostText<0> IMPORT_HELP(
    "IMPORT_HELP",
    "Import model files and save the models.\n"
    "\n"
    "The model is written when the import has succeeded, and then as a whole: after a\n"
    "failure the output file is as it was before. What the import finds worth telling is\n"
    "written to the standard error output, one message a line with its level (STATUS,\n"
    "WARNING or FATAL) and its code. The last line, on the standard output, counts what\n"
    "was imported.");
const HostText<0> IMPORT_HELP_EXAMPLES("IMPORT_HELP_EXAMPLES",
                                       "Examples:\n"
                                       "  kyr import shop.xmi                     writes shop.json here\n"
                                       "  kyr import shop.xmi -o models/          writes models/shop.json\n"
                                       "  kyr import shop.xmi -o shop.sqlite      writes a database\n"
                                       "  kyr import *.xmi -o models/             imports many files\n"
                                       "  kyr import shop.xmi --format sql -o - | psql -d shop\n"
                                       "  kyr import shop.xmi --quiet --log-file shop.log --log-format json");
const HostText<0> IMPORT_HELP_FILE(
    "IMPORT_HELP_FILE", "The model file: .xmi, .xml, .uml or any other name. There can be several");
const HostText<0> IMPORT_HELP_JOBS("IMPORT_HELP_JOBS",
                                   "Import so many files at a time, each in a process of its own. Without "
                                   "it: as many as there are processors");
const HostText<0> IMPORT_HELP_OUTPUT(
    "IMPORT_HELP_OUTPUT",
    "The file to write, or a folder to write it in; a folder for several files. - is the standard output. "
    "Without it: the name of the model file with the extension .json, in the current folder");
const HostText<0> IMPORT_HELP_FORMAT("IMPORT_HELP_FORMAT",
                                     "json; sqlite: a database to query; sql: statements that PostgreSQL "
                                     "loads. Without it the extension of the "
                                     "output tells, .sqlite or .sql; anything else is JSON");
const HostText<0> IMPORT_HELP_APPEND("IMPORT_HELP_APPEND",
                                     "Add the model to the SQLite database beside those that are there. "
                                     "One of the same file path is replaced");
const HostText<0> IMPORT_HELP_ROOT_PACKAGE("IMPORT_HELP_ROOT_PACKAGE",
                                           "Put the whole model into a package of this name, which is marked "
                                           "as one that a destination may leave out");
const HostText<0> IMPORT_HELP_MODIFICATION_TIME(
    "IMPORT_HELP_MODIFICATION_TIME",
    "The time of modification to save, instead of the present: ISO 8601, such as 2026-01-01T00:00:00Z. The "
    "same file then gives the same bytes");
const HostText<0> IMPORT_HELP_QUIET("IMPORT_HELP_QUIET",
                                    "Print warnings and errors only: no STATUS lines, progress and summary");
const HostText<0> IMPORT_HELP_TIMING("IMPORT_HELP_TIMING",
                                     "Tell in the summary what processor time each phase took");
const HostText<0> IMPORT_HELP_TRACE(
    "IMPORT_HELP_TRACE",
    "A file that tells what became of each UML element that is no object of its own in the model: where it "
    "lives on, or why it is lost. One JSON object a line");
const HostText<0> IMPORT_HELP_LOG_FORMAT(
    "IMPORT_HELP_LOG_FORMAT",
    "text: lines to read. json: one JSON object a line with \"level\", \"code\" and \"text\", and the "
    "summary as one with the counts");
const HostText<0> IMPORT_HELP_LOG_FILE(
    "IMPORT_HELP_LOG_FILE", "Write all messages to this file too, also those that --quiet keeps back");

const HostText<0> INFO_HELP(
    "INFO_HELP",
    "Tell what the import plug-in is and can do.\n"
    "\n"
    "Version, supported tools with the steps to export a model from each, options, data\n"
    "stores, and all messages with their codes. With --types instead: the type names that\n"
    "each data store knows, and the data type that each of them becomes in a model.");
const HostText<0> INFO_HELP_EXAMPLES("INFO_HELP_EXAMPLES",
                                     "Examples:\n"
                                     "  kyr info\n"
                                     "  kyr info --json\n"
                                     "  kyr info --types ORACLE");
const HostText<0> INFO_HELP_JSON("INFO_HELP_JSON", "Print one JSON object");
const HostText<0> INFO_HELP_TYPES("INFO_HELP_TYPES", "List type names and their data types");
const HostText<0> INFO_HELP_STORE("INFO_HELP_STORE",
                                  "With --types: only those of this data store, such as ORACLE");

const HostText<0> INSPECT_HELP(
    "INSPECT_HELP",
    "Show what the reader makes of a model file. Nothing is saved.\n"
    "\n"
    "The tool that wrote the file and the versions of UML and XMI in it, how many objects\n"
    "of each UML class were read, which references lead nowhere, which parts of the file\n"
    "are not understood, and how many objects an import would convert, absorb in others and\n"
    "lose, with the reasons. 'kyr import --trace' tells of each.");
const HostText<0> INSPECT_HELP_EXAMPLES(
    "INSPECT_HELP_EXAMPLES",
    "Examples:\n"
    "  kyr inspect shop.xmi\n"
    "  kyr inspect shop.xmi --objects | grep '\"class\":\"UMLProperty\"'");
const HostText<0> INSPECT_HELP_FILE("INSPECT_HELP_FILE", "The model file");
const HostText<0> INSPECT_HELP_JSON("INSPECT_HELP_JSON", "Print the report as one JSON object");
const HostText<0> INSPECT_HELP_OBJECTS(
    "INSPECT_HELP_OBJECTS",
    "Instead of the report, print each UML object as one line of JSON, in order of reading. References are "
    "indexes of other lines, counted from 0");

const HostText<0> INSPECT_HELP_QUICK(
    "INSPECT_HELP_QUICK", "Only read the file, and do not tell what an import would make of the objects");

const HostText<0> DIAGRAM_HELP(
    "DIAGRAM_HELP",
    "Draw the class diagrams of a saved model as SVG pictures.\n"
    "\n"
    "FILE is what 'kyr import' has written. Each diagram becomes a file of its name; what\n"
    "a file name had better not hold becomes '_', and a number tells apart diagrams of one\n"
    "name. A picture that is there already is replaced.");
const HostText<0> DIAGRAM_HELP_EXAMPLES("DIAGRAM_HELP_EXAMPLES",
                                        "Examples:\n"
                                        "  kyr diagram shop.json -o pictures/\n"
                                        "  kyr diagram shop.json --name 'Orders and customers'");
const HostText<0> DIAGRAM_HELP_FILE("DIAGRAM_HELP_FILE", "The saved model");
const HostText<0> DIAGRAM_HELP_NAME("DIAGRAM_HELP_NAME", "Draw only the diagrams of exactly this name");
const HostText<0> DIAGRAM_HELP_OUTPUT("DIAGRAM_HELP_OUTPUT",
                                      "The folder to write into; without it the current one");

const HostText<0> REPORT_HELP(
    "REPORT_HELP",
    "Write a saved model as one HTML file to look at in a browser.\n"
    "\n"
    "FILE is what 'kyr import' has written. The page holds everything and needs no network: a\n"
    "tree of packages, a page for each package, class, type, schema and diagram, and a search\n"
    "over names and descriptions. A file that is there already is replaced.");
const HostText<0> REPORT_HELP_EXAMPLES("REPORT_HELP_EXAMPLES",
                                       "Examples:\n"
                                       "  kyr report shop.json                    writes shop.html here\n"
                                       "  kyr report shop.json -o pages/          writes pages/shop.html\n"
                                       "  kyr report shop.json --messages shop.log");
const HostText<0> REPORT_HELP_FILE("REPORT_HELP_FILE", "The saved model");
const HostText<0> REPORT_HELP_OUTPUT(
    "REPORT_HELP_OUTPUT",
    "The file to write, or a folder to write it in. Without it: the name of the model with the "
    "extension .html, in the current folder");

const HostText<0> REPORT_HELP_MESSAGES(
    "REPORT_HELP_MESSAGES",
    "Show what the import said, which is in this file: the one of 'kyr import --log-file'");

const HostText<0> REPORT_HELP_LAYOUT(
    "REPORT_HELP_LAYOUT",
    "Who places the boxes of the picture around a class. graphviz: the program 'dot' of Graphviz, with a "
    "warning where it is missing; simple: the page itself; auto: 'dot' where it is installed. Without it: "
    "auto");

const HostText<0> NORMALIZE_HELP(
    "NORMALIZE_HELP",
    "Write a model file as 'kyr import --normalize' would read it.\n"
    "\n"
    "For other programs, and for looking at what the step does. The file is UTF-8; comments\n"
    "and processing instructions are not kept.");
const HostText<0> NORMALIZE_HELP_EXAMPLES("NORMALIZE_HELP_EXAMPLES",
                                          "Example:\n"
                                          "  kyr normalize shop.uml -o shop.xmi");
const HostText<0> NORMALIZE_HELP_FILE("NORMALIZE_HELP_FILE", "The model file");
const HostText<0> NORMALIZE_HELP_OUTPUT("NORMALIZE_HELP_OUTPUT", "The file to write");
const HostText<0> NORMALIZE_HELP_ALL("NORMALIZE_HELP_ALL",
                                     "Also bring in what an import leaves out on purpose: nested profiles, "
                                     "components and nodes, classifiers inside classes");
const HostText<0> HELP_NORMALIZE(
    "HELP_NORMALIZE",
    "Bring the file into the usual form before it is read, so that elements which the tool has written in "
    "its "
    "own way are not lost. --normalize=all also brings in nested profiles, components and nodes, and "
    "classifiers inside classes");

const HostText<0> DIFF_HELP(
    "DIFF_HELP",
    "Tell what has changed from one saved model to another.\n"
    "\n"
    "OLD and NEW are JSON files that 'kyr import' has written. Objects are matched by their\n"
    "ids in the source file, then by their names. Listed are removed, added, renamed and\n"
    "moved objects, and changed ones with old and new values. When a model was imported and\n"
    "from where is not compared.\n"
    "\n"
    "Exit codes: 0 equal, 1 different, 2 failed.");
const HostText<0> DIFF_HELP_EXAMPLES("DIFF_HELP_EXAMPLES",
                                     "Examples:\n"
                                     "  kyr diff shop.v1.json shop.v2.json\n"
                                     "  kyr diff shop.v1.json shop.v2.json --json");
const HostText<0> DIFF_HELP_OLD("DIFF_HELP_OLD", "The saved model to start from");
const HostText<0> DIFF_HELP_NEW("DIFF_HELP_NEW", "The saved model to compare with it");
const HostText<0> DIFF_HELP_JSON("DIFF_HELP_JSON", "Print one JSON object");

}  // namespace KYRHostTexts
