// XMIParser: one XMI file becomes a tree of UML objects.
//
// The file is streamed once. Each start tag is looked up in the dispatch tables; readers make
// objects, push them on the element stack and note references. What a reference ties together is tied as
// soon as both objects are known. After the last tag the parser reports unknown tags, resolves the
// references that are left, attaches comments and runs the tool extension.
//
// Ownership: the parser owns every UML object and kind object, and holds the document whose texts they
// show; all die with it, but for texts that somebody else keeps. A parser reads one file. Two parsers must
// not run at once in one process, since the dispatch rows are shared.
#pragma once

#include <memory>
#include <vector>

#include "foundation/KYRFile.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRSAX2Parser.h"
#include "foundation/KYRString.h"
#include "foundation/KYRStringArray.h"
#include "uml/UMLForward.h"
#include "uml/UMLKindPool.h"
#include "uml/UMLMadeObjects.h"
#include "xmi/AttributeScan.h"
#include "xmi/ComingIds.h"
#include "xmi/IdTable.h"
#include "xmi/PendingLink.h"
#include "xmi/TagHandler.h"
#include "xmi/UMLObjectMemory.h"
#include "xmi/UMLObjectTable.h"
#include "xmi/UnknownTag.h"

class ClassPlan;
class ReadObserver;
class XmlTextArena;

class XMIParser {
 public:
  using ID2ObjectHashtable = UMLObjectTable;
  using TagHandlerHashtable = ::TagHandlerHashtable;
  using UnknownTagHashtable = ::UnknownTagHashtable;

  /// `log` receives the messages and must outlive the parser.
  explicit XMIParser(KYRLog* log);
  XMIParser(const XMIParser&) = delete;
  XMIParser& operator=(const XMIParser&) = delete;
  ~XMIParser();

  /// Reads the file and finishes its objects. The result lives as long as the parser.
  /// Raises KYRException: "[KBI_UML2XMI_F0008] ..." when no model element started anywhere in the
  /// file, and whatever the XML reader raises. After an exception the parser holds no object of the file.
  UMLModel* parse(const KYRFile& file);
  /// Gives back what only reading and linking need, the document but for its texts. The parser must not
  /// parse again.
  void dropReading();
  /// What the texts of the objects show; null before `parse`. It may be kept longer than the parser.
  std::shared_ptr<const XmlTextArena> getTexts() const noexcept { return texts; }

  /// All UML objects, in order of reading.
  const UMLObjectTable& getObjects() const noexcept { return objects; }
  /// Objects that the tool extension made, replaced ones included, in order of making.
  const UMLMadeObjects& getMadeObjects() const noexcept { return madeObjects; }
  const KYRString& getExporter() const noexcept { return exporter; }
  const KYRString& getExporterVersion() const noexcept { return exporterVersion; }
  /// The detected versions; empty when the file's namespace is not known.
  const KYRString& getUmlVersion() const noexcept { return umlVersion; }
  const KYRString& getXmiVersion() const noexcept { return xmiVersion; }
  /// Told of the read from the next `parse` on; null for none. Borrowed.
  void setObserver(ReadObserver* readObserver) noexcept { observer = readObserver; }

  /// The first entry behind one that equals `name` without regard to case, names and values walked
  /// alike one position at a time; the empty text when there is none.
  static const KYRString& getAttribute(const KYRStringArray& attributes, const KYRString& name);
  /// True for "TRUE" in any case and for nothing else.
  static bool isTrue(const KYRString& value);
  /// The UML or XMI version that a namespace URI stands for, or the empty text.
  static KYRString umlVersionOf(const KYRString& uri);
  static KYRString xmiVersionOf(const KYRString& uri);

  /// Fills in both ends of a relationship; true when the row's effects were applied.
  bool linkRelationship(UMLElement* first, UMLElement* second, int kind);

  // Actions of the dispatch rows.
  void readElement(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void readModel(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void readLiteral(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void readChild(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void storeText(const TagHandler& row, const KYRString& tag);
  void captureNamespaces(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void captureExporter(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes);
  void endExporter(const TagHandler& row, const KYRString& tag);
  void endExporterVersion(const TagHandler& row, const KYRString& tag);

 private:
  /// An open object and the number of its id.
  struct OpenElement {
    UMLElement* element;
    IdTable::Number id;
  };
  /// An object in `objectMemory` that `objects` does not own yet.
  struct Destroy {
    void operator()(UMLElement* object) const noexcept;
  };
  using MadeObject = std::unique_ptr<UMLElement, Destroy>;
  /// A reference of the element being started.
  struct Reference {
    const KYRString* id;
    int position;  // in the plan
    int linkKind;
  };
  /// One for each open XML element, skipped ones too; the row is null when none matched.
  struct HandlerEntry {
    TagHandler* row;
  };

  // The callbacks of the streaming reader.
  static void startCallback(void* userData, const KYRString& tag, const KYRStringArray& attributes);
  static void endCallback(void* userData, const KYRString& tag);
  static void charactersCallback(void* userData, const KYRString& chunk);
  static bool isIdCallback(void* userData, const KYRString& attribute);
  static void comingIdCallback(void* userData, const KYRString& id);
  void startTag(const KYRString& tag, const KYRStringArray& attributes);
  void endTag(const KYRString& tag);
  TagHandler* chooseRowByTag(const KYRString& tag) const;
  void beginSkip(const KYRString& tag);
  void noteUnknown(const KYRString& tag);

  // The stacks.
  UMLElement* getElement(int offset) const noexcept;
  void pushElement(UMLElement* element, IdTable::Number id);
  void popElement() noexcept;
  KYRString getPosition() const;
  void patchRow() noexcept;

  // What readers share. The attributes are those of the element being started.
  const KYRString& attribute(int name) const noexcept { return scan.get(name); }
  void readPlan(const ClassPlan& plan, const KYRString& tag);
  IdTable::Number numberOf(const KYRString& id) { return ids.intern(id, comingIds.hashOf(id)); }
  MadeObject makeObject(const ClassPlan& plan, const KYRString& id, const KYRString& name);
  void completeObject(const ClassPlan& plan, const KYRString& tag, MadeObject object, IdTable::Number id);
  void readScalars(const ClassPlan& plan, UMLElement& element);
  void findReferences(const ClassPlan& plan);
  void noteReferences(IdTable::Number id);
  void tieToParent(const ClassPlan& plan, const KYRString& tag, IdTable::Number id);
  // As `linkRelationship`; nothing is read of the objects but what is filled in.
  bool link(const IdTable::Bearer& first, const IdTable::Bearer& second, int kind);
  void noteLink(IdTable::Number first, IdTable::Number second, int kind);
  void detectVersions();

  // The end of a parse, in order.
  void reportUnknownTags();
  void prefetchLinks(std::size_t at) const noexcept;
  void resolveLinks();
  void attachComments();
  void runToolExtension();
  void cleanUp() noexcept;

  std::unique_ptr<KYRSAX2Parser> parser;
  std::shared_ptr<const XmlTextArena> texts;  // of the document, which the texts of the objects show
  UnknownTagHashtable unknownTags;            // owned
  TagHandlerHashtable contextHandlers;
  TagHandlerHashtable typeHandlers;
  TagHandlerHashtable generalHandlers;
  KYRString skippedTag;
  int skipDepth = 0;
  std::vector<OpenElement> elementStack;
  KYRString text;
  std::vector<HandlerEntry> handlerStack;
  std::vector<Reference> references;
  UMLObjectMemory objectMemory;
  UMLObjectTable objects;  // owned, in objectMemory
  std::vector<PendingLink> pendingLinks;
  KYRString exporter;
  KYRString exporterVersion;
  KYRString umlVersion;
  KYRString xmiVersion;
  bool modelSeen = false;
  KYRFile file;
  KYRLog* log;
  UMLModel* model = nullptr;

  IdTable ids;
  ComingIds comingIds{ids};
  UMLKindPool kinds;
  UMLMadeObjects madeObjects;  // made by the tool extension; they outlive `objects`
  AttributeScan scan;
  ReadObserver* observer = nullptr;
};
