// KYRSAX2Parser: the streaming XML reader.
//
// It calls back on the caller's thread as the file is read. The same events fill an immutable
// document (foundation/xml/XmlDocument.h) that lives as long as the parser, so that a later tree
// reading of the unchanged file needs no second tokenising and the texts of the events may be kept
// as borrowed views for as long as the parser lives.
#pragma once

#include <cstdint>
#include <memory>

#include "foundation/KYRFile.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRString.h"
#include "foundation/KYRStringArray.h"

class XmlDocument;

class KYR_EXPORT KYRSAX2Parser {
 public:
  using StartCallback = void (*)(void* userData, const KYRString& tag, const KYRStringArray& attributes);
  using EndCallback = void (*)(void* userData, const KYRString& tag);
  using CharactersCallback = void (*)(void* userData, const KYRString& text);
  using FourthCallback = void (*)(void* userData, const KYRString& target, const KYRString& data);
  using WantedCallback = bool (*)(void* userData, const KYRString& attribute);
  using ComingCallback = void (*)(void* userData, const KYRString& value);

  /// Any callback may be null. The fourth one receives processing instructions.
  KYRSAX2Parser(void* userData, KYRLog* log, StartCallback start, EndCallback end,
                CharactersCallback characters, FourthCallback fourth);
  KYRSAX2Parser(const KYRSAX2Parser&) = delete;
  KYRSAX2Parser& operator=(const KYRSAX2Parser&) = delete;
  ~KYRSAX2Parser();

  /// Lets `coming` be told, in order, of the values of the attributes that `isWanted`, some elements before
  /// the start callback gets them: of most values where it pays, of none in small files. `isWanted` is asked
  /// at most once for each attribute name of a file. For callbacks that can ask memory for what they will
  /// need. Neither may be null.
  void lookAhead(WantedCallback isWanted, ComingCallback coming);

  /// Streams the file. Tags and attribute names arrive as written, prefix included; attribute
  /// names and values in turn. All texts are borrowed views that live until the next `parseFile` of this
  /// parser or its end, and beyond that for whoever holds the texts of its document
  /// (XmlDocument::getTexts); character data may come in several calls for one element. When a document of
  /// the same unchanged file still lives, that one is walked instead and nothing is read. When a host has
  /// installed a rewriter for the file (foundation/xml/XmlRewriting.h), it is parsed whole, and the document
  /// that the rewriter hands on is walked. Raises KYRException (file, line, column, reason) for a file that
  /// cannot be read, is not well-formed (XML 1.0), is not valid in its encoding, or exceeds a limit; an
  /// exception out of a callback passes through.
  void parseFile(const KYRFile& file);

  /// Where the parser stands: "line L, column C" of the "<" of the element last reported, both
  /// from 1, columns in characters of the file as written. Empty before the first element.
  KYRString getPosition() const;
  /// The line alone; 0 before the first element.
  std::uint32_t getLine() const noexcept;

  /// The document that the last `parseFile` has filled; null before.
  std::shared_ptr<const XmlDocument> getDocument() const noexcept;

 private:
  class State;
  std::unique_ptr<State> state_;
};
