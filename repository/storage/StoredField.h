// StoredField: one member of a saved object: its name in the file and how it is read off and written
// to the object. Rows are made from pointers to the members and operations of the repository's classes,
// so each field is stated once, for saving and for loading.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "repository/model/KYRCollection.h"
#include "repository/model/KYRObject.h"

enum class StoredKind {
  text,
  number,
  flag,
  reference,   // an id
  references,  // a list of ids
  children,    // a list of objects
};

struct StoredField {
  std::string_view name;
  StoredKind kind;
  // Each kind uses its own operations; the others are null.
  std::string_view (*getText)(const KYRObject&) = nullptr;
  bool (*setText)(KYRObject&, std::string_view) = nullptr;  // false: no such value
  std::int64_t (*getNumber)(const KYRObject&) = nullptr;    // flags too
  void (*setNumber)(KYRObject&, std::int64_t) = nullptr;
  std::int64_t lowest = 0;
  std::int64_t highest = 1;
  const KYRObject* (*getReference)(const KYRObject&) = nullptr;
  const KYRSdkCollection* (*getList)(const KYRObject&) = nullptr;
  bool (*add)(KYRObject&, KYRObject&) = nullptr;  // a reference or a child; false: refused
  int elementType = 0;                            // the class of what is referred to or held
};

/// Makers of rows. The class that a member belongs to is read off its pointer.
namespace stored {

template <class>
struct Member;
template <class Owner_, class Value_>
struct Member<Value_ Owner_::*> {
  using Owner = Owner_;
  using Value = Value_;
};
template <auto field>
using OwnerOf = typename Member<decltype(field)>::Owner;
template <auto field>
using ValueOf = typename Member<decltype(field)>::Value;

// Rows are only ever used on objects of their class: the lookup goes by the object's element type.
template <class Class>
const Class& as(const KYRObject& object) {
  return static_cast<const Class&>(object);
}
template <class Class>
Class& as(KYRObject& object) {
  return static_cast<Class&>(object);
}

template <auto field>
constexpr StoredField text(std::string_view name) {
  using Owner = OwnerOf<field>;
  StoredField row{name, StoredKind::text};
  row.getText = [](const KYRObject& object) { return (as<Owner>(object).*field).view(); };
  row.setText = [](KYRObject& object, std::string_view value) {
    as<Owner>(object).*field = KYRString(value);
    return true;
  };
  return row;
}

template <auto field>
constexpr StoredField number(std::string_view name, std::int64_t lowest, std::int64_t highest) {
  using Owner = OwnerOf<field>;
  StoredField row{name, StoredKind::number};
  row.getNumber = [](const KYRObject& object) -> std::int64_t { return as<Owner>(object).*field; };
  row.setNumber = [](KYRObject& object, std::int64_t value) {
    as<Owner>(object).*field = static_cast<int>(value);
  };
  row.lowest = lowest;
  row.highest = highest;
  return row;
}

template <auto field>
constexpr StoredField integer(std::string_view name) {
  return number<field>(name, std::numeric_limits<std::int32_t>::min(),
                       std::numeric_limits<std::int32_t>::max());
}

template <auto field>
constexpr StoredField enumeration(std::string_view name) {
  return number<field>(name, 0, ValueOf<field>::highestValue);
}

template <auto field>
constexpr StoredField flag(std::string_view name) {
  using Owner = OwnerOf<field>;
  StoredField row{name, StoredKind::flag};
  row.getNumber = [](const KYRObject& object) -> std::int64_t { return as<Owner>(object).*field ? 1 : 0; };
  row.setNumber = [](KYRObject& object, std::int64_t value) { as<Owner>(object).*field = value != 0; };
  return row;
}

/// `add` takes the owner and the target.
template <auto field, auto add>
constexpr StoredField reference(std::string_view name, int elementType) {
  using Owner = OwnerOf<field>;
  using Target = std::remove_pointer_t<ValueOf<field>>;
  StoredField row{name, StoredKind::reference};
  row.getReference = [](const KYRObject& object) -> const KYRObject* { return as<Owner>(object).*field; };
  row.add = [](KYRObject& object, KYRObject& target) { return add(as<Owner>(object), as<Target>(target)); };
  row.elementType = elementType;
  return row;
}

template <auto field, auto add, class Entry>
constexpr StoredField list(StoredKind kind, std::string_view name, int elementType) {
  using Owner = OwnerOf<field>;
  StoredField row{name, kind};
  row.getList = [](const KYRObject& object) { return (as<Owner>(object).*field).getCollection(); };
  row.add = [](KYRObject& object, KYRObject& entry) {
    (as<Owner>(object).*add)(&as<Entry>(entry));
    return true;
  };
  row.elementType = elementType;
  return row;
}

/// `add` is an operation of the owner that takes a pointer to the entry.
template <auto field, auto add>
constexpr StoredField children(std::string_view name, int elementType) {
  return list<field, add, typename ValueOf<field>::Entry>(StoredKind::children, name, elementType);
}
template <auto field, auto add>
constexpr StoredField references(std::string_view name, int elementType) {
  return list<field, add, typename ValueOf<field>::Entry>(StoredKind::references, name, elementType);
}

}  // namespace stored
