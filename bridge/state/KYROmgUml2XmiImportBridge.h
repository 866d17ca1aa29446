// KYROmgUml2XmiImportBridge: the working state of one import, and its operations.
//
// The driver (bridge/ImportDriver.cpp) reads the file and finishes the model; the conversion (convert/)
// turns UML objects into repository objects in fixed phases; the release step (bridge/ReleaseStep.cpp)
// ends every import, good or failed.
//
// Ownership. UML objects belong to the parser; nothing looks at them from the release step on. Repository
// objects belong to the container that an `add` operation placed them in; one that no container took stays in
// `unplacedObjects` until the release step. All lists borrow, but for the records of
// `associationClasses`, `owners` and `mdObjects`, which belong to the bridge.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "bridge/state/CommentTargets.h"
#include "bridge/state/TextKeyHashtable.h"
#include "bridge/state/TypeIndex.h"
#include "foundation/BackgroundRelease.h"
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
class Point2DVector;
class XMIParser;
class targetDatabaseInfo;
struct Point2D;

class KYROmgUml2XmiImportBridge {
 public:
  /// Repository objects by `sourceId`. Ids are case-sensitive. Few files have anything that looks objects
  /// up, so they are hashed when something does; no object changes its id while it is in the table.
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

  /// Tables grow with their content. Of these there is one for each frame and each shape.
  static constexpr int smallTable = 16;

  /// A record of a diagram. Records that hold others free them in their destructors.
  struct MD {
    MD() = default;
    MD(const MD&) = delete;
    MD& operator=(const MD&) = delete;
    virtual ~MD() = default;
    KYRString id;
  };
  class MDHashtable : public TextKeyHashtable<MD, &MD::id> {
   public:
    using TextKeyHashtable::TextKeyHashtable;
    /// The record at a position as what it is; null at a gap.
    template <class Record>
    Record* recordAt(unsigned int slot) const {
      return dynamic_cast<Record*>(at(slot));
    }
    void deleteRecords() noexcept;
  };

  /// A shape or a line on a diagram.
  struct MDDiagramFrameElement : MD {
    ~MDDiagramFrameElement() override;
    KYRString umlRef;                        // the id of what it shows
    const KYRDOMElement* element = nullptr;  // in the tree of domRoot
    MDHashtable children{smallTable};        // owned: the generalizations of a tree
  };

  /// What stands on a diagram.
  struct MDDiagramFrame : MD {
    ~MDDiagramFrame() override;
    MDHashtable elements{smallTable};  // owned: MDDiagramFrameElement
  };

  /// A class diagram of the file.
  struct MDDiagram : MD {
    KYRString packageId;
    const KYRDOMElement* element = nullptr;  // in the tree of domRoot
    std::unique_ptr<MDDiagramFrame> frame;   // null for a diagram without shapes
  };

  explicit KYROmgUml2XmiImportBridge(KYRLog* importLog);
  KYROmgUml2XmiImportBridge(const KYROmgUml2XmiImportBridge&) = delete;
  KYROmgUml2XmiImportBridge& operator=(const KYROmgUml2XmiImportBridge&) = delete;
  ~KYROmgUml2XmiImportBridge();

  /// The whole import, from the options to the finished model; once in the life of a bridge. The result
  /// is 1. Raises KYRException; the model is then of no use but may be destroyed.
  int importModel(KYRStoreModel& model, KYROptionList& options, const KYRString& originId);

  // Parts of the driver.
  void importParsed(XMIParser& parser);
  void readOptions(KYROptionList& options);
  void stampOrigin(const KYRString& originId);
  void loadDom();
  void finishModel();
  void markOptionalAttributes();
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

  // Data store and schemas.
  /// The row of `targetDatabases` that the file's profiles name, or null.
  const targetDatabaseInfo* findTargetDatabase() const;
  void chooseDataStore();
  void loadOwners();
  void placeClassesInSchemas();
  /// The schema of that name, without regard to case; made when it is missing.
  KYRDatabaseSchema* fetchSchema(const KYRString& name);
  void addToSchema(KYRClass* object, KYRDatabaseSchema* schema);

  // Types. All that are made belong to the store model.
  void assignFeatureType(KYRObject* feature);
  KYRType* convertType(UMLType* element);
  KYRDerivedType* getDerivedType(const KYRString& typeName, const KYRString& sourceId, int length, int scale,
                                 bool withBase);
  /// The first type of the model with that name, without regard to case, and those values; or null.
  KYRConcreteType* findDerivedType(KYRStoreModel* model, const KYRString& name, int length, int scale,
                                   int elementType);
  KYRClassType* getClassType(KYRClass* typeClass);
  KYRConcreteType* getBaseType(const KYRString& dataType);
  void convertEnumerationLiterals(KYRDerivedType* type);

  // Keys.
  void convertKeys();
  void addPrimaryKeyAttribute(const KYRString& keyName, KYRAttribute* attribute);
  void addForeignKeyAttribute(const KYRString& keyName, KYRAttribute* attribute);

  // Diagrams. Whatever does not resolve leaves its shape out, in silence.
  void importDiagrams();
  void collectDiagrams(const KYRDOMElement* element, const KYRString& packageId);
  void collectFrames(const KYRDOMElement* element);
  void addFrameElement(const KYRDOMElement* element, MDDiagramFrame* frame);
  void importDiagram(MDDiagram* diagram);
  void createClassProjection(KYRClassDiagram* diagram, const KYRDOMElement* element, KYRModelObject* subject);
  void createGeneralizationProjections(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                       KYRGeneralizationRole* role, KYRGeneralization* generalization,
                                       MDHashtable& shapes);
  void createAssociationProjections(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                    KYRModelObject* subject, MDHashtable& shapes);
  void createTreeProjections(KYRClassDiagram* diagram, const KYRDOMElement* element,
                             MDDiagramFrameElement* tree, KYRGeneralization* generalization,
                             MDHashtable& shapes);
  /// The first display property of that class and name, both without regard to case; or null.
  static const KYRDOMElement* findProperty(const KYRString& name, const KYRString& propertyClass,
                                           const KYRDOMElement* element);
  /// The box as the file has it. False, and all four 0, unless all four numbers are there.
  static bool readGeometry(const KYRDOMElement* element, int& x, int& y, int& w, int& h);
  /// A point and the points of a line, scaled to repository units.
  static Point2D parsePoint(const KYRString& text);
  static void parsePoints(const KYRString& text, Point2DVector& points);
  static int readDisplayFlags(const KYRDOMElement* element);
  /// 0xRRGGBB turned into 0xBBGGRR.
  static int swapColor(int value);

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

  /// Behind the id of an association class: the key of its association in `objects`.
  static constexpr const char* associationSuffix = "_ASSOCIATION";
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
  unsigned int readCount = 0;  // UML objects of the file
  /// Enumeration literals looked at so far. Tests count them to show that each is once for each type.
  std::uint64_t literalCount = 0;
  /// Where derived types are found.
  TypeIndex typeIndex;

 private:
  std::unique_ptr<KYRDesignPackage> createPackage(UMLPackage* element);
  void convertMember(UMLNamedElement* member, KYRDesignPackage* package);
  void completeClass(KYRClass* target, UMLClassifier* element);
  void convertAttributes(KYRClass* target, const Borrowed<UMLProperty, KYROrderedVector>& properties);
  void convertOperations(KYRClass* target, const Borrowed<UMLOperation, KYROrderedVector>& operations);
  void collectGeneralizations(const UMLClassifier* element);
  void collectDiagram(const KYRDOMElement* element, const KYRString& packageId);
  void collectFrame(const KYRDOMElement* extension);
  MDDiagram* findFramedDiagram(const KYRDOMElement* views) const;
  static void addTreeBranch(const KYRDOMElement* shape, MDDiagramFrame& frame);
  void importShapes(KYRClassDiagram* diagram, const MDHashtable& shapes);
  void importLines(KYRClassDiagram* diagram, MDHashtable& shapes);
  void importTrees(KYRClassDiagram* diagram, MDHashtable& shapes);
  KYRModelObject* findModelObject(const KYRString& id) const;
  // The classes that a line joins; a class counts only when it stands on the diagram.
  struct LineEnds {
    KYRClass* first;
    KYRClass* second;
    bool areFound() const noexcept { return first != nullptr && second != nullptr; }
  };
  LineEnds findLineEnds(const KYRClassDiagram* diagram, const KYRDOMElement* element,
                        const MDHashtable& shapes) const;
  KYRClass* findLineEnd(const KYRClassDiagram* diagram, const KYRString& shapeId,
                        const MDHashtable& shapes) const;
  KYRPresentationElement* findTreeBase(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                       const MDHashtable& shapes) const;
  static void createBranch(KYRClassDiagram* diagram, const KYRDOMElement* element, KYRModelObject* subRole,
                           const KYRProjection& marker);
  void keepUnplaced(std::unique_ptr<KYRObject> object);
  void destroyUnplaced() noexcept;
  KYRGeneralization* createGeneralization(UMLElement* cause, KYRClass* super);
  void placeTablesWithOwners();
  void placePackagesAsSchemas();
  KYRType* featureTypeOf(UMLType* element);
  void assignFeatureTypes();
  KYRDerivedType* convertEnumeration(UMLEnumeration* element);
  void addTypeValue(KYRDerivedType* type, UMLEnumerationLiteral* literal, KYRString& dataType);
  void ensureBaseType(KYRDerivedType* type);
  using KeyOperation = void (KYROmgUml2XmiImportBridge::*)(const KYRString& keyName, KYRAttribute* attribute);
  void convertKeysOf(const KYRString& tag, KeyOperation add);
  bool addKeyOverAssociation(const KYRString& keyName, KYRAttribute* attribute, const KYRString& role,
                             const KYRString& column);
  void addKeysOverGeneralizations(const KYRString& keyName, KYRAttribute* attribute, const KYRString& column);
  const std::vector<KYRAssociationRole*>& rolesTowards(const KYRClass* keyClass, const KYRString& farRole);

  // What is known of an enumeration after its first pass.
  struct EnumerationPass {
    KYRDerivedType* type = nullptr;          // what the enumeration becomes
    const KYRDerivedType* filled = nullptr;  // the type that has its literals
    KYRString dataType;                      // that the literals tell
  };

  // Indexes beside the lists above: none holds anything that the lists do not.
  std::unordered_map<const UMLAssociation*, AssociationClass*> recordsByElement_;
  std::unordered_map<const KYRClass*, KYRGeneralization*> generalizationsBySuper_;
  std::unordered_map<std::string, KYRDatabaseSchema*> schemasByName_;  // names in small letters
  std::unordered_map<std::string, KYRConcreteType*> baseTypes_;
  std::unordered_map<const UMLEnumeration*, EnumerationPass> enumerationPasses_;
  // By class, and by the name of the far role in small letters.
  std::unordered_map<const KYRClass*, std::unordered_map<std::string, std::vector<KYRAssociationRole*>>>
      rolesByFarName_;
  CommentTargets commentTargets_;
  // Large imports: the parser goes while the model is saved.
  BackgroundRelease parserRelease_;
};
