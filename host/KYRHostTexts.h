// KYRHostTexts: the texts of the command that are no messages: the labels of its reports, and the help.
// They are part of the catalogue KYRHostMessages.
#pragma once

#include "host/HostLiteral.h"

namespace KYRHostTexts {

// The help texts. Those named HELP_..._EXAMPLES stand behind the list of options.
extern const HostText<0> HELP;
extern const HostText<0> HELP_EXAMPLES;
extern const HostText<0> HELP_ARGUMENTS;
extern const HostText<0> HELP_COMMANDS;
extern const HostText<0> HELP_COMMAND;
extern const HostText<0> HELP_VERSION;
extern const HostText<0> HELP_HELP;
extern const HostText<0> HELP_ENCODING;
extern const HostText<1> HELP_MAX_DEPTH;
extern const HostText<1> HELP_MAX_ATTRIBUTE;
extern const HostText<1> HELP_MAX_ATTRIBUTE_COUNT;
extern const HostText<1> HELP_MAX_NAME;
extern const HostText<0> HELP_PLUGIN;

extern const HostText<0> IMPORT_HELP;
extern const HostText<0> IMPORT_HELP_EXAMPLES;
extern const HostText<0> IMPORT_HELP_FILE;
extern const HostText<0> IMPORT_HELP_JOBS;
extern const HostText<0> IMPORT_HELP_OUTPUT;
extern const HostText<0> IMPORT_HELP_FORMAT;
extern const HostText<0> IMPORT_HELP_APPEND;
extern const HostText<0> IMPORT_HELP_ROOT_PACKAGE;
extern const HostText<0> IMPORT_HELP_MODIFICATION_TIME;
extern const HostText<0> IMPORT_HELP_QUIET;
extern const HostText<0> IMPORT_HELP_TIMING;
extern const HostText<0> IMPORT_HELP_TRACE;
extern const HostText<0> IMPORT_HELP_LOG_FORMAT;
extern const HostText<0> IMPORT_HELP_LOG_FILE;

extern const HostText<0> INFO_HELP;
extern const HostText<0> INFO_HELP_EXAMPLES;
extern const HostText<0> INFO_HELP_JSON;
extern const HostText<0> INFO_HELP_TYPES;
extern const HostText<0> INFO_HELP_STORE;

extern const HostText<0> INSPECT_HELP;
extern const HostText<0> INSPECT_HELP_EXAMPLES;
extern const HostText<0> INSPECT_HELP_FILE;
extern const HostText<0> INSPECT_HELP_JSON;
extern const HostText<0> INSPECT_HELP_OBJECTS;
extern const HostText<0> INSPECT_HELP_QUICK;

extern const HostText<0> DIAGRAM_HELP;
extern const HostText<0> DIAGRAM_HELP_EXAMPLES;
extern const HostText<0> DIAGRAM_HELP_FILE;
extern const HostText<0> DIAGRAM_HELP_NAME;
extern const HostText<0> DIAGRAM_HELP_OUTPUT;

extern const HostText<0> REPORT_HELP;
extern const HostText<0> REPORT_HELP_EXAMPLES;
extern const HostText<0> REPORT_HELP_FILE;
extern const HostText<0> REPORT_HELP_OUTPUT;
extern const HostText<0> REPORT_HELP_MESSAGES;
extern const HostText<0> REPORT_HELP_LAYOUT;

extern const HostText<0> NORMALIZE_HELP;
extern const HostText<0> NORMALIZE_HELP_EXAMPLES;
extern const HostText<0> NORMALIZE_HELP_FILE;
extern const HostText<0> NORMALIZE_HELP_OUTPUT;
extern const HostText<0> NORMALIZE_HELP_ALL;
extern const HostText<0> HELP_NORMALIZE;

extern const HostText<0> DIFF_HELP;
extern const HostText<0> DIFF_HELP_EXAMPLES;
extern const HostText<0> DIFF_HELP_OLD;
extern const HostText<0> DIFF_HELP_NEW;
extern const HostText<0> DIFF_HELP_JSON;

/// The version of the command itself.
extern const HostText<1> VERSION;

// Why pictures are not laid out by Graphviz.
extern const HostText<0> GRAPHVIZ_MISSING;
extern const HostText<0> GRAPHVIZ_NOT_STARTED;
extern const HostText<0> GRAPHVIZ_LATE;
extern const HostText<0> GRAPHVIZ_ENDED;
extern const HostText<0> GRAPHVIZ_NOT_UNDERSTOOD;

// Why something is wrong usage.
extern const HostText<1> NOT_A_TIME;
/// Why a data store is wrong usage, with the names of all.
extern const HostText<2> NO_SUCH_STORE;
extern const HostText<0> NO_NAME;
extern const HostText<0> NO_COMMAND;
extern const HostText<1> UNKNOWN_COMMAND;

// The closing summary of an import: output file, seconds, and the counts.
extern const HostText<2> SUMMARY;
extern const HostText<7> SUMMARY_COUNTS;
/// With --timing: seconds and phase.
extern const HostText<2> SUMMARY_PHASE;
/// With --trace: elements, converted, absorbed, lost, and the file.
extern const HostText<5> SUMMARY_TRACE;

// What the normalising step has done, and what an import without it has lost.
extern const HostText<1> SUMMARY_NORMALIZED;
extern const HostText<0> SUMMARY_NOT_NORMALIZED;
extern const HostText<4> SUMMARY_LOST;
extern const HostText<1> NORMALIZE_WRITTEN;

// The rules of the step: what one changes, and why a file without it loses something.
extern const HostText<0> RULE_PREFIXES;
extern const HostText<0> RULE_TYPE_ATTRIBUTE;
extern const HostText<0> RULE_TYPED_REFERENCE;
extern const HostText<0> RULE_REPLACED_TYPE;
extern const HostText<0> RULE_DOCUMENTATION;
extern const HostText<0> RULE_PROFILE_PACKAGE;
extern const HostText<0> RULE_COMPONENT_CLASS;
extern const HostText<0> RULE_LOCAL_HREF;
extern const HostText<0> RULE_ROOTS;
extern const HostText<0> RULE_PACKAGE_CONTENT;
extern const HostText<0> RULE_NESTED_CLASSIFIER;
extern const HostText<0> RULE_IDS;
extern const HostText<0> RULE_ID_LIST;
extern const HostText<0> RULE_SCALAR_ELEMENT;
extern const HostText<0> RULE_DECLARED_TYPE;
extern const HostText<0> RULE_ATTRIBUTE_ORDER;
extern const HostText<0> REASON_PREFIXES;
extern const HostText<0> REASON_TYPE_ATTRIBUTE;
extern const HostText<0> REASON_TYPED_REFERENCE;
extern const HostText<0> REASON_REPLACED_TYPE;
extern const HostText<0> REASON_DOCUMENTATION;
extern const HostText<0> REASON_LOCAL_HREF;
extern const HostText<0> REASON_ROOTS;
extern const HostText<0> REASON_PACKAGE_CONTENT;
extern const HostText<0> REASON_IDS;
extern const HostText<0> REASON_ID_LIST;
extern const HostText<0> REASON_SCALAR_ELEMENT;
extern const HostText<0> REASON_DECLARED_TYPE;
extern const HostText<0> REASON_ATTRIBUTE_ORDER;

// Several imports: the table behind their lines, and the progress on a terminal.
extern const HostText<1> BATCH_FILE_FAILED;
extern const HostText<0> BATCH_HEAD;
extern const HostText<0> BATCH_DONE;
extern const HostText<0> BATCH_FAILED;
extern const HostText<2> BATCH_SUM;
extern const HostText<2> BATCH_PROGRESS;
extern const HostText<2> BATCH_PROGRESS_OF;

// Where an import has come to, in the last line of a terminal.
extern const HostText<3> PROGRESS_READING;
extern const HostText<1> PROGRESS_READING_BRIEFLY;
extern const HostText<0> PROGRESS_NORMALISE;
extern const HostText<0> PROGRESS_OBJECTS;
extern const HostText<0> PROGRESS_LINK;
extern const HostText<0> PROGRESS_EXTENSION;
extern const HostText<0> PROGRESS_CONVERT;
extern const HostText<0> PROGRESS_FINISH;
extern const HostText<0> PROGRESS_SAVE;
extern const HostText<0> PROGRESS_RELEASE;
extern const HostText<0> PROGRESS_SURVEY;

/// One line of `kyr diagram` for each picture.
extern const HostText<1> DIAGRAM_WRITTEN;
/// The line of `kyr report`.
extern const HostText<1> REPORT_WRITTEN;

// The lines of `kyr diff`.
extern const HostText<0> DIFF_EQUAL;
extern const HostText<2> DIFF_REMOVED;
extern const HostText<3> DIFF_REMOVED_WITH;
extern const HostText<2> DIFF_ADDED;
extern const HostText<3> DIFF_ADDED_WITH;
extern const HostText<4> DIFF_RENAMED;
extern const HostText<4> DIFF_MOVED;
extern const HostText<2> DIFF_CHANGED;
extern const HostText<3> DIFF_FIELD;
extern const HostText<3> DIFF_PROPERTY;
extern const HostText<0> DIFF_NOTHING;
extern const HostText<0> DIFF_YES;
extern const HostText<0> DIFF_NO;
extern const HostText<5> DIFF_SUMMARY;

// The report of `kyr info`.
extern const HostText<1> INFO_VERSION;
extern const HostText<1> INFO_PLUGIN;
extern const HostText<1> INFO_TOOL;
extern const HostText<1> INFO_TOOL_VERSIONS;
extern const HostText<1> INFO_VENDOR;
extern const HostText<1> INFO_WEB;
extern const HostText<1> INFO_METHODOLOGY;
extern const HostText<1> INFO_MAPPING;
extern const HostText<0> INFO_DESCRIPTION;
extern const HostText<0> INFO_OPTIONS;
extern const HostText<2> INFO_OPTION;
extern const HostText<0> INFO_OPTION_MANDATORY;
extern const HostText<1> INFO_OPTION_DEFAULT;
extern const HostText<1> INFO_OPTION_EXTENSIONS;
extern const HostText<0> INFO_DATA_STORES;
extern const HostText<3> INFO_DATA_STORE;
extern const HostText<0> INFO_MESSAGES;
extern const HostText<3> INFO_MESSAGE;

// The report of `kyr info --types`.
extern const HostText<2> INFO_TYPES;
extern const HostText<1> INFO_TYPES_SOURCE;
extern const HostText<2> INFO_TYPE;

// The report of `kyr inspect`.
extern const HostText<1> INSPECT_FILE;
extern const HostText<1> INSPECT_TOOL;
extern const HostText<1> INSPECT_UML_VERSION;
extern const HostText<1> INSPECT_XMI_VERSION;
extern const HostText<0> INSPECT_UNKNOWN;
extern const HostText<1> INSPECT_OBJECTS;
extern const HostText<2> INSPECT_COUNT;
extern const HostText<1> INSPECT_MADE;
extern const HostText<1> INSPECT_DIAGRAMS;
extern const HostText<3> INSPECT_REFERENCES;
extern const HostText<1> INSPECT_WITHOUT_ID;
extern const HostText<0> INSPECT_MISSING_IDS;
extern const HostText<1> INSPECT_MISSING_ID;
extern const HostText<1> INSPECT_SKIPPED_TYPES;
extern const HostText<1> INSPECT_UNKNOWN_TAGS;
extern const HostText<3> INSPECT_COUNT_AT;
extern const HostText<1> INSPECT_MORE;
extern const HostText<1> INSPECT_CONVERTED;
extern const HostText<1> INSPECT_ABSORBED;
extern const HostText<1> INSPECT_LOST;
extern const HostText<1> INSPECT_NO_IMPORT;

}  // namespace KYRHostTexts
