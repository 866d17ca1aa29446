#include "bench/ModelPlan.h"

#include <array>

#include "bench/Random.h"

namespace bench {

namespace {

constexpr std::array<std::string_view, 48> words = {
    "account", "anchor",  "basket", "beacon",  "border",   "branch",  "bridge",   "cargo",
    "chapter", "circuit", "clause", "column",  "contract", "counter", "delivery", "depot",
    "entry",   "figure",  "folder", "freight", "garden",   "harbour", "index",    "invoice",
    "journey", "ledger",  "letter", "margin",  "market",   "measure", "message",  "notice",
    "order",   "parcel",  "period", "pocket",  "portion",  "quarter", "receipt",  "record",
    "section", "shelf",   "signal", "station", "ticket",   "vessel",  "voucher",  "window"};

constexpr std::array<std::string_view, primitiveCount> primitives = {"String", "Integer", "Boolean",
                                                                     "Real",   "Date",    "Decimal"};
constexpr std::array<std::string_view, 8> visibilities = {"private", "private", "private",   "public",
                                                          "public",  "public",  "protected", "package"};

std::string_view word(std::uint64_t number) { return words[number % words.size()]; }

std::string capital(std::string_view text) {
  std::string result(text);
  result[0] = static_cast<char>(result[0] - 'a' + 'A');
  return result;
}

std::string_view visibility(Random& random) {
  return visibilities[random.below(static_cast<std::uint32_t>(visibilities.size()))];
}

}  // namespace

std::string_view ModelPlan::primitiveName(std::uint32_t number) {
  return primitives[number % primitiveCount];
}

std::uint64_t ModelPlan::idNumber(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const {
  return mix(mix(seed, what), mix(owner, part));
}

std::string ModelPlan::className(std::uint32_t number) const {
  const std::uint64_t choice = mix(seed, number);
  return capital(word(choice)) + capital(word(choice >> 16U)) + std::to_string(number);
}

ClassKind ModelPlan::kindOf(std::uint32_t number) const {
  const std::uint64_t choice = mix(seed ^ 0x6B696E64U, number) % 100;
  if (choice < 6) return ClassKind::enumeration;
  return choice < 11 ? ClassKind::interfaceClass : ClassKind::plainClass;
}

std::string ModelPlan::prose(std::uint64_t place, std::uint32_t count) const {
  Random random(mix(seed ^ 0x70726F7365U, place));
  std::string text;
  for (std::uint32_t i = 0; i < count; ++i) {
    if (i != 0) text += ' ';
    text += word(random.next());
  }
  return text;
}

std::uint32_t ModelPlan::classToReferTo(std::uint32_t from, std::uint64_t choice) const {
  // Mostly a class met before; sometimes one further down in the same package.
  const std::uint32_t packageStart = from - from % classesInPackage;
  const bool isNear = choice % 4 == 0 || from == 0;
  const std::uint64_t pick = choice >> 8U;
  return isNear ? packageStart + static_cast<std::uint32_t>(pick % classesInPackage)
                : static_cast<std::uint32_t>(pick % from);
}

FeatureType ModelPlan::featureType(std::uint32_t from, std::uint64_t choice) const {
  const std::uint64_t pick = choice >> 8U;
  if (choice % 100 < 70) return {true, static_cast<std::uint32_t>(pick % primitiveCount)};
  return {false, classToReferTo(from, pick)};
}

ClassPlan ModelPlan::classAt(std::uint32_t number) const {
  Random random(mix(seed ^ 0x636C617373U, number));
  ClassPlan plan;
  plan.number = number;
  plan.kind = kindOf(number);
  plan.name = className(number);
  plan.documentationWords = random.chance(55) ? 6 + random.below(40) : 0;
  plan.tags = random.chance(60) ? 1 + random.below(8) : 0;
  if (plan.kind == ClassKind::enumeration) {
    const std::uint32_t count = 3 + random.below(8);
    for (std::uint32_t i = 0; i < count; ++i)
      plan.literals.push_back(std::string(word(random.next())) + std::to_string(i));
    return plan;
  }
  plan.isAbstract = random.chance(12);
  if (number > 0 && random.chance(40)) {
    const std::uint32_t general = random.below(number);
    if (kindOf(general) == plan.kind) plan.general = general;
  }
  if (random.chance(40)) plan.partner = classToReferTo(number, random.next());
  if (plan.partner && kindOf(*plan.partner) == ClassKind::enumeration) plan.partner.reset();
  const std::uint32_t attributes = random.below(8);
  for (std::uint32_t i = 0; i < attributes; ++i) {
    AttributePlan attribute;
    attribute.name = std::string(word(random.next())) + std::to_string(i);
    attribute.type = featureType(number, random.next());
    attribute.visibility = visibility(random);
    attribute.isMany = random.chance(15);
    attribute.isStatic = random.chance(4);
    attribute.hasDefault = random.chance(12);
    attribute.documentationWords = random.chance(35) ? 4 + random.below(16) : 0;
    plan.attributes.push_back(std::move(attribute));
  }
  const std::uint32_t operations = random.chance(40) ? 1 + random.below(4) : 0;
  for (std::uint32_t i = 0; i < operations; ++i) {
    OperationPlan operation;
    operation.name = std::string(word(random.next())) + std::to_string(i);
    operation.visibility = visibility(random);
    operation.documentationWords = random.chance(30) ? 4 + random.below(12) : 0;
    const std::uint32_t parameters = random.below(4);
    for (std::uint32_t j = 0; j < parameters; ++j) {
      static constexpr std::array<std::string_view, 5> directions = {"in", "in", "in", "inout", "out"};
      operation.parameters.push_back({std::string(word(random.next())) + std::to_string(j),
                                      featureType(number, random.next()), directions[random.below(5)]});
    }
    if (random.chance(60))
      operation.parameters.push_back({"return", featureType(number, random.next()), "return"});
    plan.operations.push_back(std::move(operation));
  }
  return plan;
}

}  // namespace bench
