// The names of XMI 2 and of the root elements that the reader knows by themselves.
#pragma once

namespace XMINames {
constexpr const char* id = "xmi:id";
constexpr const char* type = "xmi:type";
constexpr const char* idref = "xmi:idref";
constexpr const char* name = "name";
constexpr const char* umlModel = "uml:Model";
constexpr const char* umlPackage = "uml:Package";
constexpr const char* defaultValue = "defaultValue";
constexpr const char* umlNamespace = "xmlns:uml";
constexpr const char* xmiNamespace = "xmlns:xmi";
constexpr const char* exporter = "exporter";
constexpr const char* exporterVersion = "exporterVersion";
}  // namespace XMINames
