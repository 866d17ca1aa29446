// KYRSAX2Parser: hands the events of a document on to the callbacks while the document grows.
#include "foundation/KYRSAX2Parser.h"

#include <vector>

#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlPosition.h"

class KYRSAX2Parser::State final : public XmlDocumentListener {
 public:
  State(void* userData, StartCallback start, EndCallback end, CharactersCallback text,
        FourthCallback fourth) noexcept
      : userData_(userData), start_(start), end_(end), characters_(text), fourth_(fourth) {}

  void lookAhead(WantedCallback wanted, ComingCallback coming) noexcept {
    isWanted_ = wanted;
    coming_ = coming;
  }
  void parse(const KYRFile& file) { readXmlFile(file, this, fourth_ != nullptr); }

  void startDocument(const std::shared_ptr<const XmlDocument>& document) override {
    document_ = document;
    lastElement_ = XmlDocument::noNode;
    wanted_.clear();
  }
  void expect(XmlDocument::Node node) override {
    if (coming_ == nullptr) return;
    for (std::uint32_t index = 0; index < document_->getAttributeCount(node); ++index) {
      if (isWanted(document_->getAttributeName(node, index))) {
        coming_(userData_, document_->getAttributeValue(node, index));
      }
    }
  }
  void startElement(XmlDocument::Node node) override {
    lastElement_ = node;
    if (start_ == nullptr) return;
    attributes_.clear();
    for (std::uint32_t index = 0; index < document_->getAttributeCount(node); ++index) {
      attributes_.addBorrowed(document_->getNameText(document_->getAttributeName(node, index)));
      attributes_.addBorrowed(document_->getAttributeValue(node, index));
    }
    start_(userData_, document_->getTag(node), attributes_);
  }
  void endElement(XmlDocument::Node node) override {
    if (end_ != nullptr) end_(userData_, document_->getTag(node));
  }
  void characters(XmlDocument::Node node) override {
    if (characters_ != nullptr) characters_(userData_, document_->getText(node));
  }
  void processingInstruction(const KYRString& target, const KYRString& data) override {
    if (fourth_ != nullptr) fourth_(userData_, target, data);
  }

  KYRString getPosition() const {
    if (lastElement_ == XmlDocument::noNode) return KYRString();
    return KYRStdMessages::XML_POSITION.toString(toText(document_->getLine(lastElement_)),
                                                 toText(document_->getColumn(lastElement_)));
  }
  std::uint32_t getLine() const noexcept {
    return lastElement_ == XmlDocument::noNode ? 0 : document_->getLine(lastElement_);
  }
  const std::shared_ptr<const XmlDocument>& getDocument() const noexcept { return document_; }

 private:
  enum class Answer : unsigned char { unknown, no, yes };
  bool isWanted(XmlDocument::Name name) {
    if (name >= wanted_.size()) wanted_.resize(std::size_t{name} + 1, Answer::unknown);
    Answer& answer = wanted_[name];
    if (answer == Answer::unknown) {
      answer = isWanted_(userData_, document_->getNameText(name)) ? Answer::yes : Answer::no;
    }
    return answer == Answer::yes;
  }

  void* userData_;
  StartCallback start_;
  EndCallback end_;
  CharactersCallback characters_;
  FourthCallback fourth_;
  WantedCallback isWanted_ = nullptr;
  ComingCallback coming_ = nullptr;
  std::vector<Answer> wanted_;  // by attribute name
  std::shared_ptr<const XmlDocument> document_;
  XmlDocument::Node lastElement_ = XmlDocument::noNode;
  KYRStringArray attributes_;  // of the element under way; its room serves all of them
};

KYRSAX2Parser::KYRSAX2Parser(void* userData, KYRLog*, StartCallback start, EndCallback end,
                             CharactersCallback characters, FourthCallback fourth)
    : state_(std::make_unique<State>(userData, start, end, characters, fourth)) {}

KYRSAX2Parser::~KYRSAX2Parser() = default;

void KYRSAX2Parser::lookAhead(WantedCallback isWanted, ComingCallback coming) {
  state_->lookAhead(isWanted, coming);
}

void KYRSAX2Parser::parseFile(const KYRFile& file) { state_->parse(file); }

KYRString KYRSAX2Parser::getPosition() const { return state_->getPosition(); }

std::uint32_t KYRSAX2Parser::getLine() const noexcept { return state_->getLine(); }

std::shared_ptr<const XmlDocument> KYRSAX2Parser::getDocument() const noexcept {
  return state_->getDocument();
}
