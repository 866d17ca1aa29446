// HostText, HostMessage: the kinds of literals in the catalogue of the command's texts.
//
// Each literal knows how many arguments it takes; a call with another number does not compile. A
// literal enters itself into the catalogue when it is made.
#pragma once

#include <concepts>

#include "foundation/KYRException.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRTextLiteral.h"

namespace HostLiterals {

/// Known to users by the start of every code.
constexpr const char* catalogueName = "KYRHOST";

/// A link of the chain of all literals, which is a part of the literal itself.
struct Link {
  KYRTextLiteral* literal;
  const Link* next;
};

/// Puts the literal at the head of the chain, of which the catalogue is built at the first use of a text.
void enter(Link& link) noexcept;

template <std::same_as<KYRString>... Argument>
KYRStringArray arrayOf(const Argument&... arguments) {
  KYRStringArray array;
  (array.add(arguments), ...);
  return array;
}

}  // namespace HostLiterals

/// A text with `argumentCount` arguments that is no message: a label, a help text.
template <unsigned int argumentCount>
class HostText final : public KYRParameterizedTextLiteral {
 public:
  HostText(const char* identifier, const char* text) : KYRParameterizedTextLiteral(identifier, text) {
    HostLiterals::enter(link_);
  }
  template <std::same_as<KYRString>... Argument>
  KYRString toString(const Argument&... arguments) const {
    static_assert(sizeof...(Argument) == argumentCount);
    return createParameterizedText(HostLiterals::arrayOf(arguments...));
  }

 private:
  HostLiterals::Link link_{this, nullptr};
};

/// A message with `argumentCount` arguments. Its identifier is its code.
template <unsigned int argumentCount>
class HostMessage final : public KYRMessageLiteral {
 public:
  HostMessage(int number, const char* levelName, const char* text)
      : KYRMessageLiteral(number, text, levelName) {
    setCode(HostLiterals::catalogueName, levelName);
    HostLiterals::enter(link_);
  }
  /// The finished text, without the code.
  template <std::same_as<KYRString>... Argument>
  KYRString toString(const Argument&... arguments) const {
    static_assert(sizeof...(Argument) == argumentCount);
    return createParameterizedText(HostLiterals::arrayOf(arguments...));
  }
  /// The code in square brackets, a blank, and the text.
  template <std::same_as<KYRString>... Argument>
  KYRString getMessage(const Argument&... arguments) const {
    return "[" + code + "] " + toString(arguments...);
  }
  /// Hands text, code and level to the log.
  template <std::same_as<KYRString>... Argument>
  void log(KYRLog& receiver, const Argument&... arguments) const {
    receiver.log(KYRLogEvent(toString(arguments...), code, getLevel(), KYRString::getEmptyString()));
  }
  /// Raises a KYRException of `getMessage`.
  template <std::same_as<KYRString>... Argument>
  [[noreturn]] void throwException(const Argument&... arguments) const {
    throw KYRException(getMessage(arguments...), buildStackTrace());
  }

 private:
  HostLiterals::Link link_{this, nullptr};
};
