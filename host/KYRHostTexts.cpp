// The labels of the reports. The help stands in KYRHostHelp.cpp.
#include "host/KYRHostTexts.h"

namespace KYRHostTexts {

const HostText<1> VERSION("VERSION", "kyr {0}");

const HostText<0> GRAPHVIZ_MISSING("GRAPHVIZ_MISSING", "there is no program 'dot' on the PATH");
const HostText<0> GRAPHVIZ_NOT_STARTED("GRAPHVIZ_NOT_STARTED", "no process can be started for 'dot'");
const HostText<0> GRAPHVIZ_LATE("GRAPHVIZ_LATE", "'dot' does not answer in time");
const HostText<0> GRAPHVIZ_ENDED("GRAPHVIZ_ENDED", "'dot' has ended before it has answered");
const HostText<0> GRAPHVIZ_NOT_UNDERSTOOD("GRAPHVIZ_NOT_UNDERSTOOD", "'dot' answers what was not asked");

const HostText<1> NOT_A_TIME("NOT_A_TIME", "'{0}' is no time as of ISO 8601, such as 2026-01-01T00:00:00Z");
const HostText<2> NO_SUCH_STORE("NO_SUCH_STORE", "'{0}' is no data store; there are {1}");

const HostText<0> NO_NAME("NO_NAME", "the name is empty");
const HostText<0> NO_COMMAND("NO_COMMAND", "A command is wanted, such as 'import'");
const HostText<1> UNKNOWN_COMMAND("UNKNOWN_COMMAND", "There is no command '{0}'");

const HostText<2> SUMMARY("SUMMARY", "Wrote '{0}' in {1} s");
const HostText<7> SUMMARY_COUNTS("SUMMARY_COUNTS",
                                 "packages {0}, classes {1}, interfaces {2}, attributes {3}, "
                                 "operations {4}, arguments {5}, diagrams {6}");

const HostText<2> SUMMARY_PHASE("SUMMARY_PHASE", "{0} s  {1}");
const HostText<5> SUMMARY_TRACE("SUMMARY_TRACE",
                                "elements {0}: converted {1}, absorbed {2}, lost {3}; '{4}' tells of each");

const HostText<1> BATCH_FILE_FAILED("BATCH_FILE_FAILED", "Failed '{0}'");
const HostText<0> BATCH_HEAD(
    "BATCH_HEAD",
    "Result   Seconds    Packages     Classes  Interfaces  Attributes  Operations   Arguments  File");
const HostText<0> BATCH_DONE("BATCH_DONE", "done");
const HostText<0> BATCH_FAILED("BATCH_FAILED", "failed");
const HostText<2> BATCH_SUM("BATCH_SUM", "files: {0}, failed: {1}");
const HostText<2> BATCH_PROGRESS("BATCH_PROGRESS", "{0} of {1} files done");
const HostText<2> BATCH_PROGRESS_OF("BATCH_PROGRESS_OF", "; {0}: {1}");

const HostText<3> PROGRESS_READING("PROGRESS_READING", "reading {0} of {1} MB, {2} %");
const HostText<1> PROGRESS_READING_BRIEFLY("PROGRESS_READING_BRIEFLY", "reading {0} %");
const HostText<0> PROGRESS_NORMALISE("PROGRESS_NORMALISE", "bringing the file into the usual form");
const HostText<0> PROGRESS_OBJECTS("PROGRESS_OBJECTS", "making objects");
const HostText<0> PROGRESS_LINK("PROGRESS_LINK", "resolving references");
const HostText<0> PROGRESS_EXTENSION("PROGRESS_EXTENSION", "taking over the tool's own data");
const HostText<0> PROGRESS_CONVERT("PROGRESS_CONVERT", "converting");
const HostText<0> PROGRESS_FINISH("PROGRESS_FINISH", "finishing the model");
const HostText<0> PROGRESS_SAVE("PROGRESS_SAVE", "saving");
const HostText<0> PROGRESS_RELEASE("PROGRESS_RELEASE", "releasing memory");
const HostText<0> PROGRESS_SURVEY("PROGRESS_SURVEY", "looking for what was lost");

const HostText<1> DIAGRAM_WRITTEN("DIAGRAM_WRITTEN", "Wrote '{0}'");
const HostText<1> REPORT_WRITTEN("REPORT_WRITTEN", "Wrote '{0}'");

const HostText<0> DIFF_EQUAL("DIFF_EQUAL", "The models are equal");
const HostText<2> DIFF_REMOVED("DIFF_REMOVED", "removed {0} {1}");
const HostText<3> DIFF_REMOVED_WITH("DIFF_REMOVED_WITH", "removed {0} {1} (objects inside: {2})");
const HostText<2> DIFF_ADDED("DIFF_ADDED", "added {0} {1}");
const HostText<3> DIFF_ADDED_WITH("DIFF_ADDED_WITH", "added {0} {1} (objects inside: {2})");
const HostText<4> DIFF_RENAMED("DIFF_RENAMED", "renamed {0} {1}: {2} -> {3}");
const HostText<4> DIFF_MOVED("DIFF_MOVED", "moved {0} {1}: {2} -> {3}");
const HostText<2> DIFF_CHANGED("DIFF_CHANGED", "changed {0} {1}");
const HostText<3> DIFF_FIELD("DIFF_FIELD", "  {0}: {1} -> {2}");
const HostText<3> DIFF_PROPERTY("DIFF_PROPERTY", "  property '{0}': {1} -> {2}");
const HostText<0> DIFF_NOTHING("DIFF_NOTHING", "nothing");
const HostText<0> DIFF_YES("DIFF_YES", "yes");
const HostText<0> DIFF_NO("DIFF_NO", "no");
const HostText<5> DIFF_SUMMARY("DIFF_SUMMARY", "{0} removed, {1} added, {2} renamed, {3} moved, {4} changed");

const HostText<1> INFO_VERSION("INFO_VERSION", "Version:      {0}");
const HostText<1> INFO_PLUGIN("INFO_PLUGIN", "Plug-in:      {0}");
const HostText<1> INFO_TOOL("INFO_TOOL", "Tool:         {0}");
const HostText<1> INFO_TOOL_VERSIONS("INFO_TOOL_VERSIONS", "Versions:     {0}");
const HostText<1> INFO_VENDOR("INFO_VENDOR", "Vendor:       {0}");
const HostText<1> INFO_WEB("INFO_WEB", "Web:          {0}");
const HostText<1> INFO_METHODOLOGY("INFO_METHODOLOGY", "Methodology:  {0}");
const HostText<1> INFO_MAPPING("INFO_MAPPING", "Mapping:      {0}");
const HostText<0> INFO_DESCRIPTION("INFO_DESCRIPTION", "Description");
const HostText<0> INFO_OPTIONS("INFO_OPTIONS", "Options");
const HostText<2> INFO_OPTION("INFO_OPTION", "  {0}  {1}");
const HostText<0> INFO_OPTION_MANDATORY("INFO_OPTION_MANDATORY", "    a value must be given");
const HostText<1> INFO_OPTION_DEFAULT("INFO_OPTION_DEFAULT", "    default: '{0}'");
const HostText<1> INFO_OPTION_EXTENSIONS("INFO_OPTION_EXTENSIONS", "    usual file extensions: {0}");
const HostText<0> INFO_DATA_STORES("INFO_DATA_STORES", "Data stores");
const HostText<3> INFO_DATA_STORE("INFO_DATA_STORE", "  {0} {1}  {2}");
const HostText<0> INFO_MESSAGES("INFO_MESSAGES", "Messages");
const HostText<3> INFO_MESSAGE("INFO_MESSAGE", "  {0}  {1}  {2}");

const HostText<2> INFO_TYPES("INFO_TYPES", "{0}  {1}");
const HostText<1> INFO_TYPES_SOURCE("INFO_TYPES_SOURCE", "  from {0}");
const HostText<2> INFO_TYPE("INFO_TYPE", "  {0}  {1}");

const HostText<1> INSPECT_FILE("INSPECT_FILE", "File:         {0}");
const HostText<1> INSPECT_TOOL("INSPECT_TOOL", "Tool:         {0}");
const HostText<1> INSPECT_UML_VERSION("INSPECT_UML_VERSION", "UML version:  {0}");
const HostText<1> INSPECT_XMI_VERSION("INSPECT_XMI_VERSION", "XMI version:  {0}");
const HostText<0> INSPECT_UNKNOWN("INSPECT_UNKNOWN", "(not known)");
const HostText<1> INSPECT_OBJECTS("INSPECT_OBJECTS", "Objects:      {0}");
const HostText<2> INSPECT_COUNT("INSPECT_COUNT", "  {0}  {1}");
const HostText<1> INSPECT_MADE("INSPECT_MADE", "  and {0} made of what the tool adds to the file");
const HostText<1> INSPECT_DIAGRAMS("INSPECT_DIAGRAMS", "Diagrams:     {0}");
const HostText<3> INSPECT_REFERENCES(
    "INSPECT_REFERENCES", "References:   {0} resolved, {1} unresolved, {2} between classes that do not fit");
const HostText<1> INSPECT_WITHOUT_ID("INSPECT_WITHOUT_ID",
                                     "  {0} of the unresolved are of elements that have no id");
const HostText<0> INSPECT_MISSING_IDS("INSPECT_MISSING_IDS", "  first ids that no element bears:");
const HostText<1> INSPECT_MISSING_ID("INSPECT_MISSING_ID", "    '{0}'");
const HostText<1> INSPECT_SKIPPED_TYPES("INSPECT_SKIPPED_TYPES", "Skipped values of xmi:type: {0}");
const HostText<1> INSPECT_UNKNOWN_TAGS("INSPECT_UNKNOWN_TAGS", "Unknown tags: {0}");
const HostText<3> INSPECT_COUNT_AT("INSPECT_COUNT_AT", "  {0}  {1}  first at {2}");
const HostText<1> INSPECT_MORE("INSPECT_MORE", "  and {0} more, which '--json' lists");
const HostText<1> INSPECT_CONVERTED("INSPECT_CONVERTED", "Converted:    {0}");
const HostText<1> INSPECT_ABSORBED("INSPECT_ABSORBED", "Absorbed:     {0}");
const HostText<1> INSPECT_LOST("INSPECT_LOST", "Lost:         {0}");
const HostText<1> INSPECT_NO_IMPORT("INSPECT_NO_IMPORT", "No import:    {0}");

}  // namespace KYRHostTexts
