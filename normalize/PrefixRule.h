// PrefixRule: UML and XMI under another prefix than "uml" and "xmi".
//
// The reader knows names by these two prefixes. What a prefix means depends on where it stands, so the
// declarations in scope decide, and a prefix is left alone where "uml" or "xmi" mean something else. This is
// the one rule that also works inside the data of tools.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "normalize/DocumentRule.h"

class PrefixRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

  /// A metamodel of UML 2 or a version of XMI 2; not a namespace that goes on behind the version, which is a
  /// profile's.
  static bool isUmlNamespace(std::string_view uri) noexcept;
  static bool isXmiNamespace(std::string_view uri) noexcept;

 private:
  enum class Meaning { uml, xmi, other };
  /// A prefix that an element in scope declares.
  struct Binding {
    std::string_view prefix;
    Meaning meaning;
  };
  struct Scope {
    Node behind;  // the first node that is out of it
    std::size_t bindings;
  };

  static Meaning meaningOf(std::string_view uri) noexcept;
  bool isNeeded(const NormalizedDocument& document) const;
  void leaveScopes(Node node);
  void enterScope(NormalizedDocument& document, Node node);
  void addUsualDeclarations(NormalizedDocument& document, Node node);
  bool isFree(std::string_view prefix, Meaning meaning) const noexcept;
  std::string mapName(std::string_view name) const;
  Name mapped(NormalizedDocument& document, Name name);
  bool change(NormalizedDocument& document, Node node);

  std::vector<Binding> bindings_;
  std::vector<Scope> scopes_;
  std::vector<Name> mapped_;  // by name, for the scope at hand
};
