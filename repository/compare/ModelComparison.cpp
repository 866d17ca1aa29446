// Differences between partners, and what has none.
#include "repository/compare/ModelComparison.h"

#include <algorithm>
#include <unordered_map>

#include "repository/compare/ModelMatching.h"
#include "repository/model/KYRElement.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"
#include "repository/storage/SqlSchema.h"

namespace {

using Index = ComparedModel::Index;
using Node = ComparedModel::Node;

constexpr std::string_view nameField = "name";

ComparedValue textValue(std::string_view text) {
  ComparedValue value;
  if (text.empty()) return value;
  value.kind = ComparedValue::Kind::text;
  value.text = text;
  return value;
}

ComparedValue numberValue(std::int64_t number, ComparedValue::Kind kind = ComparedValue::Kind::number) {
  ComparedValue value;
  value.kind = kind;
  value.number = number;
  return value;
}

}  // namespace

class ModelComparison::Work {
 public:
  Work(ModelComparison& result, const KYRStoreModel& before, const KYRStoreModel& after)
      : result_(result), before_(before), after_(after) {
    result_.steps_ = ModelMatching::match(before_, after_).steps;
    listSingles(before_, result_.removed_);
    listSingles(after_, result_.added_);
    compareDocuments(before, after);
    for (const Node& node : after_.nodes) {
      if (node.partner != ComparedModel::none) compare(before_.nodes[node.partner], node);
    }
  }

 private:
  static void listSingles(const ComparedModel& model, std::vector<Single>& singles) {
    // The place in the list of the topmost object without a partner, for each object inside one.
    std::vector<std::size_t> entries(model.nodes.size());
    for (Index i = 1; i < model.nodes.size(); ++i) {
      const Node& node = model.nodes[i];
      if (node.partner != ComparedModel::none) continue;
      if (model.nodes[node.parent].partner == ComparedModel::none) {
        entries[i] = entries[node.parent];
        ++singles[entries[i]].held;
      } else {
        entries[i] = singles.size();
        singles.push_back({node.object, 0});
      }
    }
  }

  void compareDocuments(const KYRStoreModel& before, const KYRStoreModel& after) {
    addField("designLevel", numberValue(before.designLevel), numberValue(after.designLevel));
    addField("storeType", numberValue(before.storeType), numberValue(after.storeType));
    addField("dataStore", textValue(before.dataStore.view()), textValue(after.dataStore.view()));
    addField("dataStoreVersion", textValue(before.dataStoreVersion.view()),
             textValue(after.dataStoreVersion.view()));
  }

  void compare(const Node& before, const Node& after) {
    const Pair pair{before.object, after.object};
    if (before.object->getName() != after.object->getName()) result_.renamed_.push_back(pair);
    if (before.parent != ComparedModel::none && before_.nodes[before.parent].partner != after.parent) {
      result_.moved_.push_back(pair);
    }
    for (const StoredField* field : after.stored->values) {
      if (field->name != nameField) compareField(*field, *before.object, *after.object);
    }
    compareProperties(before, after);
    if (fields_.empty()) return;
    result_.changed_.push_back({pair, std::move(fields_)});
    fields_.clear();
  }

  void compareField(const StoredField& field, const KYRObject& before, const KYRObject& after) {
    switch (field.kind) {
      case StoredKind::text:
        if (field.getText(before) != field.getText(after)) {
          addField(field.name, textValue(field.getText(before)), textValue(field.getText(after)));
        }
        break;
      case StoredKind::number:
        addField(field.name, numberValue(field.getNumber(before)), numberValue(field.getNumber(after)));
        break;
      case StoredKind::flag:
        addField(field.name, numberValue(field.getNumber(before), ComparedValue::Kind::flag),
                 numberValue(field.getNumber(after), ComparedValue::Kind::flag));
        break;
      case StoredKind::reference:
        compareObjects(field.name, {field.getReference(before)}, {field.getReference(after)});
        break;
      case StoredKind::references:
        compareObjects(field.name, entriesOf(field.getList(before)), entriesOf(field.getList(after)));
        break;
      case StoredKind::children:
        break;
    }
  }

  using Objects = std::vector<const KYRObject*>;
  static Objects entriesOf(const KYRSdkCollection* list) {
    Objects entries;
    for (unsigned int i = 0; list != nullptr && i < list->getCount(); ++i) entries.push_back((*list)[i]);
    return entries;
  }
  // As saving does, without those that the model does not hold.
  static ComparedValue objectsValue(const ComparedModel& model, const Objects& objects) {
    ComparedValue value;
    for (const KYRObject* object : objects) {
      if (model.find(object) != ComparedModel::none) value.objects.push_back(object);
    }
    if (!value.objects.empty()) value.kind = ComparedValue::Kind::objects;
    return value;
  }
  void compareObjects(std::string_view name, const Objects& before, const Objects& after) {
    ComparedValue old = objectsValue(before_, before);
    ComparedValue now = objectsValue(after_, after);
    const auto isSame = [this](const KYRObject* first, const KYRObject* second) {
      return before_.nodes[before_.find(first)].partner == after_.find(second);
    };
    const bool isEqual =
        std::equal(old.objects.begin(), old.objects.end(), now.objects.begin(), now.objects.end(), isSame);
    if (!isEqual) fields_.push_back({std::string(name), false, std::move(old), std::move(now)});
  }

  // Property values by the place of their type in the later model; those of types that are gone have none.
  void compareProperties(const Node& before, const Node& after) {
    const auto* const old = dynamic_cast<const KYRElement*>(before.object);
    const auto* const now = dynamic_cast<const KYRElement*>(after.object);
    if (old == nullptr || now == nullptr) return;
    if (old->getFirstPropertyValue() == nullptr && now->getFirstPropertyValue() == nullptr) return;
    std::unordered_map<Index, const KYRPropertyValue*> values;
    for (const auto* value = old->getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
      const Index type = before_.find(value->getPropertyType());
      if (type == ComparedModel::none) continue;
      const Index partner = before_.nodes[type].partner;
      if (partner == ComparedModel::none) {
        addProperty(*value, textValue(value->value.view()), {});
      } else {
        values.emplace(partner, value);
      }
    }
    compareProperties(*old, *now, values);
  }

  void compareProperties(const KYRElement& before, const KYRElement& after,
                         std::unordered_map<Index, const KYRPropertyValue*>& values) {
    for (const auto* value = after.getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
      const auto found = values.find(after_.find(value->getPropertyType()));
      if (found == values.end()) {
        addProperty(*value, {}, textValue(value->value.view()));
        continue;
      }
      const KYRPropertyValue& old = *found->second;
      if (old.value != value->value) {
        addProperty(*value, textValue(old.value.view()), textValue(value->value.view()));
      }
      values.erase(found);
    }
    for (const auto* value = before.getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
      const Index type = before_.find(value->getPropertyType());
      if (type == ComparedModel::none || values.count(before_.nodes[type].partner) == 0) continue;
      addProperty(*value, textValue(value->value.view()), {});
    }
  }

  void addProperty(const KYRPropertyValue& value, ComparedValue before, ComparedValue after) {
    if (before.kind == after.kind && before.text == after.text) return;  // empty, and not there
    fields_.push_back(
        {std::string(value.getPropertyType()->getName().view()), true, std::move(before), std::move(after)});
  }
  void addField(std::string_view name, ComparedValue before, ComparedValue after) {
    if (before.kind == after.kind && before.number == after.number && before.text == after.text) return;
    fields_.push_back({std::string(name), false, std::move(before), std::move(after)});
  }

  ModelComparison& result_;
  ComparedModel before_;
  ComparedModel after_;
  std::vector<ComparedField> fields_;  // of the pair at hand
};

ModelComparison::ModelComparison(const KYRStoreModel& before, const KYRStoreModel& after) {
  Work(*this, before, after);
}

bool ModelComparison::isEqual() const noexcept {
  return added_.empty() && removed_.empty() && renamed_.empty() && moved_.empty() && changed_.empty();
}

std::string_view ModelComparison::kindOf(const KYRObject& object) {
  return SqlSchema::get().getClass(KYRElementType::getClassName(object.getElementType())).kind;
}

std::string ModelComparison::pathOf(const KYRObject& object) {
  std::vector<const KYRObject*> way;
  for (const KYRObject* at = &object; at->getParent() != nullptr; at = at->getParent()) way.push_back(at);
  std::string path;
  for (std::size_t i = way.size(); i > 0; --i) {
    const KYRObject& at = *way[i - 1];
    if (!path.empty()) path += '/';
    if (at.getName().isEmpty()) {
      path += "(" + std::string(kindOf(at)) + ")";
    } else {
      path += at.getName().view();
    }
  }
  return path;
}
