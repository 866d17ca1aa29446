// Boxes are as wide as their names need, by what letters of wide fonts take; of longer names the page leaves
// something out (`fit` in report/page/boxes.js has the same numbers).
#include "report/Neighbourhood.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRealization.h"
#include "repository/model/KYRType.h"

namespace {

// Of a small letter; others are parts of it.
constexpr double nameLetter = 8;
constexpr double plainLetter = 7.2;
constexpr double labelLetter = 6.6;
constexpr double broadPart = 1.5;
constexpr double capitalPart = 1.16;
constexpr double narrowPart = 0.6;
constexpr double wideLetter = 12.5;  // of the scripts of East Asia and beyond
constexpr int boxHeight = 34;
constexpr int rowHeight = 16;
constexpr int boxGap = 13;
constexpr int widestRow = 1000;  // what a page has room for without making letters small
constexpr int mostAttributes = 8;
constexpr double arrow = 14;  // tells to which end a text belongs

double partOf(char letter) {
  if (std::string_view("MWmw@%").find(letter) != std::string_view::npos) return broadPart;
  if (letter >= 'A' && letter <= 'Z') return capitalPart;
  return std::string_view("ijltf.,:;'|!()[] ").find(letter) != std::string_view::npos ? narrowPart : 1;
}

// The width of a UTF-8 text, up to a limit: no more of a long text is looked at.
double widthOf(std::string_view text, double letter, double limit) {
  double width = 0;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if ((byte & 0xC0U) == 0x80U) continue;
    width += byte < 0xE2 ? letter * partOf(character) : wideLetter;
    if (width >= limit) return limit;
  }
  return width;
}

int roundUp(double width) { return static_cast<int>(width) + 1; }

int widthOfBox(const KYRClass& class_) {
  return std::max(70, roundUp(widthOf(class_.getName().view(), nameLetter, 220)) + 16);
}

Neighbourhood::Box boxOfOwn(const KYRClass& class_, unsigned int id) {
  constexpr double widest = 250;
  double width = widthOf(class_.getName().view(), nameLetter, widest);
  int rows = 0;
  for (const KYRAttribute* const attribute : class_.attributes) {
    if (++rows > mostAttributes) break;
    double row = widthOf(attribute->getName().view(), plainLetter, widest);
    if (attribute->type != nullptr) {
      row += widthOf(attribute->type->getName().view(), plainLetter, widest) + 2 * narrowPart * plainLetter;
    }
    width = std::clamp(row, width, widest);
  }
  const int height = rows == 0 ? boxHeight : boxHeight + rows * rowHeight + 8;
  return {id, std::max(120, roundUp(width) + 20), height};
}

int widthOfText(const KYRAssociationRole& role) {
  constexpr double widest = 190;
  const std::string_view name = role.getName().view();
  const std::string_view multiplicity = role.multiplicity.view();
  if (name.empty() && multiplicity.empty()) return 0;
  const double width = widthOf(name, labelLetter, widest) + widthOf(multiplicity, labelLetter, widest) +
                       (name.empty() || multiplicity.empty() ? 0 : labelLetter * narrowPart);
  return roundUp(std::min(width, widest) + arrow);
}

class Gathering {
 public:
  Gathering(const KYRClass& own, const StoredNumbers& numbers) : class_(own), numbers_(numbers) {
    enter(&own);
  }

  Neighbourhood gather() {
    gatherGeneralizations();
    gatherRealizations();
    gatherAssociations();
    gatherDependencies();
    if (result_.lines.empty()) return {};
    result_.isUpright = isInheritance() && widthOfRows() <= widestRow;
    return std::move(result_);
  }

 private:
  using Tie = Neighbourhood::Tie;

  // Whether there are more ties of super- and subtypes than others, whose texts need room at the side.
  bool isInheritance() const {
    const auto inherited = std::count_if(result_.lines.begin(), result_.lines.end(), [](const auto& line) {
      return line.tie == Tie::generalization || line.tie == Tie::realization;
    });
    return static_cast<std::size_t>(inherited) * 2 > result_.lines.size();
  }

  // Of the longer one when what stands before the class is above it, and the rest below.
  int widthOfRows() const {
    int widths[2] = {0, 0};
    for (const Neighbourhood::Line& line : result_.lines) {
      const unsigned int other = std::max(line.first, line.second);
      widths[line.first == 0 ? 1 : 0] += result_.boxes[other].width + boxGap + line.textWidth;
    }
    return std::max(widths[0], widths[1]);
  }

  // False when enough has been looked at.
  bool look() { return ++lookedAt_ <= Neighbourhood::mostLookedAt; }

  unsigned int enter(const KYRClass* neighbour) {
    const auto index = static_cast<unsigned int>(result_.boxes.size());
    const unsigned int id = numbers_.get(neighbour);
    boxes_.emplace(neighbour, index);
    result_.boxes.push_back(index == 0 ? boxOfOwn(*neighbour, id)
                                       : Neighbourhood::Box{id, widthOfBox(*neighbour), boxHeight});
    return index;
  }

  // The line to a neighbour that stands before the class or behind it, or null when there is no room for it.
  Neighbourhood::Line* tie(const KYRClass* neighbour, Tie kind, bool isBefore) {
    if (numbers_.get(neighbour) == 0 || result_.lines.size() == Neighbourhood::mostLines) return nullptr;
    const auto known = boxes_.find(neighbour);
    unsigned int box = 0;
    if (known != boxes_.end()) {
      box = known->second;
    } else {
      const bool isInherited = kind == Tie::generalization || kind == Tie::realization;
      unsigned int& count = counts_[isBefore ? 1 : 0][isInherited ? 1 : 0];
      if (count == Neighbourhood::mostBoxesOfSide) return nullptr;
      ++count;
      box = enter(neighbour);
    }
    result_.lines.push_back({kind, isBefore ? box : 0, isBefore ? 0 : box, 0, 0, 0});
    return &result_.lines.back();
  }

  void tieRoles(const KYRCollection<KYRGeneralizationRole>& roles, bool isBefore) {
    for (const KYRGeneralizationRole* const role : roles) {
      if (!look()) return;
      tie(role->associatedClass, Tie::generalization, isBefore);
    }
  }

  void gatherGeneralizations() {
    for (const KYRGeneralizationRole* const role : class_.generalizationRoles) {
      if (!look()) return;
      if (role->generalizationAsSubtype != nullptr) {
        tieRoles(role->generalizationAsSubtype->supertypeRoles, true);
      }
      if (role->generalizationAsSupertype != nullptr) {
        tieRoles(role->generalizationAsSupertype->subtypeRoles, false);
      }
    }
  }

  // The interface is the realization class, and what implements it the specification class.
  void gatherRealizations() {
    for (const KYRRealization* const realization : class_.specifications) {
      if (!look()) return;
      tie(realization->realizationClass, Tie::realization, true);
    }
    for (const KYRRealization* const realization : class_.realizations) {
      if (!look()) return;
      tie(realization->specificationClass, Tie::realization, false);
    }
  }

  void gatherAssociations() {
    for (const KYRAssociationRole* const role : class_.associationRoles) {
      if (!look()) return;
      const KYRAssociation* const association = role->getAssociation();
      if (association != nullptr) tieEnds(*association, *role);
    }
  }

  void tieEnds(const KYRAssociation& association, const KYRAssociationRole& role) {
    const bool isFirst = association.roles[0] == &role;
    for (const KYRAssociationRole* const other : association.roles) {
      if (!look()) return;
      if (other == &role || numbers_.get(other) == 0 || numbers_.get(&role) == 0) continue;
      if (other->associatedClass == &class_ && !isFirst) continue;  // seen from its first end
      Neighbourhood::Line* const line = tie(other->associatedClass, Tie::association, !isFirst);
      if (line == nullptr) continue;
      line->firstRole = numbers_.get(isFirst ? &role : other);
      line->secondRole = numbers_.get(isFirst ? other : &role);
      line->textWidth = std::max(widthOfText(role), widthOfText(*other));
    }
  }

  void gatherDependencies() {
    for (const KYRDependency* const dependency : class_.clientDependencies) {
      if (!look()) return;
      tie(dependency->supplierClass, Tie::dependency, false);
    }
    for (const KYRDependency* const dependency : class_.supplierDependencies) {
      if (!look()) return;
      tie(dependency->clientClass, Tie::dependency, true);
    }
  }

  const KYRClass& class_;
  const StoredNumbers& numbers_;
  Neighbourhood result_;
  std::map<const KYRClass*, unsigned int> boxes_;  // is never walked
  unsigned int counts_[2][2] = {};
  unsigned int lookedAt_ = 0;
};

}  // namespace

Neighbourhood makeNeighbourhood(const KYRClass& class_, const StoredNumbers& numbers) {
  return Gathering(class_, numbers).gather();
}
