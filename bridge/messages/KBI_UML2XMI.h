// KBI_UML2XMI: every text of the bridge that a user sees.
//
// Code names a literal and calls `log` or `throwException` on it. One row of KBI_UML2XMI.cpp holds
// everything about a message. Numbers are visible to users: they only grow, and gaps stay. The prefix
// of a name tells nothing of the severity.
#pragma once

#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "foundation/KYRTextLiteral.h"
#include "repository/plugin/KYRBridgeOptionLiteral.h"

class KYRLog;
class KYRVector;

class KYR_EXPORT KBI_UML2XMI final : public KYRTextLiteralsCollection {
 public:
  /// A plain text with an identifier.
  class KYR_EXPORT TextInstance : public KYRParameterizedTextLiteral {
   public:
    TextInstance(const char* identifier, const char* text);
    ~TextInstance() override;
    const KYRString& toString() const;
  };

  /// The definition of one option.
  class KYR_EXPORT ParameterInstance : public KYRBridgeOptionLiteral {
   public:
    /// `enumeration` lists the values that a host may offer, null for free text. Both literals are borrowed.
    ParameterInstance(const char* identifier, const char* displayName, OptionType type,
                      const char* description, const KYRTextLiteral* enumeration,
                      const KYRTextLiteral* defaultValue);
    ~ParameterInstance() override;
  };

  /// A message without arguments.
  class KYR_EXPORT MessageInstance : public KYRMessageLiteral {
   public:
    MessageInstance(int number, const char* text, const char* levelName);
    ~MessageInstance() override;
    KYRString toString() const;
    /// The code in square brackets, a blank, and the text.
    KYRString getMessage() const;
    /// Hands the text to the log; the code travels apart from it.
    void log(KYRLog& log) const;
    /// Raises a KYRException with `getMessage` as its text.
    [[noreturn]] void throwException() const;
  };

  /// A message with one argument.
  class KYR_EXPORT MessageInstance_String : public KYRMessageLiteral {
   public:
    MessageInstance_String(int number, const char* text, const char* levelName);
    ~MessageInstance_String() override;
    KYRString toString(const KYRString& first) const;
    KYRString getMessage(const KYRString& first) const;
    void log(KYRLog& log, const KYRString& first) const;
    [[noreturn]] void throwException(const KYRString& first) const;
  };

  /// A message with two arguments.
  class KYR_EXPORT MessageInstance_String_String : public KYRMessageLiteral {
   public:
    MessageInstance_String_String(int number, const char* text, const char* levelName);
    ~MessageInstance_String_String() override;
    KYRString toString(const KYRString& first, const KYRString& second) const;
    KYRString getMessage(const KYRString& first, const KYRString& second) const;
    void log(KYRLog& log, const KYRString& first, const KYRString& second) const;
    [[noreturn]] void throwException(const KYRString& first, const KYRString& second) const;
  };

  ~KBI_UML2XMI() override;

  /// The catalogue, built at the first call.
  static KBI_UML2XMI& initLiterals();
  /// The literal of that identifier (of a message: its code), or null.
  static const KYRTextLiteral* findTextLiteral(const KYRString& identifier);
  /// Appends all literals as `const KYRTextLiteral *`, in order.
  static void getAllLiterals(KYRVector& out);

  static TextInstance BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION;
  static TextInstance BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION;

  static TextInstance BP_FILE_DEFAULT;
  static ParameterInstance BP_FILE;
  static TextInstance BP_ROOT_PACKAGE_DEFAULT;
  static ParameterInstance BP_ROOT_PACKAGE;

  static MessageInstance_String_String UML2_I_UNKNOWN_TAG;
  static MessageInstance_String UML2_I_COULD_NOT_PARSE_FILE;
  static MessageInstance_String UML2_I_DBG_HANDLER_ERROR;
  static MessageInstance_String UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED;
  static MessageInstance_String UML2_I_XML_ERROR;
  static MessageInstance UML2_I_BAD_HEADERUML2_ERROR;
  static MessageInstance_String_String UML2_I_TARGET_TOOL;
  static MessageInstance_String_String UML2_I_DETECTED_VERSION;
  static MessageInstance UML2_S_PARSING_EXTENSIONS;
  static MessageInstance UML2_S_PROCESSING_EXTENSIONS;
  static MessageInstance UML2_S_PROCESSING_ELEMENTS;
  static MessageInstance UML2_S_PROCESSING_TYPES;
  static MessageInstance UML2_S_PROCESSING_RELATIONSHIPS;
  static MessageInstance_String UML2_I_CAN_NOT_DETECT;
  static MessageInstance_String UML2_S_PARSING_FILE;
  static MessageInstance UML2_S_CREATING_DIAGRAMS;
  static MessageInstance_String_String UML2_W_COULD_NOT_ADD_OBJECT_TO_SCHEMA;
  static MessageInstance UML2_S_CREATING_KEYS;

 private:
  KBI_UML2XMI();
};
