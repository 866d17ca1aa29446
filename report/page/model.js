// The model in the page: its objects by id, who owns what, and the other sides of references. Everything
// is gathered in one walk without recursion, since packages may be nested as deep as anybody likes.

const kinds = new Map(Object.entries({
  KYRStoreModel: "model", KYRDesignPackage: "package", KYRClass: "class", KYRAttribute: "attribute",
  KYROperation: "operation", KYRArgument: "argument", KYRConcreteType: "type", KYRDerivedType: "type",
  KYRClassType: "type", KYRTypeValue: "value", KYRDataPackage: "schema", KYRDatabaseSchema: "schema",
  KYRClassDiagram: "diagram", KYRAssociation: "association", KYRAssociationRole: "role",
  KYRGeneralization: "generalization", KYRDependency: "dependency", KYRRealization: "realization",
  KYRCandidateKey: "key", KYRForeignKey: "key", KYRPropertyType: "property", KYRNote: "note",
}));

const childLists = [
  "propertyTypes", "types", "designPackages", "dataPackages", "elements", "diagrams", "attributes", "operations", "keys",
  "arguments", "roles", "supertypeRoles", "subtypeRoles", "typeValues", "notes",
];

// Field of a reference, and the list in which the object that is referred to finds the referring one.
// An import puts the interface into the realizationClass of a realization, and what implements it into the
// specificationClass.
const otherSides = new Map(Object.entries({
  type: "typeUses", returnType: "typeUses", baseConcreteType: "derivedTypes", dataPackage: "members",
  clientClass: "suppliers", supplierClass: "clients", realizationClass: "realizedBy",
  specificationClass: "realizes",
}));

class Model {
  constructor(saved) {
    this.saved = saved;
    this.root = saved.model;
    this.objects = new Map(); // by id, in the order of the document
    this.sides = new Map(); // id -> list name -> objects
    this.gather();
    for (const object of this.objects.values()) this.noteReferences(object);
  }

  gather() {
    const waiting = [this.root];
    this.root.owner = null;
    while (waiting.length > 0) {
      const object = waiting.pop();
      this.objects.set(object.id, object);
      for (let i = childLists.length - 1; i >= 0; --i) {
        const list = object[childLists[i]];
        // References and strings go by these names too.
        if (!Array.isArray(list) || typeof list[0] !== "object") continue;
        for (let j = list.length - 1; j >= 0; --j) {
          list[j].owner = object;
          list[j].ownerList = childLists[i];
          waiting.push(list[j]);
        }
      }
    }
  }

  noteReferences(object) {
    for (const [field, list] of otherSides) {
      if (object[field] !== undefined) this.note(object[field], list, object);
    }
    switch (object.class) {
      case "KYRAssociationRole":
        this.note(object.associatedClass, "roles", object);
        break;
      case "KYRGeneralizationRole": {
        const isSuper = object.ownerList === "supertypeRoles";
        this.note(object.associatedClass, isSuper ? "asSupertype" : "asSubtype", object);
        break;
      }
      case "KYRClassType":
        this.note(object.associatedClass, "classTypes", object);
        break;
      case "KYRClassDiagram":
        for (const id of object.modelElements || []) this.note(id, "diagrams", object);
        break;
    }
  }

  note(id, list, object) {
    if (id === undefined) return;
    let lists = this.sides.get(id);
    if (lists === undefined) this.sides.set(id, lists = {});
    (lists[list] = lists[list] || []).push(object);
  }

  get(id) { return this.objects.get(id); }
  side(object, list) { return (this.sides.get(object.id) || {})[list] || []; }
  ofKind(kind) { return [...this.objects.values()].filter((object) => kindOf(object) === kind); }

  supertypes(class_) {
    return this.side(class_, "asSubtype").flatMap((role) => this.classesOf(role.owner.supertypeRoles));
  }
  subtypes(class_) {
    return this.side(class_, "asSupertype").flatMap((role) => this.classesOf(role.owner.subtypeRoles));
  }
  classesOf(roles) {
    return (roles || []).map((role) => this.get(role.associatedClass)).filter((class_) => class_ !== undefined);
  }
  // Each end at the class, with the other ends of the association.
  associationsOf(class_) {
    return this.side(class_, "roles").map((role) => ({
      role, association: role.owner, others: role.owner.roles.filter((other) => other !== role),
    }));
  }
  other(object, list, field) {
    return this.side(object, list).map((relation) => this.get(relation[field])).filter((end) => end !== undefined);
  }
}

function kindOf(object) { return kinds.get(object.class) || ""; }

function kindText(object) {
  if (object.class === "KYRClass" && object.classCategory === 9) return "interface";
  if (object.class === "KYRDerivedType" && object.typeValues) return "enumeration";
  if (object.class === "KYRDataPackage") return "data package";
  if (object.class === "KYRForeignKey") return "foreign key";
  return kindOf(object);
}

function isInterface(object) { return object.classCategory === 9; }
function nameOf(object) { return object.name || "(no name)"; }
