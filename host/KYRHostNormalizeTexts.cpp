// The words of the normalising step: names of its rules, and the reasons why a file needs them.
#include "host/KYRHostTexts.h"

namespace KYRHostTexts {

const HostText<1> SUMMARY_NORMALIZED("SUMMARY_NORMALIZED", "normalised: {0}");
const HostText<0> SUMMARY_NOT_NORMALIZED("SUMMARY_NOT_NORMALIZED", "normalised: nothing to change");
const HostText<4> SUMMARY_LOST("SUMMARY_LOST",
                               "lost for the way the file is written ({3}): classes {0}, attributes {1}, "
                               "associations {2}; '--normalize' keeps them");
const HostText<1> NORMALIZE_WRITTEN("NORMALIZE_WRITTEN", "Wrote '{0}'");

const HostText<0> RULE_PREFIXES("RULE_PREFIXES", "prefixes");
const HostText<0> RULE_TYPE_ATTRIBUTE("RULE_TYPE_ATTRIBUTE", "xsi:type");
const HostText<0> RULE_TYPED_REFERENCE("RULE_TYPED_REFERENCE", "typed references");
const HostText<0> RULE_REPLACED_TYPE("RULE_REPLACED_TYPE", "ports and special ends");
const HostText<0> RULE_DOCUMENTATION("RULE_DOCUMENTATION", "documentation");
const HostText<0> RULE_PROFILE_PACKAGE("RULE_PROFILE_PACKAGE", "profiles");
const HostText<0> RULE_COMPONENT_CLASS("RULE_COMPONENT_CLASS", "components and nodes");
const HostText<0> RULE_LOCAL_HREF("RULE_LOCAL_HREF", "local hrefs");
const HostText<0> RULE_ROOTS("RULE_ROOTS", "roots");
const HostText<0> RULE_PACKAGE_CONTENT("RULE_PACKAGE_CONTENT", "contents of packages");
const HostText<0> RULE_NESTED_CLASSIFIER("RULE_NESTED_CLASSIFIER", "nested classifiers");
const HostText<0> RULE_IDS("RULE_IDS", "ids");
const HostText<0> RULE_ID_LIST("RULE_ID_LIST", "lists of ids");
const HostText<0> RULE_SCALAR_ELEMENT("RULE_SCALAR_ELEMENT", "scalars as elements");
const HostText<0> RULE_DECLARED_TYPE("RULE_DECLARED_TYPE", "elements without a type");
const HostText<0> RULE_ATTRIBUTE_ORDER("RULE_ATTRIBUTE_ORDER", "order of attributes");

const HostText<0> REASON_PREFIXES("REASON_PREFIXES", "other prefixes than uml and xmi");
const HostText<0> REASON_TYPE_ATTRIBUTE("REASON_TYPE_ATTRIBUTE", "types as xsi:type");
const HostText<0> REASON_TYPED_REFERENCE("REASON_TYPED_REFERENCE", "references with a type");
const HostText<0> REASON_REPLACED_TYPE("REASON_REPLACED_TYPE", "types that are not read");
const HostText<0> REASON_DOCUMENTATION("REASON_DOCUMENTATION", "another spelling of the tool's name");
const HostText<0> REASON_LOCAL_HREF("REASON_LOCAL_HREF", "references into the file as href");
const HostText<0> REASON_ROOTS("REASON_ROOTS", "several roots side by side");
const HostText<0> REASON_PACKAGE_CONTENT("REASON_PACKAGE_CONTENT",
                                         "models in the model or misplaced contents of packages");
const HostText<0> REASON_IDS("REASON_IDS", "missing or repeated ids");
const HostText<0> REASON_ID_LIST("REASON_ID_LIST", "lists of ids in one attribute");
const HostText<0> REASON_SCALAR_ELEMENT("REASON_SCALAR_ELEMENT", "names and the like as child elements");
const HostText<0> REASON_DECLARED_TYPE("REASON_DECLARED_TYPE", "elements without a type");
const HostText<0> REASON_ATTRIBUTE_ORDER("REASON_ATTRIBUTE_ORDER", "values that hide an attribute");

}  // namespace KYRHostTexts
