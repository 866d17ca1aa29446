// KYRStdMessages: the catalogue of the library's own messages: files that cannot be read, XML that is
// not well-formed, encodings, limits. Their codes start with "KYRSTD_".
//
// Each message is a static object that knows how many arguments it takes; a call with another number
// does not compile. A message is one row of KYRStdMessages.cpp and one declaration here, or a row of
// another part of the library that keeps its own list; all rows are in this catalogue. Numbers only
// grow, since users see the codes.
#pragma once

#include <concepts>
#include <initializer_list>

#include "foundation/Export.h"
#include "foundation/KYRException.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRTextLiteral.h"

class KYR_EXPORT KYRStdMessages : public KYRTextLiteralsCollection {
  /// A link of the chain of all rows, which is a part of the row itself.
  struct Row {
    int number;
    KYRTextLiteral* literal;
    Row* next;
  };

 public:
  /// What all messages have in common; its identifier in the catalogue is its code.
  class KYR_EXPORT Base : public KYRMessageLiteral {
   public:
    ~Base() override;

   protected:
    Base(int number, const char* levelName, const char* text);
    KYRString format(std::initializer_list<const KYRString*> arguments) const;
    KYRString prefixCode(const KYRString& text) const;
    void send(KYRLog& log, const KYRString& text) const;
    [[noreturn]] void raise(const KYRString& text) const;

   private:
    Row row_;
  };

  /// A message with `argumentCount` arguments, each one a KYRString.
  template <unsigned int argumentCount>
  class Message : public Base {
   public:
    Message(int number, const char* levelName, const char* text) : Base(number, levelName, text) {}

    /// The finished text, without the code.
    template <std::same_as<KYRString>... Argument>
    KYRString toString(const Argument&... arguments) const {
      static_assert(sizeof...(Argument) == argumentCount);
      return format({&arguments...});
    }
    /// "[CODE] text".
    template <std::same_as<KYRString>... Argument>
    KYRString getMessage(const Argument&... arguments) const {
      return prefixCode(toString(arguments...));
    }
    /// Hands text, code and level to the log.
    template <std::same_as<KYRString>... Argument>
    void log(KYRLog& receiver, const Argument&... arguments) const {
      send(receiver, toString(arguments...));
    }
    /// Raises a KYRException of `getMessage`.
    template <std::same_as<KYRString>... Argument>
    [[noreturn]] void throwException(const Argument&... arguments) const {
      raise(toString(arguments...));
    }
  };

  /// A text that is part of other messages.
  class KYR_EXPORT PositionText : public KYRParameterizedTextLiteral {
   public:
    PositionText();
    ~PositionText() override;
    KYRString toString(const KYRString& line, const KYRString& column) const;

   private:
    Row row_;
  };

  // Files. The first argument is the path.
  static const Message<2> FILE_CANNOT_OPEN;
  static const Message<2> FILE_CANNOT_READ;
  static const Message<1> FILE_IS_DIRECTORY;
  static const Message<1> FILE_IS_FIFO;
  static const Message<1> FILE_IS_SOCKET;
  static const Message<1> FILE_IS_DEVICE;
  static const Message<1> FILE_HAS_CHANGED;
  // XML. The first three arguments are path, line and column.
  static const Message<4> XML_NOT_WELL_FORMED;
  static const Message<4> XML_NOT_UTF8;
  static const Message<5> XML_INVALID_BYTES;
  static const Message<4> XML_UNKNOWN_ENCODING;
  static const Message<4> XML_CONTRADICTED_ENCODING;
  static const Message<4> XML_TOO_DEEP;
  static const Message<4> XML_TOO_MANY_ATTRIBUTES;
  static const Message<4> XML_VALUE_TOO_LONG;
  static const Message<4> XML_TEXT_TOO_LONG;
  static const Message<4> XML_NAME_TOO_LONG;
  static const Message<4> XML_MARKUP_TOO_LONG;
  static const Message<4> XML_TOO_LARGE;
  /// "line L, column C".
  static const PositionText XML_POSITION;

  /// The one catalogue, built at the first call.
  static const KYRStdMessages& initLiterals();
  /// The literal of that identifier, or null.
  static const KYRTextLiteral* findTextLiteral(const KYRString& identifier);
  /// Appends all literals as `const KYRTextLiteral *`, in order of their numbers.
  static void getAllLiterals(KYRVector& out);

 private:
  KYRStdMessages();
  static void enter(Row& row) noexcept;
  static Row* lastEntered;
};
