// Files that stress one thing each: many classes in one name space, many references, many types, depth,
// one huge attribute, entities that multiply, ids that are not there, alike or deep, diagrams.
#pragma once

#include <cstdint>

#include "bench/XmlWriter.h"

namespace bench {

/// `count` classes in one package, all of one name if `sameName`.
void writeManyClasses(XmlWriter& writer, std::uint64_t count, bool sameName);
/// `count` references between 1,000 classes; half of them start at one class.
void writeManyLinks(XmlWriter& writer, std::uint64_t count, std::uint64_t seed);
/// `count` attributes whose types are `types` data types and classes in turn.
void writeManyTypes(XmlWriter& writer, std::uint64_t count, std::uint64_t types);
/// `count` attributes of one enumeration that has `literals` literals.
void writeSharedEnumeration(XmlWriter& writer, std::uint64_t count, std::uint64_t literals);
/// `count` attributes whose types are ids that no element bears.
void writeUnresolvedTypes(XmlWriter& writer, std::uint64_t count);
/// `count` classes without ids, each with an attribute without one.
void writeWithoutIds(XmlWriter& writer, std::uint64_t count);
/// `count` classes and as many references to them; all ids begin with the same 200 characters.
void writeLongPrefixes(XmlWriter& writer, std::uint64_t count);
/// One class of `count` attributes.
void writeOneClass(XmlWriter& writer, std::uint64_t count);
/// `count` chains of 500 nested packages as MagicDraw writes them, with an attribute whose bound only the
/// tool tells at the end of each: each element has a composite key of up to 500 ids.
void writeDeepKeys(XmlWriter& writer, std::uint64_t count);
/// `count` class diagrams of MagicDraw, each with five shapes.
void writeManyDiagrams(XmlWriter& writer, std::uint64_t count);
/// Packages nested so deep that the document has `depth` levels.
void writeDeepNesting(XmlWriter& writer, std::uint64_t depth);
/// A comment whose body attribute has `size` bytes.
void writeHugeAttribute(XmlWriter& writer, std::uint64_t size);
/// A document type whose entities would grow to 10^9 copies of one word.
void writeEntityBomb(XmlWriter& writer);

}  // namespace bench
