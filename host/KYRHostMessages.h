// KYRHostMessages: the catalogue of every text that the command itself says: messages, whose codes start
// with "KYRHOST_", and the labels of its reports. Help texts are in KYRHostHelp.h.
//
// A literal is one row of KYRHostMessages.cpp and one declaration here. Numbers only grow, since users
// see the codes.
#pragma once

#include "host/HostLiteral.h"

class KYRVector;

class KYRHostMessages final : public KYRTextLiteralsCollection {
 public:
  // Wrong usage.
  static const HostMessage<2> WRONG_USAGE;
  static const HostMessage<1> OUTPUT_IS_INPUT;
  static const HostMessage<1> LOG_FILE_IS_INPUT;
  static const HostMessage<1> LOG_FILE_IS_OUTPUT;
  // The plug-in.
  static const HostMessage<3> PLUGIN_NOT_FOUND;
  static const HostMessage<1> PLUGIN_NOT_A_FILE;
  static const HostMessage<2> PLUGIN_CANNOT_LOAD;
  static const HostMessage<2> PLUGIN_NO_ENTRY;
  static const HostMessage<2> PLUGIN_NO_OPTION;
  static const HostMessage<0> PLUGIN_REFUSED;
  // Files.
  static const HostMessage<2> LOG_FILE_CANNOT_OPEN;
  static const HostMessage<2> LOG_FILE_INCOMPLETE;
  static const HostMessage<1> CANNOT_WRITE_OUTPUT;
  // The saved model that a command works with.
  static const HostMessage<1> MODEL_NOT_IMPORTED;
  static const HostMessage<1> MODEL_IS_DATABASE;
  // Diagrams.
  static const HostMessage<1> NO_DIAGRAMS;
  static const HostMessage<2> NO_SUCH_DIAGRAM;
  // The page of a model.
  static const HostMessage<1> PAGE_IS_MODEL;
  static const HostMessage<1> PAGE_IS_LOG;
  static const HostMessage<1> PICTURES_NOT_LAID_OUT;
  // The output of an import.
  static const HostMessage<2> NO_FOLDER;
  static const HostMessage<0> APPEND_NEEDS_SQLITE;
  static const HostMessage<0> DATABASE_TO_OUTPUT;
  // The normalising step.
  static const HostMessage<0> TOOL_NAME_FOUND;
  static const HostMessage<1> ATTRIBUTE_RINGS;
  static const HostMessage<1> NORMALIZED_IS_INPUT;
  // What may help, behind an error.
  static const HostMessage<1> HINT_NORMALIZE;
  static const HostMessage<1> HINT_FIRST_XMI;
  // Imports of several files.
  static const HostMessage<1> OUTPUT_NOT_A_FOLDER;
  static const HostMessage<3> OUTPUTS_CLASH;
  static const HostMessage<1> FILE_FAILED;
  static const HostMessage<2> FILE_BROKEN_OFF;
  static const HostMessage<2> CANNOT_START;
  static const HostMessage<1> FILE_HAS_WARNINGS;
  // The trace of an import.
  static const HostMessage<1> TRACE_IS_OTHER_FILE;
  static const HostMessage<0> TRACE_OF_ONE_FILE;
  // What should not happen.
  /// The text of OUT_OF_MEMORY, which is there before any static object is made.
  static constexpr char outOfMemoryText[] = "There is not enough memory";
  static const HostMessage<0> OUT_OF_MEMORY;
  static const HostMessage<1> UNEXPECTED_ERROR;

  /// The one catalogue, built at the first call.
  static const KYRHostMessages& initLiterals();
  /// The literal of that identifier, or null.
  static const KYRTextLiteral* findTextLiteral(const KYRString& identifier);
  /// Appends all literals as `const KYRTextLiteral *`.
  static void getAllLiterals(KYRVector& out);

 private:
  KYRHostMessages();
};
