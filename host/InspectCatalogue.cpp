// The messages among all literals of the reader's catalogue.
#include "host/InspectCatalogue.h"

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRVector.h"

std::vector<const KYRMessageLiteral*> importMessages() {
  KYRVector literals;
  KBI_UML2XMI::getAllLiterals(literals);
  std::vector<const KYRMessageLiteral*> messages;
  for (unsigned int i = 0; i < literals.getCount(); ++i) {
    const auto* const literal = static_cast<const KYRTextLiteral*>(literals.getAt(i));
    if (const auto* const message = dynamic_cast<const KYRMessageLiteral*>(literal)) {
      messages.push_back(message);
    }
  }
  return messages;
}
