// KYROmgUml2XmiImportBridge: the working state of one import, and its operations.
//
// The driver (bridge/ImportDriver.cpp) reads the file and finishes the model; the conversion (convert/)
// turns UML objects into repository objects in fixed phases; the release step (bridge/ReleaseStep.cpp)
// ends every import, good or failed.
//
// Ownership. UML objects belong to the parser and die before the release step. Repository objects
// belong to the container that an `add` operation placed them in; one that no container took stays in
// `unplacedObjects` until the release step. All lists borrow, but for the records of
// `associationClasses`, `owners` and `mdObjects`, which belong to the bridge.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "bridge/state/CommentTargets.h"
#include "bridge/state/TextKeyHashtable.h"
#include "foundation/Borrowed.h"
#include "foundation/KYRDOM.h"
#include "foundation/KYRFile.h"
#include "foundation/KYRRBTree.h"
#include "foundation/KYRString.h"
#include "repository/model/KYRArgumentType.h"
#include "repository/model/KYRObject.h"
#include "repository/model/KYRVisibilityType.h"
#include "uml/UMLForward.h"

class KYRDataStoreVersion;
class KYRDataTypeConverter;
class KYRLog;
class KYROptionList;

class KYROmgUml2XmiImportBridge {
 public:
  /// Repository objects by `sourceId`. Ids are case-sensitive.
  class ID2ObjectHashtable : public TextKeyHashtable<KYRObject, &KYRObject::sourceId> {
   public:
    using TextKeyHashtable::TextKeyHashtable;
  };

  /// What is remembered of an association class until its association is made.
  struct AssociationClass {
    explicit AssociationClass(UMLAssociation* element) : association(element) {}
    virtual ~AssociationClass() = default;
    UMLAssociation* association;
    KYRClass* class_ = nullptr;
    KYRDesignPackage* package = nullptr;
  };

  /// Who owns a class or a package: the name of a schema.
  struct Owner {
    Owner(const KYRString& elementId, const KYRString& ownerName) : id(elementId), name(ownerName) {}
    virtual ~Owner() = default;
    KYRString id;
    KYRString name;
  };
  class OwnerHashtable : public TextKeyHashtable<Owner, &Owner::id> {
   public:
    using TextKeyHashtable::TextKeyHashtable;
  };

  /// A record of a diagram. Records that hold others free them in their destructors.
  struct MD {
    virtual ~MD() = default;
    KYRString id;
  };
  class MDHashtable : public TextKeyHashtable<MD, &MD::id> {
   public:
    using TextKeyHashtable::TextKeyHashtable;
  };

  explicit KYROmgUml2XmiImportBridge(KYRLog* importLog);
  KYROmgUml2XmiImportBridge(const KYROmgUml2XmiImportBridge&) = delete;
  KYROmgUml2XmiImportBridge& operator=(const KYROmgUml2XmiImportBridge&) = delete;
  ~KYROmgUml2XmiImportBridge();

  /// The whole import, from the options to the finished model; once in the life of a bridge. The result
  /// is 1. Raises KYRException; the model is then of no use but may be destroyed.
  int importModel(KYRStoreModel& model, KYROptionList& options, const KYRString& originId);

  // Parts of the driver.
  void readOptions(KYROptionList& options);
  void stampOrigin(const KYRString& originId);
  void loadDom();
  void finishModel();
  /// Frees the working state and prunes empty packages. Never raises.
  void release() noexcept;
  void deleteDroppedAttribute(KYRAttribute* attribute);

  // Phases of the conversion.
  void convertModel();
  void selectRootPackage();
  KYRDesignPackage* createRootPackage();
  void convertTopLevel();
  void addDataPackages();
  void convertRelations();
  /// True when a target data store was chosen.
  bool isPhysicalTarget() const noexcept { return targetDataStore != nullptr; }

  // Packages.
  std::unique_ptr<KYRDesignPackage> convertPackage(UMLPackage* package);
  std::vector<UMLNamedElement*> getMembers(UMLPackage* package);

  // What every element shares.
  void applyElementMetadata(KYRElement* object, UMLElement* element);
  void convertComments(KYRElement* object, UMLElement* element, const Borrowed<UMLComment>& comments);

  // Classes and features.
  void convertClass(UMLClass* element, KYRDesignPackage* package);
  void convertInterface(UMLInterface* element, KYRDesignPackage* package);
  std::unique_ptr<KYRAttribute> convertProperty(UMLProperty* element);
  std::unique_ptr<KYROperation> convertOperation(UMLOperation* element);
  void convertParameter(UMLParameter* element, KYROperation* operation);
  static KYRVisibilityType mapVisibility(int visibility);
  static KYRString valueSpecificationText(const UMLValueSpecification* value);

  // Associations.
  void convertAssociation(UMLAssociation* element);
  std::unique_ptr<KYRAssociationRole> convertAssociationEnd(UMLProperty* element);
  AssociationClass* getAssociationClassRecord(UMLAssociation* element);
  void placeAssociationClasses();
  KYRString buildAssociationClassName(UMLAssociationClass* element);

  // Other relations.
  void convertGeneralization(UMLGeneralization* edge);
  void connectGeneralization(UMLElement* cause, UMLGeneralization* edge);
  void convertRealization(UMLInterfaceRealization* element);
  void convertDependency(UMLDependency* element);

  // What the phases share.
  /// Ties element and object to each other and enters the object in `objects`.
  void enter(KYRObject* object, UMLElement* element);
  /// Places the object in the name space, under a name that is free there. Without a name space the
  /// object waits in `unplacedObjects`.
  void place(std::unique_ptr<KYRNamespaceElement> object, KYRNamespace* space);
  /// Adds to the count of entries that the conversion has looked at. Raises KYRException when that is
  /// many times the number of elements: packages can list one another so that the walk, which converts
  /// what it meets twice a second time, would never end within reason.
  void countSteps(unsigned int steps);

  static constexpr std::uint64_t stepsForAnyFile = 1000000;
  static constexpr std::uint64_t stepsForOneElement = 100;

  KYRLog* log;
  KYRFile file;
  KYRString rootPackageName;
  ID2ObjectHashtable objects;
  Borrowed<KYRModelObject> typedFeatures;  // attributes, operations and arguments in order of making
  std::vector<std::unique_ptr<AssociationClass>> associationClasses;
  Borrowed<KYRDataPackage> dataPackages;
  OwnerHashtable owners;
  Borrowed<KYRClassDiagram> diagrams;
  MDHashtable mdObjects;
  KYRRBTree droppedAttributes;  // KYRAttribute, taken out of their classes
  Borrowed<UMLAssociation> pendingAssociations;
  Borrowed<UMLGeneralization> pendingGeneralizations;
  Borrowed<UMLInterfaceRealization> pendingRealizations;
  Borrowed<UMLDependency> pendingDependencies;
  KYRStoreModel* storeModel = nullptr;
  UMLModel* umlModel = nullptr;
  std::unique_ptr<KYRDOM> dom;
  std::unique_ptr<KYRDOMElement> domRoot;
  KYRDOMElement* domModel = nullptr;  // in the tree of domRoot
  const KYRDataStoreVersion* targetDataStore = nullptr;
  std::unique_ptr<KYRDataTypeConverter> dataTypeConverter;
  KYRDesignPackage* rootOwner = nullptr;

  /// Objects that no container owned when they were made, each an entry as a KYRObject and told apart
  /// by address. The release step destroys those that still have no owner.
  KYRHashtable unplacedObjects;
  std::uint64_t stepCount = 0;
  std::uint64_t stepLimit = stepsForAnyFile;

 private:
  std::unique_ptr<KYRDesignPackage> createPackage(UMLPackage* element);
  void convertMember(UMLNamedElement* member, KYRDesignPackage* package);
  void completeClass(KYRClass* target, UMLClassifier* element);
  void convertAttributes(KYRClass* target, const Borrowed<UMLProperty, KYROrderedVector>& properties);
  void convertOperations(KYRClass* target, const Borrowed<UMLOperation, KYROrderedVector>& operations);
  void collectGeneralizations(const UMLClassifier* element);
  void keepUnplaced(std::unique_ptr<KYRObject> object);
  void destroyUnplaced() noexcept;
  KYRGeneralization* createGeneralization(UMLElement* cause, KYRClass* super);

  // Indexes beside the lists above: none holds anything that the lists do not.
  std::unordered_map<const UMLAssociation*, AssociationClass*> recordsByElement_;
  std::unordered_map<const KYRClass*, KYRGeneralization*> generalizationsBySuper_;
  CommentTargets commentTargets_;
};
