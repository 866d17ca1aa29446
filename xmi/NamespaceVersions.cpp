// The lists are closed: any other URI, one with a trailing "/" or with https among them, is unknown.
#include "xmi/NamespaceVersions.h"

namespace {

struct Row {
  const char* uri;
  const char* version;
};

constexpr Row umlRows[] = {
    {"http://schema.omg.org/spec/UML/2.0", "2.0"},
    {"http://schema.omg.org/spec/UML/2.0.0", "2.0.0"},
    {"http://schema.omg.org/spec/UML/2.1", "2.1"},
    {"http://schema.omg.org/spec/UML/2.1.0", "2.1.0"},
    {"http://schema.omg.org/spec/UML/2.1.1", "2.1.1"},
    {"http://schema.omg.org/spec/UML/2.1.2", "2.1.2"},
    {"http://schema.omg.org/spec/UML/2.2", "2.2"},
    {"http://schema.omg.org/spec/UML/2.2.0", "2.2.0"},
    {"http://www.omg.org/spec/UML/20090901", "2.3"},
    {"http://www.omg.org/spec/UML/20101101", "2.4"},
    {"http://www.omg.org/spec/UML/20110701", "2.4.1"},
    {"http://www.omg.org/spec/UML/20131001", "2.5"},
    {nullptr, nullptr},
};

constexpr Row xmiRows[] = {
    {"http://schema.omg.org/spec/XMI/2.1", "2.1"},
    {"http://www.omg.org/spec/XMI/20101101", "2.4"},
    {"http://www.omg.org/spec/XMI/20110701", "2.4.2"},
    {"http://www.omg.org/spec/XMI/20131001", "2.5.1"},
    {nullptr, nullptr},
};

const char* find(const Row* row, const KYRString& uri) noexcept {
  for (; row->uri != nullptr; ++row) {
    if (uri.view() == row->uri) return row->version;
  }
  return nullptr;
}

}  // namespace

const char* NamespaceVersions::uml(const KYRString& uri) noexcept { return find(umlRows, uri); }

const char* NamespaceVersions::xmi(const KYRString& uri) noexcept { return find(xmiRows, uri); }
